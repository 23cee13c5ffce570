// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PLOTFIXTURE_H
#define PLOTFIXTURE_H

#include <ZEMPlot>
#include <ZEMPlotStyler>
#include <ZEMPlotZoomerAdvanced>
#include <ZEMQwtPlotCurvePointGetter>

#include "zemtest.h"

#include <QList>
#include <QStringList>
#include <QTest>

#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_zoomer.h>
#include <qwt_text.h>

#include <memory>

/** What the tests of the plot tools share. */
namespace PlotTest {

/** A styler that keeps a log. */
class Styler final : public ZEMPlotStyler
{
public:
    void stylePlot(ZEMPlot *plot) override
    {
        log << QStringLiteral("plot");
        styledPlot = plot;
    }
    void styleGrid(QwtPlotGrid *grid) override
    {
        log << (grid->plot() ? QStringLiteral("attached grid") : QStringLiteral("loose grid"));
        styledGrid = grid;
    }
    void styleCurve(QwtPlotCurve *curve, int index) override
    {
        log << QStringLiteral("%1 curve %2 as %3")
                   .arg(curve->plot() ? QStringLiteral("attached") : QStringLiteral("loose"),
                        curve->title().text())
                   .arg(index);
    }
    void styleMarker(QwtPlotMarker *marker) override
    {
        log << (marker->plot() ? QStringLiteral("attached marker")
                               : QStringLiteral("loose marker"));
    }

    QStringList log;
    ZEMPlot *styledPlot = nullptr;
    QwtPlotGrid *styledGrid = nullptr;
};

/** The canvas of a stage. With its scales a pixel is one unit on both axes. */
inline const QSize canvasSize(400, 300);
inline constexpr double leftScale = 4.0;
inline constexpr double rightScale = 395.0;
inline constexpr double bottomScale = 0.0;
inline constexpr double topScale = 291.0;

/** The pixel of a position on a stage's axes. */
inline QPoint pixelOf(double x, double y)
{
    constexpr double bottomPixel = 295.0;
    return {static_cast<int>(x), static_cast<int>(bottomPixel - y)};
}

/** Gives @p plot a bare canvas of canvasSize, on which a pixel is one unit of both axes. */
inline void arrange(QwtPlot *plot)
{
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        plot->enableAxis(axis, false);
    }
    qobject_cast<QwtPlotCanvas *>(plot->canvas())->setFrameStyle(0);
    plot->setAxisScale(QwtPlot::xBottom, leftScale, rightScale);
    plot->setAxisScale(QwtPlot::yLeft, bottomScale, topScale);
    plot->resize(canvasSize);
    plot->updateLayout();
    plot->resize(plot->size() + canvasSize - plot->canvas()->size());
    plot->updateLayout();
    plot->replot();
}

/**
 * @p count samples from x = 0, all at @p y. The step is close enough for the getter, which looks
 * six units to each side.
 */
inline QVector<QPointF> levelRow(int count, double y, double step = 2.0)
{
    QVector<QPointF> samples;
    for (int i = 0; i < count; ++i) {
        samples << QPointF(i * step, y);
    }
    return samples;
}

/** As many as reach from 0 to 390 with the step of a row. */
inline constexpr int wholeRow = 196;

/** A plot that is ready for use, with a bare canvas, one unit a pixel. Its getter outlives it, as
 * it should. */
class Stage
{
public:
    Stage() : plot(std::make_unique<ZEMPlot>(&styler))
    {
        getter.reset(plot->getCurvePointGetter());
        plot->init();
        arrange(plot.get());
        plot->getZoomer()->setZoomBase(false);
    }

    bool show()
    {
        plot->show();
        return QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs);
    }

    QwtPlotCurve *addCurve(const QVector<QPointF> &samples, const QString &title = QString())
    {
        auto *curve = new QwtPlotCurve(title);
        curve->setSamples(samples);
        plot->addCurve(curve, false);
        return curve;
    }

    QwtPlotCanvas *canvas() { return qobject_cast<QwtPlotCanvas *>(plot->canvas()); }

    Styler styler;
    std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter;
    std::unique_ptr<ZEMPlot> plot;
};

/** A stage with two level curves. */
class TwoCurves : public Stage
{
public:
    QwtPlotCurve *upper = addCurve(levelRow(wholeRow, 200.0), QStringLiteral("upper"));
    QwtPlotCurve *lower = addCurve(levelRow(wholeRow, 50.0), QStringLiteral("lower"));
};

/** A drag with the mouse from one pixel of @p canvas to another, by way of the middle. */
inline void drag(QWidget *canvas, const QPoint &start, const QPoint &end,
                 Qt::MouseButton button = Qt::LeftButton)
{
    ZemTest::press(canvas, start, button);
    ZemTest::moveTo(canvas, (start + end) / 2);
    ZemTest::moveTo(canvas, end);
    ZemTest::release(canvas, end, button);
}

} // namespace PlotTest

#endif
