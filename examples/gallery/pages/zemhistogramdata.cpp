// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMSmartDayHistogram>
#include <ZEMStyle>

void Pages::zemhistogramdata(Stage &stage)
{
    // A tariff by the hour: equal hours become one wide bar.
    QVector<double> tariff;
    for (int hour = 0; hour < SampleData::hoursOfDay; ++hour) {
        tariff.append(hour < 7 ? 0.22 : hour < 17 ? 0.31 : hour < 21 ? 0.38 : 0.27);
    }
    const auto hours = unsigned(tariff.size());
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(hours); // first the size, then the number
    data->setCenterValue(0.1);
    data->setNrWindows(2);
    data->setWindowValues(0, 0, hours, tariff.constData(), false); // yesterday
    data->setWindowValues(1, 0, hours, tariff.constData(), true); // today

    auto *series = new ZEMHistogramSeries(QStringLiteral("Tarief"),
                                          ZEMStyle(nullptr).color(ZEMStyle::SkyBlue), true);
    series->setIcon(QStringLiteral(":/zem/graphics/gwe/icons/icon_el_12x16.png"));
    series->setData(data);
    auto *chart = new ZEMSmartDayHistogram;
    chart->setYAxisText(QStringLiteral("€/kWh"));
    chart->init();
    chart->addSeries(series);
    chart->setScalePeriod(hours);
    chart->setScaleInterval(data->interval());
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
    chart->setDataChangedTimestamp(SampleData::lastMidnight());
    stage.fill(chart, Stage::height);

    // The data tells nobody of a change: the chart is drawn anew after each.
    const auto feed = [=](bool merge, double center, double shift) {
        data->setCenterValue(center);
        data->setShiftValue(shift);
        data->setWindowValues(1, 0, hours, tariff.constData(), merge);
        chart->replot();
    };
    stage.addButton(QStringLiteral("setWindowValues(merge: true)"), [=] { feed(true, 0.1, 0.0); });
    stage.addButton(QStringLiteral("setWindowValues(merge: false)"),
                    [=] { feed(false, 0.1, 0.0); });
    stage.addButton(QStringLiteral("setCenterValue(0.3)"), [=] { feed(false, 0.3, 0.0); });
    stage.addButton(QStringLiteral("setShiftValue(0.2)"), [=] { feed(false, 0.3, 0.2); });
    stage.addButton(QStringLiteral("invalidateValues(0.31)"), [=] {
        data->invalidateValues(1, 0, hours, 0.31);
        chart->replot();
    });
}
