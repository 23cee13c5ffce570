// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZOOMGESTURE_P_H
#define ZOOMGESTURE_P_H

#include <QLineF>
#include <QPoint>
#include <QPolygon>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>

#include <algorithm>
#include <array>
#include <cstdlib>

/** What a drag on a plot means. Points are pixels of the canvas, y growing downward. */
namespace ZoomGesture {

/** Along which axis a drag runs; the numbers are those of ZEMQwtPickerDrawAdvanced. */
enum Direction { AlongY = 0, AlongX = 1, Free = 2 };

/** A drag after snapping to an axis. */
struct Snap
{
    Direction direction;
    QPoint first;
    QPoint last;
};

using LinePair = std::array<QLineF, 2>;

/** False for a drag to the upper left, which takes all zooming back. */
inline bool isZoom(const QPoint &start, const QPoint &end)
{
    return end.x() >= start.x() || end.y() >= start.y();
}

/** What QRect::normalized() was until Qt 6, which takes the two corners out of the rectangle. */
inline QRect rectBetween(const QPoint &start, const QPoint &end)
{
    QRect rect(start, end);
    if (end.x() < start.x() - 1) {
        rect.setLeft(end.x());
        rect.setRight(start.x());
    }
    if (end.y() < start.y() - 1) {
        rect.setTop(end.y());
        rect.setBottom(start.y());
    }
    return rect;
}

/** Whether a selection is long enough in one direction at least. */
inline bool hasExtent(const QPoint &start, const QPoint &end)
{
    const QRect rect = rectBetween(start, end);
    return rect.right() - rect.left() > 0 || rect.bottom() - rect.top() > 0;
}

/** The band that a drag from @p start to @p end selects if it strays less than @p margin. */
inline Snap snapped(const QPoint &start, const QPoint &end, int margin, const QSize &canvas)
{
    const int dx = std::abs(end.x() - start.x());
    const int dy = std::abs(end.y() - start.y());
    if (dy < margin && dy < dx) {
        return {AlongX, QPoint(start.x(), 0), QPoint(end.x() - 1, canvas.height() - 1)};
    }
    if (dx < margin && dx < dy) {
        return {AlongY, QPoint(0, start.y()), QPoint(canvas.width() - 1, end.y() - 1)};
    }
    return {Free, start, end};
}

/** @p rect, made at least as large as @p least around the same centre. */
inline QRectF widened(QRectF rect, const QSizeF &least)
{
    const QPointF centre = rect.center();
    rect.setSize(rect.size().expandedTo(least));
    rect.moveCenter(centre);
    return rect;
}

/** From where to where a view reaches along one axis. */
struct Span
{
    double from;
    double to;
};

/** @p span, cut to @p base and made at least @p least long within it. */
inline Span keptInside(const Span &span, const Span &base, double least)
{
    const double from = std::clamp(span.from, base.from, base.to);
    const double to = std::clamp(span.to, base.from, base.to);
    const double length = std::clamp(least, to - from, base.to - base.from);
    // Rounding may let the whole base begin before itself.
    const double start =
        std::max(base.from, std::min((from + to - length) / 2.0, base.to - length));
    return length > to - from ? Span {start, start + length} : Span {from, to};
}

/** @p view, cut to @p base and made at least as large as @p least within it. */
inline QRectF keptInside(const QRectF &view, const QRectF &base, const QSizeF &least)
{
    const Span x =
        keptInside({view.left(), view.right()}, {base.left(), base.right()}, least.width());
    const Span y =
        keptInside({view.top(), view.bottom()}, {base.top(), base.bottom()}, least.height());
    return {x.from, y.from, x.to - x.from, y.to - y.from};
}

/** The rubber band: the dragged rectangle with both of its border pixels. */
inline QRectF band(const QRect &rect)
{
    return QRectF(rect.left(), rect.top(), rect.right() - rect.left() + 1,
                  rect.bottom() - rect.top() + 1);
}

/** The two diagonals that strike @p rect out. */
inline LinePair cross(const QRect &rect)
{
    return {QLineF(rect.left(), rect.top(), rect.right(), rect.bottom()),
            QLineF(rect.right(), rect.top(), rect.left(), rect.bottom())};
}

constexpr int halfTick = 10; // pixels

/** Ticks at the moving edge of a band over the whole width, @p margin off @p origin. */
inline LinePair ticksAlongY(const QRect &rect, const QPoint &origin, int margin)
{
    const int edge = origin.y() < rect.bottom() ? rect.bottom() : rect.top();
    const int left = origin.x() - margin;
    const int right = origin.x() + margin;
    return {QLineF(left, edge - halfTick, left, edge + halfTick),
            QLineF(right, edge - halfTick, right, edge + halfTick)};
}

/** Ticks at the moving edge of a band over the whole height, @p margin off @p origin. */
inline LinePair ticksAlongX(const QRect &rect, const QPoint &origin, int margin)
{
    const int edge = origin.x() < rect.right() ? rect.right() : rect.left();
    const int above = origin.y() - margin;
    const int below = origin.y() + margin;
    return {QLineF(edge - halfTick, above, edge + halfTick, above),
            QLineF(edge - halfTick, below, edge + halfTick, below)};
}

} // namespace ZoomGesture

#endif
