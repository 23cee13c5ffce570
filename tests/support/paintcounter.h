// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAINTCOUNTER_H
#define PAINTCOUNTER_H

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace ZemTest {

/** Counts the events of one type that reach the objects that it watches, each from then on. */
class EventCounter : public QObject
{
public:
    explicit EventCounter(QEvent::Type countedType) : type(countedType) { }
    EventCounter(QObject *object, QEvent::Type countedType) : type(countedType) { watch(object); }

    void watch(QObject *object) { object->installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == type ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    QEvent::Type type;
};

/** Counts how often widgets are painted. */
class PaintCounter : public EventCounter
{
public:
    PaintCounter() : EventCounter(QEvent::Paint) { }
    explicit PaintCounter(QWidget *widget) : EventCounter(widget, QEvent::Paint) { }
};

} // namespace ZemTest

#endif
