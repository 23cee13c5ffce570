// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QVBoxLayout>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMHistogramWidget>
#include <ZEMPageBackground>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <ZEMStyle>

namespace {

/** Fills @p chart with @p values, of which @p window are in view. */
void fillChart(ZEMHistogram *chart, const QVector<double> &values, int window, const QString &title,
               ZEMStyle::ZEMColor color)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(unsigned(window));
    data->setCenterValue(0.1);
    data->setNrWindows(unsigned(values.size() / window));
    data->setWindowValues(0, 0, unsigned(values.size()), values.constData(), false);
    auto *series = new ZEMHistogramSeries(title, ZEMStyle(nullptr).color(color), false);
    series->setData(data);
    chart->addSeries(series);
    chart->setScalePeriod(window);
    chart->setScaleInterval(data->interval());
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
}

/** Adds charts of the day, the week and the month. */
void addCharts(ZEMHistogramWidget *page, ZEM::ZEMTab energy, const QVector<double> &hours,
               const QString &unit, ZEMStyle::ZEMColor color)
{
    using namespace SampleData;
    constexpr int weeksOfMonth = 5;
    auto *day = new ZEMSmartDayHistogram;
    auto *week = new ZEMSmartWeekHistogram;
    auto *month = new ZEMSmartMonthHistogram;
    for (ZEMHistogram *chart : {static_cast<ZEMHistogram *>(day), static_cast<ZEMHistogram *>(week),
                                static_cast<ZEMHistogram *>(month)}) {
        chart->setYAxisText(unit);
        chart->init();
    }
    const QString title = QStringLiteral("Verbruik");
    fillChart(day, hours, hoursOfDay, title, color);
    fillChart(week, sums(hours, hoursOfDay), daysOfWeek, title, color);
    fillChart(month, last(sums(hours, hoursOfDay * daysOfWeek), 50), weeksOfMonth, title, color);
    day->setDataChangedTimestamp(lastMidnight());
    week->setDataChangedTimestamp(lastMonday());
    month->setDataChangedTimestamp(lastMonday().addDays((1 - weeksOfMonth) * daysOfWeek));
    page->setHistogram(ZEM::TabDay, energy, day);
    page->setHistogram(ZEM::TabWeek, energy, week);
    page->setHistogram(ZEM::TabMonth, energy, month);
}

} // namespace

void Pages::zemhistogramwidget(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *charts = new ZEMHistogramWidget;
    (new QVBoxLayout(page))->addWidget(charts);
    addCharts(charts, ZEM::TabElectricity, SampleData::consumptionByHour(), QStringLiteral("kWh"),
              ZEMStyle::Amber);
    addCharts(charts, ZEM::TabGas, SampleData::gasByHour(), QStringLiteral("m³"), ZEMStyle::Orange);
    const auto periods = ZEM::TabDay | ZEM::TabWeek | ZEM::TabMonth;
    charts->showTabs(periods | ZEM::TabElectricity | ZEM::TabGas);
    charts->selectTab(ZEM::TabWeek, ZEM::TabElectricity);

    stage.cover(page, Qt::BottomRightCorner);
    stage.addButton(QStringLiteral("selectTab(Day, Electricity)"),
                    [=] { charts->selectTab(ZEM::TabDay, ZEM::TabElectricity); });
    stage.addButton(QStringLiteral("selectTab(Month, Gas)"),
                    [=] { charts->selectTab(ZEM::TabMonth, ZEM::TabGas); });
    stage.addButton(QStringLiteral("showTabs(Day | Electricity)"),
                    [=] { charts->showTabs(ZEM::TabDay | ZEM::TabElectricity); });
    stage.addButton(QStringLiteral("showTabs(all of these)"),
                    [=] { charts->showTabs(periods | ZEM::TabElectricity | ZEM::TabGas); });
    stage.addButton(QStringLiteral("setTitle(\"vandaag\")"),
                    [=] { charts->setTitle(QStringLiteral("vandaag")); });
}
