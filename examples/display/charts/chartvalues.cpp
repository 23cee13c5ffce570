// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartvalues.h"

#include "meter.h"

#include <ZEMHistogramData>

#include <algorithm>
#include <cmath>
#include <limits>

using Readings::Calendar;

namespace {

// Amounts of energy come nowhere near it.
constexpr double gapMark = std::numeric_limits<double>::lowest();

/** Collects the amounts of slots, oldest first. */
class Slots
{
public:
    Slots(const Calendar::Meters &theMeters, const DateRange &range)
        : meters(theMeters), readUntil(range.readUntil)
    {
    }

    void add(const Readings::Interval &slot)
    {
        const std::optional<Readings::Measured> measured =
            Calendar::measured(meters, slot, readUntil);
        if (measured && !measured->isComplete) {
            parts.push_back(values.size());
        }
        values.push_back(measured ? std::optional<double>(measured->amount) : std::nullopt);
    }

    ChartValues chart(Period period, const QDate &newestWindow) const
    {
        ChartValues made {period, newestWindow, values};
        for (const std::size_t index : parts) {
            made.incomplete.insert(made.slotOf(index));
        }
        return made;
    }

private:
    const Calendar::Meters &meters;
    const qint64 readUntil;
    std::vector<std::optional<double>> values;
    std::vector<std::size_t> parts;
};

/** Whole windows of hours, one for each date. */
ChartValues dayValues(const Calendar &calendar, const Calendar::Meters &meters,
                      const DateRange &range)
{
    Slots slots(meters, range);
    for (QDate date = range.first; date <= range.last; date = date.addDays(1)) {
        for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
            slots.add(calendar.hour(date, hour));
        }
    }
    return slots.chart(Period::Day, range.last);
}

ChartValues weekValues(const Calendar &calendar, const Calendar::Meters &meters,
                       const DateRange &range)
{
    Slots slots(meters, range);
    const QDate newest = Calendar::mondayOf(range.last);
    const QDate end = newest.addDays(Calendar::daysPerWeek);
    for (QDate date = Calendar::mondayOf(range.first); date < end; date = date.addDays(1)) {
        slots.add(calendar.day(date));
    }
    return slots.chart(Period::Week, newest);
}

/** Windows of five weeks, counted back from the week of the last date. */
ChartValues monthValues(const Calendar &calendar, const Calendar::Meters &meters,
                        const DateRange &range)
{
    const int weeksInView = int(slotsOf(Period::Month));
    const QDate newestWeek = Calendar::mondayOf(range.last);
    const int weeks =
        int(Calendar::mondayOf(range.first).daysTo(newestWeek)) / Calendar::daysPerWeek + 1;
    const int windows = (weeks + weeksInView - 1) / weeksInView;
    const auto weeksBack = [&](int count) {
        return newestWeek.addDays(-Calendar::daysPerWeek * qint64(count));
    };

    Slots slots(meters, range);
    for (int back = windows * weeksInView - 1; back >= 0; --back) {
        slots.add(calendar.week(weeksBack(back)));
    }
    return slots.chart(Period::Month, weeksBack(weeksInView - 1));
}

ChartValues yearValues(const Calendar &calendar, const Calendar::Meters &meters,
                       const DateRange &range)
{
    Slots slots(meters, range);
    const QDate newest(range.last.year(), 1, 1);
    for (QDate month(range.first.year(), 1, 1); month < newest.addYears(1);
         month = month.addMonths(1)) {
        slots.add(calendar.month(month));
    }
    return slots.chart(Period::Year, newest);
}

/** Rounds down, below 0 as well. */
int quotient(int number, int divisor)
{
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

} // namespace

ChartValues chartValues(const Calendar &calendar, const Calendar::Meters &meters, Period period,
                        const DateRange &range)
{
    switch (period) {
    case Period::Day:
        return dayValues(calendar, meters, range);
    case Period::Week:
        return weekValues(calendar, meters, range);
    case Period::Month:
        return monthValues(calendar, meters, range);
    case Period::Year:
        break;
    }
    return yearValues(calendar, meters, range);
}

QDate dateOfSlot(Period period, const QDate &newestWindow, int slot)
{
    switch (period) {
    case Period::Day:
        return newestWindow.addDays(quotient(slot, Calendar::hoursPerDay));
    case Period::Week:
        return newestWindow.addDays(slot);
    case Period::Month:
        return newestWindow.addDays(qint64(slot) * Calendar::daysPerWeek);
    case Period::Year:
        break;
    }
    return newestWindow.addMonths(slot);
}

int hourOfSlot(int slot)
{
    return slot - quotient(slot, Calendar::hoursPerDay) * Calendar::hoursPerDay;
}

Readings::Interval intervalOfSlot(const Calendar &calendar, Period period,
                                  const QDate &newestWindow, int slot)
{
    const QDate date = dateOfSlot(period, newestWindow, slot);
    switch (period) {
    case Period::Day:
        return calendar.hour(date, hourOfSlot(slot));
    case Period::Week:
        return calendar.day(date);
    case Period::Month:
        return calendar.week(date);
    case Period::Year:
        break;
    }
    return calendar.month(date);
}

ZEMHistogramData *makeChartData(const ChartValues &values)
{
    const PeriodInfo info = infoOf(values.period);
    auto *data = new ZEMHistogramData;
    data->setWindowSize(info.windowSize);
    data->setCenterValue(info.inset);
    data->setNrWindows(values.windows());

    std::vector<double> window(info.windowSize);
    for (unsigned int i = 0; i < values.windows(); ++i) {
        const auto begin = values.values.begin() + std::ptrdiff_t(i) * info.windowSize;
        std::transform(begin, begin + info.windowSize, window.begin(),
                       [](const std::optional<double> &value) { return value.value_or(gapMark); });
        data->setWindowValues(i, 0, info.windowSize, window.data(), false);
        data->invalidateValues(i, 0, info.windowSize, gapMark);
    }
    return data;
}

double largestValue(const ChartValues &values)
{
    double largest = 0.0;
    for (const std::optional<double> &value : values.values) {
        largest = std::max(largest, value.value_or(0.0));
    }
    return largest;
}

double valueLimitFor(double largest)
{
    if (!(largest > 0.0)) {
        return 1.0;
    }
    const double power = std::pow(10.0, std::floor(std::log10(largest)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        // 0.1 as a float is a little above 0.1.
        if (largest <= factor * power * (1.0 + std::numeric_limits<float>::epsilon())) {
            return factor * power;
        }
    }
    return 10.0 * power;
}
