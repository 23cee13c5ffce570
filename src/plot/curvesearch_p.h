// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CURVESEARCH_P_H
#define CURVESEARCH_P_H

#include "saturatedint_p.h"

#include <QPoint>
#include <QPointF>

#include <qwt_scale_map.h>
#include <qwt_series_data.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace PlotMath {

/** The samples from the first up to, and without, the end. */
struct SampleWindow
{
    std::size_t first;
    std::size_t end;
};

/** The sample found by nearestInX(), and how far it is: dx in pixels, dy in units of the y axis. */
struct NearestSample
{
    int index = -1;
    double dx = 1e10;
    double dy = 1e10;
};

/** Samples for each unit of the x axis; infinite if all lie at one x. @p samples is not empty. */
inline double sampleDensity(const QwtSeriesData<QPointF> &samples)
{
    const std::size_t count = samples.size();
    return count / (samples.sample(count - 1).x() - samples.sample(0).x());
}

/**
 * Where the samples around @p x are to be expected in a series of @p count samples that begins at
 * about x = 0. The size of the window depends on the density only.
 *
 * An end below 0, as before the start of the axis, stands for the end of the series. Without a
 * finite density nothing can be expected, and the window is the whole series.
 */
inline SampleWindow searchWindow(int x, double density, std::size_t count)
{
    constexpr double reach = 6.0; // units of the x axis
    if (!std::isfinite(density)) {
        return {0, count};
    }
    const int first = truncatedInt((x - reach) * density);
    const int end = truncatedInt((x + reach) * density);
    return {first < 0 ? 0 : static_cast<std::size_t>(first),
            end < 0 ? count : std::min(static_cast<std::size_t>(end), count)};
}

/** The sample in @p window whose x is nearest to @p pixel; of equally near ones the first. */
inline NearestSample nearestInX(const QwtSeriesData<QPointF> &samples, const SampleWindow &window,
                                const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                                const QPoint &pixel)
{
    NearestSample nearest;
    const double y = yMap.invTransform(pixel.y());
    for (std::size_t i = window.first; i < window.end; ++i) {
        const QPointF sample = samples.sample(i);
        const double dx = std::abs(xMap.transform(sample.x()) - pixel.x());
        if (dx < nearest.dx) {
            nearest = {static_cast<int>(i), dx, std::abs(sample.y() - y)};
        }
    }
    return nearest;
}

} // namespace PlotMath

#endif
