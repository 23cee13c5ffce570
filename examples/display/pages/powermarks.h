// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef POWERMARKS_H
#define POWERMARKS_H

#include "dayscale.h"

#include <ZEMQwtPlotMarker>
#include <ZEMQwtPlotPointPicker>
#include <ZEMQwtPlotTracker>
#include <functional>

class PowerPlot;

/** A cross that writes the time of the clock and the power at the edges of the plot. */
class PowerMarker : public ZEMQwtPlotMarker
{
public:
    /** @p clock must outlive the marker. */
    explicit PowerMarker(const DayClock *clock);

protected:
    void drawLabel(QPainter *painter, const QRectF &canvasRect, const QPointF &pos) const override;

private:
    const DayClock *const dayClock;
};

/** Moves a marker along the curve that is under the mouse or the finger. */
class PowerTracker : public ZEMQwtPlotTracker
{
public:
    /** @p marker is on the plot and stays with it. */
    PowerTracker(PowerPlot *plot, QwtPlotMarker *marker);

    /** Hides the marker until the next move. */
    void hide();

protected:
    void curvePointValidChanged(bool valid) override;
    void curvePointMoved(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point) override;
    void widgetLeaveEvent(QEvent *event) override;

private:
    QwtPlotMarker *const mark;
};

/** A picker that can also be told what to pick. */
class PowerPicker : public ZEMQwtPlotPointPicker
{
public:
    explicit PowerPicker(PowerPlot *plot);

    /** Picks a point of the plot; nothing if it is not valid. */
    void pick(const ZEMQwtPlotCurvePointGetter::PlotCurvePoint &point);
};

#endif
