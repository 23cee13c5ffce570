// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef POWERDAY_H
#define POWERDAY_H

#include "interval.h"

#include <QDate>
#include <QString>
#include <QTimeZone>
#include <QtGlobal>
#include <vector>

namespace Readings {
class Household;
}
class SimulatedHouse;

/** What a curve of power tells. */
enum class PowerKind { Consumption, Production, GridImport, GridExport };

/** The name of a curve in the language of the display. */
QString nameOf(PowerKind kind);

/** The power of a day, in watts: means of equally long stretches of time, minutes as a rule. */
struct PowerCurve
{
    PowerKind kind = PowerKind::Consumption;
    std::vector<double> watts; ///< not a number where nothing is known
};

/**
 * The power of a day, from midnight to midnight of the house's clock. The day of a change of the
 * clock has 23 or 25 hours, and all times in it are minutes of real time since midnight.
 */
struct PowerDay
{
    QDate date;
    Readings::Interval interval;
    QTimeZone timeZone;
    std::vector<PowerCurve> curves;
    /** The mean power taken from the grid in each hour of real time; not a number in a gap. */
    std::vector<double> gridByHour;

    double minutes() const { return double(interval.seconds()) / 60.0; }
    /** Whether no curve knows anything. */
    bool isEmpty() const;
};

/**
 * The power of a day as its meters counted it. The power of a minute is the mean of the interval
 * between two readings in which it lies, if that is no longer than an hour: the mean of a longer
 * one, as around missing readings, says nothing about a minute, and the minutes are a gap. Of the
 * hour that comes twice in autumn a single reading for both will do.
 *
 * With a meter of the production there are curves of consumption and production, the latter being
 * what that meter tells. Without one there is what is taken from the grid and what is given to it,
 * or, in a house that never gave any, its consumption. There are no curves without a meter for the
 * grid and none for the production.
 */
PowerDay powerDay(const Readings::Household &household, const QDate &date);

/**
 * The power of a day of a simulated house, minute by minute, from its start on up to @p until, in
 * seconds since 1970-01-01 UTC.
 */
PowerDay powerDay(const SimulatedHouse &house, const QDate &date, qint64 until);

/**
 * What knows the power of a day to the minute, while its meters are read less often. An
 * EnergySource may be one as well.
 */
class MinutePower
{
public:
    virtual PowerDay powerDay(const QDate &date) const = 0;

protected:
    ~MinutePower() = default;
};

#endif
