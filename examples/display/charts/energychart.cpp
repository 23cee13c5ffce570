// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energychart.h"

#include "fittedhistogram.h"

#include <QBrush>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>

#include <algorithm>

namespace {

constexpr ChartHeights aloneHeights {240, 0};
constexpr ChartHeights pairHeights {178, 116};
constexpr int valueStepsOfLower = 4; // its labels would touch with more

/** Space at each side of a bar, in slots: about two pixels in each view. */
double insetOf(Period period)
{
    return period == Period::Day ? 0.1 : 0.16;
}

/** What all series of a chart share. */
struct Extent
{
    QDate newestWindow; ///< the date of x = 0
    QwtInterval slotRange; ///< the whole x range
};

/** Fills one plot with its series and fits its value axis to the largest bar. */
Extent addSeries(ZEMHistogram *chart, const std::vector<EnergySeries> &allSeries, Period period,
                 const Readings::Calendar &calendar, const DateRange &range)
{
    const ZEMStyle style(nullptr);
    Extent extent;
    double largest = 0.0;
    for (const EnergySeries &each : allSeries) {
        const ChartValues values = chartValues(calendar, each.meters, period, range);
        ZEMHistogramData *data = makeChartData(values, insetOf(period));
        extent = {values.newestWindow, data->interval()};
        largest = std::max(largest, largestValue(values));

        auto *series = new ZEMHistogramSeries(each.name, QBrush(style.color(each.color)), false);
        series->setData(data);
        chart->addSeries(series);
    }
    chart->setValueLimits(QwtInterval(0.0, largest > 0.0 ? largest : 1.0));
    return extent;
}

template <class Base>
ZEMHistogram *make(const Energy &energy, Period period, const Readings::Calendar &calendar,
                   const DateRange &range)
{
    using Chart = FittedHistogram<Base>;
    const bool pair = !energy.consumption.empty() && !energy.yield.empty();
    const ChartHeights heights = pair ? pairHeights : aloneHeights;
    const auto &upperSeries = energy.consumption.empty() ? energy.yield : energy.consumption;

    auto *upper = new Chart(Chart::Place::Upper, heights.upper);
    upper->setYAxisText(energy.unit);
    Chart *lower = nullptr;
    if (pair) {
        lower = new Chart(Chart::Place::Lower, heights.lower);
        lower->setYAxisText(energy.unit);
        lower->init();
        lower->thePlot()->setAxisMaxMajor(QwtPlot::yLeft, valueStepsOfLower);
        upper->setChild(lower);
    }
    upper->init();
    upper->setScalePeriod(slotsOf(period));

    const Extent extent = addSeries(upper, upperSeries, period, calendar, range);
    upper->setScaleInterval(extent.slotRange);
    if (lower) {
        addSeries(lower, energy.yield, period, calendar, range);
        upper->insertLegendExternal(lower->thePlot(), upper->template findChild<QwtLegend *>());
    }
    // Counting in UTC, a day of the chart always has 24 hours.
    upper->setDataChangedTimestamp(QDateTime(extent.newestWindow, QTime(0, 0), Qt::UTC));
    upper->replot();
    return upper;
}

} // namespace

ZEMHistogram *makeEnergyChart(const Energy &energy, Period period,
                              const Readings::Calendar &calendar, const DateRange &range)
{
    switch (period) {
    case Period::Day:
        return make<ZEMSmartDayHistogram>(energy, period, calendar, range);
    case Period::Week:
        return make<ZEMSmartWeekHistogram>(energy, period, calendar, range);
    case Period::Month:
        break;
    }
    return make<ZEMSmartMonthHistogram>(energy, period, calendar, range);
}
