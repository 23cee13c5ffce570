// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "simulatedhouse.h"

#include "houserecorder.h"

#include <QDateTime>

namespace {

constexpr qint64 secondsPerMinute = 60;
constexpr int millisecondsPerSecond = 1000;

qint64 minuteOf(qint64 instant)
{
    const qint64 second = instant % secondsPerMinute;
    return instant - (second < 0 ? second + secondsPerMinute : second);
}

} // namespace

SimulatedHouse::SimulatedHouse(quint64 seed, const Place &place, const QTimeZone &timeZone,
                               qint64 start)
    : facts {seed, place, timeZone.isValid() ? timeZone : QTimeZone::utc()},
      weather(seed, place.latitude), firstInstant(minuteOf(start))
{
}

PowerNow SimulatedHouse::powerAt(qint64 instant) const
{
    const DayPlan &day = dayAt(instant);
    const MinuteUse &use = day.minutes[std::size_t((instant - day.from) / secondsPerMinute)];
    return {use.solar, use.heatPump, use.car, use.kitchen, use.washing, use.rest};
}

WeatherNow SimulatedHouse::weatherAt(qint64 instant) const
{
    const QTime time = QDateTime::fromSecsSinceEpoch(instant, facts.timeZone).time();
    const int secondsOfDay = time.msecsSinceStartOfDay() / millisecondsPerSecond;
    return {weather.temperature(instant, secondsOfDay), weather.cloudiness(instant),
            ::sunElevation(facts.place, instant)};
}

Readings::Household SimulatedHouse::history(qint64 until) const
{
    Readings::Household household;
    HouseRecorder(this, &household).recordUntil(until);
    return household;
}

const DayPlan &SimulatedHouse::dayAt(qint64 instant) const
{
    for (const DayPlan &day : days) {
        if (instant >= day.from && instant < day.to) {
            return day;
        }
    }
    DayPlan &day = days[oldest];
    oldest = (oldest + 1) % keptDays;
    day = planDay(facts, QDateTime::fromSecsSinceEpoch(instant, facts.timeZone).date());
    return day;
}
