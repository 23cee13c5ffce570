// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMMiniDayHistogram>
#include <ZEMStyle>
#include <ZEMTotalsTodayWidget>

static void fillChart(ZEMMiniDayHistogram *chart, const QVector<double> &hours,
                      ZEMStyle::ZEMColor color)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(unsigned(hours.size()));
    data->setNrWindows(1);
    data->setWindowValues(0, 0, unsigned(hours.size()), hours.constData(), false);
    auto *series =
        new ZEMHistogramSeries(QStringLiteral("vandaag"), ZEMStyle(nullptr).color(color), false);
    series->setData(data);
    chart->addSeries(series);
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
    chart->replot();
}

void Pages::zemtotalstodaywidget(Stage &stage)
{
    using namespace SampleData;
    auto *totals = new ZEMTotalsTodayWidget;
    totals->setBottomEnergyType(ZEMEnergyIcon::SolarProduction);
    fillChart(totals->getTopHistogram(), last(consumptionByHour(), hoursOfDay), ZEMStyle::Amber);
    fillChart(totals->getBottomHistogram(), last(productionByHour(), hoursOfDay), ZEMStyle::Lime);
    QObject::connect(totals, &ZEMTotalsTodayWidget::btn_top_histogram_clicked, totals,
                     [totals] { totals->setTitle(QStringLiteral("verbruik geraakt")); });
    QObject::connect(totals, &ZEMTotalsTodayWidget::btn_bottom_histogram_clicked, totals,
                     [totals] { totals->setTitle(QStringLiteral("productie geraakt")); });
    stage.add(QStringLiteral("with charts of a day"), totals);
    stage.add(QStringLiteral("as new"), new ZEMTotalsTodayWidget);
    stage.playWith(totals);
}
