// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// One page: the power that flows now and a week of bars that can be dragged back.

#include <QApplication>
#include <QTimeZone>
#include <QVBoxLayout>
#include <Zemkit>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(new ZEMStyle(nullptr));
    ZEMStyle::setApplicationFonts();

    ZEMPageBackground page;
    page.setBackgroundColor(QColor(22, 32, 40));

    auto *power = new ZEMLabel;
    power->setText(ZEMUtils::wattToStringAutoScale(1480.0));

    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(7);
    data->setCenterValue(0.15);
    data->setNrWindows(2);
    const double lastWeek[] = {8.1, 7.4, 9.6, 8.8, 7.9, 11.2, 12.5};
    const double thisWeek[] = {7.7, 8.3, 6.9};
    data->setWindowValues(0, 0, 7, lastWeek, false);
    data->setWindowValues(1, 0, 3, thisWeek, false);
    auto *series = new ZEMHistogramSeries("Verbruik", QBrush(QColor(232, 174, 34)), false);
    series->setData(data);

    auto *chart = new ZEMSmartWeekHistogram;
    chart->init();
    chart->setScalePeriod(7.0);
    chart->setScaleInterval(data->interval());
    chart->setValueLimits(data->valueLimits().extend(0.0));
    chart->addSeries(series);
    chart->setDataChangedTimestamp(QDateTime(QDate(2026, 11, 16), QTime(0, 0), QTimeZone::utc()));

    auto *layout = new QVBoxLayout(&page);
    layout->addWidget(power);
    layout->addWidget(chart, 1);
    page.show();
    return QApplication::exec();
}
