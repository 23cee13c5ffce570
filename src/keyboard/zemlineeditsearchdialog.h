// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLINEEDITSEARCHDIALOG_H
#define ZEMLINEEDITSEARCHDIALOG_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

class ZEMKeyboardInputHandler;
class ZEMVirtualKeyboard;

/**
 * Asks for a search term while the host searches: it reports every edit, and beside the field has a
 * search button with the number of hits. Otherwise like ZEMLineEditDialog, an Enter key included.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMLineEditSearchDialog>
 * #include <ZEMKeyboardInputHandler>
 *
 * auto *page = new QWidget;
 * // It lives until the last of its keyboards is gone.
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *dialog = new
 * ZEMLineEditSearchDialog(keyboards.createKeyboard(KeyboardFactoryDefault::PopupAbove), page); auto
 * *handler = new ZEMKeyboardInputHandler(dialog); QObject::connect(handler,
 * &ZEMKeyboardInputHandler::sigSelect, dialog, &QWidget::hide); const QStringList names
 * {QStringLiteral("Amsterdam"), QStringLiteral("Arnhem")}; QObject::connect(handler,
 * &ZEMKeyboardInputHandler::sigTextEdited, dialog,
 *                  [=](const QString &text) {
 *                      dialog->setSearchCount(names.filter(text).size());
 *                  });
 * dialog->setActiveInputHandler(handler);
 * dialog->show();
 * @endcode
 * The dialog does not close itself: hide it in answer to a signal. A new dialog is 892 by 531
 * pixels.
 *
 * Its texts have the colours of the palette, on a black ground: without ZEMStyle, or another
 * palette with light texts, they cannot be read.
 *
 * The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMLineEditSearchDialog : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** The dialog becomes the parent of @p keyboard, which must not be null. */
    explicit ZEMLineEditSearchDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent = nullptr);
    ~ZEMLineEditSearchDialog() override;

    /** The text above the field; empty by default. */
    void setTitle(const QString &title);

    /** The text of the field. Setting it is not an edit: sigTextEdited() is not raised. */
    void setText(const QString &text);
    QString text() const;

    /**
     * Tells results to @p handler from now on, which stays the caller's and may be deleted any
     * time; null by default, which leaves the dialog's own signals.
     */
    void setActiveInputHandler(ZEMKeyboardInputHandler *handler);

    /**
     * Whether the text is selected when the dialog is shown, so that the first key replaces it;
     * true by default. Otherwise the cursor stands at the end.
     */
    void setAutoSelect(bool select);

    /** The number on the search button; below 0, as by default, it has none. */
    void setSearchCount(int count);

Q_SIGNALS:
    /**
     * The dialog is being shown; raised once the field has the focus. A slot that ends the dialog
     * calls deleteLater().
     */
    void sigShown();
    /** The user has confirmed. The handler is told before other listeners. */
    void sigSelect();
    /** The cancel button was touched. The handler is told before other listeners. */
    void sigCancel();
    /** The search button was touched. The handler is told before other listeners. */
    void sigSearch();
    /**
     * The user has changed the text to @p text. The handler is told before other listeners. A slot
     * that ends the dialog, the handler's included, calls deleteLater().
     */
    void sigTextEdited(QString text);

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void slotInputHandlerSelect();
    void slotInputHandlerCancel();
    void slotInputHandlerSearch();
    void slotInputHandlerTextEdited(QString text);

private:
    Q_DISABLE_COPY(ZEMLineEditSearchDialog)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
