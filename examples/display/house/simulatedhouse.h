// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SIMULATEDHOUSE_H
#define SIMULATEDHOUSE_H

#include "dayplan.h"
#include "household.h"
#include "weather.h"

#include <array>

/** The power that flows at an instant, in W. None of it is less than 0. */
struct PowerNow
{
    int production = 0; ///< of the solar panels
    int heatPump = 0; ///< which makes the hot water
    int car = 0;
    int kitchen = 0;
    int washing = 0;
    int rest = 0; ///< lights and all that is always on

    /** What all devices take. It is imported - exported + production at any instant. */
    int consumption() const { return heatPump + car + kitchen + washing + rest; }
    /** What comes from the grid; less than 0 while the house gives. */
    int grid() const { return consumption() - production; }
    int imported() const { return grid() > 0 ? grid() : 0; }
    int exported() const { return grid() < 0 ? -grid() : 0; }
};

/** What it is like outdoors. */
struct WeatherNow
{
    double temperature = 0.0; ///< °C
    double cloudiness = 0.0; ///< the part of the sky that is covered, 0 to 1
    double sunElevation = 0.0; ///< degrees above the horizon; below 0 at night
};

/**
 * A house of four people, as it could be in the Netherlands: solar panels, gas heating with a heat
 * meter behind the boiler, a heat pump for hot water, and an electric car that is charged on some
 * nights.
 *
 * Everything follows from a seed: two houses with the same arguments are the same, whatever they
 * are asked and in which order. Power is constant within a minute, so that the counters of
 * HouseRecorder are exactly what the power adds up to. Days and tariffs follow the clock of the
 * time zone.
 *
 * Instants are seconds since 1970-01-01 UTC. A day is computed when it is first asked for, in less
 * than a millisecond, and the last few are kept. Not for use from two threads at the same time.
 */
class SimulatedHouse
{
public:
    /** The most that the panels give, in W. */
    static constexpr int mostProduction = mostSolarPower;

    /** Its meters count from @p start on, cut to the minute. An invalid zone counts as UTC. */
    SimulatedHouse(quint64 seed, const Place &place, const QTimeZone &timeZone, qint64 start);

    qint64 start() const { return firstInstant; }
    quint64 seed() const { return facts.seed; }
    QTimeZone timeZone() const { return facts.timeZone; }

    PowerNow powerAt(qint64 instant) const;
    WeatherNow weatherAt(qint64 instant) const;

    /**
     * The readings of all meters at each full hour from start() on, and at the last minute that
     * ended at @p until. Two years take about half a second at most.
     */
    Readings::Household history(qint64 until) const;

    /** The day at an instant; it is valid until the next call of any function. */
    const DayPlan &dayAt(qint64 instant) const;

private:
    static constexpr std::size_t keptDays = 3;

    HouseFacts facts;
    Weather weather;
    qint64 firstInstant;
    mutable std::array<DayPlan, keptDays> days;
    mutable std::size_t oldest = 0;
};

#endif
