// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemdialogpopup.h"

#include "modalloop_p.h"
#include "objectname_p.h"
#include "ui_zemdialogpopup.h"

class ZEMDialogPopup::Private
{
public:
    explicit Private(ZEMDialogPopup *owner) : dialog(owner) { }

    void show() const
    {
        dialog->setAttribute(Qt::WA_ShowModal, true);
        dialog->setVisible(true);
    }

    void finish(bool accepted)
    {
        result = accepted;
        dialog->setVisible(false);
        eventLoop.exit();
    }

    void showSpinner(bool show) const
    {
        ui.textLine3->setVisible(!show);
        ui.throbber->setVisible(show);
        if (show) {
            ui.throbber->start();
        } else {
            ui.throbber->stop();
        }
    }

    ZEMDialogPopup *dialog;
    Ui_ZEMDialogPopup ui;
    ModalLoop eventLoop;
    bool result = false;
};

ZEMDialogPopup::ZEMDialogPopup(QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.btnAccepted, &ZEMButton::clicked, this, &ZEMDialogPopup::btn_accepted_clicked);
    connect(d->ui.btnRejected, &ZEMButton::clicked, this, &ZEMDialogPopup::btn_rejected_clicked);
    // A child that was not hidden is shown with its page.
    hide();
}

ZEMDialogPopup::~ZEMDialogPopup() = default;

void ZEMDialogPopup::setTextLine1(QString text)
{
    d->ui.textLine1->setText(text);
}

void ZEMDialogPopup::setTextLine2(QString text)
{
    d->ui.textLine2->setText(text);
}

void ZEMDialogPopup::setTextLine3(QString text)
{
    const bool spinner = text == QLatin1String("<throbber>");
    if (!spinner) {
        d->ui.textLine3->setText(text);
    }
    d->showSpinner(spinner);
}

void ZEMDialogPopup::clearText()
{
    d->ui.textLine1->setText(QString());
    d->ui.textLine2->setText(QString());
    d->ui.textLine3->setText(QString());
    d->showSpinner(false);
}

void ZEMDialogPopup::info(bool disableAcceptButton)
{
    d->ui.btnRejected->setEnabled(false);
    d->ui.btnAccepted->setEnabled(!disableAcceptButton);
    d->show();
    if (d->eventLoop.run(this)) {
        d->ui.btnRejected->setEnabled(true);
    }
}

bool ZEMDialogPopup::exec()
{
    d->ui.btnRejected->setEnabled(true);
    d->ui.btnAccepted->setEnabled(true);
    d->show();
    d->result = false;
    return d->eventLoop.run(this) && d->result;
}

void ZEMDialogPopup::reset()
{
    d->eventLoop.exit();
    if (isVisible()) {
        setVisible(false);
    }
}

void ZEMDialogPopup::btn_accepted_clicked()
{
    d->finish(true);
}

void ZEMDialogPopup::btn_rejected_clicked()
{
    d->finish(false);
}
