// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BARPOLYGON_P_H
#define BARPOLYGON_P_H

#include <QPolygonF>

#include <qwt_scale_map.h>
#include <qwt_series_data.h>

#include <algorithm>

namespace PlotMath {

/** The x at which the bar behind the one of sample @p i is centred, if @p last is the last one. */
inline double nextBarX(const QwtSeriesData<QPointF> &samples, int i, int last)
{
    if (i < last) {
        return samples.sample(i + 1).x();
    }
    const double x = samples.sample(i).x();
    return i > 1 ? x + (samples.sample(1).x() - samples.sample(0).x()) : x;
}

/**
 * The outline of the bars of the samples @p from to @p to in pixels, four points for each: the left
 * tail end, the top, the right tail end. Indices outside the series are left out.
 *
 * @param tailLength in units of the y axis
 */
inline QPolygonF barPolygon(const QwtSeriesData<QPointF> &samples, int from, int to,
                            double tailLength, const QwtScaleMap &xMap, const QwtScaleMap &yMap)
{
    const int first = std::max(from, 0);
    const int last = std::min(to, static_cast<int>(samples.size()) - 1);
    QPolygonF polygon;
    if (last < first) {
        return polygon;
    }
    constexpr int pointsPerBar = 4;
    polygon.reserve(pointsPerBar * (last - first + 1));
    for (int i = first; i <= last; ++i) {
        const QPointF sample = samples.sample(i);
        const double nextX = nextBarX(samples, i, last);
        const double half = (nextX - sample.x()) * 0.5;
        const double left = xMap.transform(sample.x() - half);
        const double right = xMap.transform(nextX - half);
        const double top = yMap.transform(sample.y());
        const double tailEnd = yMap.transform(sample.y() - tailLength);
        polygon << QPointF(left, tailEnd) << QPointF(left, top) << QPointF(right, top)
                << QPointF(right, tailEnd);
    }
    return polygon;
}

} // namespace PlotMath

#endif
