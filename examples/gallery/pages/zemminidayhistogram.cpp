// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMMiniDayHistogram>
#include <ZEMStyle>

static ZEMMiniDayHistogram *makeChart(const QVector<double> &hours, ZEMStyle::ZEMColor color)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(SampleData::hoursOfDay);
    data->setNrWindows(1);
    data->setWindowValues(0, 0, unsigned(hours.size()), hours.constData(), false);
    auto *series =
        new ZEMHistogramSeries(QStringLiteral("vandaag"), ZEMStyle(nullptr).color(color), false);
    series->setData(data);
    auto *chart = new ZEMMiniDayHistogram;
    chart->init();
    chart->addSeries(series); // the chart takes ownership
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
    chart->setFixedSize(180, 100);
    chart->replot();
    return chart;
}

void Pages::zemminidayhistogram(Stage &stage)
{
    using namespace SampleData;
    const QVector<double> used = last(consumptionByHour(), hoursOfDay);
    auto *chart = makeChart(used, ZEMStyle::Amber);
    stage.add(QStringLiteral("what was used"), chart);
    stage.add(QStringLiteral("what the sun gave"),
              makeChart(last(productionByHour(), hoursOfDay), ZEMStyle::Lime));
    stage.add(QStringLiteral("the day so far"), makeChart(used.mid(0, 14), ZEMStyle::SkyBlue));

    auto *empty = new ZEMMiniDayHistogram;
    empty->init();
    empty->setFixedSize(180, 100);
    stage.add(QStringLiteral("without data"), empty);

    stage.addButton(QStringLiteral("setValueLimits(0 to 5)"), [=] {
        chart->setValueLimits(QwtInterval(0.0, 5.0));
        chart->replot();
    });
    stage.addButton(QStringLiteral("setValueLimits(0 to 1.5)"), [=] {
        chart->setValueLimits(QwtInterval(0.0, 1.5));
        chart->replot();
    });
}
