// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energychart.h"

#include "amountseries.h"
#include "barpicker.h"
#include "dayhistogram.h"
#include "fittedhistogram.h"
#include "viewtexts.h"
#include "yearhistogram.h"

#include <QBrush>
#include <QTimeZone>
#include <ZEMHistogramData>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <algorithm>
#include <cmath>
#include <qwt_text.h>
#include <utility>

namespace {

constexpr int partOfUpper = 5; // of the height
constexpr int partOfLower = 3;
constexpr int lastOfWeek = 6; // days after its first
constexpr int valueStepsOfLower = 4; // its labels would touch with more

} // namespace

EnergyChart::EnergyChart(const Energy &energy, Period itsPeriod)
    : period(itsPeriod), unit(energy.unit)
{
    fitTimer.setSingleShot(true);
    QObject::connect(&fitTimer, &QTimer::timeout, &fitTimer, [this] { fitAxes(); });
    switch (period) {
    case Period::Day:
        make<DayHistogram>(energy);
        break;
    case Period::Week:
        make<ZEMSmartWeekHistogram>(energy);
        break;
    case Period::Month:
        make<ZEMSmartMonthHistogram>(energy);
        break;
    case Period::Year:
        make<YearHistogram>(energy);
        break;
    }
}

template <class Base>
void EnergyChart::make(const Energy &energy)
{
    using Chart = FittedHistogram<Base>;
    const bool pair = !energy.consumption.empty() && !energy.yield.empty();

    auto *upperChart = new Chart(Chart::Place::Upper);
    upper.chart = upperChart;
    upperChart->setYAxisText(energy.unit);
    upperChart->setHeadline([this](const QString &plain, const QwtInterval &itsView) {
        handleView(itsView);
        return headline(plain);
    });
    refreshTitle = [upperChart] { upperChart->refreshTitle(); };
    Chart *lowerChart = nullptr;
    if (pair) {
        lowerChart = new Chart(Chart::Place::Lower);
        lower.chart = lowerChart;
        lowerChart->setYAxisText(energy.unit);
        lowerChart->init();
        lowerChart->thePlot()->setAxisMaxMajor(QwtPlot::yLeft, valueStepsOfLower);
        upperChart->setChild(lowerChart);
    }
    upperChart->init();
    if (lowerChart) {
        upperChart->shareHeight(partOfUpper, lowerChart, partOfLower);
    }
    upperChart->setScalePeriod(slotsOf(period));

    upper.series =
        addSeries(upperChart, energy.consumption.empty() ? energy.yield : energy.consumption);
    watch(upperChart->thePlot());
    if (lowerChart) {
        watch(lowerChart->thePlot());
        lower.series = addSeries(lowerChart, energy.yield);
        upperChart->insertLegendExternal(lowerChart->thePlot(),
                                         upperChart->template findChild<QwtLegend *>());
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
        added.push_back({item, each.caption, each.meters});
    }
    return added;
}

void EnergyChart::feed(const Readings::Calendar &houseCalendar, const DateRange &range,
                       const QDate &itsToday)
{
    calendar = houseCalendar;
    today = itsToday;
    readUntil = range.readUntil;
    feed(&upper, range);
    if (lower.chart) {
        feed(&lower, range);
    }
    if (!isFed) {
        // The chart page turned to the newest period before there was one.
        isFed = true;
        upper.chart->showFirstPeriod();
    }
    refreshTitle();
    fitAxes();
    upper.chart->replot();
}

void EnergyChart::unpick()
{
    if (picked) {
        pick(std::nullopt);
    }
}

void EnergyChart::feed(Pane *pane, const DateRange &range)
{
    pane->largest.clear();
    for (const Series &each : pane->series) {
        const ChartValues values = chartValues(calendar, each.meters, period, range);
        each.item->setValues(values);
        newestWindow = values.newestWindow;
        pane->firstSlot = values.slotOf(0);
        pane->largest.resize(values.values.size(), 0.0F);
        for (std::size_t i = 0; i < values.values.size(); ++i) {
            pane->largest[i] = std::max(pane->largest[i], float(values.values[i].value_or(0.0)));
        }
        if (pane == &upper) {
            pane->chart->setScaleInterval(
                static_cast<const ZEMHistogramData *>(each.item->data())->interval());
            // Counting in UTC, a day of the chart always has 24 hours.
            pane->chart->setDataChangedTimestamp(
                QDateTime(values.newestWindow, QTime(0, 0), QTimeZone::utc()));
        }
    }
}

void EnergyChart::watch(QwtPlot *plot)
{
    auto *picker = new BarPicker(plot);
    QObject::connect(picker, &BarPicker::pressed, &fitTimer, [this] {
        isPressed = true;
        unpick();
    });
    QObject::connect(picker, &BarPicker::tapped, &fitTimer,
                     [this](double x) { pick(int(std::floor(x))); });
    QObject::connect(picker, &BarPicker::released, &fitTimer, [this] {
        isPressed = false;
        fitTimer.start(0);
    });
}

void EnergyChart::handleView(const QwtInterval &itsView)
{
    view = itsView;
    // Under a finger an axis that changes would move the bars away from it.
    if (!isPressed && !fitTimer.isActive()) {
        fitTimer.start(0);
    }
}

void EnergyChart::fitAxes()
{
    const bool upperChanged = fitAxis(&upper, firstInView(), lastInView());
    const bool lowerChanged = lower.chart && fitAxis(&lower, firstInView(), lastInView());
    if (upperChanged || lowerChanged) {
        upper.chart->replot();
    }
}

/** Whether the axis has another limit now. */
bool EnergyChart::fitAxis(Pane *pane, int firstSlot, int lastSlot)
{
    const int count = int(pane->largest.size());
    const int first = std::clamp(firstSlot - pane->firstSlot, 0, count);
    const int end = std::clamp(lastSlot + 1 - pane->firstSlot, first, count);
    float largest = 0.0F;
    for (int i = first; i < end; ++i) {
        largest = std::max(largest, pane->largest[std::size_t(i)]);
    }
    const double limit = valueLimitFor(double(largest));
    if (limit == std::exchange(pane->limit, limit)) {
        return false;
    }
    pane->chart->setValueLimits(QwtInterval(0.0, limit));
    return true;
}

void EnergyChart::pick(std::optional<int> slot)
{
    picked = slot;
    for (const Pane *pane : {&upper, &lower}) {
        for (const Series &each : pane->series) {
            each.item->setPicked(slot);
        }
    }
    refreshTitle();
    upper.chart->replot();
}

int EnergyChart::firstInView() const
{
    // While it is dragged, a slot counts as long as its middle is in view.
    return int(std::lround(view.minValue()));
}

int EnergyChart::lastInView() const
{
    return int(std::lround(view.maxValue())) - 1;
}

Readings::Interval EnergyChart::intervalOf(int slot) const
{
    return intervalOfSlot(calendar, period, newestWindow, slot);
}

QString EnergyChart::headline(const QString &plain) const
{
    if (!newestWindow.isValid()) {
        return plain;
    }
    if (picked) {
        return QStringLiteral("%1\n%2").arg(ViewTexts::slotName(period, newestWindow, *picked),
                                            amounts(intervalOf(*picked)));
    }
    // The headlines of the library are without the dots and cases that some languages have.
    const QDate first = dateOfSlot(period, newestWindow, firstInView());
    const QDate last = dateOfSlot(period, newestWindow, lastInView())
                           .addDays(period == Period::Month ? lastOfWeek : 0);
    return QStringLiteral("%1\n%2").arg(
        ViewTexts::viewName(period, first, last) + yearOf(firstInView(), lastInView()),
        amounts({intervalOf(firstInView()).from, intervalOf(lastInView()).to}));
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

/**
 * What was measured by the series at the back, of which those in front are parts, in both charts; a
 * line for each. A single series is named by the legend alone.
 */
QString EnergyChart::amounts(const Readings::Interval &interval) const
{
    const auto amountOf = [&](const Series &series) {
        return ViewTexts::amount(Readings::Calendar::measured(series.meters, interval, readUntil),
                                 unit);
    };
    if (upper.series.size() + lower.series.size() == 1) {
        return amountOf(upper.series.front());
    }
    QStringList lines;
    for (const Pane *pane : {&upper, &lower}) {
        if (!pane->series.empty()) {
            const Series &whole = pane->series.front();
            lines << QStringLiteral("%1 %2").arg(whole.caption, amountOf(whole));
        }
    }
    return lines.join(QLatin1Char('\n'));
}
