// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "weather.h"

#include <QtMath>
#include <cmath>

namespace {

constexpr qint64 secondsPerMinute = 60;
constexpr qint64 secondsPerHour = 3600;
constexpr qint64 secondsPerDay = 86400;
constexpr double secondsPerYear = 365.2425 * secondsPerDay;

constexpr double yearlyMean = 10.6;
/** From the mean to the warmest week, in K. */
constexpr double yearlySwing = 7.4;
/** The warmest time is so long after the turn of the year in the north. */
constexpr double warmestTime = 203.0 * secondsPerDay;
constexpr double warmestSecond = 15.0 * secondsPerHour;
/** Most that the weather makes warmer or colder for a week and for a day, in K. */
constexpr double weeklySwing = 5.5;
constexpr double briefSwing = 2.5;
/** From the mean of a day to its warmest hour, under a covered and a clear sky, in K. */
constexpr double coveredSwing = 1.5;
constexpr double clearSwing = 4.5;

constexpr qint64 weatherPeriod = 4 * secondsPerDay;
constexpr qint64 briefPeriod = 30 * secondsPerHour;

/**
 * A smooth curve through a throw of the dice at each multiple of @p period, from 0 to 1.
 * @p kind keeps curves of one purpose apart.
 */
double curve(quint64 seed, Dice::Purpose purpose, int kind, qint64 instant, qint64 period)
{
    // Instants before 1970 belong to the stretch below them too.
    const qint64 stretch = instant / period - (instant % period < 0 ? 1 : 0);
    const quint64 own = seed + quint64(kind);
    const double before = Dice(own, purpose, stretch).next();
    const double after = Dice(own, purpose, stretch + 1).next();
    const double part = double(instant - stretch * period) / double(period);
    return before + (after - before) * part * part * (3.0 - 2.0 * part);
}

} // namespace

Weather::Weather(quint64 weatherSeed, double latitude) : seed(weatherSeed), isSouth(latitude < 0.0)
{
}

double Weather::cloudiness(qint64 instant) const
{
    struct Part
    {
        qint64 period;
        double weight;
    };
    // Fronts that pass in days, showers of hours, and single clouds.
    static constexpr Part parts[] = {{2 * secondsPerDay, 0.42},
                                     {9 * secondsPerHour, 0.26},
                                     {70 * secondsPerMinute, 0.20},
                                     {11 * secondsPerMinute, 0.12}};
    constexpr double contrast = 2.6;
    constexpr double usual = 0.64;
    constexpr double winter = 0.12;

    double sum = 0.0;
    int kind = 0;
    for (const Part &part : parts) {
        sum += part.weight * curve(seed, Dice::Purpose::Clouds, kind, instant, part.period);
        ++kind;
    }
    const double cover = usual + (sum - 0.5) * contrast - winter * season(instant);
    return qBound(0.0, cover, 1.0);
}

double Weather::meanTemperature(qint64 instant) const
{
    const double weekly = curve(seed, Dice::Purpose::Warmth, 0, instant, weatherPeriod);
    const double brief = curve(seed, Dice::Purpose::Warmth, 1, instant, briefPeriod);
    return yearlyMean + yearlySwing * season(instant) + weeklySwing * (2.0 * weekly - 1.0)
        + briefSwing * (2.0 * brief - 1.0);
}

double Weather::temperature(qint64 instant, int secondsOfDay) const
{
    const double clouds = curve(seed, Dice::Purpose::Clouds, 0, instant, 2 * secondsPerDay);
    const double swing = clearSwing + (coveredSwing - clearSwing) * clouds;
    const double turn = 2.0 * M_PI * (secondsOfDay - warmestSecond) / double(secondsPerDay);
    return meanTemperature(instant) + swing * std::cos(turn);
}

/** 1 in the warmest time of the year, -1 in the coldest. */
double Weather::season(qint64 instant) const
{
    const double turn = 2.0 * M_PI * (double(instant) - warmestTime) / secondsPerYear;
    return isSouth ? -std::cos(turn) : std::cos(turn);
}
