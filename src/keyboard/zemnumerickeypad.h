// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMNUMERICKEYPAD_H
#define ZEMNUMERICKEYPAD_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

class QValidator;
class ZEMKeyboardInputHandler;
class ZEMVirtualKeyboard;

/**
 * Asks for a number: a title, a field, a keypad, and a button each to confirm and to cancel, on a
 * darkened page.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMNumericKeypad>
 * #include <ZEMKeyboardInputHandler>
 * #include <QDoubleValidator>
 *
 * auto *page = new QWidget;
 * // It lives until the last of its keyboards is gone.
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *dialog = new ZEMNumericKeypad(keyboards.createNumericKeypad(), page);
 * dialog->setTitle(QObject::tr("Tarief"));
 * dialog->setValidator(new QDoubleValidator(0.0, 10.0, 4, dialog));
 * dialog->setValue(QStringLiteral("0,25"));
 * auto *handler = new ZEMKeyboardInputHandler(dialog);
 * QObject::connect(handler, &ZEMKeyboardInputHandler::sigSelect, dialog, &QWidget::hide);
 * dialog->setActiveInputHandler(handler);
 * dialog->show();
 * @endcode
 * The result is told by the signals and by the handler. The dialog does not close itself: hide it
 * in answer. An Enter key of the keypad does not confirm. A new dialog is 876 by 594 pixels.
 *
 * Its texts have the colours of the palette, on a black ground: without ZEMStyle, or another
 * palette with light texts, they cannot be read.
 */
class ZEM_EXPORT ZEMNumericKeypad : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** The dialog becomes the parent of @p keyboard, which must not be null. */
    explicit ZEMNumericKeypad(ZEMVirtualKeyboard *keyboard, QWidget *parent = nullptr);
    ~ZEMNumericKeypad() override;

    /** The text above the field; empty by default. */
    void setTitle(const QString &title);

    /** Sets the text of the field. It is not checked by the validator. */
    void setValue(const QString &value);
    /** The text of the field, in clear even where it is shown masked. */
    QString value() const;

    /** Admits only what @p validator accepts, which stays the caller's; null admits everything. */
    void setValidator(QValidator *validator);

    /** Limits the field to @p length characters and cuts what it holds; 32767 by default. */
    void setMaxLength(int length);

    /** Whether the field shows dots instead of characters; false by default. */
    void setPasswordEntry(bool password);

    /**
     * Whether the text is selected when the dialog is shown, so that the first key replaces it;
     * true by default. Otherwise the cursor stands at the end.
     */
    void setAutoSelectInput(bool select);

    /**
     * Tells results to @p handler from now on, which stays the caller's and may be deleted any
     * time; null by default, which leaves the dialog's own signals.
     */
    void setActiveInputHandler(ZEMKeyboardInputHandler *handler);

    /**
     * Makes the dialog ready for the next caller: no title, text, handler or validator, no limit
     * but 32767 characters, no mask, and the text selected when the dialog is shown.
     */
    void reset();

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

private:
    Q_DISABLE_COPY(ZEMNumericKeypad)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
