// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "daterange.h"

#include "calendar.h"
#include "household.h"

DateRange datesOf(const Readings::Household &household)
{
    const Readings::Calendar calendar(household.timeZone);
    const qint64 first = household.firstInstant().value_or(0);
    // What ends at midnight belongs to the day before.
    const qint64 last = household.lastInstant().value_or(0) - 1;
    return {calendar.dateAt(first), calendar.dateAt(qMax(first, last))};
}
