// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef WEATHER_H
#define WEATHER_H

#include "dice.h"

#include <QtGlobal>

/**
 * Weather as it could be in a temperate country by the sea. All of it is smooth and follows from a
 * seed; times are in seconds since 1970-01-01 UTC.
 */
class Weather
{
public:
    /** On the southern half of the earth, @p latitude below 0, the seasons are turned round. */
    Weather(quint64 seed, double latitude);

    /** The part of the sky that clouds cover, 0 to 1. */
    double cloudiness(qint64 instant) const;
    /** The mean outdoor temperature around an instant, without that of day and night, in °C. */
    double meanTemperature(qint64 instant) const;
    /**
     * The outdoor temperature in °C. @p secondsOfDay is the local time, as it is warmest in the
     * afternoon.
     */
    double temperature(qint64 instant, int secondsOfDay) const;

private:
    double season(qint64 instant) const;

    quint64 seed;
    bool isSouth;
};

#endif
