// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTLIFETIME_H
#define CHARTLIFETIME_H

#include "../support/lifetime.h"
#include "zemtest.h"

#include <QTimeZone>
#include <QwtPlotMover>
#include <ZEMHistogram>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>

#include <QCoreApplication>
#include <QDateTime>
#include <QPointer>
#include <QVBoxLayout>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

#include <functional>

/** Charts on a page, and what a user or a host does to them. */
namespace ChartLifetime {

constexpr double period = 24.0;

/** What makes an object emit something; @p name stands in the name of the row. */
template <typename Object>
struct Act
{
    const char *name;
    std::function<void(Object *)> run;
};

inline QDateTime midnight()
{
    return QDateTime(QDate(2016, 3, 7), QTime(0, 0), QTimeZone::utc());
}

inline QwtPlot *plotOf(const ZEMHistogram *chart)
{
    return chart->findChild<QwtPlot *>(QString(), Qt::FindDirectChildrenOnly);
}

inline QwtPlotCanvas *canvasOf(const ZEMHistogram *chart)
{
    return qobject_cast<QwtPlotCanvas *>(plotOf(chart)->canvas());
}

inline QwtPlotMover *moverOf(const ZEMHistogram *chart)
{
    return canvasOf(chart)->findChild<QwtPlotMover *>();
}

/**
 * A page with a layout. It stands on a plain widget, because the offscreen platform warns of top
 * level widgets that have size limits.
 */
inline QWidget *newPage()
{
    QWidget *page = Lifetime::shownPage();
    auto *ground = new QWidget(page);
    new QVBoxLayout(ground);
    ground->resize(page->size());
    ground->show();
    return page;
}

inline QLayout *layoutOf(const QWidget *page)
{
    return page->findChild<QLayout *>();
}

inline void showAll(QWidget *page)
{
    layoutOf(page)->activate();
    QCoreApplication::processEvents();
}

inline ZEMHistogramSeries *newSeries()
{
    auto *data = new ZEMHistogramData;
    data->setWindowSize(unsigned(period));
    data->setNrWindows(4);
    auto *series = new ZEMHistogramSeries(QStringLiteral("series"), QBrush(Qt::red), false);
    series->setData(data);
    return series;
}

/** Makes a chart ready for paging from -3 periods on, and shows it on its page. */
inline void setUp(ZEMHistogram *chart, QWidget *page)
{
    layoutOf(page)->addWidget(chart);
    chart->init();
    chart->addSeries(newSeries());
    chart->setScalePeriod(period);
    chart->setScaleInterval(QwtInterval(-3 * period, period));
    chart->setDataChangedTimestamp(midnight());
}

/** A finger that moves on @p widget to the right, as long as there is something under it. */
inline void drag(QWidget *widget)
{
    const QPoint from = widget->rect().center() - QPoint(40, 0);
    const QPointer<QWidget> window = widget->window();
    const QPointer<QWidget> ground = widget;
    ZemTest::press(widget, from);
    for (int step = 1; ground && step <= 4; ++step) {
        ZemTest::moveTo(widget, from + QPoint(20 * step, 0));
    }
    if (ground) {
        ZemTest::moveTo(widget, from + QPoint(83, 0));
        ZemTest::release(widget, from + QPoint(84, 0));
    } else if (window) {
        ZemTest::release(window, QPoint(1, 1));
    }
}

inline void tap(QWidget *widget)
{
    const QPointer<QWidget> ground = widget;
    ZemTest::press(widget, widget->rect().center());
    if (ground) {
        ZemTest::release(widget, widget->rect().center());
    }
}

/** What moves the view of a chart. */
inline QVector<Act<ZEMHistogram>> moves()
{
    return {{"showPrevPeriod", &ZEMHistogram::showPrevPeriod},
            {"showNextPeriod", &ZEMHistogram::showNextPeriod},
            {"showFirstPeriod", &ZEMHistogram::showFirstPeriod},
            {"drag", [](ZEMHistogram *chart) { drag(canvasOf(chart)); }}};
}

/** What words the headline of a chart and does not move it. */
inline QVector<Act<ZEMHistogram>> headlines()
{
    return {
        {"setDataChangedTimestamp",
         [](ZEMHistogram *chart) { chart->setDataChangedTimestamp(midnight().addDays(1)); }},
        {"updateTitle", [](ZEMHistogram *chart) { chart->updateTitle(QwtInterval(0.0, 7.0)); }}};
}

/** @p chart alone on a page, which emits because of @p act. */
inline Lifetime::Stage chartStage(ZEMHistogram *chart, const Act<ZEMHistogram> &act)
{
    QWidget *page = newPage();
    setUp(chart, page);
    showAll(page);
    return {page, chart, [chart, act] { act.run(chart); }};
}

/** A chart and the one under it on a page. */
struct Pair
{
    explicit Pair(ZEMHistogram *parent, ZEMHistogram *child)
        : page(newPage()), upper(parent), lower(child)
    {
        lower->init();
        upper->setChild(lower);
        setUp(upper, page);
        showAll(page);
    }

    QWidget *page;
    ZEMHistogram *upper;
    ZEMHistogram *lower;
};

} // namespace ChartLifetime

#endif
