// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QVBoxLayout>
#include <ZEMHistogramData>
#include <ZEMHistogramLegend>
#include <ZEMHistogramSeries>
#include <ZEMStyle>
#include <qwt_plot.h>

static ZEMHistogramSeries *makeSeries(const QString &title, const QVector<double> &days,
                                      ZEMStyle::ZEMColor color, double shift)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(unsigned(days.size()));
    data->setCenterValue(0.3);
    data->setShiftValue(shift);
    data->setNrWindows(1);
    data->setWindowValues(0, 0, unsigned(days.size()), days.constData(), false);
    auto *series = new ZEMHistogramSeries(title, ZEMStyle(nullptr).color(color), false);
    series->setData(data);
    return series;
}

void Pages::zemhistogramlegend(Stage &stage)
{
    using namespace SampleData;
    auto *page = new QWidget;
    auto *plot = new QwtPlot;
    plot->setCanvasBackground(QColor(40, 56, 68));
    plot->setAxisScale(QwtPlot::xBottom, 0.0, daysOfWeek, 1.0);
    auto *legend = new ZEMHistogramLegend;
    legend->setFixedHeight(40);
    ZEMHistogramLegend::connectToPlot(plot, legend);
    auto *rows = new QVBoxLayout(page);
    rows->addWidget(legend);
    rows->addWidget(plot, 1);

    auto *used =
        makeSeries(QStringLiteral("Verbruik"),
                   last(sums(consumptionByHour(), hoursOfDay), daysOfWeek), ZEMStyle::Amber, -0.2);
    auto *sun =
        makeSeries(QStringLiteral("Productie"),
                   last(sums(productionByHour(), hoursOfDay), daysOfWeek), ZEMStyle::Lime, 0.2);
    used->attach(plot);
    sun->attach(plot);
    plot->replot();

    stage.fill(page);
    stage.addButton(QStringLiteral("setColor(SkyBlue)"), [=] {
        used->setColor(ZEMStyle(nullptr).color(ZEMStyle::SkyBlue));
        plot->replot();
    });
    stage.addButton(QStringLiteral("setTitle(\"Stroom\")"),
                    [=] { used->setTitle(QStringLiteral("Stroom")); });
    for (const bool on : {false, true}) {
        stage.addButton(on ? QStringLiteral("setItemAttribute(Legend, true)")
                           : QStringLiteral("setItemAttribute(Legend, false)"),
                        [=] { sun->setItemAttribute(QwtPlotItem::Legend, on); });
    }
}
