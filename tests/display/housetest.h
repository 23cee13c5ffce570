// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HOUSETEST_H
#define HOUSETEST_H

#include "sun.h"

#include <QDateTime>

#include <cmath>

/** What the tests of the simulated house, its sun and its weather share. */
namespace HouseTest {

constexpr Place utrecht {52.09, 5.12};
constexpr qint64 minute = 60; // seconds, as all below
constexpr qint64 hour = 3600;
constexpr qint64 day = 24 * hour;

/** The instant of a UTC time such as "2024-05-01T10:00:00". */
inline qint64 utc(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso) + QLatin1Char('Z'), Qt::ISODate)
        .toSecsSinceEpoch();
}

inline bool isNear(double left, double right, double tolerance)
{
    return std::abs(left - right) <= tolerance;
}

} // namespace HouseTest

#endif
