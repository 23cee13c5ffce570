// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartrows.h"

#include "benchmark.h"
#include "chartpage.h"
#include "draggedchart.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <malloc.h>

using BenchTable::Contender;
using BenchTable::Goal;
using BenchTable::Round;
using BenchTable::Row;

namespace {

using Maker = std::unique_ptr<Charts::Page> (*)(const Charts::Readings &);

struct PageKind
{
    QString name;
    Maker make;
};

constexpr auto ownName = "zemkit";
constexpr auto floorName = "floor";
constexpr auto customPlotName = "QCustomPlot";
constexpr auto qtChartsName = "Qt Charts";

QString named(const char *name)
{
    return QString::fromLatin1(name);
}

std::vector<PageKind> pageKinds()
{
    return {
        {named(ownName), Charts::libraryPage},           {named(floorName), Charts::floorPage},
        {QStringLiteral("QwtPlot"), Charts::qwtPage},
#ifdef BENCH_QCUSTOMPLOT
        {named(customPlotName), Charts::customPlotPage},
#endif
#ifdef BENCH_QTCHARTS
        {named(qtChartsName), Charts::qtChartsPage},
#endif
    };
}

std::shared_ptr<Charts::Page> shownPage(Maker make, const Charts::Readings &readings)
{
    const std::shared_ptr<Charts::Page> page = make(readings);
    page->window()->show();
    Benchmark::settle();
    return page;
}

constexpr int stepPixels = 6; // just above the threshold of a drag
constexpr int stepsOfDrag = 40;

/** To older data and back, from the move of the mouse to the finished picture. */
double dragRound(Charts::Page *page)
{
    QPointF position(250.0, 200.0);
    Benchmark::sendMouse(page->window(), QEvent::MouseButtonPress, position);
    QElapsedTimer timer;
    timer.start();
    for (int step = 0; step < stepsOfDrag; ++step) {
        position.rx() += step < stepsOfDrag / 2 ? stepPixels : -stepPixels;
        Benchmark::sendMouse(page->window(), QEvent::MouseMove, position);
        Benchmark::settle();
    }
    const double elapsed = double(timer.nsecsElapsed());
    Benchmark::sendMouse(page->window(), QEvent::MouseButtonRelease, position);
    Benchmark::settle();
    return elapsed / stepsOfDrag;
}

constexpr int repaintsInRound = 10;

double repaintRound(Charts::Page *page)
{
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < repaintsInRound; ++i) {
        page->window()->repaint();
    }
    return double(timer.nsecsElapsed()) / repaintsInRound;
}

double openRound(Maker make, const Charts::Readings &readings)
{
    QElapsedTimer timer;
    timer.start();
    const std::unique_ptr<Charts::Page> page = make(readings);
    page->window()->show();
    Benchmark::settle();
    return double(timer.nsecsElapsed());
}

std::vector<Contender> forAllKinds(const std::function<Round(Maker)> &prepare)
{
    std::vector<Contender> contenders;
    for (const PageKind &kind : pageKinds()) {
        const Maker make = kind.make;
        contenders.push_back({kind.name, [prepare, make] { return prepare(make); }});
    }
    return contenders;
}

Row dragRow(const QString &key, const QString &chart, Charts::Period period, double ofCustomPlot)
{
    const auto readings = std::make_shared<Charts::Readings>(Charts::readings(period));
    return {key,
            QStringLiteral("Drag step of 6 pixels with headline, ") + chart,
            stepsOfDrag,
            51,
            forAllKinds([readings](Maker make) -> Round {
                const auto page = shownPage(make, *readings);
                return [page] { return dragRound(page.get()); };
            }),
            {{named(floorName), 1.15, 1.05},
             {named(customPlotName), ofCustomPlot, 0.0},
             {named(qtChartsName), 0.2, 0.0}}};
}

Row repaintRow()
{
    const auto readings = std::make_shared<Charts::Readings>(Charts::readings(Charts::Period::Day));
    return {QStringLiteral("repaint"),
            QStringLiteral("Full repaint of a page with a day chart"),
            repaintsInRound,
            51,
            forAllKinds([readings](Maker make) -> Round {
                const auto page = shownPage(make, *readings);
                return [page] { return repaintRound(page.get()); };
            }),
            {{named(floorName), 1.2, 0.0}}};
}

Row openRow()
{
    constexpr int daysOfMonth = 31;
    const auto readings =
        std::make_shared<Charts::Readings>(Charts::readings(Charts::Period::Day, daysOfMonth));
    return {QStringLiteral("open"),
            QStringLiteral("Opening a page with a day chart"),
            1,
            51,
            forAllKinds([readings](Maker make) -> Round {
                return [readings, make] { return openRound(make, *readings); };
            }),
            {{named(floorName), 2.5, 0.0}, {named(customPlotName), 1.0, 0.0}}};
}

Row growthRow(const QString &key, const QString &bars, bool merged)
{
    constexpr unsigned int daysOfTenYears = 3653;
    const auto contender = [merged](const QString &name, unsigned int days) -> Contender {
        return {name, [days, merged]() -> Round {
                    const auto chart = std::make_shared<DraggedChart>(days, merged);
                    return [chart] { return chart->dragRound(); };
                }};
    };
    const QString day = QStringLiteral("one day");
    return {key,
            QStringLiteral("Drag step with ten years of history, ") + bars,
            DraggedChart::stepsPerRound,
            101,
            {contender(QStringLiteral("ten years"), daysOfTenYears), contender(day, 1)},
            {{day, 1.03, 1.03}}};
}

/** What a page with a year of hours holds more than one with a day of them. */
double heapOfYear(Maker make)
{
    const auto heapWith = [make](int days) {
        const Charts::Readings readings = Charts::readings(Charts::Period::Day, days);
        const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        const std::unique_ptr<Charts::Page> page = make(readings);
        page->window()->show();
        Benchmark::settle();
        return double(mallinfo2().uordblks + mallinfo2().hblkhd - before);
    };
    heapWith(1);
    const double day = heapWith(1);
    return heapWith(365) - day;
}

Row heapRow()
{
    Row row {QStringLiteral("heap"),
             QStringLiteral("Heap of a year of hourly history, two series"),
             1,
             3,
             forAllKinds([](Maker make) -> Round { return [make] { return heapOfYear(make); }; }),
             {}};
    row.unit = BenchTable::Unit::Bytes;
    return row;
}

} // namespace

std::vector<Row> chartRows()
{
    return {
        dragRow(QStringLiteral("drag-day"), QStringLiteral("24 bars"), Charts::Period::Day, 0.55),
        dragRow(QStringLiteral("drag-week"), QStringLiteral("7 bars"), Charts::Period::Week, 0.7),
        dragRow(QStringLiteral("drag-month"), QStringLiteral("5 bars"), Charts::Period::Month, 0.7),
        growthRow(QStringLiteral("growth"), QStringLiteral("24 bars"), false),
        growthRow(QStringLiteral("growth-merged"), QStringLiteral("leftmost slot empty"), true),
        repaintRow(),
        openRow(),
        heapRow(),
    };
}
