// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMStyle>
#include <ZEMWeekHistogram>

static ZEMHistogramSeries *makeSeries(const QString &title, const QVector<double> &values,
                                      ZEMStyle::ZEMColor color, double shift)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(SampleData::daysOfWeek);
    data->setCenterValue(0.28);
    data->setShiftValue(shift);
    data->setNrWindows(unsigned(values.size()) / SampleData::daysOfWeek);
    data->setWindowValues(0, 0, unsigned(values.size()), values.constData(), false);
    auto *series = new ZEMHistogramSeries(title, ZEMStyle(nullptr).color(color), false);
    series->setData(data);
    return series;
}

void Pages::zemweekhistogram(Stage &stage)
{
    using namespace SampleData;
    auto *chart = new ZEMWeekHistogram;
    chart->init();
    chart->addSeries(makeSeries(QStringLiteral("Verbruik"), sums(consumptionByHour(), hoursOfDay),
                                ZEMStyle::Amber, -0.22)); // the chart owns them
    chart->addSeries(makeSeries(QStringLiteral("Productie"), sums(productionByHour(), hoursOfDay),
                                ZEMStyle::Lime, 0.22));
    chart->setScalePeriod(daysOfWeek);
    chart->setScaleInterval(
        QwtInterval((1 - weeks) * daysOfWeek, daysOfWeek)); // as far as a finger can drag it
    chart->setValueLimits(QwtInterval(0.0, 25.0)); // bars stand on 0
    chart->setDataChangedTimestamp(lastMonday());

    stage.fill(chart, Stage::height);
    stage.addButton(QStringLiteral("showPrevPeriod()"), [=] { chart->showPrevPeriod(); });
    stage.addButton(QStringLiteral("showNextPeriod()"), [=] { chart->showNextPeriod(); });
    stage.addButton(QStringLiteral("showFirstPeriod()"), [=] { chart->showFirstPeriod(); });
    stage.addButton(QStringLiteral("setValueLimits(0 to 50.0)"), [=] {
        chart->setValueLimits(QwtInterval(0.0, 50.0));
        chart->replot();
    });
    stage.playWith(chart);
}
