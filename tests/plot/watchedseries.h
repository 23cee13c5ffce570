// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef WATCHEDSERIES_H
#define WATCHEDSERIES_H

#include <QPointF>
#include <QRectF>
#include <QVector>

#include <qwt_series_data.h>

#include <cstddef>

namespace PlotTest {

/** How often samples were read that a series has, and that it does not have. */
struct Reads
{
    int inside = 0;
    int stray = 0;
};

/** Samples as given; whoever reads them is counted. */
class WatchedSeries : public QwtSeriesData<QPointF>
{
public:
    WatchedSeries(const QVector<QPointF> &points, Reads &counter) : samples(points), reads(counter)
    {
    }

    std::size_t size() const override { return static_cast<std::size_t>(samples.size()); }
    QPointF sample(std::size_t i) const override
    {
        if (i >= size()) {
            ++reads.stray;
            return {};
        }
        ++reads.inside;
        return samples.at(static_cast<int>(i));
    }
    QRectF boundingRect() const override { return {0.0, 0.0, 1.0, 1.0}; }

private:
    QVector<QPointF> samples;
    Reads &reads;
};

} // namespace PlotTest

#endif
