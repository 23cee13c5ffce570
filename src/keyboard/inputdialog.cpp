// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "inputdialog_p.h"

#include "zemvirtualkeyboard.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTimer>

namespace InputDialog {

namespace {

constexpr int secondSelection = 500; // ms

} // namespace

QGridLayout *placeKeyboard(ZEMVirtualKeyboard *keyboard, QWidget *place, QWidget *target)
{
    keyboard->setFocusWidget(target);
    auto *layout = new QGridLayout(place);
    layout->addWidget(keyboard, 1, 1);
    keyboard->setPopupParent(place);
    return layout;
}

void focusAsIfTapped(QWidget *field)
{
    field->setFocus(Qt::OtherFocusReason);
    const QPoint lastPixel(field->width() - 1, field->height() - 1);
    QCoreApplication::postEvent(field,
                                new QMouseEvent(QEvent::MouseButtonPress, lastPixel,
                                                field->mapToGlobal(lastPixel), Qt::LeftButton,
                                                Qt::LeftButton, Qt::NoModifier));
}

void selectAllSoon(QLineEdit *field)
{
    QMetaObject::invokeMethod(field, &QLineEdit::selectAll, Qt::QueuedConnection);
    QTimer::singleShot(secondSelection, field, &QLineEdit::selectAll);
}

} // namespace InputDialog
