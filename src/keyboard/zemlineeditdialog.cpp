// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlineeditdialog.h"

#include "inputdialog_p.h"
#include "objectname_p.h"
#include "ui_zemlineeditdialog.h"
#include "zemkeyboardinputhandler.h"
#include "zemvirtualkeyboard.h"

#include <QDebug>
#include <QPointer>

class ZEMLineEditDialog::Private
{
public:
    Ui_ZEMLineEditDialog ui;
    QPointer<ZEMKeyboardInputHandler> inputHandler;
    QGridLayout *keyboardLayout = nullptr;
    QPointer<ZEMVirtualKeyboard> keyboard;
    QPointer<ZEMVirtualKeyboard> asciiKeyboard;
    bool autoSelect = true;
};

ZEMLineEditDialog::ZEMLineEditDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->keyboard = keyboard;
    d->ui.setupUi(this);
    connect(d->ui.btnOK, &ZEMButton::clicked, this, &ZEMLineEditDialog::sigSelect);
    connect(d->ui.btnCancel, &ZEMButton::clicked, this, &ZEMLineEditDialog::sigCancel);
    connect(keyboard, &ZEMVirtualKeyboard::sigKey_enter, this, &ZEMLineEditDialog::sigSelect);
    connect(this, &ZEMLineEditDialog::sigSelect, this, &ZEMLineEditDialog::slotInputHandlerSelect);
    connect(this, &ZEMLineEditDialog::sigCancel, this, &ZEMLineEditDialog::slotInputHandlerCancel);
    d->keyboardLayout = InputDialog::placeKeyboard(keyboard, d->ui.widget, d->ui.lineEdit);
}

ZEMLineEditDialog::~ZEMLineEditDialog() = default;

void ZEMLineEditDialog::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

void ZEMLineEditDialog::setText(const QString &text)
{
    d->ui.lineEdit->setText(text);
}

QString ZEMLineEditDialog::text() const
{
    return d->ui.lineEdit->text();
}

void ZEMLineEditDialog::setActiveInputHandler(ZEMKeyboardInputHandler *handler)
{
    d->inputHandler = handler;
}

void ZEMLineEditDialog::setStringLengthLimit(int length)
{
    d->ui.lineEdit->setMaxLength(length);
}

int ZEMLineEditDialog::getStringLengthLimit() const
{
    return d->ui.lineEdit->maxLength();
}

void ZEMLineEditDialog::setAutoSelect(bool select)
{
    d->autoSelect = select;
}

void ZEMLineEditDialog::setAsciiKeyboard(ZEMVirtualKeyboard *board)
{
    if (!board) {
        return;
    }
    if (d->asciiKeyboard) {
        d->keyboardLayout->removeWidget(d->asciiKeyboard);
    }
    d->asciiKeyboard = board;
    connect(board, &ZEMVirtualKeyboard::sigKey_enter, this, &ZEMLineEditDialog::sigSelect);
    board->setFocusWidget(d->ui.lineEdit);
    d->keyboardLayout->addWidget(board, 0, 0);
    board->setPopupParent(d->ui.widget);
    board->setVisible(false);
}

void ZEMLineEditDialog::setAsciiInputMode(bool ascii)
{
    if (!d->asciiKeyboard) {
        qDebug() << "setAsciiInputMode"
                 << "called, without a ascii keyboard set";
        return;
    }
    d->asciiKeyboard->setVisible(ascii);
    if (d->keyboard) {
        d->keyboard->setVisible(!ascii);
    }
}

void ZEMLineEditDialog::showEvent(QShowEvent *)
{
    InputDialog::focusAsIfTapped(d->ui.lineEdit);
    if (d->autoSelect) {
        InputDialog::selectAllSoon(d->ui.lineEdit);
    }
    Q_EMIT sigShown();
}

void ZEMLineEditDialog::slotInputHandlerSelect()
{
    if (d->inputHandler) {
        d->inputHandler->emitSelect();
    }
}

void ZEMLineEditDialog::slotInputHandlerCancel()
{
    if (d->inputHandler) {
        d->inputHandler->emitCancel();
    }
}
