// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MOVERFIXTURE_H
#define MOVERFIXTURE_H

#include <QwtPlotMover>

#include <QStringList>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>
#include <qwt_scale_map.h>

/** What the tests of the mover share: a plot of one day that keeps a log, and an open mover. */
namespace MoverTest {

using Log = QStringList;

inline constexpr double day = 24.0;
inline constexpr double step = 6.0;
inline constexpr int axes[] = {QwtPlot::yLeft, QwtPlot::yRight, QwtPlot::xBottom, QwtPlot::xTop};
inline const QwtInterval tenDays(-240.0, 24.0);

/** A plot whose x axis shows one day, that notes when it is replotted. */
class Plot : public QwtPlot
{
public:
    Plot()
    {
        resize(400, 300);
        enableAxis(QwtPlot::yRight);
        enableAxis(QwtPlot::xTop);
        for (const int axis : axes) {
            setAxisScale(axis, 0.0, day, step);
        }
        replot();
        updateLayout();
        log.clear();
    }

    void replot() override
    {
        log << (autoReplot() ? QStringLiteral("auto replot") : QStringLiteral("replot"));
        QwtPlot::replot();
    }

    QwtPlotCanvas *plotCanvas() { return qobject_cast<QwtPlotCanvas *>(canvas()); }
    double lower(int axis) const { return axisScaleDiv(axis).lowerBound(); }
    double upper(int axis) const { return axisScaleDiv(axis).upperBound(); }

    /** Axis units of one pixel; negative where the axis runs against the pixels. */
    double unitsOfPixel(int axis) const
    {
        const QwtScaleMap map = canvasMap(axis);
        return (map.s2() - map.s1()) / (map.p2() - map.p1());
    }

    Log log;
};

class Mover : public QwtPlotMover
{
public:
    explicit Mover(QwtPlotCanvas *canvas) : QwtPlotMover(canvas) { }
    using QwtPlotMover::moveCanvas;
};

} // namespace MoverTest

#endif
