// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemmultilinedialog.h"

#include "inputdialog_p.h"
#include "objectname_p.h"
#include "ui_zemmultilinedialog.h"
#include "zemkeyboardinputhandler.h"

#include <QPointer>
#include <QScrollBar>

class ZEMMultiLineDialog::Private
{
public:
    QScrollBar *scrollBar() const { return ui.textEdit->verticalScrollBar(); }

    Ui_ZEMMultiLineDialog ui;
    QPointer<ZEMKeyboardInputHandler> inputHandler;
};

ZEMMultiLineDialog::ZEMMultiLineDialog(ZEMVirtualKeyboard *keyboard, QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    using Dialog = ZEMMultiLineDialog;
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.btnOK, &ZEMButton::clicked, this, &Dialog::sigSelect);
    connect(d->ui.btnCancel, &ZEMButton::clicked, this, &Dialog::sigCancel);
    connect(this, &Dialog::sigSelect, this, &Dialog::slotInputHandlerSelect);
    connect(this, &Dialog::sigCancel, this, &Dialog::slotInputHandlerCancel);
    InputDialog::placeKeyboard(keyboard, d->ui.widget, d->ui.textEdit);
    connect(d->ui.btnUp, &ZEMButton::clicked, this, &Dialog::pageUp);
    connect(d->ui.btnDown, &ZEMButton::clicked, this, &Dialog::pageDown);
    // Queued, because the scroll bar follows the text and the cursor only after these signals.
    connect(d->ui.textEdit, &QTextEdit::textChanged, this, &Dialog::checkScrollAvialibility,
            Qt::QueuedConnection);
    connect(d->ui.textEdit, &QTextEdit::cursorPositionChanged, this,
            &Dialog::checkScrollAvialibility, Qt::QueuedConnection);
    checkScrollAvialibility();
}

ZEMMultiLineDialog::~ZEMMultiLineDialog() = default;

void ZEMMultiLineDialog::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

void ZEMMultiLineDialog::setText(const QString &text)
{
    d->ui.textEdit->setPlainText(text);
}

QString ZEMMultiLineDialog::text() const
{
    return d->ui.textEdit->document()->toPlainText();
}

void ZEMMultiLineDialog::setActiveInputHandler(ZEMKeyboardInputHandler *handler)
{
    d->inputHandler = handler;
}

void ZEMMultiLineDialog::showEvent(QShowEvent *)
{
    InputDialog::focusAsIfTapped(d->ui.textEdit);
    checkScrollAvialibility();
    Q_EMIT sigShown();
}

void ZEMMultiLineDialog::slotInputHandlerSelect()
{
    if (d->inputHandler) {
        d->inputHandler->emitSelect();
    }
}

void ZEMMultiLineDialog::slotInputHandlerCancel()
{
    if (d->inputHandler) {
        d->inputHandler->emitCancel();
    }
}

void ZEMMultiLineDialog::checkScrollAvialibility()
{
    const QScrollBar *bar = d->scrollBar();
    d->ui.btnUp->setEnabled(bar->value() != bar->minimum());
    d->ui.btnDown->setEnabled(bar->value() != bar->maximum());
}

void ZEMMultiLineDialog::pageUp()
{
    d->scrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    checkScrollAvialibility();
}

void ZEMMultiLineDialog::pageDown()
{
    d->scrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    checkScrollAvialibility();
}
