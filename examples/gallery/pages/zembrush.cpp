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

static ZEMHistogramSeries *makeSeries(const QString &title, const QBrush &brush, int week,
                                      double shift)
{
    const QVector<double> days =
        SampleData::sums(SampleData::consumptionByHour(), SampleData::hoursOfDay)
            .mid(week * SampleData::daysOfWeek, SampleData::daysOfWeek);
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(SampleData::daysOfWeek);
    data->setCenterValue(0.3);
    data->setShiftValue(shift);
    data->setNrWindows(1);
    data->setWindowValues(0, 0, unsigned(days.size()), days.constData(), false);
    auto *series = new ZEMHistogramSeries(title, brush, false);
    series->setData(data);
    return series;
}

void Pages::zembrush(Stage &stage)
{
    const QColor amber = ZEMStyle(nullptr).color(ZEMStyle::Amber);
    auto *chart = new ZEMSmartWeekHistogram;
    chart->init();
    // Stripes tell the week before from this one.
    auto *before = makeSeries(QStringLiteral("Vorige week"), ZEMBrush::getBrush(amber),
                              SampleData::weeks - 2, -0.2);
    auto *now = makeSeries(QStringLiteral("Deze week"), amber, SampleData::weeks - 1, 0.2);
    chart->addSeries(before);
    chart->addSeries(now);
    chart->setScalePeriod(SampleData::daysOfWeek);
    chart->setScaleInterval(QwtInterval(0.0, SampleData::daysOfWeek));
    chart->setValueLimits(QwtInterval(0.0, 16.0));
    chart->setDataChangedTimestamp(SampleData::lastMonday());
    stage.fill(chart, Stage::height);

    const auto color = [=](ZEMStyle::ZEMColor name) {
        before->setColor(ZEMBrush::getBrush(ZEMStyle(nullptr).color(name)));
        now->setColor(ZEMStyle(nullptr).color(name));
        chart->replot();
    };
    stage.addButton(QStringLiteral("getBrush(Amber)"), [=] { color(ZEMStyle::Amber); });
    stage.addButton(QStringLiteral("getBrush(SkyBlue)"), [=] { color(ZEMStyle::SkyBlue); });
    stage.addButton(QStringLiteral("getBrush(Lime)"), [=] { color(ZEMStyle::Lime); });
}
