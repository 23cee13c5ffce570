// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"

#include "household.h"

#include <QDateTime>
#include <algorithm>

namespace Readings {

namespace {

constexpr int secondsPerHour = 3600;

} // namespace

Calendar::Calendar(const QTimeZone &zone) : clock(zone) { }

Interval Calendar::hour(const QDate &date, int hour) const
{
    if (!date.isValid() || hour < 0 || hour >= hoursPerDay) {
        return {};
    }
    return {border(date, hour), border(date, hour + 1)};
}

Interval Calendar::day(const QDate &date) const
{
    if (!date.isValid()) {
        return {};
    }
    return {border(date, 0), border(date, hoursPerDay)};
}

Interval Calendar::week(const QDate &date) const
{
    if (!date.isValid()) {
        return {};
    }
    const QDate monday = mondayOf(date);
    return {border(monday, 0), border(monday.addDays(daysPerWeek), 0)};
}

Interval Calendar::month(const QDate &date) const
{
    if (!date.isValid()) {
        return {};
    }
    const QDate first(date.year(), date.month(), 1);
    return {border(first, 0), border(first.addMonths(1), 0)};
}

QDate Calendar::mondayOf(const QDate &date)
{
    return date.isValid() ? date.addDays(Qt::Monday - date.dayOfWeek()) : QDate();
}

QDate Calendar::dateAt(qint64 instant) const
{
    return QDateTime::fromSecsSinceEpoch(instant, clock.timeZone()).date();
}

int Calendar::hourAt(qint64 instant) const
{
    return QDateTime::fromSecsSinceEpoch(instant, clock.timeZone()).time().hour();
}

std::optional<Measured> Calendar::measured(const Meters &meters, const Interval &slot,
                                           qint64 readUntil)
{
    Measured sum;
    bool isKnown = false;
    for (const Meter *meter : meters) {
        const std::optional<qint64> last = meter->lastInstant();
        const bool isRunning = slot.to > readUntil && last && *last > slot.from;
        const Interval counted {slot.from, isRunning ? std::min(slot.to, *last) : slot.to};
        const std::optional<Measured> part = meter->measured(counted);
        isKnown = isKnown || part;
        sum.isComplete = sum.isComplete && part && part->isComplete;
        sum.amount += part ? part->amount : 0.0;
    }
    return isKnown ? std::optional<Measured>(sum) : std::nullopt;
}

Calendar::Amounts Calendar::hoursOfDay(const Meters &meters, const QDate &date) const
{
    Amounts amounts;
    amounts.reserve(hoursPerDay);
    for (int slot = 0; slot < hoursPerDay; ++slot) {
        amounts.push_back(amountIn(meters, hour(date, slot)));
    }
    return amounts;
}

Calendar::Amounts Calendar::daysOfWeek(const Meters &meters, const QDate &date) const
{
    return days(meters, mondayOf(date), daysPerWeek);
}

Calendar::Amounts Calendar::days(const Meters &meters, const QDate &first, int count) const
{
    Amounts amounts;
    for (int slot = 0; slot < count; ++slot) {
        amounts.push_back(amountIn(meters, day(first.addDays(slot))));
    }
    return amounts;
}

Calendar::Amounts Calendar::weeks(const Meters &meters, const QDate &date, int count) const
{
    Amounts amounts;
    for (int slot = 0; slot < count; ++slot) {
        amounts.push_back(amountIn(meters, week(date.addDays(qint64(slot) * daysPerWeek))));
    }
    return amounts;
}

Calendar::Amounts Calendar::monthsOfYear(const Meters &meters, int year) const
{
    Amounts amounts;
    amounts.reserve(monthsPerYear);
    for (int slot = 1; slot <= monthsPerYear; ++slot) {
        amounts.push_back(amountIn(meters, month(QDate(year, slot, 1))));
    }
    return amounts;
}

std::optional<double> Calendar::amountIn(const Meters &meters, const Interval &slot)
{
    Interval counted = slot;
    for (const Meter *meter : meters) {
        const std::optional<qint64> last = meter->lastInstant();
        if (last && *last > slot.from) {
            counted.to = std::min(counted.to, *last);
        }
    }
    return sumOfAmounts(meters, counted);
}

// The first of two: so that the slot that begins with a doubled hour holds both of them.
qint64 Calendar::border(const QDate &date, int hour) const
{
    return clock.moment(WallClock::wallSeconds(date, hour * secondsPerHour)).earlier;
}

} // namespace Readings
