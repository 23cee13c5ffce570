// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energychart.h"

#include "amountseries.h"
#include "barpicker.h"
#include "fittedhistogram.h"
#include "viewtexts.h"
#include "yearhistogram.h"

#include <QBrush>
#include <ZEMHistogramData>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <algorithm>
#include <cmath>

namespace {

constexpr int valueStepsOfLower = 4; // its labels would touch with more

} // namespace

EnergyChart::EnergyChart(const Energy &energy, Period itsPeriod, const PlotHeights &heights)
    : period(itsPeriod), unit(energy.unit)
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
    upperChart->setHeadline(
        [this](const QString &plain, const QwtInterval &view) { return headline(plain, view); });
    refreshTitle = [upperChart] { upperChart->refreshTitle(); };
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
    watch(upperChart->thePlot());
    if (lower) {
        watch(lowerChart->thePlot());
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

void EnergyChart::feed(const Readings::Calendar &houseCalendar, const DateRange &range,
                       const QDate &itsToday)
{
    calendar = houseCalendar;
    today = itsToday;
    feed(upper, upperSeries, range);
    if (lower) {
        feed(lower, lowerSeries, range);
    }
    if (!isFed) {
        // The chart page turned to the newest period before there was one.
        isFed = true;
        upper->showFirstPeriod();
    }
    refreshTitle();
    upper->replot();
}

void EnergyChart::unpick()
{
    if (picked) {
        pick(std::nullopt);
    }
}

void EnergyChart::feed(ZEMHistogram *chart, const std::vector<Series> &allSeries,
                       const DateRange &range)
{
    double largest = 0.0;
    for (const Series &each : allSeries) {
        const ChartValues values = chartValues(calendar, each.meters, period, range);
        largest = std::max(largest, largestValue(values));
        each.item->setValues(values);
        newestWindow = values.newestWindow;
        if (chart == upper) {
            upper->setScaleInterval(
                static_cast<const ZEMHistogramData *>(each.item->data())->interval());
            // Counting in UTC, a day of the chart always has 24 hours.
            upper->setDataChangedTimestamp(QDateTime(values.newestWindow, QTime(0, 0), Qt::UTC));
        }
    }
    chart->setValueLimits(QwtInterval(0.0, largest > 0.0 ? largest : 1.0));
}

void EnergyChart::watch(QwtPlot *plot)
{
    auto *picker = new BarPicker(plot);
    QObject::connect(picker, &BarPicker::pressed, upper, [this] { unpick(); });
    QObject::connect(picker, &BarPicker::tapped, upper,
                     [this](double x) { pick(int(std::floor(x))); });
}

void EnergyChart::pick(std::optional<int> slot)
{
    picked = slot;
    for (const std::vector<Series> *series : {&upperSeries, &lowerSeries}) {
        for (const Series &each : *series) {
            each.item->setPicked(slot);
        }
    }
    refreshTitle();
    upper->replot();
}

Readings::Interval EnergyChart::intervalOf(int slot) const
{
    return intervalOfSlot(calendar, period, newestWindow, slot);
}

QString EnergyChart::headline(const QString &plain, const QwtInterval &view) const
{
    if (!newestWindow.isValid()) {
        return plain;
    }
    if (picked) {
        return tr("%1\n%2").arg(ViewTexts::slotName(period, newestWindow, *picked),
                                amounts(intervalOf(*picked)));
    }
    // While it is dragged, a slot counts as long as its middle is in view.
    const int first = int(std::lround(view.minValue()));
    const int last = int(std::lround(view.maxValue())) - 1;
    return tr("%1\n%2").arg(plain + yearOf(first, last),
                            amounts({intervalOf(first).from, intervalOf(last).to}));
}

/** The headlines of the library are without a year, and that of a year is nothing else. */
QString EnergyChart::yearOf(int firstSlot, int lastSlot) const
{
    const int first = dateOfSlot(period, newestWindow, firstSlot).year();
    const int last = dateOfSlot(period, newestWindow, lastSlot).year();
    if (period == Period::Year || (first == today.year() && last == first)) {
        return QString();
    }
    return first == last ? QStringLiteral(" %1").arg(first)
                         : QStringLiteral(" %1/%2").arg(first).arg(last);
}

/** What was measured by the series at the back, of which those in front are parts, in both charts.
 */
QString EnergyChart::amounts(const Readings::Interval &interval) const
{
    const auto amountOf = [&](const Series &series) {
        return ViewTexts::amount(Readings::Calendar::measured(series.meters, interval), unit);
    };
    QString texts = amountOf(upperSeries.front());
    if (!lowerSeries.empty()) {
        const Series &yield = lowerSeries.front();
        texts +=
            QStringLiteral(", %1 %2").arg(yield.item->title().text().toLower(), amountOf(yield));
    }
    return texts;
}
