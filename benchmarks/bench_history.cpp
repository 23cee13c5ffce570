// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// Does a drag cost more the more history there is? Drags a day chart of ten years and one of a
// single day in turn, in one run, and prints what a step costs and the ratio of the two. With one
// merged bar over the whole history the leftmost slot in view is empty, and its bar begins at the
// far end of the array.
//
// Ends with 1 if a ratio is above the goal.

#include "benchmark.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTextStream>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMSmartDayHistogram>
#include <qwt_plot.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr unsigned int hoursPerDay = 24;
constexpr unsigned int daysOfTenYears = 3653;
constexpr int stepPixels = 6; // just above the threshold of a drag
constexpr int stepsPerRound = 40;
constexpr int rounds = 301;
constexpr double goal = 1.03;

/** A shown chart of so many days, which can be dragged to and fro. */
class DraggedChart
{
public:
    DraggedChart(unsigned int days, bool merged) : chart(new ZEMSmartDayHistogram)
    {
        auto *data = new ZEMHistogramData;
        data->setWindowSize(hoursPerDay);
        data->setCenterValue(0.1);
        data->setNrWindows(days);
        std::vector<double> values(hoursPerDay * days, 5.0);
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
        chart->setScalePeriod(hoursPerDay);
        chart->addSeries(series);
        chart->setDataChangedTimestamp(QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC));
        chart->resize(493, 320);
        chart->show();
        chart->replot();
        QCoreApplication::processEvents();
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
            QCoreApplication::processEvents();
        }
        const double elapsed = double(timer.nsecsElapsed());
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
        return elapsed / stepsPerRound;
    }

private:
    void send(QEvent::Type type, Qt::MouseButton button)
    {
        QMouseEvent event(type, position, button, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(canvas, &event);
    }

    std::unique_ptr<ZEMSmartDayHistogram> chart;
    QWidget *canvas = nullptr;
    QPointF position {200.0, 100.0};
};

/** Compares the two histories and prints a row; returns the ratio of ten years to one day. */
double compare(const QString &name, bool merged, QTextStream &out)
{
    DraggedChart day(1, merged);
    DraggedChart tenYears(daysOfTenYears, merged);
    const Benchmark::Comparison comparison = Benchmark::compareInTurn(
        rounds, [&day] { return day.dragRound(); }, [&tenYears] { return tenYears.dragRound(); });
    Benchmark::printRow(out, name, comparison);
    return comparison.ratio;
}

} // namespace

int main(int argc, char *argv[])
{
    Benchmark::needNoScreen();
    const QApplication application(argc, argv);
    QTextStream out(stdout);
    out << QStringLiteral("A drag step of %1 pixels, medians of %2 rounds; goal: ratio <= %3\n")
               .arg(stepPixels)
               .arg(rounds)
               .arg(goal);
    Benchmark::printHeading(out, QStringLiteral("bars"), QStringLiteral("1 day"),
                            QStringLiteral("10 years"));
    const double separate = compare(QStringLiteral("24 bars"), false, out);
    const double merged = compare(QStringLiteral("merged run"), true, out);
    return std::max(separate, merged) <= goal ? 0 : 1;
}
