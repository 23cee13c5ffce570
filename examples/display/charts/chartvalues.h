// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTVALUES_H
#define CHARTVALUES_H

#include "calendar.h"
#include "daterange.h"
#include "period.h"

#include <QDate>
#include <optional>
#include <vector>

class ZEMHistogramData;

/** The bars of one series over the whole history, oldest first, in whole windows of the period. */
struct ChartValues
{
    Period period = Period::Day;
    QDate newestWindow; ///< the date of x = 0
    std::vector<std::optional<double>> values; ///< an empty one is a gap

    unsigned int windows() const { return unsigned(values.size()) / slotsOf(period); }
};

/**
 * Sums of @p meters by calendar: hours, days, weeks or months, whose last window holds the last
 * date. The hour of the night that summer time takes away is a gap; the one that winter time gives
 * belongs to the hour of the same name.
 */
ChartValues chartValues(const Readings::Calendar &calendar,
                        const Readings::Calendar::Meters &meters, Period period,
                        const DateRange &range);

/** Makes chart data that shows @p values. A series takes ownership by setData(). */
ZEMHistogramData *makeChartData(const ChartValues &values);

/** Largest value, or 0 if there is none above it. */
double largestValue(const ChartValues &values);

#endif
