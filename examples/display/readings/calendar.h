// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_CALENDAR_H
#define READINGS_CALENDAR_H

#include "interval.h"
#include "wallclock.h"

#include <QDate>
#include <QTimeZone>
#include <optional>
#include <vector>

namespace Readings {

class Meter;
struct Measured;

/**
 * The slots of a chart, by the calendar of a household's time zone.
 *
 * Slots are wall-clock time: an hour reaches from one full hour on the clock to the next, a day
 * from midnight to midnight, a week from Monday to Monday. In the night in which the clock is put
 * back, the slot of the hour that comes twice covers both (the day is 25 hours long), and in the
 * night in which it is put forward the slot of the skipped hour is empty.
 *
 * The functions that answer amounts add several meters up: give them all registers of a quantity
 * (Household::metersOf). A slot is empty, a gap, as soon as one of the meters has no answer for
 * it, and if there is no meter. The slot of a skipped hour is always a gap. The slot in which the
 * last reading lies is still running: it is counted up to that reading.
 */
class Calendar
{
public:
    using Meters = std::vector<const Meter *>;
    using Amounts = std::vector<std::optional<double>>;

    static constexpr int hoursPerDay = 24;
    static constexpr int daysPerWeek = 7;
    static constexpr int monthsPerYear = 12;

    /** An invalid zone counts as UTC. */
    explicit Calendar(const QTimeZone &zone);

    QTimeZone timeZone() const { return clock.timeZone(); }

    /** The slot of an hour, 0 to 23. Empty for an invalid date or another hour. */
    Interval hour(const QDate &date, int hour) const;
    /** The slot of a day, empty for an invalid date. */
    Interval day(const QDate &date) const;
    /** The slot of the week in which a date lies, empty for an invalid date. */
    Interval week(const QDate &date) const;

    /** The slot of the month in which a date lies, empty for an invalid date. */
    Interval month(const QDate &date) const;

    /** The Monday of the week in which a date lies; invalid for an invalid date. */
    static QDate mondayOf(const QDate &date);
    /** The date at an instant (seconds since 1970-01-01 UTC). */
    QDate dateAt(qint64 instant) const;
    /** The hour slot (0 to 23) at an instant. */
    int hourAt(qint64 instant) const;

    /**
     * What several meters measured in a slot. @p readUntil is when anything of the household was
     * read last: a slot that ends after it is still running, and counts up to the last reading of
     * each meter. It is incomplete if that of one of them is, or if one knows nothing; empty if
     * none knows anything, and for the slot of a skipped hour.
     */
    static std::optional<Measured> measured(const Meters &meters, const Interval &slot,
                                            qint64 readUntil);

    /** 24 amounts, of the hours of a day. */
    Amounts hoursOfDay(const Meters &meters, const QDate &date) const;
    /** 7 amounts, of the days of the week in which the date lies, from Monday on. */
    Amounts daysOfWeek(const Meters &meters, const QDate &date) const;
    /** @p count amounts, of the days from @p first on. */
    Amounts days(const Meters &meters, const QDate &first, int count) const;
    /** @p count amounts, of the weeks from the one on in which the date lies. */
    Amounts weeks(const Meters &meters, const QDate &date, int count) const;
    /** 12 amounts, of the months of a year. */
    Amounts monthsOfYear(const Meters &meters, int year) const;

private:
    static std::optional<double> amountIn(const Meters &meters, const Interval &slot);
    qint64 border(const QDate &date, int hour) const;

    WallClock clock;
};

} // namespace Readings

#endif
