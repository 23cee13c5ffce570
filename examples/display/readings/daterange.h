// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DATERANGE_H
#define DATERANGE_H

#include <QDate>
#include <QtGlobal>

namespace Readings {
class Household;
}

/** The days of which a chart shows something, both included. */
struct DateRange
{
    QDate first;
    QDate last;
    /** Until when anything was read, seconds since 1970-01-01 UTC; 0 if nothing was. */
    qint64 readUntil = 0;
};

/** The days, by the clock of the house, on which its meters counted. */
DateRange datesOf(const Readings::Household &household);

#endif
