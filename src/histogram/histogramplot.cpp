// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "histogramplot_p.h"

#include "plotsizehints_p.h"
#include "quickpaths_p.h"
#include "quietaxes_p.h"
#include "scalelabels_p.h"

#include <QApplication>
#include <QResizeEvent>

#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <optional>

namespace {

ScaleBorders bordersOf(const QwtScaleWidget *widget)
{
    return {widget->startBorderDist(), widget->endBorderDist()};
}

void takeWantedBorders(QwtScaleWidget *widget)
{
    int start = 0;
    int end = 0;
    widget->getBorderDistHint(start, end);
    widget->setBorderDist(start, end);
}

/**
 * Makes a scale widget ask for given borders without measuring its labels, for as long as this
 * lives.
 */
class FixedBorders
{
public:
    FixedBorders(QwtScaleWidget *quietWidget, const ScaleBorders &borders)
        : FixedBorders(quietWidget, borders,
                       // A scale without labels asks for a pixel at its end.
                       borders.end == 0 ? dynamic_cast<LabelledScale *>(quietWidget->scaleDraw())
                                        : nullptr)
    {
    }

    /** The labels of @p silentScale keep their extent. */
    FixedBorders(QwtScaleWidget *quietWidget, const ScaleBorders &borders,
                 LabelledScale *silentScale)
        : widget(quietWidget),
          hadLabels(quietWidget->scaleDraw()->hasComponent(QwtAbstractScaleDraw::Labels)),
          silent(hadLabels ? silentScale : nullptr)
    {
        widget->getMinBorderDist(least.start, least.end);
        widget->setMinBorderDist(borders.start, borders.end);
        if (silent) {
            silent->setSilent(true);
        } else {
            widget->scaleDraw()->enableComponent(QwtAbstractScaleDraw::Labels, false);
        }
    }

    ~FixedBorders()
    {
        if (silent) {
            silent->setSilent(false);
        } else {
            widget->scaleDraw()->enableComponent(QwtAbstractScaleDraw::Labels, hadLabels);
        }
        widget->setMinBorderDist(least.start, least.end);
    }

private:
    Q_DISABLE_COPY(FixedBorders)

    QwtScaleWidget *widget;
    bool hadLabels;
    LabelledScale *silent;
    ScaleBorders least;
};

} // namespace

HistogramPlot *HistogramPlot::newPlot(QWidget *parent)
{
    const QuietBirth quiet(parent);
    auto *plot = new HistogramPlot(parent);
    if (QuickPaths::areOpen()) {
        plot->isUnmeasured[yRight] = true;
        plot->isUnmeasured[xTop] = true;
    }
    return plot;
}

bool HistogramPlot::LayoutInput::operator==(const LayoutInput &other) const
{
    return settings == other.settings && extents == other.extents;
}

HistogramPlot::LayoutInput HistogramPlot::currentLayoutInput() const
{
    LayoutInput input;
    input.settings = HistogramLayout::settingsOf(this);
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (axisEnabled(axis)) {
            input.extents[axis] = axisScaleDraw(axis)->extent(axisWidget(axis)->font());
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
    // Whatever is laid out before the plot is shown is laid out again then.
    if (mayBeQuiet(*this)) {
        return;
    }
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (isUnmeasured[axis] && axisEnabled(axis)) {
            isUnmeasured[axis] = false;
            QwtScaleWidget *widget = axisWidget(axis);
            // Lets the widget lay out its scale with the labels that it has now.
            QResizeEvent resize(widget->size(), widget->size());
            QCoreApplication::sendEvent(widget, &resize);
            takeWantedBorders(widget);
        }
    }
    if (!isPanning || !layOutQuickly()) {
        QwtPlot::updateLayout();
    }
}

/**
 * Lays out the plot without measuring the labels of the x axis again. Answers false, with the axis
 * as it was, when it needs other borders where it is now.
 */
bool HistogramPlot::layOutQuickly()
{
    QwtScaleWidget *widget = axisWidget(xBottom);
    auto *labelled = dynamic_cast<LabelledScale *>(widget->scaleDraw());
    if (!axisEnabled(xBottom) || !labelled) {
        return false;
    }
    const DrawnScale drawn = drawnScale(xBottom);
    const QRect place = widget->geometry();
    const ScaleBorders borders = bordersOf(widget);
    {
        const FixedBorders fixed(widget, borders, labelled);
        QwtPlot::updateLayout();
    }
    if (ScaleMeasure(*widget).borders(*widget) == borders) {
        return true;
    }
    widget->setGeometry(place);
    widget->setBorderDist(borders.start, borders.end);
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
    takeWantedBorders(axisWidget(xBottom));
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
    if (!moveXAxis()) {
        return false;
    }

    std::array<DrawnScale, axisCnt> before;
    for (int axis = 0; axis < axisCnt; ++axis) {
        before[axis] = drawnScale(axis);
    }
    updateAxesMeasuring(Measured::None);
    // An axis that somebody has given another scale has moved with its old borders.
    bool isDone = true;
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (axisScaleDraw(axis)->scaleDiv() != before[axis].scale) {
            restore(axis, before[axis]);
            isDone = false;
        }
    }
    return isDone;
}

/** As updateAxes(); the axes that are not measured keep their borders. */
void HistogramPlot::updateAxesMeasuring(Measured which)
{
    std::array<std::optional<FixedBorders>, axisCnt> fixed;
    for (int axis = 0; axis < axisCnt; ++axis) {
        if (which == Measured::None || !axisEnabled(axis)) {
            fixed[axis].emplace(axisWidget(axis), bordersOf(axisWidget(axis)));
        }
        isUnmeasured[axis] = isUnmeasured[axis] || !axisEnabled(axis);
    }
    updateAxes();
}

/** True when an axis asks for the borders that it has. */
bool HistogramPlot::hasOldBorders(int axis) const
{
    const QwtScaleWidget *widget = axisWidget(axis);
    return ScaleMeasure(*widget).borders(*widget) == bordersOf(widget);
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
    const ScaleBorders borders = bordersOf(widget);
    if (axisScaleDiv(xBottom) != before.scale) {
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
        // QwtScaleWidget asks for a new layout with every scale.
        const LayoutInput input = currentLayoutInput();
        if (!(input == layoutInput)) {
            layoutInput = input;
            widget->updateGeometry();
        }
        widget->update();
        Q_EMIT widget->scaleDivChanged();
    }
    const auto wanted = measure.borders(*widget);
    if (!wanted) {
        return false;
    }
    if (!(*wanted == borders)) {
        const FixedBorders fixed(widget, *wanted);
        widget->setBorderDist(wanted->start, wanted->end);
    }
    return true;
}

HistogramPlot::DrawnScale HistogramPlot::drawnScale(int axis) const
{
    const QwtScaleDraw *draw = axisScaleDraw(axis);
    return {draw->scaleDiv(), draw->pos(), draw->length()};
}

void HistogramPlot::restore(int axis, const DrawnScale &drawn)
{
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
