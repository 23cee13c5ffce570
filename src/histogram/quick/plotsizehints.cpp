// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qwt_plot_layout.h makes flags from 0, which Qt lists among what it will drop.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "plotsizehints_p.h"

#include "scalelabels_p.h"

#include <QtMath>

#include <qwt_plot.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <algorithm>

namespace {

/** What an axis asks for. */
struct Axis
{
    QSize size; ///< as QwtScaleWidget::minimumSizeHint()
    ScaleBorders borders;
    int tickOffset = 0; ///< pixels from the canvas to the labels
    int majorTicks = 0;
};

struct Axes
{
    Axis left;
    Axis bottom;
};

std::optional<Axis> axisOf(const QwtScaleWidget &widget)
{
    const QwtScaleDraw *draw = widget.scaleDraw();
    const QFont &font = widget.font();
    const ScaleMeasure measure(widget);
    const auto minLength = measure.minLength();
    const auto borders = measure.borders(widget);
    if (!minLength || !borders) {
        return std::nullopt;
    }
    int length = std::max(0, widget.startBorderDist() - borders->start)
        + std::max(0, widget.endBorderDist() - borders->end) + *minLength;
    int thickness = widget.dimForLength(length, font);
    if (length < thickness) {
        length = thickness;
        thickness = widget.dimForLength(length, font);
    }
    Axis axis;
    axis.size = QSize(length + 2, thickness);
    if (draw->orientation() == Qt::Vertical) {
        axis.size.transpose();
    }
    const QMargins margins = widget.contentsMargins();
    axis.size += QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
    axis.borders = *borders;
    axis.tickOffset = widget.margin();
    if (draw->hasComponent(QwtAbstractScaleDraw::Ticks)) {
        axis.tickOffset += qCeil(draw->maxTickLength());
    }
    axis.majorTicks = draw->scaleDiv().ticks(QwtScaleDiv::MajorTick).count();
    return axis;
}

std::optional<Axes> axesOf(const QwtPlot &plot)
{
    if (!plot.axisEnabled(QwtPlot::yLeft) || plot.axisEnabled(QwtPlot::yRight)
        || !plot.axisEnabled(QwtPlot::xBottom) || plot.axisEnabled(QwtPlot::xTop)
        || !plot.title().isEmpty() || !plot.footer().isEmpty() || plot.legend()) {
        return std::nullopt;
    }
    const auto left = axisOf(*plot.axisWidget(QwtPlot::yLeft));
    const auto bottom = left ? axisOf(*plot.axisWidget(QwtPlot::xBottom)) : std::nullopt;
    return bottom ? std::optional<Axes>({*left, *bottom}) : std::nullopt;
}

QSize minimumOf(const QwtPlot &plot, const Axes &axes)
{
    const QWidget *canvas = plot.canvas();
    const QMargins frame = canvas->contentsMargins();
    const auto canvasBorder = [&](int axis, int frameWidth) {
        return frameWidth + plot.plotLayout()->canvasMargin(axis) + 1;
    };
    // What an axis needs at its ends may reach into the room of the other one.
    const int shiftLeft =
        std::clamp(axes.bottom.borders.start - canvasBorder(QwtPlot::yLeft, frame.left()), 0,
                   axes.left.size.width());
    const int shiftBottom =
        std::clamp(axes.left.borders.start - canvasBorder(QwtPlot::xBottom, frame.bottom()), 0,
                   axes.bottom.tickOffset);

    // The axes that are hidden count with a size of 0.
    const int canvasWidth =
        std::max(axes.bottom.size.width() - shiftLeft, 0) + frame.left() + frame.right() + 2;
    const int canvasHeight =
        std::max(axes.left.size.height() - shiftBottom, 0) + frame.top() + frame.bottom() + 2;
    const int ownFrame = 2 * plot.frameWidth();
    return {axes.left.size.width() + std::max(canvasWidth, canvas->minimumWidth()) + ownFrame,
            axes.bottom.size.height() + std::max(canvasHeight, canvas->minimumHeight()) + ownFrame};
}

} // namespace

std::optional<QSize> PlotSizeHints::minimum(const QwtPlot &plot)
{
    const auto axes = axesOf(plot);
    return axes ? std::optional<QSize>(minimumOf(plot, *axes)) : std::nullopt;
}

std::optional<QSize> PlotSizeHints::preferred(const QwtPlot &plot)
{
    const auto axes = axesOf(plot);
    if (!axes) {
        return std::nullopt;
    }
    constexpr int niceDistance = 40; // pixels between major ticks
    const auto missing = [](int majorTicks, int length) {
        return std::max(0, (majorTicks - 1) * niceDistance - length);
    };
    return minimumOf(plot, *axes)
        + QSize(missing(axes->bottom.majorTicks, axes->bottom.size.width()),
                missing(axes->left.majorTicks, axes->left.size.height()));
}
