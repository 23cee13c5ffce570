// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemdialogshowtext.h"

#include "modalloop_p.h"
#include "objectname_p.h"
#include "ui_zemdialogshowtext.h"

#include <QScrollBar>

namespace {

constexpr int defaultFontSize = 22; // points

} // namespace

class ZEMDialogShowText::Private
{
public:
    QScrollBar *scrollBar() const { return ui.textBrowser->verticalScrollBar(); }

    Ui_ZEMDialogShowText ui;
    ModalLoop eventLoop;
    bool accepted = false;
};

ZEMDialogShowText::ZEMDialogShowText(QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    using Dialog = ZEMDialogShowText;
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.btnAccepted, &ZEMButton::clicked, this, &Dialog::btn_accepted_clicked);
    connect(d->ui.btnPgUp, &ZEMButton::clicked, this, &Dialog::btn_pg_up_clicked);
    connect(d->ui.btnPgDown, &ZEMButton::clicked, this, &Dialog::btn_pg_down_clicked);
    // In this order, so that whoever hears of the pencil finds the dialog closed.
    connect(d->ui.btnEdit, &ZEMButton::clicked, this, &Dialog::btn_accepted_clicked);
    connect(d->ui.btnEdit, &ZEMButton::clicked, this, &Dialog::sigBtnEditClicked);
    d->ui.btnEdit->setVisible(false);
    d->ui.lblTitle->setVisible(false);
}

ZEMDialogShowText::~ZEMDialogShowText() = default;

void ZEMDialogShowText::setText(QString text)
{
    d->ui.textBrowser->setText(text);
}

void ZEMDialogShowText::setTitle(QString title)
{
    d->ui.lblTitle->setText(title);
    d->ui.lblTitle->setVisible(!title.isEmpty());
}

void ZEMDialogShowText::setTextFontSize(int size)
{
    QFont font = d->ui.textBrowser->font();
    font.setPointSize(size);
    d->ui.textBrowser->setFont(font);
}

void ZEMDialogShowText::setBtnEditVisible(bool visible)
{
    d->ui.btnEdit->setVisible(visible);
}

void ZEMDialogShowText::clearText()
{
    d->ui.textBrowser->clear();
    d->ui.btnEdit->setVisible(false);
    d->ui.lblTitle->setVisible(false);
    setTextFontSize(defaultFontSize);
}

void ZEMDialogShowText::reset()
{
    d->eventLoop.exit();
    if (isVisible()) {
        setVisible(false);
    }
}

bool ZEMDialogShowText::exec()
{
    d->ui.btnAccepted->setEnabled(true);
    setAttribute(Qt::WA_ShowModal, true);
    setVisible(true);
    d->scrollBar()->setValue(0);
    updateButtons();
    d->accepted = false;
    return d->eventLoop.run(this) && d->accepted;
}

void ZEMDialogShowText::updateButtons()
{
    const QScrollBar *bar = d->scrollBar();
    d->ui.btnPgDown->setEnabled(bar->value() != bar->maximum());
    d->ui.btnPgUp->setEnabled(bar->value() != bar->minimum());
}

void ZEMDialogShowText::btn_accepted_clicked()
{
    d->accepted = true;
    setVisible(false);
    d->eventLoop.exit();
}

void ZEMDialogShowText::btn_pg_up_clicked()
{
    d->scrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    updateButtons();
}

void ZEMDialogShowText::btn_pg_down_clicked()
{
    d->scrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    updateButtons();
}
