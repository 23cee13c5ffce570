// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PERIODAXES_P_H
#define PERIODAXES_P_H

class QString;
class QwtPlot;
class QwtScaleDraw;
class QwtScaleEngine;

/** What the period charts do alike to the axes of their plots. */
namespace PeriodAxes {

/** Distance from the edge of a day's or week's slot to its middle, where its label stands. */
constexpr double middleOfSlot = 0.5;

/** Lengths of the ticks of an x scale in pixels. */
struct TickLengths
{
    double major;
    double medium;
    double minor;
};

/** Scale of an x axis in slots. */
struct Scale
{
    double max;
    double step;
    int maxMajor;
    int maxMinor;
};

/** What is in view at first: hours of a day, days of a week, weeks of a month. */
constexpr Scale dayInHours {24.0, 6.0, 4, 6};
constexpr Scale weekInDays {7.0, 1.0, 7, 2};
constexpr Scale monthInWeeks {5.0, 1.0, 5, 2};

/** Ticks of every kind, and those between the slots alone. */
constexpr double shortTick = 5.0;
constexpr TickLengths allTicks {shortTick, shortTick, shortTick};
constexpr TickLengths separatorsOnly {0.0, shortTick, 0.0};

/** What the scale draws of value axes are made with, and do not use. */
constexpr double unusedValue = 999.0;

/** The upper end of a value axis that nobody has set yet, in units of the axis. */
constexpr double highestAtFirst = 10.0;

/** Labels and ticks without a line along the axis, and labels in the middle of their ticks. */
void setShortTicks(QwtScaleDraw *draw, const TickLengths &lengths);

/** Gives the x axis of @p plot its scale from 0; @p engine may be null. The plot owns both. */
void setXAxis(QwtPlot *plot, QwtScaleDraw *draw, QwtScaleEngine *engine, const Scale &scale);

/** Gives the value axis of @p plot, which owns @p draw, a fixed scale from 0. */
void setValueAxis(QwtPlot *plot, QwtScaleDraw *draw);

/** Writes @p text at the upper end of the value axis. */
void setValueAxisTitle(QwtPlot *plot, const QString &text);

} // namespace PeriodAxes

#endif
