// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartvalues.h"

#include <ZEMHistogramData>

#include <algorithm>
#include <limits>

using Readings::Calendar;

namespace {

// Amounts of energy come nowhere near it.
constexpr double gapMark = std::numeric_limits<double>::lowest();

void append(std::vector<std::optional<double>> &values, const Calendar::Amounts &amounts)
{
    values.insert(values.end(), amounts.begin(), amounts.end());
}

/** Whole windows of hours, one for each date. */
ChartValues dayValues(const Calendar &calendar, const Calendar::Meters &meters,
                      const DateRange &range)
{
    ChartValues chart {Period::Day, range.last, {}};
    for (QDate date = range.first; date <= range.last; date = date.addDays(1)) {
        append(chart.values, calendar.hoursOfDay(meters, date));
    }
    return chart;
}

ChartValues weekValues(const Calendar &calendar, const Calendar::Meters &meters,
                       const DateRange &range)
{
    const QDate newest = Calendar::mondayOf(range.last);
    ChartValues chart {Period::Week, newest, {}};
    for (QDate monday = Calendar::mondayOf(range.first); monday <= newest;
         monday = monday.addDays(Calendar::DaysPerWeek)) {
        append(chart.values, calendar.daysOfWeek(meters, monday));
    }
    return chart;
}

/** Windows of five weeks, counted back from the week of the last date. */
ChartValues monthValues(const Calendar &calendar, const Calendar::Meters &meters,
                        const DateRange &range)
{
    const int weeksInView = int(slotsOf(Period::Month));
    const QDate newestWeek = Calendar::mondayOf(range.last);
    const int weeks =
        int(Calendar::mondayOf(range.first).daysTo(newestWeek)) / Calendar::DaysPerWeek + 1;
    const int windows = (weeks + weeksInView - 1) / weeksInView;
    const auto weeksBack = [&](int count) {
        return newestWeek.addDays(-Calendar::DaysPerWeek * qint64(count));
    };

    ChartValues chart {Period::Month, weeksBack(weeksInView - 1), {}};
    append(chart.values,
           calendar.weeks(meters, weeksBack(windows * weeksInView - 1), windows * weeksInView));
    return chart;
}

ChartValues yearValues(const Calendar &calendar, const Calendar::Meters &meters,
                       const DateRange &range)
{
    ChartValues chart {Period::Year, QDate(range.last.year(), 1, 1), {}};
    for (int year = range.first.year(); year <= range.last.year(); ++year) {
        append(chart.values, calendar.monthsOfYear(meters, year));
    }
    return chart;
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
