// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMQWTPLOTHISTOGRAM_H
#define ZEMQWTPLOTHISTOGRAM_H

#include "zemkit_export.h"

#include <qwt_plot_curve.h>

#include <memory>

/**
 * A curve that can draw its samples as a row of bars: each a level top with a short tail down at
 * both ends, joined to its neighbours by a line between the ends of the tails.
 *
 * @code
 * #include <ZEMQwtPlotHistogram>
 * #include <qwt_plot.h>
 *
 * QwtPlot plot;
 * auto *bars = new ZEMQwtPlotHistogram;
 * bars->setStyle(QwtPlotCurve::UserCurve);
 * bars->setSamples(QVector<QPointF> {{0.0, 240.0}, {1.0, 180.0}, {2.0, 950.0}}); // W by hour
 * bars->attach(&plot); // or ZEMPlot::addCurve()
 * @endcode
 *
 * A bar is centred on its sample and as wide as the way to the next sample; the last one drawn is
 * as wide as the first of the series, and has no width if it is the first or second sample. With a
 * style below QwtPlotCurve::UserCurve it is a plain QwtPlotCurve. The line is clipped to the canvas
 * if QwtPlotCurve::ClipPolygons is set. A brush fills the bars to the baseline, over the line.
 */
class ZEM_EXPORT ZEMQwtPlotHistogram : public QwtPlotCurve
{
public:
    /** The length of a tail by default, in units of the y axis. */
    static constexpr double kDefaultTailLength = 5.0;

    /** A curve without title, in QwtPlotCurve's style, not yet bars. */
    ZEMQwtPlotHistogram();
    ~ZEMQwtPlotHistogram() override;

    /** The length of a tail in units of the y axis; below 0 it points up. Does not repaint. */
    void setTailLength(double length);

protected:
    /** Leaves the styles from QwtPlotCurve::UserCurve upward to drawBarCurve(). */
    void drawCurve(QPainter *painter, int style, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                   const QRectF &canvasRect, int from, int to) const override;

    /**
     * Draws the bars of the samples @p from to @p to, both included, with the pen of the painter.
     * Samples that the series does not have are left out.
     */
    virtual void drawBarCurve(QPainter *painter, int style, const QwtScaleMap &xMap,
                              const QwtScaleMap &yMap, const QRectF &canvasRect, int from,
                              int to) const;

private:
    Q_DISABLE_COPY(ZEMQwtPlotHistogram)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
