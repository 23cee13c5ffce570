// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMScaleDraw>
#include <ZEMScaleEngine>
#include <ZEMSmartHistogram>
#include <ZEMStyle>
#include <qwt_plot.h>
#include <qwt_text.h>

namespace {

constexpr int months = 12;

/** A chart of one's own: a year of months. */
class YearHistogram : public ZEMSmartHistogram
{
public:
    void updateTitle(QwtInterval interval) override
    {
        titleText = QString::number(2026 + qRound(interval.minValue() / months));
        Q_EMIT changed(this);
    }

    void initAxisRefine() override
    {
        ZEMSmartHistogram::initAxisRefine(); // the value axis
        plot->setAxisScaleEngine(QwtPlot::xBottom, new ZEMScaleEngine(0.5));
        plot->setAxisScaleDraw(QwtPlot::xBottom, new MonthNames);
        plot->setAxisScale(QwtPlot::xBottom, 0.0, months, 1.0);
    }

private:
    class MonthNames : public QwtScaleDraw
    {
    public:
        QwtText label(double value) const override
        {
            const int month = ((int(value) % months) + months) % months + 1;
            return QLocale().standaloneMonthName(month, QLocale::NarrowFormat);
        }
    };
};

} // namespace

void Pages::zemsmarthistogram(Stage &stage)
{
    // 28 days to a month will do here, of which there are thirteen.
    const QVector<double> used = SampleData::last(
        SampleData::sums(SampleData::consumptionByHour(), 28 * SampleData::hoursOfDay), months);
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(months);
    data->setCenterValue(0.15);
    data->setNrWindows(2);
    data->setWindowValues(0, 0, months, used.constData(), false);
    data->setWindowValues(1, 0, months / 2, used.constData(), false);
    auto *series = new ZEMHistogramSeries(QStringLiteral("Verbruik"),
                                          ZEMStyle(nullptr).color(ZEMStyle::Amber), false);
    series->setData(data);

    auto *chart = new YearHistogram;
    chart->init();
    chart->addSeries(series);
    chart->setScalePeriod(months);
    chart->setScaleInterval(data->interval());
    chart->setValueLimits(data->valueLimits().extend(0.0)); // bars stand on 0
    chart->setDataChangedTimestamp(SampleData::lastMidnight());
    stage.fill(chart, Stage::height);
    stage.addButton(QStringLiteral("showPrevPeriod()"), [=] { chart->showPrevPeriod(); });
    stage.addButton(QStringLiteral("showNextPeriod()"), [=] { chart->showNextPeriod(); });
}
