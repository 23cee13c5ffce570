// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SUN_H
#define SUN_H

#include <QtGlobal>

/** A place on earth, in degrees; north and east are positive. */
struct Place
{
    double latitude = 0.0;
    double longitude = 0.0;
};

/** Where the sun stands, as seen from a place: a vector of length 1. */
struct SunDirection
{
    double east = 0.0;
    double north = 0.0;
    /** The sine of its height; below 0 at night. */
    double up = 0.0;
};

/** The sun at an instant in seconds since 1970-01-01 UTC, good to some hundredths of a degree. */
SunDirection sunDirection(const Place &place, qint64 instant);

/** The height of the sun above the horizon, in degrees; below 0 at night. */
double sunElevation(const Place &place, qint64 instant);

/**
 * The light of the sun in W/m² on a surface that is inclined by @p tilt degrees towards the
 * equator, under a sky that is covered with clouds by @p cloudiness, 0 to 1.
 */
double sunlight(const Place &place, const SunDirection &sun, double tilt, double cloudiness);

#endif
