// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "levelcurve.h"

#include "qwtcompat_p.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <qwt_painter.h>
#include <qwt_scale_map.h>
#include <qwt_series_data.h>

namespace {

/** The levels of a column of pixels. */
class Column
{
public:
    bool isEmpty() const { return count == 0; }
    bool holds(double left) const { return std::floor(left) == std::floor(from); }

    void add(double left, double right, double y)
    {
        if (isEmpty()) {
            from = left;
            first = low = high = y;
        }
        to = right;
        last = y;
        low = std::min(low, y);
        high = std::max(high, y);
        ++count;
    }

    void moveTo(QPolygonF *polygon)
    {
        if (isEmpty()) {
            return;
        }
        *polygon << QPointF(from, first);
        if (count > 1) {
            *polygon << QPointF(from, low) << QPointF(from, high);
        }
        *polygon << QPointF(to, last);
        count = 0;
    }

private:
    int count = 0;
    double from = 0.0;
    double to = 0.0;
    double first = 0.0;
    double low = 0.0;
    double high = 0.0;
    double last = 0.0;
};

} // namespace

QPolygonF levelPolygon(const QwtSeriesData<QPointF> &samples, int from, int to, double width,
                       const QwtScaleMap &xMap, const QwtScaleMap &yMap)
{
    QPolygonF polygon;
    Column column;
    for (int i = from; i <= to; ++i) {
        const QPointF sample = samples.sample(std::size_t(i));
        const double left = xMap.transform(sample.x());
        if (!column.holds(left)) {
            column.moveTo(&polygon);
        }
        column.add(left, xMap.transform(sample.x() + width), yMap.transform(sample.y()));
    }
    column.moveTo(&polygon);
    if (!polygon.isEmpty() && polygon.last().x() < polygon.first().x() + 1.0) {
        polygon << QPointF(polygon.first().x() + 1.0, polygon.last().y());
    }
    return polygon;
}

void LevelCurve::drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                           const QRectF &canvasRect, int from, int to) const
{
    if (dataSize() < 2) {
        return;
    }
    const double width = sample(1).x() - sample(0).x();
    QPolygonF polygon = levelPolygon(*data(), from, to, width, xMap, yMap);
    const double margin = std::max(1.0, painter->pen().widthF());
    QwtPainter::drawPolyline(
        painter,
        QwtCompat::clipped(canvasRect.adjusted(-margin, -margin, margin, margin), polygon));
    if (brush().style() != Qt::NoBrush) {
        fillCurve(painter, xMap, yMap, canvasRect, polygon);
    }
}
