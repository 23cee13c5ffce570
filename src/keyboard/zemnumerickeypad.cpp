// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemnumerickeypad.h"

#include "inputdialog_p.h"
#include "objectname_p.h"
#include "ui_zemnumerickeypad.h"
#include "zemkeyboardinputhandler.h"

#include <QPointer>

namespace {

constexpr int longestText = 32767; // what QLineEdit starts with

} // namespace

class ZEMNumericKeypad::Private
{
public:
    Ui_ZEMNumericKeypad ui;
    QPointer<ZEMKeyboardInputHandler> inputHandler;
    bool autoSelect = true;
};

ZEMNumericKeypad::ZEMNumericKeypad(ZEMVirtualKeyboard *keyboard, QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.btnOK, &ZEMButton::clicked, this, &ZEMNumericKeypad::sigSelect);
    connect(d->ui.btnCancel, &ZEMButton::clicked, this, &ZEMNumericKeypad::sigCancel);
    connect(this, &ZEMNumericKeypad::sigSelect, this, &ZEMNumericKeypad::slotInputHandlerSelect);
    connect(this, &ZEMNumericKeypad::sigCancel, this, &ZEMNumericKeypad::slotInputHandlerCancel);
    InputDialog::placeKeyboard(keyboard, d->ui.widget, d->ui.lineEdit);
}

ZEMNumericKeypad::~ZEMNumericKeypad() = default;

void ZEMNumericKeypad::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

void ZEMNumericKeypad::setValue(const QString &value)
{
    d->ui.lineEdit->setText(value);
}

QString ZEMNumericKeypad::value() const
{
    return d->ui.lineEdit->text();
}

void ZEMNumericKeypad::setValidator(QValidator *validator)
{
    d->ui.lineEdit->setValidator(validator);
}

void ZEMNumericKeypad::setMaxLength(int length)
{
    d->ui.lineEdit->setMaxLength(length);
}

void ZEMNumericKeypad::setPasswordEntry(bool password)
{
    d->ui.lineEdit->setEchoMode(password ? QLineEdit::Password : QLineEdit::Normal);
}

void ZEMNumericKeypad::setAutoSelectInput(bool select)
{
    d->autoSelect = select;
}

void ZEMNumericKeypad::setActiveInputHandler(ZEMKeyboardInputHandler *handler)
{
    d->inputHandler = handler;
}

void ZEMNumericKeypad::reset()
{
    setTitle(QString());
    setValue(QString());
    setAutoSelectInput(true);
    setActiveInputHandler(nullptr);
    setValidator(nullptr);
    setMaxLength(longestText);
    setPasswordEntry(false);
}

void ZEMNumericKeypad::showEvent(QShowEvent *)
{
    InputDialog::focusAsIfTapped(d->ui.lineEdit);
    if (d->autoSelect) {
        InputDialog::selectAllSoon(d->ui.lineEdit);
    }
    Q_EMIT sigShown();
}

void ZEMNumericKeypad::slotInputHandlerSelect()
{
    if (d->inputHandler) {
        d->inputHandler->emitSelect();
    }
}

void ZEMNumericKeypad::slotInputHandlerCancel()
{
    if (d->inputHandler) {
        d->inputHandler->emitCancel();
    }
}
