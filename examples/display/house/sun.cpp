// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sun.h"

#include <QtMath>
#include <cmath>

namespace {

constexpr double secondsPerDay = 86400.0;
/** Days from 1970-01-01 00:00 UTC to 2000-01-01 12:00, from which astronomers count. */
constexpr double daysUntil2000 = 10957.5;
/** W/m² before the air takes its part. */
constexpr double solarConstant = 1361.0;
/** The part of the light that passes one thickness of the air. */
constexpr double transparency = 0.7;
constexpr double airMassExponent = 0.678;
/** Light of the blue sky, as a part of the direct light. */
constexpr double skyLight = 0.12;
/** What passes a closed cover of clouds, as a part of all light. */
constexpr double throughClouds = 0.22;

double sine(double degrees)
{
    return std::sin(qDegreesToRadians(degrees));
}

double cosine(double degrees)
{
    return std::cos(qDegreesToRadians(degrees));
}

/** How many thicknesses of the air the light passes, after Kasten and Young. */
double airMass(double sineOfHeight)
{
    const double height = qRadiansToDegrees(std::asin(sineOfHeight));
    return 1.0 / (sineOfHeight + 0.50572 * std::pow(height + 6.07995, -1.6364));
}

} // namespace

SunDirection sunDirection(const Place &place, qint64 instant)
{
    // The short series of the Astronomical Almanac.
    const double days = double(instant) / secondsPerDay - daysUntil2000;
    const double meanLongitude = std::fmod(280.460 + 0.9856474 * days, 360.0);
    const double anomaly = std::fmod(357.528 + 0.9856003 * days, 360.0);
    const double longitude = meanLongitude + 1.915 * sine(anomaly) + 0.020 * sine(2.0 * anomaly);
    const double obliquity = 23.439 - 0.0000004 * days;
    const double sineOfDeclination = sine(obliquity) * sine(longitude);
    const double cosineOfDeclination = std::sqrt(1.0 - sineOfDeclination * sineOfDeclination);
    const double rightAscension =
        qRadiansToDegrees(std::atan2(cosine(obliquity) * sine(longitude), cosine(longitude)));
    const double sidereal = std::fmod(280.46062 + 360.98564737 * days, 360.0);
    const double hourAngle = sidereal + place.longitude - rightAscension;

    const double sineOfLatitude = sine(place.latitude);
    const double cosineOfLatitude = cosine(place.latitude);
    return {-cosineOfDeclination * sine(hourAngle),
            cosineOfLatitude * sineOfDeclination
                - sineOfLatitude * cosineOfDeclination * cosine(hourAngle),
            sineOfLatitude * sineOfDeclination
                + cosineOfLatitude * cosineOfDeclination * cosine(hourAngle)};
}

double sunElevation(const Place &place, qint64 instant)
{
    return qRadiansToDegrees(std::asin(sunDirection(place, instant).up));
}

double sunlight(const Place &place, const SunDirection &sun, double tilt, double cloudiness)
{
    if (sun.up <= 0.0) {
        return 0.0;
    }
    const double direct =
        solarConstant * std::pow(transparency, std::pow(airMass(sun.up), airMassExponent));
    const double towardsEquator = place.latitude < 0.0 ? sun.north : -sun.north;
    const double incidence = qMax(0.0, sine(tilt) * towardsEquator + cosine(tilt) * sun.up);
    const double seenSky = (1.0 + cosine(tilt)) / 2.0;

    const double clear = direct * incidence + direct * skyLight * seenSky;
    const double covered = direct * (sun.up + skyLight) * throughClouds * seenSky;
    return clear * (1.0 - cloudiness) + covered * cloudiness;
}
