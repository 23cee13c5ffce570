// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DAYPLAN_H
#define DAYPLAN_H

#include "sun.h"

#include <QDate>
#include <QTimeZone>
#include <QtGlobal>
#include <vector>

/** What flows during one minute. */
struct MinuteUse
{
    /** Electric power in W. */
    qint32 solar = 0;
    qint32 heatPump = 0;
    qint32 car = 0;
    qint32 kitchen = 0;
    qint32 washing = 0;
    qint32 rest = 0;
    /** In cm³ for the whole minute. */
    qint32 gas = 0;
    qint32 water = 0;
    /** What the boiler gives to the radiators, in J for the whole minute. */
    qint32 heat = 0;
    /** What the clock on the wall shows, in minutes since midnight. */
    qint32 wallMinute = 0;

    qint32 consumption() const { return heatPump + car + kitchen + washing + rest; }
};

/** A day of a house, from midnight to midnight on its clock. */
struct DayPlan
{
    /** Seconds since 1970-01-01 UTC; whole minutes. */
    qint64 from = 0;
    qint64 to = 0;
    bool isWeekend = false;
    /** One for each minute of real time: 1440, less or more where the clock is changed. */
    std::vector<MinuteUse> minutes;
};

/** A house whose days can be planned. */
struct HouseFacts
{
    quint64 seed = 0;
    Place place;
    QTimeZone timeZone;
};

/** The most that the panels' inverter gives, in W. */
constexpr qint32 mostSolarPower = 3600;

/** What happens in a house on a date; the same for the same arguments, and for no other reason. */
DayPlan planDay(const HouseFacts &house, const QDate &date);

#endif
