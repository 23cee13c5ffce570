// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMSmartMonthHistogram>
#include <ZEMStyle>

static constexpr int weeksOfMonth = 5;

static ZEMHistogramSeries *makeSeries(const QString &title, const QVector<double> &values,
                                      ZEMStyle::ZEMColor color, double shift)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(weeksOfMonth);
    data->setCenterValue(0.28);
    data->setShiftValue(shift);
    data->setNrWindows(unsigned(values.size()) / weeksOfMonth);
    data->setWindowValues(0, 0, unsigned(values.size()), values.constData(), false);
    auto *series = new ZEMHistogramSeries(title, ZEMStyle(nullptr).color(color), false);
    series->setData(data);
    return series;
}

void Pages::zemsmartmonthhistogram(Stage &stage)
{
    using namespace SampleData;
    auto *chart = new ZEMSmartMonthHistogram;
    chart->init();
    chart->addSeries(makeSeries(QStringLiteral("Verbruik"),
                                last(sums(consumptionByHour(), hoursOfDay * daysOfWeek), 50),
                                ZEMStyle::Amber, -0.22)); // the chart owns them
    chart->addSeries(makeSeries(QStringLiteral("Productie"),
                                last(sums(productionByHour(), hoursOfDay * daysOfWeek), 50),
                                ZEMStyle::Lime, 0.22));
    chart->setScalePeriod(weeksOfMonth);
    chart->setScaleInterval(QwtInterval(-45, weeksOfMonth)); // as far as a finger can drag it
    chart->setValueLimits(QwtInterval(0.0, 120.0)); // bars stand on 0
    chart->setDataChangedTimestamp(lastMonday().addDays((1 - weeksOfMonth) * daysOfWeek));

    stage.fill(chart, Stage::height);
    stage.addButton(QStringLiteral("showPrevPeriod()"), [=] { chart->showPrevPeriod(); });
    stage.addButton(QStringLiteral("showNextPeriod()"), [=] { chart->showNextPeriod(); });
    stage.addButton(QStringLiteral("showFirstPeriod()"), [=] { chart->showFirstPeriod(); });
    stage.addButton(QStringLiteral("setValueLimits(0 to 240.0)"), [=] {
        chart->setValueLimits(QwtInterval(0.0, 240.0));
        chart->replot();
    });
    stage.playWith(chart);
}
