// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "barpicker.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>
#include <qwt_plot.h>
#include <utility>

BarPicker::BarPicker(QwtPlot *thePlot) : QObject(thePlot), plot(thePlot)
{
    plot->canvas()->installEventFilter(this);
}

bool BarPicker::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        start = static_cast<QMouseEvent *>(event)->pos();
        isTap = true;
        Q_EMIT pressed();
    } else if (event->type() == QEvent::MouseMove) {
        const QPoint way = static_cast<QMouseEvent *>(event)->pos() - start;
        isTap = isTap && way.manhattanLength() < QGuiApplication::styleHints()->startDragDistance();
    } else if (event->type() == QEvent::MouseButtonRelease) {
        if (std::exchange(isTap, false)) {
            Q_EMIT tapped(plot->invTransform(QwtPlot::xBottom, start.x()));
        }
        Q_EMIT released();
    }
    return false;
}
