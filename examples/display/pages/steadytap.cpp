// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "steadytap.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

SteadyTap::SteadyTap(QWidget *widget) : QObject(widget)
{
    widget->installEventFilter(this);
}

bool SteadyTap::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(static_cast<const QMouseEvent *>(event));
        return false;
    case QEvent::MouseButtonRelease:
        release(static_cast<const QMouseEvent *>(event));
        return false;
    case QEvent::MouseMove:
        return isTremble(static_cast<const QMouseEvent *>(event));
    default:
        return false;
    }
}

void SteadyTap::press(const QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        start = event->pos();
        isHeld = true;
        isDrag = false;
    }
}

void SteadyTap::release(const QMouseEvent *event)
{
    isHeld = isHeld && event->button() != Qt::LeftButton;
}

bool SteadyTap::isTremble(const QMouseEvent *event)
{
    const int way = (event->pos() - start).manhattanLength();
    isDrag = isDrag || way > QApplication::startDragDistance();
    return isHeld && !isDrag;
}
