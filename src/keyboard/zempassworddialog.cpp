// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempassworddialog.h"

#include "inputdialog_p.h"
#include "objectname_p.h"
#include "ui_zempassworddialog.h"
#include "zemkeyboardinputhandler.h"
#include "zemvirtualkeyboard.h"

#include <QPointer>

class ZEMPasswordDialog::Private
{
public:
    Ui_ZEMPasswordDialog ui;
    QPointer<ZEMKeyboardInputHandler> inputHandler;
    bool autoSelect = true;
};

ZEMPasswordDialog::ZEMPasswordDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.btnOK, &ZEMButton::clicked, this, &ZEMPasswordDialog::sigSelect);
    connect(d->ui.btnCancel, &ZEMButton::clicked, this, &ZEMPasswordDialog::sigCancel);
    connect(keyboard, &ZEMVirtualKeyboard::sigKey_enter, this, &ZEMPasswordDialog::sigSelect);
    connect(this, &ZEMPasswordDialog::sigSelect, this, &ZEMPasswordDialog::slotInputHandlerSelect);
    connect(this, &ZEMPasswordDialog::sigCancel, this, &ZEMPasswordDialog::slotInputHandlerCancel);
    InputDialog::placeKeyboard(keyboard, d->ui.widget, d->ui.lineEdit);
    // A typed connection knows nothing of the default of the second argument.
    connect(d->ui.btnShowPassword, SIGNAL(toggled(bool)), this, SLOT(slotHidePassword(bool)),
            Qt::UniqueConnection);
    slotHidePassword(false, false);
}

ZEMPasswordDialog::~ZEMPasswordDialog() = default;

void ZEMPasswordDialog::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

void ZEMPasswordDialog::setText(const QString &text)
{
    d->ui.lineEdit->setText(text);
}

QString ZEMPasswordDialog::text() const
{
    return d->ui.lineEdit->text();
}

void ZEMPasswordDialog::setActiveInputHandler(ZEMKeyboardInputHandler *handler)
{
    d->inputHandler = handler;
}

void ZEMPasswordDialog::setAutoSelect(bool select)
{
    d->autoSelect = select;
}

void ZEMPasswordDialog::slotHidePassword(bool hide, bool setFocus)
{
    d->ui.btnShowPassword->blockSignals(true);
    d->ui.btnShowPassword->setChecked(hide);
    d->ui.btnShowPassword->blockSignals(false);
    d->ui.lineEdit->setEchoMode(hide ? QLineEdit::Password : QLineEdit::Normal);
    if (setFocus) {
        setFocusToLineedit();
    }
}

void ZEMPasswordDialog::showEvent(QShowEvent *)
{
    setFocusToLineedit();
    if (d->autoSelect) {
        InputDialog::selectAllSoon(d->ui.lineEdit);
    }
    Q_EMIT sigShown();
}

void ZEMPasswordDialog::slotInputHandlerSelect()
{
    if (d->inputHandler) {
        d->inputHandler->emitSelect();
    }
}

void ZEMPasswordDialog::slotInputHandlerCancel()
{
    if (d->inputHandler) {
        d->inputHandler->emitCancel();
    }
}

void ZEMPasswordDialog::setFocusToLineedit()
{
    InputDialog::focusAsIfTapped(d->ui.lineEdit);
}
