// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtplothistogram.h"

#include "barpolygon_p.h"
#include "qwtcompat_p.h"

#include <QPainter>
#include <QPolygonF>

#include <qwt_painter.h>
#include <qwt_text.h>

#include <algorithm>

class ZEMQwtPlotHistogram::Private
{
public:
    double tailLength = kDefaultTailLength;
};

ZEMQwtPlotHistogram::ZEMQwtPlotHistogram() : QwtPlotCurve(QString()), d(std::make_unique<Private>())
{
}

ZEMQwtPlotHistogram::~ZEMQwtPlotHistogram() = default;

void ZEMQwtPlotHistogram::setTailLength(double length)
{
    d->tailLength = length;
}

void ZEMQwtPlotHistogram::drawCurve(QPainter *painter, int style, const QwtScaleMap &xMap,
                                    const QwtScaleMap &yMap, const QRectF &canvasRect, int from,
                                    int to) const
{
    if (style >= QwtPlotCurve::UserCurve) {
        drawBarCurve(painter, style, xMap, yMap, canvasRect, from, to);
    } else {
        QwtPlotCurve::drawCurve(painter, style, xMap, yMap, canvasRect, from, to);
    }
}

void ZEMQwtPlotHistogram::drawBarCurve(QPainter *painter, int, const QwtScaleMap &xMap,
                                       const QwtScaleMap &yMap, const QRectF &canvasRect, int from,
                                       int to) const
{
    if (!data()) {
        return;
    }
    QPolygonF polygon = PlotMath::barPolygon(*data(), from, to, d->tailLength, xMap, yMap);
    if (polygon.isEmpty()) {
        return;
    }
    if (testPaintAttribute(QwtPlotCurve::ClipPolygons)) {
        // Wide enough that the line along the border of the clip is out of sight.
        const double penWidth = std::max(1.0, painter->pen().widthF());
        const QRectF clip = canvasRect.adjusted(-penWidth, -penWidth, penWidth, penWidth);
        QwtPainter::drawPolyline(painter, QwtCompat::clipped(clip, polygon));
    } else {
        QwtPainter::drawPolyline(painter, polygon);
    }
    if (brush().style() != Qt::NoBrush) {
        fillCurve(painter, xMap, yMap, canvasRect, polygon);
    }
}
