// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QWTPANNERBASE_H
#define QWTPANNERBASE_H

#include "zemkit_export.h"

#include <QPoint>
#include <QWidget>

#include <qwt_interval.h>

#include <memory>

class QCursor;
class QKeyEvent;
class QMouseEvent;

/**
 * Turns the mouse events of its parent widget into relative moves and clicks.
 *
 * It paints nothing, is never shown and keeps no event from the parent. Put one on any widget that
 * is to be dragged:
 * @code
 * #include <QwtPannerBase>
 *
 * QWidget map;
 * auto *panner = new QwtPannerBase(&map);
 * panner->setDxSignalThreshold(5);
 * QObject::connect(panner, &QwtPannerBase::moved, &map,
 *                  [&map](int dx, int dy) { map.scroll(dx, dy); });
 * @endcode
 *
 * A pan starts with a press of the mouse button on the parent. Each time the finger has gone
 * further than a threshold, moved() tells the distance since the last moved(); a release inside the
 * parent sends the rest with panned(). A touch that never passed a threshold is a click if it
 * lasted as long as clickDetectInterval() says.
 *
 * Which buttons are down during a move is not asked: a parent that tracks the mouse is moved
 * without one, too.
 *
 * No setter changes a pan in progress except where it says so. Without a parent nothing happens.
 * Panner and parent may be deleted in a slot of any signal of the panner.
 */
class ZEM_EXPORT QwtPannerBase : public QWidget
{
    Q_OBJECT

public:
    /** Listens to @p parent at once, which owns the panner. */
    explicit QwtPannerBase(QWidget *parent);
    ~QwtPannerBase() override;

    /**
     * The Qt::MouseButton that starts a pan and the Qt::KeyboardModifiers that must be held with
     * it, no more and no fewer. Default: Qt::LeftButton, none.
     */
    void setMouseButton(int button, int state);
    void getMouseButton(int &button, int &state) const;

    /**
     * The Qt::Key that takes the panner's cursor away while the button is still down, and its
     * modifiers. The pan itself goes on. Default: Qt::Key_Escape, none.
     */
    void setAbortKey(int key, int state);
    void getAbortKey(int &key, int &state) const;

    /**
     * The cursor that the parent shows while the button is down; a copy is kept. It appears with
     * the next press. Default: none, the parent's cursor stays.
     */
    void setCursor(const QCursor &cursor);
    /** The cursor set, else the parent's, else the default one. */
    QCursor cursor() const;

    /**
     * Whether the panner listens to its parent. Default: true. Says nothing of the parent, which
     * gets its events either way; a cursor that is shown stays.
     */
    void setEnabled(bool enabled);
    bool isEnabled() const;

    /**
     * With false no direction counts, whatever orientations() says: nothing moves, clicks still
     * come. Default: true.
     */
    void enableOrientations(bool enabled);
    /** The directions in which movement counts. Default: both. */
    void setOrientations(QFlags<Qt::Orientation> orientations);
    QFlags<Qt::Orientation> orientations() const;
    /** Whether movement along @p orientation counts now; false while they are not enabled. */
    bool isOrientationEnabled(Qt::Orientation orientation) const;

    /**
     * Pixels that the finger must go beyond before moved() is sent: with 5, a way of 6 is the
     * shortest that counts. Small steps add up. It is enough to pass one of the two. Default: 0.
     */
    void setDxSignalThreshold(unsigned int pixels);
    unsigned int dxSignalThreshold() const;
    void setDySignalThreshold(unsigned int pixels);
    unsigned int dySignalThreshold() const;

    /**
     * The shortest and the longest touch that is a click, in milliseconds, both included. With
     * @p min above @p max there are no clicks. Default: 100 to 1000.
     */
    void setClickDetectInterval(unsigned int min, unsigned int max);
    QwtInterval clickDetectInterval() const;

    /**
     * Shows the panner's cursor on the parent, or gives the parent back the cursor that it had.
     * Presses and releases do this themselves. Nothing happens without a cursor of the panner's.
     */
    void showCursor(bool on);

    /** False: the parent sees every event too. True only when a slot has deleted the parent. */
    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    /** A drag has ended: the pixels moved since the last moved(). Not sent if there are none. */
    void panned(int dx, int dy);
    /** The finger moved by @p dx and @p dy pixels since the last moved() or the press. */
    void moved(int dx, int dy);
    /** A touch without a drag has ended at @p pos, in the parent's coordinates. */
    void clicked(QPoint &pos);

protected:
    /** The parent's events. A subclass that keeps one from the base stops what hangs on it. */
    virtual void widgetMousePressEvent(QMouseEvent *event);
    virtual void widgetMouseReleaseEvent(QMouseEvent *event);
    virtual void widgetMouseMoveEvent(QMouseEvent *event);
    virtual void widgetKeyPressEvent(QKeyEvent *event);
    /** Does nothing. */
    virtual void widgetKeyReleaseEvent(QKeyEvent *event);

private:
    Q_DISABLE_COPY(QwtPannerBase)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
