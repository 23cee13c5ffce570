// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BARCOMB_P_H
#define BARCOMB_P_H

#include <QVector>

#include <algorithm>
#include <cmath>

/** Where the lines of a bar indicator stand, without a painter. */
namespace BarComb {

/**
 * The x of @p value in a bar that begins at @p left and is @p span pixels wide. The value is
 * measured against the maximum, not against the range: a minimum other than 0 shortens the bar. A
 * maximum of 0 gives infinity or, for the minimum itself, no number.
 */
inline double position(int left, int span, double value, double minimum, double maximum)
{
    return left + std::floor(span * ((value - minimum) / maximum) + 0.5);
}

/** From line to line: as much gap as line. */
constexpr int step(int penWidth)
{
    return 2 * (penWidth > 1 ? penWidth : 1);
}

/** The x of the lines up to the value and of those after it. */
struct Comb
{
    QVector<int> filled;
    QVector<int> rest;
};

/**
 * The comb from @p left to @p right with the value at @p valueX. Lines that are too far to the
 * right of it to be seen are left out, however far the value lies.
 */
inline Comb comb(int left, int right, double valueX, int valueWidth, int restWidth)
{
    Comb comb;
    int x = left;
    for (const double end = std::min(valueX, right + 1.0 + valueWidth); x < end;
         x += step(valueWidth)) {
        comb.filled.append(x);
    }
    for (; x < right; x += step(restWidth)) {
        comb.rest.append(x);
    }
    return comb;
}

/** Whether a line at @p x, @p width pixels wide, can reach into @p left to @p right. */
inline bool reaches(double x, int width, int left, int right)
{
    return x >= left - 1.0 - width && x <= right + 1.0 + width;
}

} // namespace BarComb

#endif
