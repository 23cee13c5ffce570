// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BARPICKER_H
#define BARPICKER_H

#include <QObject>
#include <QPoint>

class QwtPlot;

/**
 * Tells the place on the x axis of a plot that was tapped. A touch that moves further than
 * QStyleHints::startDragDistance() is a drag, which is left to the plot; no touch is kept from it.
 */
class BarPicker : public QObject
{
    Q_OBJECT

public:
    /** @p plot owns it. The canvas of the plot must stay. */
    explicit BarPicker(QwtPlot *plot);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void pressed();
    /** Comes after pressed() and before released(). */
    void tapped(double x);
    void released();

private:
    QwtPlot *plot;
    QPoint start;
    bool isTap = false;
};

#endif
