// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LEVELCURVE_H
#define LEVELCURVE_H

#include <QPolygonF>
#include <qwt_plot_curve.h>

/**
 * Samples @p from to @p to as levels, in pixels: each reaches from its own x over @p width in units
 * of the x axis. Of levels that share a column of pixels there remain the first, the lowest, the
 * highest and the last, so that the line has some points for each column and not for each sample,
 * and looks the same. No line is shorter than a pixel.
 */
QPolygonF levelPolygon(const QwtSeriesData<QPointF> &samples, int from, int to, double width,
                       const QwtScaleMap &xMap, const QwtScaleMap &yMap);

/**
 * A curve of evenly spaced means: each sample is a level that holds up to the x of the next one. A
 * brush fills it down to the baseline. It takes long series, since it draws no more than can be
 * seen of them. Only for the style QwtPlotCurve::Lines.
 */
class LevelCurve : public QwtPlotCurve
{
public:
    using QwtPlotCurve::QwtPlotCurve;

protected:
    void drawLines(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvasRect, int from, int to) const override;
};

#endif
