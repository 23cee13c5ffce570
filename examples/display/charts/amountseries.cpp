// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "amountseries.h"

#include <QPainter>
#include <ZEMHistogramData>
#include <cmath>
#include <limits>

namespace {

constexpr double paleness = 0.45;
constexpr QColor pickedShine(255, 255, 255, 110);
constexpr int noSlot = std::numeric_limits<int>::max();

} // namespace

void AmountSeries::setValues(const ChartValues &values)
{
    incomplete = values.incomplete;
    setData(makeChartData(values));
}

void AmountSeries::drawColumn(QPainter *painter, const QwtColumnRect &rect,
                              const QwtIntervalSample &sample) const
{
    const double middle = (sample.interval.minValue() + sample.interval.maxValue()) / 2.0;
    const int slot = sample.interval.isValid() ? int(std::floor(middle)) : noSlot;
    const double before = painter->opacity();
    painter->setOpacity(incomplete.count(slot) > 0 ? before * paleness : before);
    ZEMHistogramSeries::drawColumn(painter, rect, sample);
    painter->setOpacity(before);
    if (slot == picked) {
        painter->fillRect(rect.toRect(), pickedShine);
    }
}
