// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "powermarks.h"

#include "nightstyler.h"
#include "pagelook.h"
#include "powerplot.h"

#include <QPainter>

namespace {

constexpr int labelSize = 11; // points
constexpr double padding = 4.0; // pixels around a text, at its left and right
constexpr double gap = 3.0; // pixels between a label and the lines and edges
constexpr double rounding = 3.0; // pixels

void drawTag(QPainter *painter, const QRectF &tag, const QString &text)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(NightStyler::tagColor());
    painter->drawRoundedRect(tag, rounding, rounding);
    painter->setPen(NightStyler::highlight());
    painter->drawText(tag, Qt::AlignCenter, text);
}

/** Moved by the least that it takes to be inside. */
QRectF keptInside(QRectF tag, const QRectF &room)
{
    tag.moveLeft(qBound(room.left(), tag.left(), room.right() - tag.width()));
    tag.moveTop(qBound(room.top(), tag.top(), room.bottom() - tag.height()));
    return tag;
}

} // namespace

PowerMarker::PowerMarker(const DayClock *clock) : dayClock(clock) { }

void PowerMarker::drawLabel(QPainter *painter, const QRectF &canvasRect, const QPointF &pos) const
{
    painter->save();
    painter->setFont(PageLook::textFont(labelSize));
    const QString time = dayClock->textAt(xValue());
    const QString power = powerText(yValue());
    const QFontMetricsF metrics(painter->font());
    const auto sizeOf = [&](const QString &text) {
        return QSizeF(metrics.horizontalAdvance(text) + 2.0 * padding, metrics.height());
    };
    const QRectF room = canvasRect.adjusted(gap, gap, -gap, -gap);
    const QSizeF timeSize = sizeOf(time);
    drawTag(painter,
            keptInside({QPointF(pos.x() + gap, room.bottom() - timeSize.height()), timeSize}, room),
            time);
    drawTag(painter, keptInside({QPointF(room.left(), pos.y() + gap), sizeOf(power)}, room), power);
    painter->restore();
}

PowerTracker::PowerTracker(PowerPlot *plot, QwtPlotMarker *marker)
    : ZEMQwtPlotTracker(plot), mark(marker)
{
}

void PowerTracker::hide()
{
    if (mark->isVisible()) {
        mark->setVisible(false);
        plot()->replot();
    }
}

void PowerTracker::curvePointValidChanged(bool valid)
{
    if (!valid) {
        hide();
    }
}

void PowerTracker::curvePointMoved(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point)
{
    if (mark->isVisible() && mark->value() == point.point) {
        return;
    }
    mark->setValue(point.point);
    mark->setVisible(true);
    plot()->replot();
}

void PowerTracker::widgetLeaveEvent(QEvent *event)
{
    ZEMQwtPlotTracker::widgetLeaveEvent(event);
    hide();
}

PowerPicker::PowerPicker(PowerPlot *plot)
    : ZEMQwtPlotPointPicker(QStringLiteral("power"), plot, QwtEventPattern::MouseSelect1)
{
}

void PowerPicker::pick(const ZEMQwtPlotCurvePointGetter::PlotCurvePoint &point)
{
    updateCurrentPoint(point);
}
