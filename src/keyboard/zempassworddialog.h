// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPASSWORDDIALOG_H
#define ZEMPASSWORDDIALOG_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

class ZEMKeyboardInputHandler;
class ZEMVirtualKeyboard;

/**
 * Asks for a secret: like ZEMLineEditDialog, with a button beside the field that switches between
 * clear and masked text. An Enter key of the keyboard confirms.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMPasswordDialog>
 * #include <ZEMKeyboardInputHandler>
 *
 * auto *page = new QWidget;
 * // It lives until the last of its keyboards is gone.
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *dialog = new
 * ZEMPasswordDialog(keyboards.createKeyboard(KeyboardFactoryDefault::PopupAbove), page);
 * dialog->setTitle(QObject::tr("Wachtwoord"));
 * dialog->setText(QString()); // the secret of the last use is still there
 * dialog->slotHidePassword(true);
 * auto *handler = new ZEMKeyboardInputHandler(dialog);
 * QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, &QWidget::hide);
 * dialog->setActiveInputHandler(handler);
 * dialog->show();
 * @endcode
 * A new dialog shows the text in clear. The button "Show" is checked while the text is masked.
 *
 * The result is told by the signals and by the handler. The dialog does not close itself: hide it
 * in answer, and empty the field once the secret has been read, for the dialog never does. A new
 * dialog is 724 by 480 pixels.
 *
 * Its texts have the colours of the palette, on a black ground: without ZEMStyle, or another
 * palette with light texts, they cannot be read.
 *
 * The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMPasswordDialog : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** The dialog becomes the parent of @p keyboard, which must not be null. */
    explicit ZEMPasswordDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent = nullptr);
    ~ZEMPasswordDialog() override;

    /** The text above the field; empty by default. */
    void setTitle(const QString &title);

    /** The text of the field, in clear even while it is shown masked. */
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

public Q_SLOTS:
    /**
     * Masks the text if @p hide is true, shows it in clear if it is false, and sets the button
     * beside the field accordingly. If @p setFocus is true the field gets the focus, and the cursor
     * goes to the end of the text, which ends a selection.
     */
    void slotHidePassword(bool hide, bool setFocus = true);

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
    void setFocusToLineedit();

private:
    Q_DISABLE_COPY(ZEMPasswordDialog)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
