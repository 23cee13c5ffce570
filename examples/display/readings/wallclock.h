// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_WALLCLOCK_H
#define READINGS_WALLCLOCK_H

#include <QDate>
#include <QTimeZone>
#include <vector>

namespace Readings {

/**
 * Turns what a clock on the wall shows into instants.
 *
 * A wall-clock time is told in seconds since 1970-01-01 00:00 as that clock counts them. Where the
 * clock is put forward, some times never come; where it is put back, some come twice.
 *
 * Asking for times of the same day one after the other is fast. Not for use from two threads at
 * the same time.
 */
class WallClock
{
public:
    struct Moment
    {
        /** How often the clock shows this time: 0, 1 or 2. */
        int occurrences = 0;
        /**
         * The instants in seconds since 1970-01-01 UTC; they differ only for a time that comes
         * twice. For a time that never comes both are the instant at which it is skipped.
         */
        qint64 earlier = 0;
        qint64 later = 0;
    };

    /** An invalid zone counts as UTC. */
    explicit WallClock(const QTimeZone &zone);

    const QTimeZone &timeZone() const { return zone; }

    Moment moment(qint64 wallSeconds) const;

    /** The wall-clock time of a date and the seconds since its midnight. */
    static qint64 wallSeconds(const QDate &date, int secondsOfDay);

private:
    /** A stretch of time without a change of the clock. */
    struct Stretch
    {
        qint64 from;
        qint64 to;
        qint64 offset;
    };

    void lookUpDay(qint64 day) const;

    QTimeZone zone;
    mutable qint64 knownDay;
    mutable std::vector<Stretch> stretches;
};

} // namespace Readings

#endif
