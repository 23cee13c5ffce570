// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PLOTSTYLE_H
#define PLOTSTYLE_H

#include <ZEMPlotStyler>

/** The looks of the gallery's plots. The page of ZEMPlotStyler shows how to write one. */
class PlotStyle final : public ZEMPlotStyler
{
public:
    void stylePlot(ZEMPlot *plot) override;
    void styleGrid(QwtPlotGrid *grid) override;
    void styleCurve(QwtPlotCurve *curve, int index) override;
    void styleMarker(QwtPlotMarker *marker) override;
};

/** A plot, with axes for the power of a day, in the gallery's style. */
ZEMPlot *makeDayPlot();

#endif
