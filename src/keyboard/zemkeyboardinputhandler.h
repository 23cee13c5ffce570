// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMKEYBOARDINPUTHANDLER_H
#define ZEMKEYBOARDINPUTHANDLER_H

#include "zemkit_export.h"

#include <QObject>

/**
 * How the caller of an input dialog hears its result. A dialog that serves several callers tells
 * the handler that was installed last, so each caller has a handler of its own.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMKeyboardInputHandler>
 * #include <ZEMLineEditDialog>
 *
 * auto *page = new QWidget;
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *dialog = new
 * ZEMLineEditDialog(keyboards.createKeyboard(KeyboardFactoryDefault::PopupAbove), page); auto
 * *handler = new ZEMKeyboardInputHandler(page); QObject::connect(handler,
 * &ZEMKeyboardInputHandler::sigSelect, page, [=] { page->setWindowTitle(dialog->text());
 *     dialog->hide();
 * });
 * QObject::connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
 * dialog->setActiveInputHandler(handler);
 * dialog->show();
 * @endcode
 * The caller owns the handler. The dialogs call the emit functions; a host may do so too.
 */
class ZEM_EXPORT ZEMKeyboardInputHandler : public QObject
{
    Q_OBJECT

public:
    explicit ZEMKeyboardInputHandler(QObject *parent = nullptr);
    ~ZEMKeyboardInputHandler() override;

    /** Raises sigSelect(). */
    void emitSelect();
    /** Raises sigCancel(). */
    void emitCancel();
    /** Raises sigSearch(). */
    void emitSearch();
    /** Raises sigTextEdited() with @p text. */
    void emitTextEdited(const QString &text);

Q_SIGNALS:
    /**
     * The user has confirmed the input. The dialog is still open: read the value, then hide or
     * delete it.
     */
    void sigSelect();
    /** The user wants to leave the dialog without a result. The dialog is still open. */
    void sigCancel();
    /** The search button was touched; from ZEMLineEditSearchDialog only. */
    void sigSearch();
    /**
     * The user has changed the text to @p text; from ZEMLineEditSearchDialog only, which a slot
     * ends by deleteLater().
     */
    void sigTextEdited(const QString &text);

private:
    Q_DISABLE_COPY(ZEMKeyboardInputHandler)
};

#endif
