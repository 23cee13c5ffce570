// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTOGRAMPLOT_P_H
#define HISTOGRAMPLOT_P_H

#include "layoutsettings_p.h"
#include "scalelabels_p.h"

#include <QPointF>

#include <qwt_plot.h>
#include <qwt_scale_div.h>

#include <array>
#include <optional>

/**
 * The plot of a chart. It shows what a QwtPlot shows and differs in three points.
 *
 * It is laid out anew whenever it comes into view, and so is an axis. What its labels need at the
 * ends of the x axis depends on the width that the axis got, and a hidden plot hears of no such
 * change: it would come up with its ticks and bars beside the canvas.
 *
 * And it is panned quickly. A pan changes the x scale and, as a rule, no geometry, while
 * QwtPlot::replot() measures the labels of all four axes several times and lays the plot out.
 *
 * And it is made quickly. Each setter of a scale widget measures all labels of its scale, those of
 * hidden axes and of scales that nobody will see included. A hidden axis is not measured before it
 * is enabled, and size hints are made from what is known of the labels.
 */
class HistogramPlot : public QwtPlot
{
public:
    /** A plot whose axes have measured nothing yet. */
    static HistogramPlot *newPlot(QWidget *parent);

    /**
     * As setAxisScale() of @p plot. The scale of a chart's plot is divided at once, so that
     * replot() knows beforehand what it will be.
     */
    static void setAxisScale(QwtPlot *plot, int axis, double minimum, double maximum, double step);

    void replot() override;
    void updateLayout() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    using QwtPlot::QwtPlot;

    /** The scale of an axis, where it is drawn, and the borders beside it. */
    struct DrawnScale
    {
        QwtScaleDiv scale;
        QPointF position;
        double length = 0.0;
        ScaleBorders borders;
    };

    /** What the layout depends on and nobody is told of. */
    struct LayoutInput
    {
        LayoutSettings settings {};
        std::array<double, axisCnt> extents {}; ///< of the scales, in pixels
        std::array<std::optional<ScaleBorders>, axisCnt> borders; ///< that the scales ask for

        bool operator==(const LayoutInput &other) const;
    };

    enum class Measured { None, Visible };

    LayoutInput currentLayoutInput() const;
    bool updateAxesQuickly();
    bool layOutQuickly();
    void updateAxesMeasuring(Measured which);
    bool hasOldBorders(int axis) const;
    bool moveXAxis();
    DrawnScale drawnScale(int axis) const;
    void restore(int axis, const DrawnScale &drawn);
    void replotCanvas();

    LayoutInput layoutInput; ///< of the layout made last
    bool isPanning = false;
    /** Axes that were hidden in the layout made last; nothing has measured them since. */
    std::array<bool, axisCnt> isHidden {{false, true, false, true}};
};

#endif
