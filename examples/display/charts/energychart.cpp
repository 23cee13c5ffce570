// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energychart.h"

#include "amountseries.h"
#include "fittedhistogram.h"
#include "yearhistogram.h"

#include <QBrush>
#include <ZEMHistogramData>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <algorithm>

namespace {

constexpr int valueStepsOfLower = 4; // its labels would touch with more

} // namespace

EnergyChart::EnergyChart(const Energy &energy, Period itsPeriod, const PlotHeights &heights)
    : period(itsPeriod)
{
    switch (period) {
    case Period::Day:
        make<ZEMSmartDayHistogram>(energy, heights);
        break;
    case Period::Week:
        make<ZEMSmartWeekHistogram>(energy, heights);
        break;
    case Period::Month:
        make<ZEMSmartMonthHistogram>(energy, heights);
        break;
    case Period::Year:
        make<YearHistogram>(energy, heights);
        break;
    }
}

template <class Base>
void EnergyChart::make(const Energy &energy, const PlotHeights &heights)
{
    using Chart = FittedHistogram<Base>;
    const bool pair = !energy.consumption.empty() && !energy.yield.empty();

    auto *upperChart = new Chart(Chart::Place::Upper, pair ? heights.upper : heights.alone);
    upper = upperChart;
    upper->setYAxisText(energy.unit);
    markSlots = [upperChart](const std::set<int> &slots) { upperChart->setIncomplete(slots); };
    Chart *lowerChart = nullptr;
    if (pair) {
        lowerChart = new Chart(Chart::Place::Lower, heights.lower);
        lower = lowerChart;
        lower->setYAxisText(energy.unit);
        lower->init();
        lowerChart->thePlot()->setAxisMaxMajor(QwtPlot::yLeft, valueStepsOfLower);
        upper->setChild(lower);
    }
    upper->init();
    upper->setScalePeriod(slotsOf(period));

    upperSeries = addSeries(upper, energy.consumption.empty() ? energy.yield : energy.consumption);
    if (lower) {
        lowerSeries = addSeries(lower, energy.yield);
        upper->insertLegendExternal(lowerChart->thePlot(),
                                    upper->template findChild<QwtLegend *>());
    }
}

std::vector<EnergyChart::Series> EnergyChart::addSeries(ZEMHistogram *chart,
                                                        const std::vector<EnergySeries> &allSeries)
{
    const ZEMStyle style(nullptr);
    std::vector<Series> added;
    for (const EnergySeries &each : allSeries) {
        auto *item = new AmountSeries(each.name, QBrush(style.color(each.color)), false);
        chart->addSeries(item);
        added.push_back({item, each.meters});
    }
    return added;
}

void EnergyChart::feed(const Readings::Calendar &calendar, const DateRange &range)
{
    incomplete.clear();
    feed(upper, upperSeries, calendar, range);
    if (lower) {
        feed(lower, lowerSeries, calendar, range);
    }
    markSlots(incomplete);
    if (!isFed) {
        // The chart page turned to the newest period before there was one.
        isFed = true;
        upper->showFirstPeriod();
    }
    upper->replot();
}

void EnergyChart::feed(ZEMHistogram *chart, const std::vector<Series> &allSeries,
                       const Readings::Calendar &calendar, const DateRange &range)
{
    double largest = 0.0;
    for (const Series &each : allSeries) {
        const ChartValues values = chartValues(calendar, each.meters, period, range);
        largest = std::max(largest, largestValue(values));
        incomplete.insert(values.incomplete.begin(), values.incomplete.end());
        each.item->setValues(values);
        if (chart == upper) {
            upper->setScaleInterval(
                static_cast<const ZEMHistogramData *>(each.item->data())->interval());
            // Counting in UTC, a day of the chart always has 24 hours.
            upper->setDataChangedTimestamp(QDateTime(values.newestWindow, QTime(0, 0), Qt::UTC));
        }
    }
    chart->setValueLimits(QwtInterval(0.0, largest > 0.0 ? largest : 1.0));
}
