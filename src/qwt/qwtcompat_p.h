// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QWTCOMPAT_P_H
#define QWTCOMPAT_P_H

#include <QPolygonF>
#include <QRect>
#include <QRectF>

#include <qwt_clipper.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>

#include <algorithm>
#include <optional>

/** Where the versions of Qwt from 6.1 on differ. */
namespace QwtCompat {

#if QWT_VERSION < 0x060200

/** Since 6.2 the pen of a scale has a fraction of a pixel, and operations of another name. */
inline double penWidth(const QwtAbstractScaleDraw &draw)
{
    return draw.penWidth();
}

inline void setPenWidth(QwtAbstractScaleDraw *draw, double width)
{
    draw->setPenWidth(int(width));
}

/** Since 6.2 what is clipped is returned under another name, and this one changes its argument. */
inline QPolygonF clipped(const QRectF &clip, const QPolygonF &polygon)
{
    return QwtClipper::clipPolygonF(clip, polygon, false);
}

/**
 * The pixels of a tick that a pen of no width and with flat ends draws; nothing where that is left
 * to Qwt. A flat end leaves out one end of a line; since 6.2 it is the far one of any tick, whose
 * length is rounded by itself and has the width of the backbone added.
 */
inline std::optional<QRect> thinTick(const QwtScaleDraw &draw, double value, double length)
{
    const int position = qRound(draw.scaleMap().transform(value));
    const QPoint end(qRound(draw.pos().x() - length), qRound(draw.pos().y() + length));
    const int width = qRound(draw.pos().x()) - end.x();
    const int height = end.y() - qRound(draw.pos().y());
    if (draw.alignment() == QwtScaleDraw::LeftScale && width > 0) {
        return QRect(end.x(), position, width, 1);
    }
    if (draw.alignment() == QwtScaleDraw::BottomScale && height > 0) {
        return QRect(position, end.y() - height, 1, height);
    }
    return std::nullopt;
}

#else

inline double penWidth(const QwtAbstractScaleDraw &draw)
{
    return draw.penWidthF();
}

inline void setPenWidth(QwtAbstractScaleDraw *draw, double width)
{
    draw->setPenWidthF(width);
}

inline QPolygonF clipped(const QRectF &clip, const QPolygonF &polygon)
{
    return QwtClipper::clippedPolygonF(clip, polygon, false);
}

inline std::optional<QRect> thinTick(const QwtScaleDraw &draw, double value, double length)
{
    const int backbone = draw.hasComponent(QwtAbstractScaleDraw::Backbone) ? 1 : 0;
    const int pixels = std::max(qRound(length), 1) + backbone;
    const int position = qRound(draw.scaleMap().transform(value));
    switch (draw.alignment()) {
    case QwtScaleDraw::LeftScale:
        return QRect(qRound(draw.pos().x()) + 1 - pixels, position, pixels, 1);
    case QwtScaleDraw::BottomScale:
        return QRect(position, qRound(draw.pos().y()), 1, pixels);
    default:
        return std::nullopt;
    }
}

#endif

} // namespace QwtCompat

#endif
