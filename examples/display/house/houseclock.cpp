// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "houseclock.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double millisecondsPerSecond = 1000.0;

} // namespace

HouseClock::HouseClock(qint64 systemStart, double speed, qint64 begin)
    : start(systemStart), first(begin),
      factor(std::isnan(speed) ? 1.0 : std::clamp(speed, slowest, fastest))
{
}

HouseClock::HouseClock(qint64 systemStart, double speed)
    : HouseClock(systemStart, speed, systemStart)
{
}

qint64 HouseClock::instantAt(qint64 systemNow) const
{
    const double passed = double(systemNow - start) * factor;
    return qint64(std::floor((double(first) + passed) / millisecondsPerSecond));
}

std::optional<double> parseSpeed(const QString &text)
{
    bool isNumber = false;
    const double speed = text.toDouble(&isNumber);
    if (!isNumber || !(speed >= HouseClock::slowest && speed <= HouseClock::fastest)) {
        return std::nullopt;
    }
    return speed;
}
