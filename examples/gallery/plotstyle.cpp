// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "plotstyle.h"

#include <QFont>
#include <QPalette>
#include <QPen>
#include <ZEMPlot>
#include <ZEMPlotZoomerAdvanced>
#include <ZEMQwtPlotCurvePointGetter>
#include <ZEMStyle>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_widget.h>

namespace {

constexpr double minutesOfDay = 1440.0;
constexpr double mostWatts = 3000.0;
constexpr double sixHours = 360.0; // minutes

QColor color(ZEMStyle::ZEMColor name)
{
    return ZEMStyle(nullptr).color(name);
}

} // namespace

void PlotStyle::stylePlot(ZEMPlot *plot)
{
    plot->setBackgroundColor(QColor(40, 56, 68));
    plot->setAutoFillBackground(false);
    for (const int axis : {QwtPlot::xBottom, QwtPlot::yLeft}) {
        plot->setFontForScale(axis, QFont(QStringLiteral("Cabin"), 9));
        QPalette palette = plot->axisWidget(axis)->palette();
        palette.setColor(QPalette::Text, color(ZEMStyle::White));
        palette.setColor(QPalette::WindowText, color(ZEMStyle::WhiteAlpha50));
        plot->axisWidget(axis)->setPalette(palette);
    }
    plot->getZoomer()->setRubberBandPen(QPen(color(ZEMStyle::White), 1.0));
}

void PlotStyle::styleGrid(QwtPlotGrid *grid)
{
    grid->setMajorPen(color(ZEMStyle::WhiteAlpha15), 0.0, Qt::SolidLine);
}

void PlotStyle::styleCurve(QwtPlotCurve *curve, int index)
{
    curve->setPen(color(index == 0 ? ZEMStyle::Amber : ZEMStyle::Lime), 1.5);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
}

void PlotStyle::styleMarker(QwtPlotMarker *marker)
{
    marker->setLinePen(color(ZEMStyle::White), 1.0, Qt::DotLine);
}

ZEMPlot *makeDayPlot()
{
    static PlotStyle style;
    auto *plot = new ZEMPlot(&style);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, minutesOfDay, sixHours);
    plot->setAxisScale(QwtPlot::yLeft, 0.0, mostWatts);
    plot->init();
    // The plot leaves it, since pickers may still hold it.
    QObject::connect(plot, &QObject::destroyed,
                     [getter = plot->getCurvePointGetter()] { delete getter; });
    return plot;
}
