// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "powercounter.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double wattSecondsPerKilowattHour = 3600000.0;

} // namespace

void PowerCounter::goOnFrom(double kilowattHours)
{
    // The program may have ended just after a leap, of which nobody can tell yet whether it was
    // one: a segment is left out, so that this one is another in any case.
    counter = (std::floor(kilowattHours / segment) + 1.0) * segment;
    isBegun = true;
}

void PowerCounter::add(qint64 instant, std::optional<double> watts)
{
    if (isBegun && instant < last) {
        return;
    }
    const bool goesOn = power && instant - last <= longestSilence;
    if (goesOn) {
        counter += *power * double(instant - last) / wattSecondsPerKilowattHour;
    } else if (watts && isBegun) {
        counter = (std::floor(counter / segment) + 1.0) * segment;
    }
    isKnown = goesOn || watts;
    isBegun = isBegun || watts;
    power = watts ? std::optional<double>(std::max(*watts, 0.0)) : std::nullopt;
    last = instant;
}

std::optional<double> PowerCounter::reading() const
{
    return isKnown ? std::optional<double>(counter) : std::nullopt;
}
