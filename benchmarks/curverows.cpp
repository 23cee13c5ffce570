// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "curverows.h"

#include "benchmark.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
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
constexpr int rounds = 101;
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
        Benchmark::settle();
    }

    /** Nanoseconds of a tap, from a place in the shown day to the found point. */
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

    /** Ends the program when a tap does not find its sample: its cost would mean nothing. */
    void check(const std::vector<double> &places) const
    {
        constexpr double unitsOfTwoPixels = 2.5;
        for (const double place : places) {
            const auto found = getter->getCurvePoint(QPointF(start + place, level));
            if (!found.valid || std::abs(found.point.x() - start - place) >= unitsOfTwoPixels) {
                qFatal("no sample is found at %f", start + place);
            }
        }
    }

private:
    template <typename Search>
    static double timed(const std::vector<double> &places, Search search)
    {
        QElapsedTimer timer;
        timer.start();
        const auto found = std::count_if(places.begin(), places.end(), search);
        const auto elapsed = static_cast<double>(timer.nsecsElapsed());
        if (found != static_cast<std::ptrdiff_t>(places.size())) {
            qFatal("a search has found no sample");
        }
        return elapsed / tapsPerRound;
    }

    PlainStyler styler;
    std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter;
    std::unique_ptr<ZEMPlot> plot;
    QwtPlotCurve *curve;
    double start; // x of the left end of the plot
};

/** Where in a day it is tapped, in units of x; not behind the last sample. */
std::vector<double> tapPlaces()
{
    QRandomGenerator random(76);
    std::vector<double> places(tapsPerRound);
    std::generate(places.begin(), places.end(),
                  [&random] { return random.bounded(unitsOfDay - 1.0); });
    return places;
}

using Search = double (TappedPlot::*)(const std::vector<double> &);

BenchTable::Row searchRow(const char *key, const char *work, Search search)
{
    const auto contender = [search](int samples) -> BenchTable::Contender {
        return {QStringLiteral("%1 points").arg(samples), [search, samples]() -> BenchTable::Round {
                    const auto plot = std::make_shared<TappedPlot>(samples);
                    const std::vector<double> places = tapPlaces();
                    plot->check(places);
                    return [plot, places, search] { return (plot.get()->*search)(places); };
                }};
    };
    const BenchTable::Contender day = contender(samplesOfDay);
    return {QString::fromLatin1(key),
            QString::fromLatin1(work),
            tapsPerRound,
            rounds,
            {contender(samplesOfSixtyDays), day},
            {{day.name, goal, goal}}};
}

} // namespace

std::vector<BenchTable::Row> curveRows()
{
    return {
        searchRow("tap", "The curve point of a tap", &TappedPlot::tapRound),
        searchRow("closest-point", "The closest point of a curve", &TappedPlot::searchRound),
    };
}
