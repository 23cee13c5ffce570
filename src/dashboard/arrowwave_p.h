// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ARROWWAVE_P_H
#define ARROWWAVE_P_H

#include <QtGlobal>

#include <array>

/** The wave that runs through three arrows, without widgets and timers. */
namespace ArrowWave {

/** How long a pass of the wave takes, and how far two of the arrows run behind the first; in ms. */
struct Timing
{
    int pass;
    int secondDelay;
    int thirdDelay;
};

// The delays of the slow wave are no multiples of the others': it was tuned by eye.
constexpr Timing slow {3000, 500, 750};
constexpr Timing medium {2000, 250, 500};
constexpr Timing fast {1000, 125, 250};

/**
 * The opacities of the first, second and third arrow of a pass at @p time, where the curve has
 * reached @p value. @p curve gives the value for any time in ms, be it before 0 or past the end.
 */
template <typename Curve>
std::array<qreal, 3> opacities(qreal value, int time, int secondDelay, int thirdDelay,
                               const Curve &curve)
{
    return {value, curve(time - secondDelay), curve(time - thirdDelay)};
}

} // namespace ArrowWave

#endif
