// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QWTCOMPAT_P_H
#define QWTCOMPAT_P_H

#include <QPolygonF>
#include <QRectF>

#include <qwt_abstract_scale_draw.h>
#include <qwt_clipper.h>

/** Where the versions of Qwt from 6.1 on differ. */
namespace QwtCompat {

#if QWT_VERSION < 0x060200

/** Since 6.2 the pen of a scale has a fraction of a pixel, and operations of another name. */
inline double penWidth(const QwtAbstractScaleDraw &draw)
{
    return draw.penWidth();
}

inline void setPenWidth(QwtAbstractScaleDraw *draw, int width)
{
    draw->setPenWidth(width);
}

/** Since 6.2 what is clipped is returned under another name, and this one changes its argument. */
inline QPolygonF clipped(const QRectF &clip, const QPolygonF &polygon)
{
    return QwtClipper::clipPolygonF(clip, polygon, false);
}

/** Pixels that a thin tick of a left scale begins to the right of its end: since 6.2 that end is
 * left out. */
constexpr int leftTickShift = 0;

#else

inline double penWidth(const QwtAbstractScaleDraw &draw)
{
    return draw.penWidthF();
}

inline void setPenWidth(QwtAbstractScaleDraw *draw, int width)
{
    draw->setPenWidthF(width);
}

inline QPolygonF clipped(const QRectF &clip, const QPolygonF &polygon)
{
    return QwtClipper::clippedPolygonF(clip, polygon, false);
}

constexpr int leftTickShift = 1;

#endif

} // namespace QwtCompat

#endif
