// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef STARPLACES_P_H
#define STARPLACES_P_H

#include <QPoint>
#include <QSize>

#include <array>

/** Where the stars of a rating stand and which of them are filled, without a painter. */
namespace StarPlaces {

constexpr int mostStars = 3;

struct Star
{
    QPoint topLeft;
    bool filled;
};

/**
 * The triangle of stars of size @p star in a widget of size @p widget, in the order of drawing. The
 * rating @p stars, 0 to 3, fills bottom left, bottom right, top.
 */
constexpr std::array<Star, mostStars> triangle(int stars, const QSize &widget, const QSize &star)
{
    const int middle = widget.width() / 2 - star.width() / 2;
    const int right = widget.width() - star.width();
    const int bottom = widget.height() - star.height();
    return {{{QPoint(middle, 0), stars >= 3},
             {QPoint(0, bottom), stars >= 1},
             {QPoint(right, bottom), stars >= 2}}};
}

} // namespace StarPlaces

#endif
