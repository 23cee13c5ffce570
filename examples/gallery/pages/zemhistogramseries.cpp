// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMBrush>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMSmartWeekHistogram>
#include <ZEMStyle>

static ZEMHistogramData *makeData(const QVector<double> &hours, double shift)
{
    const QVector<double> days = SampleData::sums(hours, SampleData::hoursOfDay);
    auto *data = new ZEMHistogramData;
    data->setWindowSize(SampleData::daysOfWeek);
    data->setCenterValue(0.28);
    data->setShiftValue(shift);
    data->setNrWindows(SampleData::weeks);
    data->setWindowValues(0, 0, unsigned(days.size()), days.constData(), false);
    return data;
}

void Pages::zemhistogramseries(Stage &stage)
{
    const ZEMStyle style(nullptr);
    auto *used =
        new ZEMHistogramSeries(QStringLiteral("Verbruik"), style.color(ZEMStyle::SlateBlue), true);
    used->setIcon(QStringLiteral(":/zem/graphics/gwe/icons/icon_el_12x16.png"));
    used->setData(makeData(SampleData::consumptionByHour(), -0.22)); // which it owns
    auto *sun =
        new ZEMHistogramSeries(QStringLiteral("Productie"), style.color(ZEMStyle::SkyBlue), true);
    sun->setIcon(QStringLiteral(":/zem/graphics/gwe/icons/icon_sp_12x16.png"));
    sun->setData(makeData(SampleData::productionByHour(), 0.22));

    auto *chart = new ZEMSmartWeekHistogram;
    chart->init();
    chart->addSeries(used); // the chart owns the series
    chart->addSeries(sun);
    chart->setScalePeriod(SampleData::daysOfWeek);
    chart->setScaleInterval(
        QwtInterval((1 - SampleData::weeks) * SampleData::daysOfWeek, SampleData::daysOfWeek));
    chart->setValueLimits(QwtInterval(0.0, 24.0));
    chart->setDataChangedTimestamp(SampleData::lastMonday());

    stage.fill(chart, Stage::height);
    stage.addButton(QStringLiteral("setColor(Orange)"), [=] {
        used->setColor(ZEMStyle(nullptr).color(ZEMStyle::Orange));
        chart->replot();
    });
    stage.addButton(QStringLiteral("setColor(stripes)"), [=] {
        used->setColor(ZEMBrush::getBrush(ZEMStyle(nullptr).color(ZEMStyle::Amber)));
        chart->replot();
    });
    stage.addButton(QStringLiteral("setIcon(QString())"), [=] {
        used->setIcon(QString());
        chart->replot();
    });
    stage.addButton(QStringLiteral("setVisible(false)"), [=] {
        sun->setVisible(false);
        chart->replot();
    });
    stage.addButton(QStringLiteral("setVisible(true)"), [=] {
        sun->setVisible(true);
        chart->replot();
    });
}
