// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTOGRAMPLOT_P_H
#define HISTOGRAMPLOT_P_H

#include "histogramlayout_p.h"

#include <QFont>
#include <QPointF>

#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <array>

/**
 * The plot of a chart. It shows what a QwtPlot shows and differs in two points.
 *
 * It is laid out anew whenever it comes into view. What its labels need at the ends of the x axis
 * depends on the width that the axis got, and a hidden plot hears of no such change: it would come
 * up with its ticks and bars beside the canvas.
 *
 * And it is panned quickly. A pan changes the x scale and, as a rule, no geometry, while
 * QwtPlot::replot() measures the labels of all four axes several times and lays the plot out.
 */
class HistogramPlot : public QwtPlot
{
public:
    using QwtPlot::QwtPlot;

    /**
     * As setAxisScale() of @p plot. The scale of a chart's plot is divided at once, so that
     * replot() knows beforehand what it will be.
     */
    static void setAxisScale(QwtPlot *plot, int axis, double minimum, double maximum, double step);

    void replot() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    /** What the space that a hidden axis asks for at its ends depends on. */
    struct HiddenAxis
    {
        QFont font;
        QwtScaleDiv scale;
        double paintStart = 0.0;
        double paintEnd = 0.0;

        bool operator==(const HiddenAxis &other) const;
    };

    /** The scale of an axis and where it is drawn. */
    struct DrawnScale
    {
        QwtScaleDiv scale;
        QPointF position;
        double length = 0.0;
    };

    /** What the layout depends on and nobody is told of. */
    struct LayoutInput
    {
        HistogramLayout::Settings settings {};
        std::array<double, axisCnt> extents {}; ///< of the scales, in pixels

        bool operator==(const LayoutInput &other) const;
    };

    LayoutInput currentLayoutInput() const;
    bool updateAxesQuickly();
    bool hasOldBorders(int axis);
    bool moveXAxis();
    DrawnScale drawnScale(int axis) const;
    void restore(int axis, const DrawnScale &drawn);
    void replotCanvas();

    LayoutInput layoutInput;
    std::array<HiddenAxis, axisCnt> hiddenAxes;
};

#endif
