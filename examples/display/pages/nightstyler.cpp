// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// The layout of a plot cannot be had otherwise: its header uses what Qt has deprecated.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "nightstyler.h"

#include "pagelook.h"
#include "quantitylook.h"

#include <QPainter>
#include <QPalette>
#include <QPen>
#include <ZEMPlot>
#include <ZEMPlotZoomerAdvanced>
#include <ZEMStyle>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

namespace {

constexpr QRgb canvasColor = qRgb(16, 23, 29);
constexpr double curveWidth = 1.5; // pixels
constexpr int barAlpha = 128; // of 255
constexpr int barEdgeAlpha = 200;
constexpr int tagAlpha = 210;
constexpr int labelSize = 10; // points
constexpr double tickLengths[QwtScaleDiv::NTickTypes] = {3.0, 3.0, 6.0}; // pixels

QColor color(ZEMStyle::ZEMColor name)
{
    return ZEMStyle(nullptr).color(name);
}

QColor translucent(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

QPen barPen()
{
    return {translucent(NightStyler::colorOf(PowerKind::GridImport), barEdgeAlpha), 1.0};
}

QBrush barBrush()
{
    return translucent(NightStyler::colorOf(PowerKind::GridImport), barAlpha);
}

void styleAxis(ZEMPlot *plot, QwtPlot::Axis axis)
{
    plot->setFontForScale(axis, PageLook::textFont(labelSize));
    QwtScaleWidget *widget = plot->axisWidget(axis);
    QPalette palette = widget->palette();
    palette.setColor(QPalette::Text, color(ZEMStyle::White)); // labels
    palette.setColor(QPalette::WindowText, color(ZEMStyle::WhiteAlpha50)); // ticks
    widget->setPalette(palette);
    QwtScaleDraw *draw = plot->axisScaleDraw(axis);
    draw->enableComponent(QwtScaleDraw::Backbone, false);
    for (const auto type :
         {QwtScaleDiv::MinorTick, QwtScaleDiv::MediumTick, QwtScaleDiv::MajorTick}) {
        draw->setTickLength(type, tickLengths[type]);
    }
}

} // namespace

void NightStyler::stylePlot(ZEMPlot *plot)
{
    plot->setBackgroundColor(QColor(canvasColor));
    // The ground of the page shows around the canvas, and who changes many things replots once.
    plot->setAutoFillBackground(false);
    plot->setAutoReplot(false);
    auto *canvas = qobject_cast<QwtPlotCanvas *>(plot->canvas());
    canvas->setFrameStyle(QFrame::NoFrame);
    plot->plotLayout()->setAlignCanvasToScales(true);
    styleAxis(plot, QwtPlot::xBottom);
    styleAxis(plot, QwtPlot::yLeft);
    plot->getZoomer()->setRubberBandPen(QPen(highlight(), 1.0));
}

void NightStyler::styleGrid(QwtPlotGrid *grid)
{
    grid->setMajorPen(color(ZEMStyle::WhiteAlpha15), 1.0, Qt::SolidLine);
    grid->enableXMin(false);
    grid->enableYMin(false);
}

void NightStyler::styleCurve(QwtPlotCurve *curve, int index)
{
    const QColor line = colorOf(curveKinds.at(std::size_t(index)));
    // Filled, it would tint the bars behind it.
    curve->setPen(line, curveWidth);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
}

void NightStyler::styleMarker(QwtPlotMarker *marker)
{
    marker->setLinePen(highlight(), 1.0, Qt::DotLine);
    marker->setRenderHint(QwtPlotItem::RenderAntialiased);
}

void NightStyler::styleBars(QwtPlotCurve *bars)
{
    bars->setPen(barPen());
    bars->setBrush(barBrush());
}

QColor NightStyler::colorOf(PowerKind kind)
{
    switch (kind) {
    case PowerKind::Consumption:
        return color(ZEMStyle::White);
    case PowerKind::GridImport:
        return color(lookOf(Readings::Quantity::GridImport).color);
    case PowerKind::Production:
        return color(lookOf(Readings::Quantity::SolarProduction).color);
    case PowerKind::GridExport:
        break;
    }
    return color(lookOf(Readings::Quantity::GridExport).color);
}

QPixmap NightStyler::barSwatch(const QSize &size)
{
    QPixmap picture(size);
    picture.fill(QColor(canvasColor));
    QPainter painter(&picture);
    painter.setPen(barPen());
    painter.setBrush(barBrush());
    painter.drawRect(QRect(QPoint(0, 0), size - QSize(1, 1)));
    return picture;
}

QColor NightStyler::tagColor()
{
    return translucent(QColor(canvasColor), tagAlpha);
}

QColor NightStyler::highlight()
{
    return color(ZEMStyle::White);
}
