// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CUTTOINT_P_H
#define CUTTOINT_P_H

#include <QtNumeric>

#include <algorithm>
#include <limits>

/** What the plot tools calculate without a widget. */
namespace PlotMath {

/** The whole part of @p value, or the int nearest to it; 0 for not-a-number. */
inline int cutToInt(double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return qIsNaN(value) ? 0 : static_cast<int>(std::clamp(value, least, most));
}

} // namespace PlotMath

#endif
