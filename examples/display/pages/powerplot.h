// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef POWERPLOT_H
#define POWERPLOT_H

#include "dayscale.h"
#include "powerday.h"

#include <QString>
#include <ZEMPlot>
#include <ZEMQwtPlotCurvePointGetter>
#include <optional>
#include <vector>

class NightStyler;
class PowerPicker;
class PowerTracker;
class QwtPlotCurve;
class ZEMQwtPlotPointPicker;

/** A power in the words of the display: "850 W", "1,2 kW". */
QString powerText(double watts);

/** A power that was picked, as it is told to the user. */
struct PickedPower
{
    PowerKind kind = PowerKind::Consumption;
    QString time; ///< on the clock of the house: "12:34"
    double watts = 0.0;
};

/**
 * The power of a day as curves, over bars of what the house took from the grid by the hour. The x
 * axis has minutes of real time since midnight, and the y axis watts.
 *
 * A drag zooms, and one to the upper left shows the whole day again. A tap picks a point of a
 * curve; the point under the mouse or the finger is followed by a cross with its time and power.
 */
class PowerPlot : public ZEMPlot
{
    Q_OBJECT

public:
    /** @p styler must outlive the plot. */
    explicit PowerPlot(NightStyler *styler, QWidget *parent = nullptr);
    ~PowerPlot() override;

    /**
     * Shows a day, whose curves may have any number of samples. If it is the one in view with more
     * to tell, what is zoomed and picked stays so; with another day, nothing is picked any more.
     */
    void showDay(const PowerDay &day);

    /** What is picked; empty if nothing is. */
    std::optional<PickedPower> picked() const;
    /** Whether less than the whole day is in view. */
    bool isZoomed() const;

    /** Steps to the next or previous known sample of the curve, if there is one. */
    void pickNext();
    void pickPrevious();
    /** Picks the same time on the next curve; after the last one the first. */
    void pickOtherCurve();

Q_SIGNALS:
    /** Another point is picked, or none any more. */
    void pickedChanged();
    void zoomChanged();

private:
    using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

    void makeAxes();
    void makeMarkers();
    void takeCurves(const PowerDay &day);
    void takeBars(const PowerDay &day);
    void takeAxes();
    void handleZoom();
    void step(void (ZEMQwtPlotPointPicker::*stepOnce)());
    void takePoint(const Point &point);
    bool hasKnownPoint() const;
    void showPoint();
    void bringIntoView(const QPointF &point);
    void showUnit();

    NightStyler *const look;
    DayClock clock;
    QDate date;
    std::vector<PowerKind> kinds;
    QwtPlotCurve *bars = nullptr;
    QwtPlotMarker *pickMark = nullptr;
    PowerTracker *tracker = nullptr;
    PowerPicker *picker = nullptr;
};

#endif
