// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef NIGHTSTYLER_H
#define NIGHTSTYLER_H

#include "powerday.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <ZEMPlotStyler>
#include <vector>

/** The look of plots of power on the dark ground of the display. */
class NightStyler final : public ZEMPlotStyler
{
public:
    NightStyler() = default;

    /** What the curves of a plot tell, in the order in which they are added. */
    void setKinds(const std::vector<PowerKind> &kinds) { curveKinds = kinds; }

    void stylePlot(ZEMPlot *plot) override;
    void styleGrid(QwtPlotGrid *grid) override;
    void styleCurve(QwtPlotCurve *curve, int index) override;
    void styleMarker(QwtPlotMarker *marker) override;

    /** The bars of the import behind the curves, which are not in the plot's list of curves. */
    static void styleBars(QwtPlotCurve *bars);

    /** That of the quantity in the charts; consumption, which no meter counts, has its own. */
    static QColor colorOf(PowerKind kind);
    /** What stands for the bars in a legend: a bar on the ground of the plot. */
    static QPixmap barSwatch(const QSize &size);
    /** The ground of texts that may stand before curves. */
    static QColor tagColor();
    /** Of what is dragged, picked or followed. */
    static QColor highlight();

private:
    Q_DISABLE_COPY(NightStyler)

    std::vector<PowerKind> curveKinds;
};

#endif
