// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QVBoxLayout>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMPageBackground>
#include <ZEMSmartDayHistogram>
#include <ZEMStyle>
#include <qwt_legend.h>
#include <qwt_plot.h>

static void addYear(ZEMHistogram *chart, const QString &title, const QVector<double> &hours,
                    ZEMStyle::ZEMColor color)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(SampleData::hoursOfDay);
    data->setCenterValue(0.1);
    data->setNrWindows(SampleData::days);
    data->setWindowValues(0, 0, unsigned(hours.size()), hours.constData(), false);
    auto *series = new ZEMHistogramSeries(title, ZEMStyle(nullptr).color(color), false);
    series->setData(data);
    chart->addSeries(series);
    chart->setScaleInterval(data->interval());
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
}

void Pages::zemhistogram(Stage &stage)
{
    auto *returned = new ZEMSmartDayHistogram;
    returned->setYAxisText(QStringLiteral("terug"));
    returned->init();
    auto *used = new ZEMSmartDayHistogram;
    used->setChild(returned); // before init()
    used->init();
    addYear(used, QStringLiteral("Verbruik"), SampleData::consumptionByHour(), ZEMStyle::Amber);
    addYear(returned, QStringLiteral("Productie"), SampleData::productionByHour(), ZEMStyle::Lime);
    used->setScalePeriod(SampleData::hoursOfDay);
    used->setDataChangedTimestamp(SampleData::lastMidnight());
    used->replot();

    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    (new QVBoxLayout(page))->addWidget(used);
    // On a screen of 480 pixels two charts are less high than one alone.
    for (QwtPlot *plot : page->findChildren<QwtPlot *>()) {
        plot->setFixedHeight(150);
    }
    // The legend of the upper chart serves both.
    QwtLegend *below = returned->findChild<QwtLegend *>();
    below->hide();
    for (QwtLegend *legend : used->findChildren<QwtLegend *>()) {
        if (legend != below) {
            used->insertLegendExternal(returned->findChild<QwtPlot *>(), legend);
        }
    }
    stage.cover(page);
    // A drag of either chart moves both, and so do these.
    stage.addButton(QStringLiteral("showPrevPeriod()"), [=] { used->showPrevPeriod(); });
    stage.addButton(QStringLiteral("showNextPeriod()"), [=] { used->showNextPeriod(); });
    stage.addButton(QStringLiteral("showFirstPeriod()"), [=] { used->showFirstPeriod(); });
    stage.addButton(QStringLiteral("setScaleDigits(yLeft, 3)"), [=] {
        used->setScaleDigits(QwtPlot::yLeft, 3);
        used->replot();
    });
    stage.playWith(used);
}
