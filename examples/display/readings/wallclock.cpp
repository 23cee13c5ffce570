// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "wallclock.h"

#include <QDateTime>
#include <limits>

namespace Readings {

namespace {

constexpr qint64 secondsPerDay = 86400;
constexpr qint64 noDay = std::numeric_limits<qint64>::min();

qint64 dayOf(qint64 wallSeconds)
{
    const qint64 day = wallSeconds / secondsPerDay;
    return wallSeconds % secondsPerDay < 0 ? day - 1 : day;
}

QDateTime utc(qint64 seconds)
{
    // By way of local time, the C library would look for /etc/localtime each time.
    return QDateTime::fromSecsSinceEpoch(seconds, QTimeZone::utc());
}

} // namespace

WallClock::WallClock(const QTimeZone &timeZone)
    : zone(timeZone.isValid() ? timeZone : QTimeZone::utc()), knownDay(noDay)
{
}

WallClock::Moment WallClock::moment(qint64 wallSeconds) const
{
    const qint64 day = dayOf(wallSeconds);
    if (day != knownDay) {
        lookUpDay(day);
    }

    Moment result;
    for (const Stretch &stretch : stretches) {
        const qint64 instant = wallSeconds - stretch.offset;
        if (instant < stretch.from || instant >= stretch.to) {
            continue;
        }
        if (result.occurrences == 0) {
            result.earlier = instant;
        }
        result.later = instant;
        ++result.occurrences;
    }
    if (result.occurrences > 0) {
        return result;
    }

    for (const Stretch &stretch : stretches) {
        if (wallSeconds < stretch.from + stretch.offset) {
            result.earlier = result.later = stretch.from;
            break;
        }
    }
    return result;
}

qint64 WallClock::wallSeconds(const QDate &date, int secondsOfDay)
{
    static const qint64 epoch = QDate(1970, 1, 1).toJulianDay();
    return (date.toJulianDay() - epoch) * secondsPerDay + secondsOfDay;
}

// No place on earth is more than 14 hours off UTC: a day on either side holds all that can matter.
void WallClock::lookUpDay(qint64 day) const
{
    const qint64 from = (day - 1) * secondsPerDay;
    const qint64 to = (day + 2) * secondsPerDay;
    stretches.assign(1, {from, to, zone.offsetFromUtc(utc(from))});
    const QTimeZone::OffsetDataList transitions = zone.transitions(utc(from), utc(to));
    for (const QTimeZone::OffsetData &transition : transitions) {
        const qint64 instant = transition.atUtc.toSecsSinceEpoch();
        if (instant <= from || instant >= to
            || transition.offsetFromUtc == stretches.back().offset) {
            continue;
        }
        stretches.back().to = instant;
        stretches.push_back({instant, to, transition.offsetFromUtc});
    }
    knownDay = day;
}

} // namespace Readings
