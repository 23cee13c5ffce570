// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartwalkactions.h"
#include "quickpathsfixture.h"
#include "zemtest.h"

#include <QApplication>
#include <QLayout>
#include <QLocale>
#include <QTimeZone>

namespace ChartWalk {

namespace {

using namespace QuickPathsTest;

void drag(const Stage &stage, int reach, Random &random)
{
    QWidget *canvas = stage.anyPlot(random)->canvas();
    if (!stage.window->isVisible() || !canvas->isVisible()) {
        return;
    }
    // A chart may be larger than its window for a while.
    const QWidget *window = canvas->window();
    const QRect inView =
        canvas->rect() & window->rect().translated(canvas->mapFrom(window, QPoint()));
    const QPoint from = inView.center();
    ZemTest::press(canvas, from);
    const int moves = 1 + upTo(3, random);
    QPoint to = from;
    for (int i = 0; i < moves; ++i) {
        to += QPoint(upTo(2 * reach, random) - reach, upTo(4, random));
        to.setX(qBound(inView.left(), to.x(), inView.right()));
        to.setY(qBound(inView.top(), to.y(), inView.bottom()));
        ZemTest::moveTo(canvas, to);
    }
    ZemTest::release(canvas, to);
}

/** Without the quick paths Qwt keeps its labels for as long as the scale stays. */
void forgetLabels(ZEMHistogram *chart)
{
    auto *plot = chart->findChild<QwtPlot *>(QString(), Qt::FindDirectChildrenOnly);
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        auto *draw = plot->axisScaleDraw(axis);
        draw->setScaleDiv(draw->scaleDiv());
        plot->axisWidget(axis)->update();
    }
}

void setLocale(const Stage &stage, Random &random)
{
    static const QLocale locales[] = {QLocale::c(),
                                      QLocale(QLocale::Dutch),
                                      QLocale(QLocale::Arabic, QLocale::Egypt),
                                      QLocale(QLocale::Hebrew),
                                      QLocale(QLocale::Chinese),
                                      QLocale(QLocale::Greek)};
    QLocale::setDefault(locales[upTo(5, random)]);
    for (ZEMHistogram *chart : {stage.chart, stage.child}) {
        if (chart) {
            forgetLabels(chart);
        }
    }
    stage.chart->replot();
}

Actions chartViewActions()
{
    const Action replot = {"chart: replot", [](Stage &stage, Random &) { stage.chart->replot(); }};
    const Action shortDrag = {"chart: short drag",
                              [](Stage &stage, Random &random) { drag(stage, 9, random); }};
    const Action longDrag = {"chart: long drag",
                             [](Stage &stage, Random &random) { drag(stage, 120, random); }};
    const Action page = {"chart: page", [](Stage &stage, Random &random) {
                             ZEMHistogram *chart = stage.anyChart(random);
                             const int way = upTo(4, random);
                             if (way < 2) {
                                 chart->showPrevPeriod();
                             } else if (way < 4) {
                                 chart->showNextPeriod();
                             } else {
                                 chart->showFirstPeriod();
                             }
                         }};
    return {
        replot, replot, shortDrag, shortDrag, shortDrag, longDrag, longDrag, page, page,
    };
}

Actions chartDataActions()
{
    return {
        {"chart: value limits",
         [](Stage &stage, Random &random) {
             static constexpr double sizes[] = {0.01, 0.3, 1.0, 9.0, 120.0, 12345.0, 3e6};
             const double size = sizes[upTo(6, random)];
             stage.anyChart(random)->setValueLimits(
                 QwtInterval(coin(random) ? 0.0 : -size * upTo(9, random) / 10.0, size));
         }},
        {"chart: digits",
         [](Stage &stage, Random &random) {
             stage.anyChart(random)->setScaleDigits(anyAxis(random), upTo(5, random));
         }},
        {"chart: timestamp",
         [](Stage &stage, Random &random) {
             const QDate day = QDate(2020, 1, 1).addDays(upTo(3000, random));
             stage.chart->setDataChangedTimestamp(
                 upTo(9, random) == 0 ? QDateTime()
                                      : QDateTime(day, QTime(0, 0), QTimeZone::utc()));
             // Without the quick paths the labels stay until the scale is another one.
             forgetLabels(stage.chart);
         }},
        {"chart: period",
         [](Stage &stage, Random &random) { stage.chart->setScalePeriod(1 + upTo(40, random)); }},
        {"chart: interval",
         [](Stage &stage, Random &random) {
             stage.chart->setScaleInterval(QwtInterval(-upTo(300, random), upTo(40, random)));
         }},
        {"chart: series on top",
         [](Stage &stage, Random &random) {
             stage.anyChart(random)->addSeries(
                 newSeries(stage.slotCount, coin(random), upTo(99, random)));
         }},
        {"chart: series beneath",
         [](Stage &stage, Random &random) {
             stage.anyChart(random)->prependSeries(
                 newSeries(stage.slotCount, coin(random), upTo(99, random)));
         }},
        {"chart: axes anew",
         [](Stage &stage, Random &random) { stage.anyChart(random)->initAxisRefine(); }},
        {"chart: size",
         [](Stage &stage, Random &random) {
             const int width = 150 + upTo(300, random);
             stage.anyChart(random)->resize(width, 200 + upTo(200, random));
         }},
    };
}

Actions windowActions()
{
    const Action show = {"window: show", [](Stage &stage, Random &) {
                             stage.window->show();
                             stage.chart->show();
                         }};
    return {
        show,
        show,
        {"window: size",
         [](Stage &stage, Random &random) {
             const int width = 300 + upTo(250, random);
             stage.window->resize(width, (stage.child ? 450 : 280) + upTo(150, random));
         }},
        {"window: hide", [](Stage &stage, Random &) { stage.window->hide(); }},
        {"window: hide the chart", [](Stage &stage, Random &) { stage.chart->hide(); }},
        {"window: show the chart", [](Stage &stage, Random &) { stage.chart->show(); }},
        {"window: hide a part",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             plot->setVisible(!plot->isHidden() && coin(random));
             plot->show();
         }},
        {"window: other page",
         [](Stage &stage, Random &random) {
             QWidget *page = stage.pages[upTo(1, random)];
             page->setVisible(upTo(3, random) != 0);
             page->layout()->addWidget(stage.chart);
         }},
    };
}

Actions pageActions()
{
    return {
        {"window: on its own and back",
         [](Stage &stage, Random &random) {
             stage.chart->setParent(nullptr);
             if (coin(random)) {
                 stage.chart->ensurePolished();
             }
             stage.pages[0]->layout()->addWidget(stage.chart);
             stage.chart->setVisible(coin(random));
         }},
        {"window: direction",
         [](Stage &stage, Random &random) {
             stage.chart->setLayoutDirection(coin(random) ? Qt::RightToLeft : Qt::LeftToRight);
         }},
        {"window: disabled",
         [](Stage &stage, Random &random) { stage.chart->setEnabled(coin(random)); }},
        {"window: font",
         [](Stage &stage, Random &random) { stage.window->setFont(anyFont(random)); }},
        {"window: polish", [](Stage &stage, Random &) { stage.chart->ensurePolished(); }},
        {"window: style sheet",
         [](Stage &stage, Random &random) {
             static const QStringList sheets {
                 QString(), QStringLiteral("* { font-size: 11px }"),
                 QStringLiteral("QwtScaleWidget { color: green; margin: 2px }"),
                 QStringLiteral("QWidget { font: bold 8pt; padding: 1px }")};
             stage.window->setStyleSheet(sheets[upTo(3, random)]);
         }},
    };
}

/**
 * Neither a font nor a style sheet: an application tells its widgets of them in the order of their
 * addresses, and Qwt's layouts depend on the order.
 */
Actions applicationActions()
{
    return {
        {"application: locale", [](Stage &stage, Random &random) { setLocale(stage, random); }},
        {"application: palette",
         [](Stage &, Random &random) { QApplication::setPalette(anyPalette(random)); }},
        {"application: direction",
         [](Stage &, Random &random) {
             QApplication::setLayoutDirection(coin(random) ? Qt::RightToLeft : Qt::LeftToRight);
         }},
    };
}

const Actions &actions()
{
    static const Actions all = joined({chartViewActions(), chartDataActions(), allPlotActions(),
                                       windowActions(), pageActions(), applicationActions()});
    return all;
}

} // namespace

std::size_t actionCount()
{
    return actions().size();
}

const char *nameOf(std::size_t action)
{
    return actions()[action].name;
}

void act(Stage &stage, const Step &step)
{
    Random random(step.number);
    actions()[step.action].act(stage, random);
}

} // namespace ChartWalk
