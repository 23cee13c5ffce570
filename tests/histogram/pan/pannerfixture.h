// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PANNERFIXTURE_H
#define PANNERFIXTURE_H

#include <QwtPannerBase>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QStringList>

#include <climits>

/** What the tests of the panner share: one that keeps a log, its parent, and events sent to it. */
namespace PannerTest {

using Log = QStringList;

const QSize parentSize(200, 100);

/** Opens the operations that are for subclasses and notes which of them were asked for. */
class Panner : public QwtPannerBase
{
public:
    explicit Panner(QWidget *parent) : QwtPannerBase(parent)
    {
        connect(this, &QwtPannerBase::moved, this,
                [this](int dx, int dy) { log << QStringLiteral("moved %1 %2").arg(dx).arg(dy); });
        connect(this, &QwtPannerBase::panned, this,
                [this](int dx, int dy) { log << QStringLiteral("panned %1 %2").arg(dx).arg(dy); });
        connect(this, &QwtPannerBase::clicked, this, [this](QPoint &pos) {
            log << QStringLiteral("clicked %1 %2").arg(pos.x()).arg(pos.y());
        });
    }

    using QwtPannerBase::widgetKeyPressEvent;
    using QwtPannerBase::widgetMouseMoveEvent;
    using QwtPannerBase::widgetMousePressEvent;
    using QwtPannerBase::widgetMouseReleaseEvent;

    /** What was emitted since the last call. */
    Log take()
    {
        Log taken;
        taken.swap(log);
        return taken;
    }

    Log log;
};

/** A parent that counts the mouse events that reach it. */
class Ground : public QWidget
{
public:
    int events = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++events; }
    void mouseMoveEvent(QMouseEvent *) override { ++events; }
    void mouseReleaseEvent(QMouseEvent *) override { ++events; }
};

inline void send(QWidget *widget, QEvent::Type type, const QPoint &pos,
                 Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : button;
    const Qt::MouseButton held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, pos, pos, changed, held, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

inline void press(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    send(widget, QEvent::MouseButtonPress, pos, button, modifiers);
}

inline void move(QWidget *widget, const QPoint &pos)
{
    send(widget, QEvent::MouseMove, pos);
}

inline void release(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton)
{
    send(widget, QEvent::MouseButtonRelease, pos, button);
}

/** Every touch that does not move is a click, however long it takes. */
inline void acceptEveryClick(QwtPannerBase &panner)
{
    panner.setClickDetectInterval(0, UINT_MAX);
}

} // namespace PannerTest

#endif
