// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PERIOD_H
#define PERIOD_H

#include <ZEM>

/** The views of the chart page, shortest first. */
enum class Period { Day, Week, Month, Year };

constexpr Period allPeriods[] = {Period::Day, Period::Week, Period::Month, Period::Year};

/** What a view is made of. */
struct PeriodInfo
{
    const char *key; ///< in the names of pictures
    unsigned int windowSize; ///< slots in one view
    double inset; ///< space at each side of a bar, in slots
    ZEM::ZEMTab tab; ///< its tab on the chart page
    const char *button; ///< name of that tab's button
};

/** Hours of a day, days of a week, weeks of about a month, months of a year. */
constexpr PeriodInfo infoOf(Period period)
{
    constexpr PeriodInfo table[] = {
        {"day", 24, 0.1, ZEM::TabDay, "btnDay"},
        {"week", 7, 0.16, ZEM::TabWeek, "btnWeek"},
        {"month", 5, 0.16, ZEM::TabMonth, "btnMonth"},
        {"year", 12, 0.14, ZEM::TabYear, "btnYear"},
    };
    return table[int(period)];
}

constexpr unsigned int slotsOf(Period period)
{
    return infoOf(period).windowSize;
}

#endif
