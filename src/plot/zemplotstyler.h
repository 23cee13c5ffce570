// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPLOTSTYLER_H
#define ZEMPLOTSTYLER_H

#include "zemkit_export.h"

class QwtPlotCurve;
class QwtPlotGrid;
class QwtPlotMarker;
class ZEMPlot;

/**
 * Decides what a ZEMPlot and everything in it looks like. To be implemented by the program, which
 * keeps the styler alive as long as a plot uses it; one styler may serve several plots.
 *
 * @code
 * #include <ZEMPlot>
 * #include <ZEMPlotStyler>
 * #include <qwt_plot_curve.h>
 * #include <qwt_plot_grid.h>
 * #include <qwt_plot_marker.h>
 *
 * class NightStyler final : public ZEMPlotStyler
 * {
 * public:
 *     void stylePlot(ZEMPlot *plot) override { plot->setBackgroundColor(Qt::black); }
 *     void styleGrid(QwtPlotGrid *grid) override { grid->setPen(Qt::darkGray, 0.0, Qt::DotLine); }
 *     void styleCurve(QwtPlotCurve *curve, int index) override
 *     {
 *         curve->setPen(index == 0 ? Qt::yellow : Qt::green);
 *     }
 *     void styleMarker(QwtPlotMarker *marker) override { marker->setLinePen(Qt::white); }
 * };
 * @endcode
 *
 * No operation is called with a null pointer, unless the program itself adds one to the plot.
 */
class ZEM_EXPORT ZEMPlotStyler
{
public:
    /** Called by ZEMPlot::restyle() for the plot itself, before its grid and its curves. */
    virtual void stylePlot(ZEMPlot *plot) = 0;

    /**
     * Called by ZEMPlot::restyle() for the grid, which is attached once the plot's init() ran; not
     * called once the program has deleted it.
     */
    virtual void styleGrid(QwtPlotGrid *grid) = 0;

    /**
     * Called for a curve just before it is added, and again by ZEMPlot::restyle().
     *
     * @param index place in the plot's list of curves, 0 for the first; when a curve is removed,
     *              those behind it are told their new place only at the next restyle()
     */
    virtual void styleCurve(QwtPlotCurve *curve, int index) = 0;

    /** Called for a marker just before it is added. ZEMPlot::restyle() leaves markers alone. */
    virtual void styleMarker(QwtPlotMarker *marker) = 0;

protected:
    ZEMPlotStyler() = default;
    /** A plot never deletes its styler. */
    ~ZEMPlotStyler() = default;
};

#endif
