// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtplotcurvepointgetter.h"

#include "curvesearch_p.h"
#include "zemplot.h"

#include <QPointer>

#include <qwt_plot_curve.h>
#include <qwt_scale_div.h>
#include <qwt_scale_map.h>

#include <cmath>

using PlotCurvePoint = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

namespace {

constexpr double furtherThanAnyCurve = 2147483647.0; // units of the left axis

PlotCurvePoint pointOfSample(QwtPlotCurve *curve, unsigned int index, double distance = 0.0)
{
    return {curve->sample(static_cast<int>(index)), curve, distance, index, true};
}

/** Whether the curve has samples, and the last one right of @p x. */
bool reachesBeyond(const QwtPlotCurve *curve, double x)
{
    const std::size_t count = curve->dataSize();
    return count > 0 && curve->sample(static_cast<int>(count - 1)).x() > x;
}

} // namespace

class ZEMQwtPlotCurvePointGetter::Private
{
public:
    /** The largest accepted distance, in units of the left axis. */
    double tolerance() const
    {
        const QwtScaleDiv &scale = plot->axisScaleDiv(QwtPlot::yLeft);
        return (scale.upperBound() - scale.lowerBound()) / 100.0 * maxDistancePercent;
    }

    /** @p pos in pixels by the two axes that positions are told in, whatever axes a curve has. */
    QPoint pixelOf(const QPointF &pos) const
    {
        return {truncatedInt(plot->transform(QwtPlot::xBottom, pos.x())),
                truncatedInt(plot->transform(QwtPlot::yLeft, pos.y()))};
    }

    // Pickers may ask while the plot is being destroyed.
    QPointer<ZEMPlot> plot;
    double maxDistancePercent = 10.0;
};

ZEMQwtPlotCurvePointGetter::ZEMQwtPlotCurvePointGetter(ZEMPlot *plot)
    : d(std::make_unique<Private>())
{
    d->plot = plot;
}

ZEMQwtPlotCurvePointGetter::~ZEMQwtPlotCurvePointGetter() = default;

double ZEMQwtPlotCurvePointGetter::distance(double x1, double y1, double x2, double y2)
{
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    return std::sqrt(dx * dx + dy * dy);
}

int ZEMQwtPlotCurvePointGetter::getNumCurves()
{
    return d->plot ? d->plot->getNumCurves() : 0;
}

QwtPlotCurve *ZEMQwtPlotCurvePointGetter::getCurveByIndex(int index)
{
    return index >= 0 && index < getNumCurves() ? d->plot->getCurves().at(index) : nullptr;
}

int ZEMQwtPlotCurvePointGetter::getCurveIndex(PlotCurvePoint point)
{
    return d->plot ? d->plot->getIndexOfCurve(point.curve) : -1;
}

PlotCurvePoint ZEMQwtPlotCurvePointGetter::getCurvePoint(unsigned int curveIndex,
                                                         unsigned int pointIndex)
{
    QwtPlotCurve *const curve = getCurveByIndex(static_cast<int>(curveIndex));
    if (!curve || pointIndex >= curve->dataSize()) {
        return {};
    }
    return pointOfSample(curve, pointIndex);
}

PlotCurvePoint ZEMQwtPlotCurvePointGetter::getNextCurvePoint(PlotCurvePoint point)
{
    if (!point.valid || std::size_t(point.index) + 1 >= point.curve->dataSize()) {
        return point;
    }
    return pointOfSample(point.curve, point.index + 1);
}

PlotCurvePoint ZEMQwtPlotCurvePointGetter::getPrevCurvePoint(PlotCurvePoint point)
{
    // The curve may have been given fewer samples since the point was found.
    if (!point.valid || point.index == 0 || point.index > point.curve->dataSize()) {
        return point;
    }
    return pointOfSample(point.curve, point.index - 1);
}

PlotCurvePoint ZEMQwtPlotCurvePointGetter::getNextCurveForPoint(PlotCurvePoint point)
{
    if (!point.valid) {
        return point;
    }
    int curveIndex = getCurveIndex(point);
    if (curveIndex >= 0 && curveIndex < getNumCurves() - 1) {
        ++curveIndex;
    }
    const PlotCurvePoint next = getCurvePoint(static_cast<unsigned int>(curveIndex), point.index);
    return next.valid ? next : point;
}

PlotCurvePoint ZEMQwtPlotCurvePointGetter::getPrevCurveForPoint(PlotCurvePoint point)
{
    if (!point.valid) {
        return point;
    }
    int curveIndex = getCurveIndex(point);
    if (curveIndex > 0) {
        --curveIndex;
    }
    const PlotCurvePoint previous =
        getCurvePoint(static_cast<unsigned int>(curveIndex), point.index);
    return previous.valid ? previous : point;
}

int ZEMQwtPlotCurvePointGetter::closestPoint(QwtPlotCurve *curve, const QPoint &pos, double *dx,
                                             double *dy) const
{
    if (!d->plot || !curve->plot() || curve->dataSize() == 0) {
        return -1;
    }
    const QwtScaleMap xMap = d->plot->canvasMap(curve->xAxis());
    const QwtScaleMap yMap = d->plot->canvasMap(curve->yAxis());
    const QwtSeriesData<QPointF> &samples = *curve->data();
    const PlotMath::SampleWindow window = PlotMath::searchWindow(
        truncatedInt(xMap.invTransform(pos.x())), PlotMath::sampleDensity(samples), samples.size());
    const PlotMath::NearestSample nearest = PlotMath::nearestInX(samples, window, xMap, yMap, pos);
    if (dx) {
        *dx = nearest.dx;
    }
    if (dy) {
        *dy = nearest.dy;
    }
    return nearest.index;
}

PlotCurvePoint ZEMQwtPlotCurvePointGetter::getCurvePoint(QPointF pos)
{
    PlotCurvePoint result;
    result.distance = furtherThanAnyCurve;
    if (!d->plot || pos.x() < 0.0) {
        return result;
    }
    const QPoint pixel = d->pixelOf(pos);
    const double tolerance = d->tolerance();
    const QList<QwtPlotCurve *> &curves = d->plot->getCurves();
    for (QwtPlotCurve *const curve : curves) {
        if (!reachesBeyond(curve, pos.x())) {
            continue;
        }
        double dx = 0.0;
        double dy = 0.0;
        const int index = closestPoint(curve, pixel, &dx, &dy);
        if (index >= 0 && dy < tolerance && dy < result.distance) {
            result = pointOfSample(curve, static_cast<unsigned int>(index), dy);
        }
    }
    return result;
}

PlotCurvePoint ZEMQwtPlotCurvePointGetter::getCurvePointByWidgetCoords(QPointF pos)
{
    if (!d->plot) {
        return getCurvePoint(pos);
    }
    return getCurvePoint(QPointF(d->plot->canvasMap(QwtPlot::xBottom).invTransform(pos.x()),
                                 d->plot->canvasMap(QwtPlot::yLeft).invTransform(pos.y())));
}
