// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlineeditsearchdialog.h"

#include "inputdialog_p.h"
#include "objectname_p.h"
#include "ui_zemlineeditsearchdialog.h"
#include "zemkeyboardinputhandler.h"
#include "zemvirtualkeyboard.h"

#include <QPointer>

class ZEMLineEditSearchDialog::Private
{
public:
    Ui_ZEMLineEditSearchDialog ui;
    QPointer<ZEMKeyboardInputHandler> inputHandler;
    bool autoSelect = true;
};

ZEMLineEditSearchDialog::ZEMLineEditSearchDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    using Dialog = ZEMLineEditSearchDialog;
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.btnOK, &ZEMButton::clicked, this, &Dialog::sigSelect);
    connect(d->ui.btnCancel, &ZEMButton::clicked, this, &Dialog::sigCancel);
    connect(d->ui.btnSearch, &ZEMButton::clicked, this, &Dialog::sigSearch);
    connect(d->ui.lineEdit, &QLineEdit::textEdited, this, &Dialog::sigTextEdited);
    connect(keyboard, &ZEMVirtualKeyboard::sigKey_enter, this, &Dialog::sigSelect);
    connect(this, &Dialog::sigSelect, this, &Dialog::slotInputHandlerSelect);
    connect(this, &Dialog::sigCancel, this, &Dialog::slotInputHandlerCancel);
    connect(this, &Dialog::sigSearch, this, &Dialog::slotInputHandlerSearch);
    connect(this, &Dialog::sigTextEdited, this, &Dialog::slotInputHandlerTextEdited);
    InputDialog::placeKeyboard(keyboard, d->ui.widget, d->ui.lineEdit);
}

ZEMLineEditSearchDialog::~ZEMLineEditSearchDialog() = default;

void ZEMLineEditSearchDialog::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

void ZEMLineEditSearchDialog::setText(const QString &text)
{
    d->ui.lineEdit->setText(text);
}

QString ZEMLineEditSearchDialog::text() const
{
    return d->ui.lineEdit->text();
}

void ZEMLineEditSearchDialog::setActiveInputHandler(ZEMKeyboardInputHandler *handler)
{
    d->inputHandler = handler;
}

void ZEMLineEditSearchDialog::setAutoSelect(bool select)
{
    d->autoSelect = select;
}

void ZEMLineEditSearchDialog::setSearchCount(int count)
{
    d->ui.btnSearch->setText(count >= 0 ? QString::number(count) : QString());
}

void ZEMLineEditSearchDialog::showEvent(QShowEvent *)
{
    InputDialog::focusAsIfTapped(d->ui.lineEdit);
    if (d->autoSelect) {
        InputDialog::selectAllSoon(d->ui.lineEdit);
    }
    Q_EMIT sigShown();
}

void ZEMLineEditSearchDialog::slotInputHandlerSelect()
{
    if (d->inputHandler) {
        d->inputHandler->emitSelect();
    }
}

void ZEMLineEditSearchDialog::slotInputHandlerCancel()
{
    if (d->inputHandler) {
        d->inputHandler->emitCancel();
    }
}

void ZEMLineEditSearchDialog::slotInputHandlerSearch()
{
    if (d->inputHandler) {
        d->inputHandler->emitSearch();
    }
}

void ZEMLineEditSearchDialog::slotInputHandlerTextEdited(QString text)
{
    if (d->inputHandler) {
        d->inputHandler->emitTextEdited(text);
    }
}
