// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTOGRAMGEOMETRY_P_H
#define HISTOGRAMGEOMETRY_P_H

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QtMath>

#include <optional>

/** Where the parts of columns and legend items are painted, in the painter's coordinates. */
namespace HistogramGeometry {

/** @p r with each of its edges on a whole pixel. */
inline QRectF rounded(const QRectF &r)
{
    return QRectF(QPointF(qRound(r.left()), qRound(r.top())),
                  QPointF(qRound(r.right()), qRound(r.bottom())));
}

/**
 * The part of a column that is filled, nothing when the column has no height or lies left of x = 0.
 * It reaches from the left edge of @p clip to the left side of the last pixel column of @p clip at
 * most. An empty @p clip, which is what a painter without one has, leaves a negative width.
 */
inline std::optional<QRectF> visibleColumn(const QRectF &column, const QRect &clip)
{
    if (column.right() <= 0.0 || column.height() <= 0.0) {
        return std::nullopt;
    }
    QRectF visible = column;
    if (clip.left() > visible.x()) {
        visible.setLeft(clip.left());
    }
    if (visible.right() > clip.right()) {
        visible.setWidth(clip.right() - visible.x());
    }
    return visible;
}

/**
 * The top left corner of an icon that is centred in @p column, nothing when the column is not wider
 * than the icon. The height does not matter: an icon sticks out of a low column.
 */
inline std::optional<QPointF> iconPosition(const QRectF &column, const QSize &icon)
{
    if (column.width() <= icon.width()) {
        return std::nullopt;
    }
    return column.topLeft()
        + QPointF((column.width() - icon.width()) * 0.5, (column.height() - icon.height()) * 0.5);
}

/** The place of a legend item's identifier: @p indent pixels from the left, centred vertically. */
inline QRect identifierRect(const QRect &contents, int indent, const QSize &size)
{
    QRect rect(QPoint(contents.left() + indent, contents.top()), size);
    rect.moveCenter(
        QPoint((rect.left() + rect.right()) / 2, (contents.top() + contents.bottom()) / 2));
    return rect;
}

} // namespace HistogramGeometry

#endif
