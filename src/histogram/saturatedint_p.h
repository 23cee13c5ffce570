// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SATURATEDINT_P_H
#define SATURATEDINT_P_H

#include <QtGlobal>
#include <QtNumeric>

#include <algorithm>
#include <limits>

/**
 * @p value brought into the symmetric range of int, so that it may be converted and the result be
 * negated; 0 for not-a-number.
 */
inline double boundedToInt(double value)
{
    constexpr double limit = std::numeric_limits<int>::max();
    return qIsNaN(value) ? 0.0 : std::clamp(value, -limit, limit);
}

/** The whole part of @p value. */
inline int truncatedInt(double value)
{
    return static_cast<int>(boundedToInt(value));
}

/** The whole number nearest to @p value; halves go up. */
inline int roundedInt(double value)
{
    return qRound(boundedToInt(value));
}

#endif
