// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAINTCOUNTER_H
#define PAINTCOUNTER_H

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace ZemTest {

/** Counts the paint events of the widgets that it watches, each from then on. */
class PaintCounter : public QObject
{
public:
    PaintCounter() = default;
    explicit PaintCounter(QWidget *widget) { watch(widget); }

    void watch(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

} // namespace ZemTest

#endif
