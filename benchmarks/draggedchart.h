// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DRAGGEDCHART_H
#define DRAGGEDCHART_H

#include "benchmark.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTimeZone>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMSmartDayHistogram>
#include <qwt_plot.h>

#include <memory>
#include <vector>

/** A shown chart of so many days, which can be dragged to and fro. */
class DraggedChart
{
public:
    static constexpr int stepsPerRound = 40;
    static constexpr int stepPixels = 6; // just above the threshold of a drag

    DraggedChart(unsigned int days, bool merged) : chart(new ZEMSmartDayHistogram)
    {
        auto *data = new ZEMHistogramData;
        data->setWindowSize(hoursOfDay);
        data->setCenterValue(0.1);
        data->setNrWindows(days);
        std::vector<double> values(hoursOfDay * days, 5.0);
        if (!merged) {
            for (std::size_t i = 0; i < values.size(); ++i) {
                values[i] = 1.0 + double(i % 9);
            }
        }
        data->setWindowValues(0, 0, unsigned(values.size()), values.data(), merged);
        auto *series =
            new ZEMHistogramSeries(QStringLiteral("Verbruik"), QBrush(Qt::yellow), false);
        series->setData(data);

        // Without a valid interval the drag has no end on either side.
        chart->init();
        chart->setScalePeriod(hoursOfDay);
        chart->addSeries(series);
        chart->setDataChangedTimestamp(QDateTime(QDate(2026, 1, 1), QTime(0, 0), QTimeZone::utc()));
        chart->resize(493, 320);
        chart->show();
        chart->replot();
        Benchmark::settle();
        canvas = chart->findChild<QwtPlot *>()->canvas();
    }

    /** Nanoseconds of one step, from the move of the mouse to the finished picture. */
    double dragRound()
    {
        send(QEvent::MouseButtonPress, Qt::LeftButton);
        QElapsedTimer timer;
        timer.start();
        for (int step = 0; step < stepsPerRound; ++step) {
            position.rx() += step % 2 == 0 ? stepPixels : -stepPixels;
            send(QEvent::MouseMove, Qt::NoButton);
            Benchmark::settle();
        }
        const double elapsed = double(timer.nsecsElapsed());
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
        return elapsed / stepsPerRound;
    }

private:
    static constexpr unsigned int hoursOfDay = 24;

    void send(QEvent::Type type, Qt::MouseButton button)
    {
        QMouseEvent event(type, position, position, position, button, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(canvas, &event);
    }

    std::unique_ptr<ZEMSmartDayHistogram> chart;
    QWidget *canvas = nullptr;
    QPointF position {200.0, 100.0};
};

#endif
