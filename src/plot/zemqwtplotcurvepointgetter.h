// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMQWTPLOTCURVEPOINTGETTER_H
#define ZEMQWTPLOTCURVEPOINTGETTER_H

#include "zemkit_export.h"

#include <QMetaType>
#include <QPoint>
#include <QPointF>

#include <memory>

class QwtPlotCurve;
class ZEMPlot;

/**
 * Finds the curve sample that a position on a ZEMPlot means, and steps from one to its neighbours
 * along the curve or across the curves. Each plot has one: ZEMPlot::getCurvePointGetter().
 *
 * @code
 * #include <QMouseEvent>
 * #include <ZEMPlot>
 * #include <ZEMQwtPlotCurvePointGetter>
 *
 * class PowerPlot : public ZEMPlot
 * {
 * public:
 *     using ZEMPlot::ZEMPlot;
 *
 * protected:
 *     void mousePressEvent(QMouseEvent *event) override
 *     {
 *         const QPoint place = canvas()->mapFrom(this, event->pos());
 *         const auto found = getCurvePointGetter()->getCurvePointByWidgetCoords(place);
 *         if (found.valid) {
 *             setTitle(tr("%L1 W").arg(found.point.y()));
 *         }
 *     }
 * };
 * @endcode
 *
 * Made for evenly spaced samples in the order of their x, which begins at about 0: see
 * closestPoint(). The time that a search takes depends on how close the samples lie, and not on how
 * many there are. Hidden curves are found like any other. No operation reads a sample that a series
 * does not have.
 */
class ZEM_EXPORT ZEMQwtPlotCurvePointGetter
{
public:
    /** A sample of a curve. Without valid no other field means anything. */
    struct PlotCurvePoint
    {
        /** The sample in plot coordinates; (0, 0) if there is none. */
        QPointF point;
        /** The curve, which is not owned. Null if there is none. */
        QwtPlotCurve *curve = nullptr;
        /** How far the position was from the sample in y, in units of the axis; 0 after a step. */
        double distance = 0.0;
        /** Index of the sample in the curve. */
        unsigned int index = 0;
        /** Whether there is a point at all. */
        bool valid = false;
    };

    /** Searches the curves in the list of @p plot. Finds none once the plot is deleted. */
    explicit ZEMQwtPlotCurvePointGetter(ZEMPlot *plot);
    ~ZEMQwtPlotCurvePointGetter();

    /** The straight way from (x1, y1) to (x2, y2). A tool; the search does not use it. */
    static double distance(double x1, double y1, double x2, double y2);

    /** As in the plot. */
    int getNumCurves();
    /** The curve at a place of the plot's list; null if there is no such place. */
    QwtPlotCurve *getCurveByIndex(int index);
    /** The place of the point's curve in the plot's list, -1 if it is not there. */
    int getCurveIndex(PlotCurvePoint point);

    /** The sample of that index on that curve of the list; not valid if there is none. */
    PlotCurvePoint getCurvePoint(unsigned int curveIndex, unsigned int pointIndex);

    /**
     * The sample behind or before @p point on its curve, which must still live. At the end of the
     * curve, or if @p point is not valid, @p point itself.
     */
    PlotCurvePoint getNextCurvePoint(PlotCurvePoint point);
    PlotCurvePoint getPrevCurvePoint(PlotCurvePoint point);

    /**
     * The sample of the same index, not of the same x, on the next or previous curve of the list;
     * @p point itself if that curve is too short or @p point is not valid. On the last or first
     * curve, the same sample anew, with distance 0.
     */
    PlotCurvePoint getNextCurveForPoint(PlotCurvePoint point);
    PlotCurvePoint getPrevCurveForPoint(PlotCurvePoint point);

    /**
     * The index of the sample of @p curve whose pixel is nearest in x to @p pos, the first of
     * equally near ones; y plays no part. Only those samples are looked at that an evenly spaced
     * series from x = 0 on would have within 6 units of the x axis of @p pos. So in a series whose
     * samples lie several units apart, or that begins elsewhere, it may be another one or none. All
     * samples are looked at if they lie at one x, and for a @p pos so far left of x = 0 that its 6
     * units would end before the sample in front of the first.
     *
     * -1 if the curve is on no plot or has no samples; dx and dy stay as they are. -1 also if no
     * sample is looked at, or none lies within 1e10 pixels; dx and dy are 1e10 then.
     *
     * @param pos in pixels of the canvas of this plot, whose axes are read
     * @param dx if not null, becomes the distance in x in pixels
     * @param dy if not null, becomes the distance in y in units of the y axis
     */
    int closestPoint(QwtPlotCurve *curve, const QPoint &pos, double *dx, double *dy) const;

    /**
     * The sample at @p pos, which is in coordinates of the bottom and the left axis: of the closest
     * points of all curves the one nearest in y, the earlier curve if equal. It must be nearer than
     * a tenth of the visible span of the left axis. Only curves whose last sample lies right of
     * @p pos are looked at, and none left of x = 0, nor on an inverted left axis.
     */
    PlotCurvePoint getCurvePoint(QPointF pos);

    /** The same for a position in pixels of the canvas. */
    PlotCurvePoint getCurvePointByWidgetCoords(QPointF pos);

private:
    Q_DISABLE_COPY(ZEMQwtPlotCurvePointGetter)

    class Private;
    std::unique_ptr<Private> d;
};

Q_DECLARE_METATYPE(ZEMQwtPlotCurvePointGetter::PlotCurvePoint)

#endif
