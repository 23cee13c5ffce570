// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMHistogramButton>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMMiniDayHistogram>
#include <ZEMStyle>

static ZEMMiniDayHistogram *makeChart()
{
    const QVector<double> hours =
        SampleData::last(SampleData::consumptionByHour(), SampleData::hoursOfDay);
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(SampleData::hoursOfDay);
    data->setCenterValue(0.1);
    data->setNrWindows(1);
    data->setWindowValues(0, 0, unsigned(hours.size()), hours.constData(), false);
    auto *series = new ZEMHistogramSeries(QStringLiteral("vandaag"),
                                          ZEMStyle(nullptr).color(ZEMStyle::Amber), false);
    series->setData(data);
    auto *chart = new ZEMMiniDayHistogram;
    chart->init();
    chart->addSeries(series);
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
    chart->replot();
    return chart;
}

void Pages::zemhistogrambutton(Stage &stage)
{
    auto *tile = new ZEMHistogramButton;
    tile->setFixedSize(322, 176);
    tile->setTitle(QStringLiteral("elektriciteit"));
    tile->setHistogram(makeChart());
    QObject::connect(tile, &ZEMHistogramButton::clicked, tile,
                     [tile] { tile->setTitle(QStringLiteral("aangeraakt")); });
    stage.add(QStringLiteral("with a chart"), tile);
    stage.playWith(tile);
}
