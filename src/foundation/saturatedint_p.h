// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SATURATEDINT_P_H
#define SATURATEDINT_P_H

#include <QtGlobal>
#include <QtNumeric>

#include <algorithm>
#include <cmath>
#include <limits>

/** The whole part of @p value, or the int nearest to it; 0 for not-a-number. */
inline int truncatedInt(double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return qIsNaN(value) ? 0 : static_cast<int>(std::clamp(value, least, most));
}

/** The int nearest to @p value, halves going up; 0 for not-a-number. The least int is left out. */
inline int roundedInt(double value)
{
    // Since Qt 6 negative halves go down in qRound().
    constexpr double limit = std::numeric_limits<int>::max();
    return qIsNaN(value) ? 0 : int(std::floor(std::clamp(value, -limit, limit) + 0.5));
}

#endif
