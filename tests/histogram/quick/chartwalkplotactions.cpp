// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qwt_plot_layout.h makes flags from 0, which Qt lists among what it will drop.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "chartwalkactions.h"
#include "qwtcompat_p.h"

#include <ZEMScaleDraw>
#include <ZEMScaleEngine>
#include <qwt_color_map.h>
#include <qwt_legend.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_text.h>

namespace ChartWalk {

namespace {

Actions plotActions()
{
    return {
        {"plot: replot", [](Stage &stage, Random &random) { stage.anyPlot(random)->replot(); }},
        {"plot: updateLayout",
         [](Stage &stage, Random &random) { stage.anyPlot(random)->updateLayout(); }},
        {"plot: updateAxes",
         [](Stage &stage, Random &random) { stage.anyPlot(random)->updateAxes(); }},
        {"plot: autoReplot",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             plot->setAutoReplot(coin(random));
             plot->autoRefresh();
         }},
        {"plot: title",
         [](Stage &stage, Random &random) { stage.anyPlot(random)->setTitle(anyText(random)); }},
        {"plot: footer",
         [](Stage &stage, Random &random) { stage.anyPlot(random)->setFooter(anyText(random)); }},
        {"plot: legend",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             if (plot->legend()) {
                 plot->insertLegend(nullptr);
             } else {
                 plot->insertLegend(new QwtLegend,
                                    coin(random) ? QwtPlot::BottomLegend : QwtPlot::LeftLegend);
             }
         }},
    };
}

Actions plotLayoutActions()
{
    return {
        {"plot: canvas margin",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = upTo(4, random) - 1;
             plot->plotLayout()->setCanvasMargin(upTo(20, random) - 1, axis);
         }},
        {"plot: spacing of the layout",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->plotLayout()->setSpacing(upTo(12, random));
         }},
        {"plot: aligned canvas",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = anyAxis(random);
             plot->plotLayout()->setAlignCanvasToScale(axis, coin(random));
         }},
        {"plot: background",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setCanvasBackground(anyOpaqueColor(random));
         }},
        {"plot: palette",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setPalette(anyPalette(random));
         }},
        {"plot: font",
         [](Stage &stage, Random &random) { stage.anyPlot(random)->setFont(anyFont(random)); }},
        {"plot: contents margins",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setContentsMargins(anyMargins(random));
         }},
        {"plot: height",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setFixedHeight(120 + upTo(120, random));
         }},
        {"plot: frame of the canvas",
         [](Stage &stage, Random &random) {
             auto *canvas = qobject_cast<QwtPlotCanvas *>(stage.anyPlot(random)->canvas());
             canvas->setFrameStyle(coin(random) ? QFrame::Box : QFrame::NoFrame);
             canvas->setLineWidth(upTo(4, random));
         }},
        {"plot: least size of the canvas",
         [](Stage &stage, Random &random) {
             const int width = upTo(200, random);
             stage.anyPlot(random)->canvas()->setMinimumSize(width, upTo(120, random));
         }},
        {"plot: role of the canvas",
         [](Stage &stage, Random &random) {
             // No backing store: under a style sheet Qwt shows what happened to be in its memory.
             stage.anyPlot(random)->canvas()->setBackgroundRole(coin(random) ? QPalette::Window
                                                                             : QPalette::Base);
         }},
    };
}

Actions axisActions()
{
    return {
        {"axis: enabled",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = anyAxis(random);
             const bool isShown = axis == QwtPlot::xBottom || axis == QwtPlot::yLeft;
             plot->enableAxis(axis, upTo(3, random) == 0 ? !isShown : isShown);
         }},
        {"axis: scale",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = anyAxis(random);
             const double low = upTo(60, random) - 40.0;
             const double size = 1.0 + upTo(60, random);
             plot->setAxisScale(axis, low, low + size, upTo(4, random));
         }},
        {"axis: scale of its own accord",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setAxisAutoScale(anyAxis(random), coin(random));
         }},
        {"axis: divided scale",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = anyAxis(random);
             const double low = upTo(60, random) - 40.0;
             plot->setAxisScaleDiv(axis,
                                   QwtLinearScaleEngine().divideScale(
                                       low, low + 1.0 + upTo(60, random), upTo(9, random), 5));
         }},
        {"axis: most major ticks",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             plot->setAxisMaxMajor(anyAxis(random), 1 + upTo(11, random));
         }},
        {"axis: most minor ticks",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setAxisMaxMinor(anyAxis(random), upTo(8, random));
         }},
    };
}

Actions axisLabelActions()
{
    return {
        {"axis: engine",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = anyAxis(random);
             plot->setAxisScaleEngine(
                 axis, coin(random) ? new QwtLinearScaleEngine : new ZEMScaleEngine(24.0));
         }},
        {"axis: rotated labels",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setAxisLabelRotation(
                 anyAxis(random), coin(random) ? 0.0 : upTo(180, random) - 90.0);
         }},
        {"axis: alignment of labels",
         [](Stage &stage, Random &random) {
             static const Qt::Alignment alignments[] = {Qt::Alignment(),
                                                        Qt::AlignLeft,
                                                        Qt::AlignRight,
                                                        Qt::AlignHCenter | Qt::AlignBottom,
                                                        Qt::AlignLeft | Qt::AlignTop,
                                                        Qt::AlignHCenter | Qt::AlignVCenter};
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = anyAxis(random);
             plot->setAxisLabelAlignment(axis, alignments[upTo(5, random)]);
         }},
        {"axis: Qwt's scale draw",
         [](Stage &stage, Random &random) {
             stage.anyPlot(random)->setAxisScaleDraw(anyAxis(random), new QwtScaleDraw);
         }},
        {"axis: the host's scale draw",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             QwtScaleDraw *draw = coin(random)
                 ? static_cast<QwtScaleDraw *>(new ZEMKWhScaleDraw(999.0))
                 : new ZEMWeekScaleDraw(0.5);
             plot->setAxisScaleDraw(anyAxis(random), draw);
         }},
        {"axis: title",
         [](Stage &stage, Random &random) {
             QwtPlot *plot = stage.anyPlot(random);
             const int axis = anyAxis(random);
             plot->setAxisTitle(axis, anyText(random));
         }},
        {"axis: title with a font",
         [](Stage &stage, Random &random) {
             QwtText title(anyText(random));
             title.setFont(anyFont(random));
             anyScale(stage, random)->setTitle(title);
         }},
    };
}

Actions scaleActions()
{
    return {
        {"scale: font",
         [](Stage &stage, Random &random) { anyScale(stage, random)->setFont(anyFont(random)); }},
        {"scale: palette",
         [](Stage &stage, Random &random) {
             anyScale(stage, random)->setPalette(anyPalette(random));
         }},
        {"scale: margin",
         [](Stage &stage, Random &random) {
             anyScale(stage, random)->setMargin(upTo(12, random));
         }},
        {"scale: spacing",
         [](Stage &stage, Random &random) {
             anyScale(stage, random)->setSpacing(upTo(12, random));
         }},
        {"scale: least borders",
         [](Stage &stage, Random &random) {
             const int start = upTo(30, random);
             anyScale(stage, random)->setMinBorderDist(start, upTo(30, random));
         }},
        {"scale: borders",
         [](Stage &stage, Random &random) {
             const int start = upTo(30, random);
             anyScale(stage, random)->setBorderDist(start, upTo(30, random));
         }},
        {"scale: contents margins",
         [](Stage &stage, Random &random) {
             anyScale(stage, random)->setContentsMargins(anyMargins(random));
         }},
        {"scale: colour bar",
         [](Stage &stage, Random &random) {
             QwtScaleWidget *scale = anyScale(stage, random);
             scale->setColorBarEnabled(coin(random));
             scale->setColorMap(QwtInterval(0.0, 10.0), new QwtLinearColorMap(Qt::red, Qt::blue));
         }},
    };
}

Actions scaleDrawActions()
{
    return {
        {"scale: inverted title",
         [](Stage &stage, Random &random) {
             anyScale(stage, random)->setLayoutFlag(QwtScaleWidget::TitleInverted, coin(random));
         }},
        {"scale: style sheet",
         [](Stage &stage, Random &random) {
             static const QStringList sheets {QString(), QStringLiteral("font: 13px; color: red"),
                                              QStringLiteral("background: yellow; padding: 3px"),
                                              QStringLiteral("border: 2px solid blue")};
             anyScale(stage, random)->setStyleSheet(sheets[upTo(3, random)]);
         }},
        {"draw: spacing",
         [](Stage &stage, Random &random) {
             anyDraw(stage, random)->setSpacing(upTo(20, random));
         }},
        {"draw: length of ticks",
         [](Stage &stage, Random &random) {
             const auto type = QwtScaleDiv::TickType(upTo(2, random));
             anyDraw(stage, random)->setTickLength(type, upTo(40, random));
         }},
        {"draw: width of ticks",
         [](Stage &stage, Random &random) {
             QwtCompat::setPenWidth(anyDraw(stage, random), upTo(3, random));
         }},
        {"draw: component",
         [](Stage &stage, Random &random) {
             static constexpr QwtAbstractScaleDraw::ScaleComponent components[] = {
                 QwtAbstractScaleDraw::Backbone, QwtAbstractScaleDraw::Ticks,
                 QwtAbstractScaleDraw::Labels};
             const auto component = components[upTo(2, random)];
             anyDraw(stage, random)->enableComponent(component, upTo(2, random) != 0);
         }},
        {"draw: least extent",
         [](Stage &stage, Random &random) {
             anyDraw(stage, random)->setMinimumExtent(upTo(60, random));
         }},
    };
}

} // namespace

Actions allPlotActions()
{
    return joined({plotActions(), plotLayoutActions(), axisActions(), axisLabelActions(),
                   scaleActions(), scaleDrawActions()});
}

} // namespace ChartWalk
