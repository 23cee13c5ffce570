// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "qwtplotmover.h"

#include "axisperiods_p.h"
#include "histogramplot_p.h"
#include "objectname_p.h"

#include <QPointer>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>
#include <qwt_scale_map.h>

#include <array>

namespace {

bool isAxis(int axis)
{
    return axis >= 0 && axis < QwtPlot::axisCnt;
}

AxisPeriods::View draggedView(const QwtPlot *plot, int axis, int dx, int dy)
{
    const QwtScaleMap map = plot->canvasMap(axis);
    const QwtScaleDiv &scale = plot->axisScaleDiv(axis);
    const bool isHorizontal = axis == QwtPlot::xBottom || axis == QwtPlot::xTop;
    const int way = isHorizontal ? dx : dy;
    return {map.invTransform(map.transform(scale.lowerBound()) - way),
            map.invTransform(map.transform(scale.upperBound()) - way)};
}

} // namespace

class QwtPlotMover::Private
{
public:
    Private()
    {
        axisEnabled.fill(true);
        axisPosition.fill(0.0);
        axisPeriod.fill(0.0);
    }

    /** Remembers and sets the view; the caller replots. */
    void setView(QwtPlot *plot, int axis, const AxisPeriods::View &view)
    {
        axisPosition[axis] = view.minimum;
        HistogramPlot::setAxisScale(plot, axis, view.minimum, view.maximum,
                                    plot->axisStepSize(axis));
    }

    void showPeriod(QwtPlotMover *mover, int axis, const AxisPeriods::View &view)
    {
        QwtPlot *const plot = mover->plot();
        if (!plot) {
            return;
        }
        setView(plot, axis, view);
        plot->replot();
        Q_EMIT mover->axisChanged(axis);
    }

    std::array<bool, QwtPlot::axisCnt> axisEnabled;
    std::array<double, QwtPlot::axisCnt> axisPosition;
    std::array<double, QwtPlot::axisCnt> axisPeriod;
    std::array<QwtInterval, QwtPlot::axisCnt> axisValidInterval;
    bool scaleToPeriodSize = true;
};

QwtPlotMover::QwtPlotMover(QwtPlotCanvas *canvas)
    : QwtPannerBase(canvas), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    // clang-format off
    connect(this, SIGNAL(moved ( int, int )), this, SLOT(moveCanvas( int, int )));
    // clang-format on
}

QwtPlotMover::~QwtPlotMover() = default;

void QwtPlotMover::setAxisEnabled(int axis, bool enabled)
{
    if (isAxis(axis)) {
        d->axisEnabled[axis] = enabled;
    }
}

bool QwtPlotMover::isAxisEnabled(int axis) const
{
    return isAxis(axis) ? d->axisEnabled[axis] : true;
}

void QwtPlotMover::setAxisValidInterval(int axis, const QwtInterval &interval)
{
    if (isAxis(axis)) {
        d->axisValidInterval[axis] = interval;
    }
}

QwtInterval QwtPlotMover::axisValidInterval(int axis) const
{
    return isAxis(axis) ? d->axisValidInterval[axis] : QwtInterval();
}

void QwtPlotMover::setAxisPeriod(int axis, double period)
{
    if (isAxis(axis)) {
        d->axisPeriod[axis] = period;
    }
}

double QwtPlotMover::axisPeriodSize(int axis) const
{
    return isAxis(axis) ? d->axisPeriod[axis] : 0.0;
}

void QwtPlotMover::setScaleToPeriodSize(bool enabled)
{
    d->scaleToPeriodSize = enabled;
}

bool QwtPlotMover::hasAxisPrevPeriod(int axis) const
{
    return isAxis(axis)
        && AxisPeriods::hasPrevious(d->axisPosition[axis], d->axisPeriod[axis],
                                    d->axisValidInterval[axis], d->scaleToPeriodSize);
}

bool QwtPlotMover::hasAxisNextPeriod(int axis) const
{
    return isAxis(axis)
        && AxisPeriods::hasNext(d->axisPosition[axis], d->axisPeriod[axis],
                                d->axisValidInterval[axis], d->scaleToPeriodSize);
}

void QwtPlotMover::moveAxisPrevPeriod(int axis)
{
    if (isAxis(axis)) {
        d->showPeriod(this, axis,
                      AxisPeriods::previous(d->axisPosition[axis], d->axisPeriod[axis],
                                            d->axisValidInterval[axis], d->scaleToPeriodSize));
    }
}

void QwtPlotMover::moveAxisNextPeriod(int axis)
{
    if (isAxis(axis)) {
        d->showPeriod(this, axis,
                      AxisPeriods::next(d->axisPosition[axis], d->axisPeriod[axis],
                                        d->axisValidInterval[axis], d->scaleToPeriodSize));
    }
}

void QwtPlotMover::moveAxisFirstPeriod(int axis)
{
    if (isAxis(axis)) {
        d->showPeriod(this, axis,
                      AxisPeriods::first(d->axisPeriod[axis], d->axisValidInterval[axis]));
    }
}

QwtPlotCanvas *QwtPlotMover::canvas()
{
    return qobject_cast<QwtPlotCanvas *>(parent());
}

const QwtPlotCanvas *QwtPlotMover::canvas() const
{
    return qobject_cast<const QwtPlotCanvas *>(parent());
}

QwtPlot *QwtPlotMover::plot()
{
    return canvas() ? canvas()->plot() : nullptr;
}

const QwtPlot *QwtPlotMover::plot() const
{
    return canvas() ? canvas()->plot() : nullptr;
}

void QwtPlotMover::moveCanvas(int dx, int dy)
{
    QwtPlot *const movedPlot = plot();
    if ((dx == 0 && dy == 0) || !movedPlot) {
        return;
    }
    // A plot that replots on its own would do so once for each axis.
    const bool autoReplot = movedPlot->autoReplot();
    movedPlot->setAutoReplot(false);
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        if (d->axisEnabled[axis]) {
            d->setView(movedPlot, axis,
                       AxisPeriods::keptInside(draggedView(movedPlot, axis, dx, dy),
                                               d->axisValidInterval[axis], d->axisPeriod[axis]));
        }
    }
    movedPlot->setAutoReplot(autoReplot);
    movedPlot->replot();
    const QPointer<QwtPlotMover> self = this;
    for (int axis = 0; self && axis < QwtPlot::axisCnt; ++axis) {
        if (d->axisEnabled[axis]) {
            Q_EMIT axisChanged(axis);
        }
    }
}
