// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMMULTILINEDIALOG_H
#define ZEMMULTILINEDIALOG_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

class ZEMKeyboardInputHandler;
class ZEMVirtualKeyboard;

/**
 * Asks for a text of several lines: a title, a field without scroll bars, two buttons that move the
 * text up and down, a keyboard, and a button each to confirm and to cancel.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMMultiLineDialog>
 * #include <ZEMKeyboardInputHandler>
 *
 * auto *page = new QWidget;
 * // It lives until the last of its keyboards is gone.
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *dialog = new
 * ZEMMultiLineDialog(keyboards.createKeyboard(KeyboardFactoryDefault::PopupFlip), page);
 * dialog->setTitle(QObject::tr("Opmerking"));
 * dialog->setText(QStringLiteral("Filter schoonmaken"));
 * auto *handler = new ZEMKeyboardInputHandler(dialog);
 * QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, &QWidget::hide);
 * dialog->setActiveInputHandler(handler);
 * dialog->show();
 * @endcode
 * An Enter key of the keyboard begins a new line; only the button confirms. The buttons that move
 * the text go by a single step of the scroll bar, and each is disabled at its end of the text.
 *
 * The result is told by the signals and by the handler. The dialog does not close itself: hide it
 * in answer. A new dialog is 800 by 480 pixels, and fits into 480 with the keys of
 * KeyboardFactoryDefault in four rows and PopupFlip. With PopupAbove its layout needs some ten
 * pixels more in the style Fusion, so that it is cut off on a page of 480.
 *
 * Its texts have the colours of the palette, on a black ground: without ZEMStyle, or another
 * palette with light texts, they cannot be read.
 */
class ZEM_EXPORT ZEMMultiLineDialog : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** The dialog becomes the parent of @p keyboard, which must not be null. */
    explicit ZEMMultiLineDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent = nullptr);
    ~ZEMMultiLineDialog() override;

    /** The text above the field; a sample text by default. */
    void setTitle(const QString &title);

    /**
     * The text of the field, plain, with lines that end in "\n". Setting it puts the cursor at its
     * start; showing the dialog selects nothing and leaves the cursor where it is.
     */
    void setText(const QString &text);
    QString text() const;

    /**
     * Tells results to @p handler from now on, which stays the caller's and may be deleted any
     * time; null by default, which leaves the dialog's own signals.
     */
    void setActiveInputHandler(ZEMKeyboardInputHandler *handler);

Q_SIGNALS:
    /**
     * The dialog is being shown; raised once the field has the focus. A slot that ends the dialog
     * calls deleteLater().
     */
    void sigShown();
    /** The confirm button was touched. The handler is told before other listeners. */
    void sigSelect();
    /** The cancel button was touched. The handler is told before other listeners. */
    void sigCancel();

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void slotInputHandlerSelect();
    void slotInputHandlerCancel();
    void checkScrollAvialibility();
    void pageUp();
    void pageDown();

private:
    Q_DISABLE_COPY(ZEMMultiLineDialog)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
