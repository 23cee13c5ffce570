// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HOUSECLOCK_H
#define HOUSECLOCK_H

#include <QString>
#include <QtGlobal>
#include <optional>

/**
 * The time in a house that may run faster than the system's, so that a day can be watched in
 * minutes. It knows no clock itself: it is told the system's time, and so follows a clock that is
 * set right.
 *
 * @code
 * const HouseClock clock(QDateTime::currentMSecsSinceEpoch(), 60.0);
 * const qint64 now = clock.instantAt(QDateTime::currentMSecsSinceEpoch());
 * @endcode
 */
class HouseClock
{
public:
    static constexpr double slowest = 0.001;
    /** A day in a second. */
    static constexpr double fastest = 86400.0;

    /**
     * A clock that shows @p begin when the system's time is @p systemStart, both in milliseconds
     * since 1970-01-01 UTC, and goes @p speed times as fast from then on. A speed out of range
     * counts as the nearest that is in it, one that is no number as 1.
     */
    HouseClock(qint64 systemStart, double speed, qint64 begin);
    /** A clock that begins with the system's time. */
    explicit HouseClock(qint64 systemStart, double speed = 1.0);

    double speed() const { return factor; }

    /** The house's time in seconds since 1970-01-01 UTC, when the system's is @p systemNow ms. */
    qint64 instantAt(qint64 systemNow) const;

private:
    qint64 start;
    qint64 first;
    double factor;
};

/** Reads a speed, "60" or "0.5"; empty for what is no number or out of a HouseClock's range. */
std::optional<double> parseSpeed(const QString &text);

#endif
