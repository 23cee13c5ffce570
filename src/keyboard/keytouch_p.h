// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYTOUCH_P_H
#define KEYTOUCH_P_H

#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

/**
 * Spares a touched key one of two paintings. A button repaints itself before it tells that it was
 * pressed or released, and the keyboard that hears of it changes the key's look, which repaints it
 * again. This event filter holds the key back until the keyboard has heard.
 */
class KeyTouch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isTouch = event->type() == QEvent::MouseButtonPress
            || event->type() == QEvent::MouseButtonDblClick
            || event->type() == QEvent::MouseButtonRelease;
        if (isTouch && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
            holdBack(static_cast<QWidget *>(watched));
        }
        return false;
    }

    /** The keyboard has heard of the touch: the key is painted with what comes next. */
    void letPaint()
    {
        if (QWidget *key = heldBack) {
            heldBack = nullptr;
            key->setUpdatesEnabled(true);
        }
    }

private:
    void holdBack(QWidget *key)
    {
        letPaint();
        if (!key->isEnabled() || !key->updatesEnabled()) {
            return;
        }
        heldBack = key;
        key->setUpdatesEnabled(false);
        // The keyboard never hears of a touch beside the key, or of one that another filter takes.
        QMetaObject::invokeMethod(
            this, [this] { letPaint(); }, Qt::QueuedConnection);
    }

    QPointer<QWidget> heldBack;
};

#endif
