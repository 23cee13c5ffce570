// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QWTPLOTMOVER_H
#define QWTPLOTMOVER_H

#include "qwtpannerbase.h"
#include "zemkit_export.h"

#include <qwt_interval.h>

#include <memory>

class QwtPlot;
class QwtPlotCanvas;

/**
 * Moves the axes of a plot: by dragging its canvas, and by whole periods.
 *
 * @code
 * #include <QwtPlotMover>
 * #include <qwt_plot.h>
 * #include <qwt_plot_canvas.h>
 *
 * QwtPlot plot;
 * auto *mover = new QwtPlotMover(qobject_cast<QwtPlotCanvas *>(plot.canvas()));
 * mover->setAxisEnabled(QwtPlot::yLeft, false);
 * mover->setAxisPeriod(QwtPlot::xBottom, 24.0);
 * mover->setAxisValidInterval(QwtPlot::xBottom, QwtInterval(-240.0, 24.0));
 * @endcode
 *
 * A drag to the right shows lower x values, a drag down higher y values. It keeps the width of the
 * view while the view is in the valid interval; at an end of it the view is exactly one period.
 *
 * The mover remembers the lower bound to which it brought an axis last, 0.0 at first. A scale that
 * somebody else sets is not noted: the next period move starts where the mover was.
 *
 * Every axis is a QwtPlot::Axis; with another number a setter or a move does nothing.
 */
class ZEM_EXPORT QwtPlotMover : public QwtPannerBase
{
    Q_OBJECT

public:
    /** Moves the plot of @p canvas, which owns the mover. */
    explicit QwtPlotMover(QwtPlotCanvas *canvas);
    ~QwtPlotMover() override;

    /**
     * Whether dragging moves the axis. Default: true; also the answer for a number that is no
     * axis. The period moves do not ask.
     */
    void setAxisEnabled(int axis, bool enabled);
    bool isAxisEnabled(int axis) const;

    /**
     * The range that the view is kept in, in axis units. An invalid one, the default, is no limit
     * for a drag, but has no periods before or after the view. Takes effect with the next move.
     */
    void setAxisValidInterval(int axis, const QwtInterval &interval);
    QwtInterval axisValidInterval(int axis) const;

    /**
     * The size of a period in axis units, to be set before the first move. Default: 0.0, with which
     * the period moves and the ends of the valid interval leave an empty view.
     */
    void setAxisPeriod(int axis, double period);
    double axisPeriodSize(int axis) const;

    /**
     * Whether the period moves stop at multiples of the period and at the ends of the valid
     * interval. Without it they add or take a period from wherever the view is, past any end.
     * Default: true.
     */
    void setScaleToPeriodSize(bool enabled);

    /**
     * Whether there is a period before or after the view. The one after counts when more than its
     * start lies in the valid interval: one axis unit of it must.
     */
    bool hasAxisPrevPeriod(int axis) const;
    bool hasAxisNextPeriod(int axis) const;

    /**
     * Shows the period before or after the one at the view's lower bound, replots and emits
     * axisChanged(). A view between two periods goes to the one that holds its lower bound, or the
     * one after that. Where the valid interval has no such period, the view is only brought to a
     * whole one. Works on disabled axes too.
     */
    void moveAxisPrevPeriod(int axis);
    void moveAxisNextPeriod(int axis);
    /** Shows the newest period, which ends where the valid interval ends. Else as the others. */
    void moveAxisFirstPeriod(int axis);

    /** The canvas that is dragged; null if the parent is none. */
    QwtPlotCanvas *canvas();
    const QwtPlotCanvas *canvas() const;

    /** The plot of the canvas; null without one. Nothing moves then. */
    QwtPlot *plot();
    const QwtPlot *plot() const;

Q_SIGNALS:
    /** The mover set a new scale for @p axis; the plot has been replotted. */
    void axisChanged(int axis);

protected Q_SLOTS:
    /**
     * Shifts the enabled axes by a way of @p dx and @p dy pixels, replots once, and then emits
     * axisChanged() for each, in the order of their numbers. Does nothing if both are 0.
     */
    void moveCanvas(int dx, int dy);

private:
    Q_DISABLE_COPY(QwtPlotMover)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
