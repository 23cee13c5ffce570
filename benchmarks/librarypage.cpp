// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartpage.h"

#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMPageBackground>
#include <ZEMSmartDayHistogram>
#include <ZEMSmartMonthHistogram>
#include <ZEMSmartWeekHistogram>
#include <ZEMTextLabel>
#include <qwt_plot.h>

namespace Charts {

namespace {

ZEMHistogram *newChart(Period period, QWidget *parent)
{
    switch (period) {
    case Period::Day:
        return new ZEMSmartDayHistogram(parent);
    case Period::Week:
        return new ZEMSmartWeekHistogram(parent);
    case Period::Month:
        return new ZEMSmartMonthHistogram(parent);
    }
    return nullptr;
}

ZEMHistogramData *newData(const Readings &readings, const std::vector<double> &values)
{
    auto *data = new ZEMHistogramData;
    const auto slotCount = unsigned(slotsInView(readings.period));
    data->setWindowSize(slotCount);
    data->setCenterValue(0.1);
    data->setNrWindows(unsigned(values.size()) / slotCount);
    data->setWindowValues(0, 0, unsigned(values.size()), values.data(), false);
    return data;
}

class LibraryPage : public Page
{
public:
    explicit LibraryPage(const Readings &readings)
    {
        page.setBackground(groundPicture(), false);
        page.resize(pageSize);
        headline = new ZEMTextLabel(&page);
        headline->setFont(QFont(QStringLiteral("Cabin"), 12));
        headline->setGeometry(headlineRect);

        auto *chart = newChart(readings.period, &page);
        chart->init();
        chart->setGeometry(chartRect);
        QObject::connect(
            chart, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), headline,
            [this](ZEMHistogram *histogram) { headline->setText(histogram->title()); });

        auto *consumption =
            new ZEMHistogramSeries(QStringLiteral("Verbruik"), QBrush(QColor(245, 180, 0)), false);
        consumption->setData(newData(readings, readings.consumption));
        auto *production =
            new ZEMHistogramSeries(QStringLiteral("Opwek"), QBrush(QColor(90, 190, 60)), false);
        auto *productionData = newData(readings, readings.production);
        production->setData(productionData);
        chart->setScalePeriod(slotsInView(readings.period));
        chart->setScaleInterval(productionData->interval());
        chart->addSeries(consumption);
        chart->addSeries(production);
        chart->setValueLimits(QwtInterval(0.0, valueLimit));
        chart->setDataChangedTimestamp(readings.newest);
        chart->replot();
        plot = chart->findChild<QwtPlot *>();
    }

    QWidget *window() override { return &page; }
    QWidget *canvas() override { return plot->canvas(); }

private:
    ZEMPageBackground page;
    ZEMTextLabel *headline = nullptr;
    QwtPlot *plot = nullptr;
};

} // namespace

std::unique_ptr<Page> libraryPage(const Readings &readings)
{
    return std::make_unique<LibraryPage>(readings);
}

} // namespace Charts
