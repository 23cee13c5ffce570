// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PERIOD_H
#define PERIOD_H

/** The views of a chart page. */
enum class Period { Day, Week, Month };

/** Slots in one view: hours of a day, days of a week, weeks of about a month. */
constexpr unsigned int slotsOf(Period period)
{
    switch (period) {
    case Period::Day:
        return 24;
    case Period::Week:
        return 7;
    case Period::Month:
        break;
    }
    return 5;
}

#endif
