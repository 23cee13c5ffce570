// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "amountseries.h"

#include <QPainter>
#include <ZEMHistogramData>
#include <cmath>

namespace {

constexpr double paleness = 0.45;

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
    const bool isPale = sample.interval.isValid() && incomplete.count(int(std::floor(middle))) > 0;
    const double before = painter->opacity();
    painter->setOpacity(isPale ? before * paleness : before);
    ZEMHistogramSeries::drawColumn(painter, rect, sample);
    painter->setOpacity(before);
}
