// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef AXISPERIODS_P_H
#define AXISPERIODS_P_H

#include "saturatedint_p.h"

#include <qwt_interval.h>

#include <cmath>

/**
 * Where the view of an axis goes when it is dragged or moved by whole periods. All numbers are in
 * axis units; the valid interval is invalid where there is no limit.
 */
namespace AxisPeriods {

/** The stretch of an axis that is shown. Its minimum is the position of the axis. */
struct View
{
    double minimum;
    double maximum;
};

/** A number of periods as a position. Without a period every position is a whole one. */
inline double wholePeriods(double periods, double period, double position)
{
    return period == 0.0 ? position : truncatedInt(periods) * period;
}

/** The first start of a whole period at or above @p position. */
inline double periodStartAbove(double position, double period)
{
    return wholePeriods(std::ceil(position / period), period, position);
}

/** The last start of a whole period at or below @p position. */
inline double periodStartBelow(double position, double period)
{
    return wholePeriods(std::floor(position / period), period, position);
}

/** @p view, or one period at the end of @p valid that it ran past. */
inline View keptInside(const View &view, const QwtInterval &valid, double period)
{
    if (!valid.isValid() || (valid.contains(view.minimum) && valid.contains(view.maximum))) {
        return view;
    }
    if (valid.minValue() > view.minimum) {
        return {valid.minValue(), valid.minValue() + period};
    }
    return {valid.maxValue() - period, valid.maxValue()};
}

inline bool hasPrevious(double position, double period, const QwtInterval &valid, bool snap)
{
    const double start = snap ? periodStartAbove(position, period) : position;
    return valid.contains(start - period);
}

inline bool hasNext(double position, double period, const QwtInterval &valid, bool snap)
{
    // A next period that starts exactly where the data end has nothing to show.
    constexpr double leastContent = 1.0;
    const double start = snap ? periodStartBelow(position, period) : position;
    return valid.contains(start + period + leastContent);
}

inline View previous(double position, double period, const QwtInterval &valid, bool snap)
{
    if (!snap) {
        const double minimum = position - period;
        return {minimum, minimum + period};
    }
    const double start = periodStartAbove(position, period);
    const View view = {start - period, start};
    if (valid.contains(view.minimum) && valid.contains(view.maximum)) {
        return view;
    }
    return {start, start + period};
}

inline View next(double position, double period, const QwtInterval &valid, bool snap)
{
    if (!snap) {
        const double minimum = position + period;
        return {minimum, minimum + period};
    }
    const double start = periodStartBelow(position, period);
    const View view = {start + period, start + period + period};
    if (valid.contains(view.minimum) && valid.contains(view.maximum)) {
        return view;
    }
    return {start, start + period};
}

/** The period that ends where @p valid ends: the newest one. */
inline View first(double period, const QwtInterval &valid)
{
    return {valid.maxValue() - period, valid.maxValue()};
}

} // namespace AxisPeriods

#endif
