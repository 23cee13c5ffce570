// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "daterange.h"

#include "calendar.h"
#include "household.h"

DateRange datesOf(const Readings::Household &household)
{
    const Readings::Calendar calendar(household.timeZone);
    const qint64 first = household.firstInstant().value_or(0);
    const qint64 end = household.readUntil();
    // What ends at midnight belongs to the day before.
    return {calendar.dateAt(first), calendar.dateAt(qMax(first, end - 1)), end};
}
