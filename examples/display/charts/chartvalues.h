// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTVALUES_H
#define CHARTVALUES_H

#include "calendar.h"
#include "daterange.h"
#include "period.h"

#include <QDate>
#include <optional>
#include <set>
#include <vector>

class ZEMHistogramData;

/** The bars of one series over the whole history, oldest first, in whole windows of the period. */
struct ChartValues
{
    Period period = Period::Day;
    QDate newestWindow; ///< the date of x = 0
    std::vector<std::optional<double>> values; ///< an empty one is a gap
    std::set<int> incomplete = {}; ///< slots of which only a part was measured, by their x

    unsigned int windows() const { return unsigned(values.size()) / slotsOf(period); }
    /** The x at which the slot of a value begins. */
    int slotOf(std::size_t index) const
    {
        return int(index) - int(values.size()) + int(slotsOf(period));
    }
};

/**
 * Sums of @p meters by calendar: hours, days, weeks or months, whose last window holds the last
 * date. A slot of which only a part was measured, since the readings begin in it, pause or, though
 * those of other meters go on, end, shows that part and is incomplete. The hour of the night that
 * summer time takes away is a gap; the one that winter time gives belongs to the hour of the same
 * name.
 */
ChartValues chartValues(const Readings::Calendar &calendar,
                        const Readings::Calendar::Meters &meters, Period period,
                        const DateRange &range);

/** The date on which a slot begins, told by its x, where @p newestWindow is the date of x = 0. */
QDate dateOfSlot(Period period, const QDate &newestWindow, int slot);
/** The time that a slot stands for; empty if it is an hour that the clock leaves out. */
Readings::Interval intervalOfSlot(const Readings::Calendar &calendar, Period period,
                                  const QDate &newestWindow, int slot);
/** Hour of the day of a slot of the period Day. */
int hourOfSlot(int slot);

/** Makes chart data that shows @p values. A series takes ownership by setData(). */
ZEMHistogramData *makeChartData(const ChartValues &values);

/** Largest value, or 0 if there is none above it. */
double largestValue(const ChartValues &values);

/**
 * The end of a value axis for bars up to @p largest: the least of 1, 2 and 5 times a power of ten
 * that is not below, so that it stays in most views. 1 if there is no bar.
 */
double valueLimitFor(double largest);

#endif
