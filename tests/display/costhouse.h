// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTHOUSE_H
#define COSTHOUSE_H

#include "contract.h"
#include "household.h"

#include <QDateTime>

/** What the tests of costs share: a house in Amsterdam, and its contracts. */
namespace CostHouse {

using Readings::Household;
using Readings::Meter;
using Readings::Quantity;
using Readings::Register;
using Readings::Tariff;

inline Household household()
{
    Household house;
    house.timeZone = QTimeZone("Europe/Amsterdam");
    return house;
}

/** The instant of a date and time on the clock of the house. */
inline qint64 at(const QDate &date, int hour = 0, int minute = 0)
{
    return QDateTime(date, QTime(hour, minute), QTimeZone("Europe/Amsterdam")).toSecsSinceEpoch();
}

/** Lets a counter be read at each midnight from @p first to @p last. */
inline void countDays(Household *house, const Register &meterRegister, const QDate &first,
                      const QDate &last, double perDay)
{
    Meter &meter = house->meter(meterRegister, Meter::Kind::Counter);
    for (QDate date = first; date <= last; date = date.addDays(1)) {
        meter.addReading(at(date), 1000.0 + perDay * double(first.daysTo(date)));
    }
}

/** Lets a counter be read each hour of so many from @p from on. */
inline void countHours(Household *house, const Register &meterRegister, qint64 from, int hours,
                       double perHour)
{
    constexpr qint64 hour = 3600;
    Meter &meter = house->meter(meterRegister, Meter::Kind::Counter);
    for (int i = 0; i <= hours; ++i) {
        meter.addReading(from + i * hour, 1000.0 + perHour * i);
    }
}

/** A contract with one price for one quantity, in hundred-thousandths of a euro. */
inline Costs::Contract onePrice(const QDate &from, Quantity quantity, Costs::Price price)
{
    return {from, {{quantity, {price, price}}}};
}

inline Costs::Days monthFrom(const QDate &first)
{
    return {first, first.addMonths(1)};
}

} // namespace CostHouse

#endif
