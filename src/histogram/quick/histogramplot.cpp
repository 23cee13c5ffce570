// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "histogramplot_p.h"

#include "axisborders_p.h"
#include "plotsizehints_p.h"
#include "quickpaths_p.h"
#include "quietaxes_p.h"

#include <QApplication>

#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <optional>

HistogramPlot *HistogramPlot::newPlot(QWidget *parent)
{
    const QuietBirth quiet(parent);
    return new HistogramPlot(parent);
}

bool HistogramPlot::LayoutInput::operator==(const LayoutInput &other) const
{
    return settings == other.settings && extents == other.extents && borders == other.borders;
}

HistogramPlot::LayoutInput HistogramPlot::currentLayoutInput() const
{
    LayoutInput input;
    input.settings = layoutSettingsOf(this);
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (axisEnabled(axis)) {
            const QwtScaleWidget *widget = axisWidget(axis);
            input.extents[axis] = axisScaleDraw(axis)->extent(widget->font());
            input.borders[axis] = ScaleMeasure(*widget).borders(*widget);
        }
    }
    return input;
}

void HistogramPlot::setAxisScale(QwtPlot *plot, int axis, double minimum, double maximum,
                                 double step)
{
    plot->setAxisScale(axis, minimum, maximum, step);
    // A plot that replots on its own has done so already.
    if (QuickPaths::areOpen() && !plot->autoReplot() && dynamic_cast<HistogramPlot *>(plot)) {
        plot->setAxisScaleDiv(
            axis,
            plot->axisScaleEngine(axis)->divideScale(minimum, maximum, plot->axisMaxMajor(axis),
                                                     plot->axisMaxMinor(axis), step));
    }
}

void HistogramPlot::replot()
{
    if (!QuickPaths::areOpen()) {
        QwtPlot::replot();
        return;
    }
    const bool replotsOnItsOwn = autoReplot();
    setAutoReplot(false);
    isPanning = updateAxesQuickly();
    if (!isPanning) {
        updateAxesMeasuring(Measured::Visible);
    }
    // Axes and canvas must be in step before they are painted.
    QApplication::sendPostedEvents(this, QEvent::LayoutRequest);
    isPanning = false;
    replotCanvas();
    setAutoReplot(replotsOnItsOwn);
}

void HistogramPlot::updateLayout()
{
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (isHidden[axis] && axisEnabled(axis)) {
            AxisBorders::settle(axisWidget(axis));
        }
        isHidden[axis] = !axisEnabled(axis);
    }
    // Of now: the labels have other places when it is done.
    layoutInput = currentLayoutInput();
    if (!isPanning || !layOutQuickly()) {
        QwtPlot::updateLayout();
    }
}

/**
 * Lays out the plot without measuring the labels of the x axis again. Answers false, with the axis
 * as it was, when it needs other borders before or after.
 */
bool HistogramPlot::layOutQuickly()
{
    QwtScaleWidget *widget = axisWidget(xBottom);
    auto *labelled = dynamic_cast<LabelledScale *>(widget->scaleDraw());
    if (!axisEnabled(xBottom) || !labelled || !hasOldBorders(xBottom)) {
        return false;
    }
    const DrawnScale drawn = drawnScale(xBottom);
    const QRect place = widget->geometry();
    const ScaleBorders borders = AxisBorders::of(widget);
    {
        const AxisBorders::Fixed fixed(widget, borders, labelled);
        QwtPlot::updateLayout();
    }
    if (ScaleMeasure(*widget).borders(*widget) == borders) {
        return true;
    }
    widget->setGeometry(place);
    restore(xBottom, drawn);
    return false;
}

QSize HistogramPlot::sizeHint() const
{
    const auto hint = QuickPaths::areOpen() ? PlotSizeHints::preferred(*this) : std::nullopt;
    return hint ? *hint : QwtPlot::sizeHint();
}

QSize HistogramPlot::minimumSizeHint() const
{
    const auto hint = QuickPaths::areOpen() ? PlotSizeHints::minimum(*this) : std::nullopt;
    return hint ? *hint : QwtPlot::minimumSizeHint();
}

void HistogramPlot::showEvent(QShowEvent *event)
{
    QwtPlot::showEvent(event);
    AxisBorders::take(axisWidget(xBottom));
    updateLayout();
}

/** Does what updateAxes() does; answers false when that must still be called. */
bool HistogramPlot::updateAxesQuickly()
{
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (axis != xBottom && axisEnabled(axis) && !hasOldBorders(axis)) {
            return false;
        }
    }
    const DrawnScale still = drawnScale(xBottom);
    if (!moveXAxis()) {
        return false;
    }

    std::array<DrawnScale, axisCnt> moved;
    for (int axis = 0; axis < axisCnt; ++axis) {
        moved[axis] = drawnScale(axis);
    }
    updateAxesMeasuring(Measured::None);
    // An axis that somebody has given another scale has moved with its old borders.
    bool isDone = true;
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (axisScaleDraw(axis)->scaleDiv() != moved[axis].scale) {
            restore(axis, moved[axis]);
            isDone = false;
        }
    }
    if (!isDone) {
        restore(xBottom, still);
    }
    return isDone;
}

/** As updateAxes(); the axes that are not measured keep their borders. */
void HistogramPlot::updateAxesMeasuring(Measured which)
{
    std::array<std::optional<AxisBorders::Fixed>, axisCnt> fixed;
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (which == Measured::None || !axisEnabled(axis)) {
            fixed[axis].emplace(axisWidget(axis), AxisBorders::of(axisWidget(axis)));
        }
    }
    updateAxes();
}

/** True when an axis asks for the borders that it has. */
bool HistogramPlot::hasOldBorders(int axis) const
{
    const QwtScaleWidget *widget = axisWidget(axis);
    return ScaleMeasure(*widget).borders(*widget) == AxisBorders::of(widget);
}

/**
 * Gives the x axis its new scale as QwtScaleWidget::setScaleDiv() and updateAxes() do it, step by
 * step: its borders depend on where it is drawn, and that on its borders. Answers false, with
 * nothing changed, when that is left to them.
 */
bool HistogramPlot::moveXAxis()
{
    QwtScaleWidget *widget = axisWidget(xBottom);
    QwtScaleDraw *draw = widget->scaleDraw();
    if (!axisEnabled(xBottom) || widget->isColorBarEnabled() || !widget->title().isEmpty()) {
        return false;
    }
    const ScaleMeasure measure(*widget);
    const DrawnScale before = drawnScale(xBottom);
    const ScaleBorders borders = AxisBorders::of(widget);
    const bool isMoved = axisScaleDiv(xBottom) != before.scale;
    if (isMoved) {
        draw->setScaleDiv(axisScaleDiv(xBottom));
        const auto hint = measure.borders(*widget);
        if (!hint) {
            restore(xBottom, before);
            return false;
        }
        const ScaleBorders room = hint->expandedTo(borders);
        const QRectF contents = widget->contentsRect();
        draw->move(contents.left() + room.start, contents.top() + widget->margin());
        draw->setLength(contents.width() - (room.start + room.end));
        widget->update();
        Q_EMIT widget->scaleDivChanged();
    }
    const auto wanted = measure.borders(*widget);
    if (!wanted) {
        return false;
    }
    if (!(*wanted == borders)) {
        const AxisBorders::Fixed fixed(widget, *wanted);
        widget->setBorderDist(wanted->start, wanted->end);
    }
    // QwtScaleWidget asks for a new layout with every scale.
    if (isMoved && !(currentLayoutInput() == layoutInput)) {
        widget->updateGeometry();
    }
    return true;
}

HistogramPlot::DrawnScale HistogramPlot::drawnScale(int axis) const
{
    const QwtScaleDraw *draw = axisScaleDraw(axis);
    return {draw->scaleDiv(), draw->pos(), draw->length(), AxisBorders::of(axisWidget(axis))};
}

void HistogramPlot::restore(int axis, const DrawnScale &drawn)
{
    QwtScaleWidget *widget = axisWidget(axis);
    if (!(AxisBorders::of(widget) == drawn.borders)) {
        const AxisBorders::Fixed fixed(widget, drawn.borders);
        widget->setBorderDist(drawn.borders.start, drawn.borders.end);
    }
    QwtScaleDraw *draw = axisScaleDraw(axis);
    draw->setScaleDiv(drawn.scale);
    draw->setLength(drawn.length);
    draw->move(drawn.position);
}

void HistogramPlot::replotCanvas()
{
    if (auto *plotCanvas = qobject_cast<QwtPlotCanvas *>(canvas())) {
        plotCanvas->replot();
    } else if (canvas() && !QMetaObject::invokeMethod(canvas(), "replot", Qt::DirectConnection)) {
        canvas()->update(canvas()->contentsRect());
    }
}
