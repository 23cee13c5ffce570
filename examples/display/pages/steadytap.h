// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef STEADYTAP_H
#define STEADYTAP_H

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QWidget;

/**
 * Keeps the trembling of a finger from a widget: while the left button is held, moves reach it only
 * once they have gone further than QApplication::startDragDistance() from the press. So a tap stays
 * a tap. Pickers that are made for the widget later hear of the moves all the same.
 */
class SteadyTap : public QObject
{
    Q_OBJECT

public:
    /** @p widget becomes the owner. */
    explicit SteadyTap(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void press(const QMouseEvent *event);
    void release(const QMouseEvent *event);
    bool isTremble(const QMouseEvent *event);

    QPoint start;
    bool isHeld = false;
    bool isDrag = false;
};

#endif
