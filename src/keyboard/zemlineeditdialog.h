// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLINEEDITDIALOG_H
#define ZEMLINEEDITDIALOG_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

class ZEMKeyboardInputHandler;
class ZEMVirtualKeyboard;

/**
 * Asks for a line of text: a title, a field, a keyboard, and a button each to cancel and to
 * confirm. An Enter key of the keyboard confirms too.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMLineEditDialog>
 * #include <ZEMKeyboardInputHandler>
 *
 * auto *page = new QWidget;
 * // It lives until the last of its keyboards is gone.
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *dialog = new
 * ZEMLineEditDialog(keyboards.createKeyboard(KeyboardFactoryDefault::PopupAbove), page);
 * dialog->setTitle(QObject::tr("Naam"));
 * dialog->setText(QStringLiteral("Keuken"));
 * auto *handler = new ZEMKeyboardInputHandler(dialog);
 * QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, &QWidget::hide);
 * dialog->setActiveInputHandler(handler);
 * dialog->show();
 * @endcode
 * The result is told by the signals and by the handler. The dialog does not close itself: hide it
 * in answer. For texts that may not leave ASCII, such as the name of a network, the dialog takes a
 * second keyboard, which it shows instead of the first. A new dialog is 800 by 480 pixels.
 *
 * Its texts have the colours of the palette, on a black ground: without ZEMStyle, or another
 * palette with light texts, they cannot be read.
 */
class ZEM_EXPORT ZEMLineEditDialog : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** The dialog becomes the parent of @p keyboard, which must not be null. */
    explicit ZEMLineEditDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent = nullptr);
    ~ZEMLineEditDialog() override;

    /** The text above the field; empty by default. */
    void setTitle(const QString &title);

    /** The text of the field. */
    void setText(const QString &text);
    QString text() const;

    /**
     * Tells results to @p handler from now on, which stays the caller's and may be deleted any
     * time; null by default, which leaves the dialog's own signals.
     */
    void setActiveInputHandler(ZEMKeyboardInputHandler *handler);

    /** Limits the field to @p length characters and cuts what it holds; 32767 by default. */
    void setStringLengthLimit(int length);
    int getStringLengthLimit() const;

    /**
     * Whether the text is selected when the dialog is shown, so that the first key replaces it;
     * true by default. Otherwise the cursor stands at the end.
     */
    void setAutoSelect(bool select);

    /**
     * Takes @p board, which becomes a child of the dialog, as the ASCII keyboard, hidden at first;
     * null is ignored. One that was set before stays a child of the dialog, and its Enter key goes
     * on confirming, but the dialog no longer shows or hides it.
     */
    void setAsciiKeyboard(ZEMVirtualKeyboard *board);

    /**
     * Shows the ASCII keyboard instead of the normal one if @p ascii is true, and the reverse if it
     * is false. The one that appears starts on its first page, in small letters. Without an ASCII
     * keyboard nothing happens but a message to qDebug().
     */
    void setAsciiInputMode(bool ascii);

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

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void slotInputHandlerSelect();
    void slotInputHandlerCancel();

private:
    Q_DISABLE_COPY(ZEMLineEditDialog)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
