// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTPAGE_H
#define CHARTPAGE_H

#include <QDateTime>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QWidget>

#include <memory>
#include <vector>

/** What a page of the chart benchmarks shows, and the pages that show it by different means. */
namespace Charts {

/** The three charts of the library. A slot is an hour, a day or a week. */
enum class Period { Day, Week, Month };

int slotsInView(Period period);

/** Readings of two series, oldest first, and the date of the first slot in view. */
struct Readings
{
    Period period;
    QDateTime newest;
    std::vector<double> consumption;
    std::vector<double> production;
};

constexpr int twoYears = 730; // days

Readings readings(Period period, int days = twoYears);

/** Where things stand on every page, in pixels of the window. */
constexpr QSize pageSize(640, 480);
constexpr QRect headlineRect(73, 84, 493, 25);
constexpr QRect chartRect(73, 112, 493, 340);
constexpr int valueLimit = 8; // the end of the value axis

/** The picture of every page's ground. It leaves nothing through. */
QPixmap groundPicture();

/** A page with a bar chart under a headline, which a finger drags sideways. */
class Page
{
public:
    virtual ~Page() = default;

    /** The page itself: a window of pageSize. */
    virtual QWidget *window() = 0;
    /** The part of the page that a step of a drag paints anew. */
    virtual QWidget *canvas() = 0;
};

/** The page of hand-written painter code, which everything else is measured by. */
std::unique_ptr<Page> floorPage(const Readings &readings);
/** The library's own chart. */
std::unique_ptr<Page> libraryPage(const Readings &readings);
/** A plain QwtPlot with a QwtPlotHistogram over the whole history. */
std::unique_ptr<Page> qwtPage(const Readings &readings);
#ifdef BENCH_QCUSTOMPLOT
std::unique_ptr<Page> customPlotPage(const Readings &readings);
#endif
#ifdef BENCH_QTCHARTS
std::unique_ptr<Page> qtChartsPage(const Readings &readings);
#endif

} // namespace Charts

#endif
