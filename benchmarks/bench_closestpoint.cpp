// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// Does finding the point under a finger cost more the longer the curve is? Taps at the same places
// on a curve of a day and on one of sixty days, two samples to each unit of x, in turn, in one run,
// and prints what a round of them costs and the ratio of the two. Both plots show the last day of
// their curve, so that the long one is searched far from its start.
//
// Ends with 1 if a ratio is above the goal, or a tap does not find its sample.

#include "benchmark.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTextStream>
#include <ZEMPlot>
#include <ZEMPlotStyler>
#include <ZEMQwtPlotCurvePointGetter>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace {

constexpr int samplesOfDay = 1440;
constexpr int samplesOfSixtyDays = 86400;
constexpr double samplesPerUnit = 2.0;
constexpr double unitsOfDay = samplesOfDay / samplesPerUnit;
constexpr double level = 50.0;
constexpr int tapsPerRound = 500;
constexpr int rounds = 301;
constexpr double goal = 1.1;

class PlainStyler final : public ZEMPlotStyler
{
public:
    void stylePlot(ZEMPlot *) override { }
    void styleGrid(QwtPlotGrid *) override { }
    void styleCurve(QwtPlotCurve *, int) override { }
    void styleMarker(QwtPlotMarker *) override { }
};

/** A plot of one curve, which shows the last day of it. */
class TappedPlot
{
public:
    explicit TappedPlot(int samples)
        : plot(std::make_unique<ZEMPlot>(&styler)), curve(new QwtPlotCurve),
          start((samples - samplesOfDay) / samplesPerUnit)
    {
        getter.reset(plot->getCurvePointGetter());
        QVector<QPointF> points;
        for (int i = 0; i < samples; ++i) {
            points << QPointF(i / samplesPerUnit, level);
        }
        curve->setSamples(points);
        plot->init();
        plot->addCurve(curve, false);
        plot->setAxisScale(QwtPlot::xBottom, start, start + unitsOfDay);
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 2.0 * level);
        plot->resize(640, 480);
        plot->show();
        plot->replot();
        QCoreApplication::processEvents();
    }

    /** Nanoseconds of a round of taps, each from a place in the shown day to the found point. */
    double tapRound(const std::vector<double> &places)
    {
        return timed(places, [this](double place) {
            return getter->getCurvePoint(QPointF(start + place, level)).valid;
        });
    }

    /** The same for a search on the curve alone, from a pixel of the canvas. */
    double searchRound(const std::vector<double> &places)
    {
        const QwtScaleMap map = plot->canvasMap(QwtPlot::xBottom);
        return timed(places, [this, &map](double place) {
            const QPoint pixel(static_cast<int>(map.transform(start + place)), 100);
            return getter->closestPoint(curve, pixel, nullptr, nullptr) >= 0;
        });
    }

    /** Whether all searches have found a sample, and those of now find the right one. */
    bool isRight(const std::vector<double> &places) const
    {
        return foundAll && std::all_of(places.begin(), places.end(), [this](double place) {
                   const auto point = getter->getCurvePoint(QPointF(start + place, level));
                   constexpr double unitsOfTwoPixels = 2.5;
                   return point.valid
                       && std::abs(point.point.x() - start - place) < unitsOfTwoPixels;
               });
    }

private:
    template <typename Search>
    double timed(const std::vector<double> &places, Search search)
    {
        QElapsedTimer timer;
        timer.start();
        const auto found = std::count_if(places.begin(), places.end(), search);
        const auto elapsed = static_cast<double>(timer.nsecsElapsed());
        foundAll = foundAll && found == static_cast<std::ptrdiff_t>(places.size());
        return elapsed;
    }

    PlainStyler styler;
    std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter;
    std::unique_ptr<ZEMPlot> plot;
    QwtPlotCurve *curve;
    double start; // x of the left end of the plot
    bool foundAll = true;
};

/** Compares the two curves and prints a row; returns the ratio of sixty days to one. */
template <typename Round>
double compare(const QString &name, Round round, TappedPlot &day, TappedPlot &sixtyDays,
               QTextStream &out)
{
    const Benchmark::Comparison comparison = Benchmark::compareInTurn(
        rounds, [&] { return round(day); }, [&] { return round(sixtyDays); });
    Benchmark::printRow(out, name, comparison);
    return comparison.ratio;
}

/** Where in a day it is tapped, in units of x; not behind the last sample. */
std::vector<double> tapPlaces()
{
    QRandomGenerator random(76);
    std::vector<double> places(tapsPerRound);
    std::generate(places.begin(), places.end(),
                  [&random] { return random.bounded(unitsOfDay - 1.0); });
    return places;
}

} // namespace

int main(int argc, char *argv[])
{
    Benchmark::needNoScreen();
    const QApplication application(argc, argv);
    QTextStream out(stdout);
    out << QStringLiteral("%1 searches in turn, medians of %2 rounds; goal: ratio <= %3\n")
               .arg(tapsPerRound)
               .arg(rounds)
               .arg(goal);
    Benchmark::printHeading(out, QStringLiteral("search"),
                            QStringLiteral("%1 pts").arg(samplesOfDay),
                            QStringLiteral("%1 pts").arg(samplesOfSixtyDays));
    TappedPlot day(samplesOfDay);
    TappedPlot sixtyDays(samplesOfSixtyDays);
    const std::vector<double> places = tapPlaces();
    const double tapped = compare(
        QStringLiteral("tap"), [&places](TappedPlot &plot) { return plot.tapRound(places); }, day,
        sixtyDays, out);
    const double searched = compare(
        QStringLiteral("closestPoint"),
        [&places](TappedPlot &plot) { return plot.searchRound(places); }, day, sixtyDays, out);
    if (!day.isRight(places) || !sixtyDays.isRight(places)) {
        out << QStringLiteral("A search did not find its sample.\n");
        return 1;
    }
    return std::max(tapped, searched) <= goal ? 0 : 1;
}
