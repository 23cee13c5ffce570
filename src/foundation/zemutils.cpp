// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemutils.h"

#include "buildstamp_p.h"
#include "zemkit_version.h"

#include <cmath>

namespace {

QString revisionLabel()
{
    return QStringLiteral("development build");
}

} // namespace

QString ZEMUtils::getDescription()
{
    return QStringLiteral("ZEM Graphical Components, %1 %2")
        .arg(QLatin1String(zemBuildDate()))
        .arg(QLatin1String(zemBuildTime()));
}

QString ZEMUtils::getVersion()
{
    return QStringLiteral("%1.%2.%3")
        .arg(ZEMKIT_VERSION >> 16)
        .arg((ZEMKIT_VERSION >> 8) & 0xff)
        .arg(revisionLabel());
}

QString ZEMUtils::wattToString(double watt, bool kW)
{
    const double power = std::fabs(watt);
    if (kW) {
        return QStringLiteral("%L1 kW").arg(power / c_kW, 0, 'f', 1, QLatin1Char(' '));
    }
    return QStringLiteral("%L1 W").arg(power, 0, 'f', 0, QLatin1Char(' '));
}

QString ZEMUtils::wattToStringAutoScale(double watt)
{
    return wattToString(watt, watt >= c_kW);
}

int ZEMUtils::calculateSpeed(double reference, double value)
{
    const double whole = std::fabs(reference);
    const double flow = std::fabs(value);
    if (whole == 0.0) {
        return flow == 0.0 ? 0 : 2;
    }
    constexpr double nothing = 0.5;
    constexpr double oneThird = 33.3;
    constexpr double twoThirds = 66.6;
    const double percent = flow * 100.0 / whole;
    if (percent <= nothing) {
        return 0;
    }
    if (percent <= oneThird) {
        return 1;
    }
    if (percent <= twoThirds) {
        return 2;
    }
    return 3;
}
