// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef GAPPEDCURVE_H
#define GAPPEDCURVE_H

#include <QRectF>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>
#include <qwt_series_data.h>
#include <utility>
#include <vector>

/** Values at x = first, first + step and so on; one that is not a number is a gap. */
class EvenSeries : public QwtSeriesData<QPointF>
{
public:
    EvenSeries(double firstX, double stepX, std::vector<double> itsValues)
        : first(firstX), step(stepX), values(std::move(itsValues))
    {
    }

    std::size_t size() const override { return values.size(); }
    QPointF sample(std::size_t i) const override { return {first + step * double(i), values[i]}; }

    /** Of the values that are known; invalid if there are none. */
    QRectF boundingRect() const override
    {
        if (rect.width() < 0.0) {
            bool isFirst = true;
            for (std::size_t i = 0; i < values.size(); ++i) {
                if (std::isfinite(values[i])) {
                    include(sample(i), isFirst);
                    isFirst = false;
                }
            }
        }
        return rect;
    }

private:
    void include(const QPointF &point, bool isFirst) const
    {
        if (isFirst) {
            rect = QRectF(point, point);
        } else {
            rect.setRight(point.x());
            rect.setTop(std::min(rect.top(), point.y()));
            rect.setBottom(std::max(rect.bottom(), point.y()));
        }
    }

    mutable QRectF rect {0.0, 0.0, -1.0, -1.0};
    const double first;
    const double step;
    const std::vector<double> values;
};

/** Samples from the first to the last, both included; none if the last is before the first. */
struct SampleRun
{
    int first;
    int last;

    bool isEmpty() const { return last < first; }
};

/** The samples of a run that lie between two x, and one more at both sides. Their x must rise. */
inline SampleRun samplesBetween(const QwtSeriesData<QPointF> &samples, const SampleRun &run,
                                double left, double right)
{
    const auto firstFrom = [&](double x) { // binary search for the first sample at x or behind it
        int low = run.first;
        int high = run.last + 1;
        while (low < high) {
            const int middle = low + (high - low) / 2;
            if (samples.sample(std::size_t(middle)).x() < x) {
                low = middle + 1;
            } else {
                high = middle;
            }
        }
        return low;
    };
    return {std::max(run.first, firstFrom(left) - 1), std::min(run.last, firstFrom(right) + 1)};
}

/** The next stretch of samples whose y is finite, in @p run from its first on. */
inline SampleRun nextKnownRun(const QwtSeriesData<QPointF> &samples, const SampleRun &run)
{
    const auto isKnown = [&](int i) { return std::isfinite(samples.sample(std::size_t(i)).y()); };
    int first = run.first;
    while (first <= run.last && !isKnown(first)) {
        ++first;
    }
    int last = first;
    while (last <= run.last && isKnown(last)) {
        ++last;
    }
    return {first, last - 1};
}

/**
 * A curve, @p Base, with gaps: only stretches of samples whose y is finite are drawn, each as if it
 * were a curve of its own, and only those in view. The x of the samples must rise.
 */
template <class Base>
class GappedCurve : public Base
{
public:
    using Base::Base;

protected:
    void drawCurve(QPainter *painter, int style, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvasRect, int from, int to) const override
    {
        const QwtSeriesData<QPointF> &samples = *this->data();
        SampleRun rest = samplesBetween(samples, {from, to}, xMap.invTransform(canvasRect.left()),
                                        xMap.invTransform(canvasRect.right()));
        while (!rest.isEmpty()) {
            const SampleRun run = nextKnownRun(samples, rest);
            if (!run.isEmpty()) {
                Base::drawCurve(painter, style, xMap, yMap, canvasRect, run.first, run.last);
            }
            rest.first = run.last + 1;
        }
    }
};

#endif
