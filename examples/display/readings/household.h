// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_HOUSEHOLD_H
#define READINGS_HOUSEHOLD_H

#include "meter.h"
#include "quantity.h"

#include <QStringList>
#include <QTimeZone>
#include <map>
#include <optional>
#include <vector>

namespace Readings {

/**
 * The sum of what several meters counted in an interval. Empty as soon as one of them has no
 * answer, and if there is no meter.
 */
std::optional<double> sumOfAmounts(const std::vector<const Meter *> &meters,
                                   const Interval &interval);

/** The power that a house takes from the grid; less than 0 while it gives. */
struct GridPower
{
    double watts = 0.0;
    /** The end of the time that it is the mean of, in seconds since 1970-01-01 UTC. */
    qint64 instant = 0;
};

/**
 * All that is known of a household's energy: a meter for each register, and the clock by which its
 * days begin.
 */
class Household
{
public:
    std::map<Register, Meter> meters;
    /** By its clock the days of charts begin; the system's if nothing else is known. */
    QTimeZone timeZone = QTimeZone::systemTimeZone();
    /** The latest grid power that a file told of; empty if none does. */
    std::optional<GridPower> measuredPower;
    /**
     * What was wrong in the files, one line each: "FILE:LINE: what", or "FILE: what" where a whole
     * file is meant. In the order of the files and their lines.
     */
    QStringList problems;

    /**
     * The meter of a register, made if there is none yet. It takes readings if @p kind is Counter,
     * or was when it was made.
     */
    Meter &meter(const Register &meterRegister, Meter::Kind kind);

    /**
     * Makes way for a register of a live meter: where its quantity was counted by one register
     * until now and this is one of two tariffs, or the other way round, what was counted becomes
     * amounts of the new registers. Of one register that is the normal tariff, of which
     * tellsTariffs() knows.
     */
    void makeWayFor(const Register &meterRegister);
    /**
     * Whether the two tariffs of a quantity were counted apart in the whole interval; if so, each
     * of them has a meter.
     */
    bool tellsTariffs(Quantity quantity, const Interval &interval) const;
    /**
     * Adds what another household's meters know; where they contradict each other, this one holds.
     * Its registers are fitted to those here, see makeWayFor(). The time zone stays.
     */
    void add(Household older);

    /**
     * The meters of all registers of a quantity, the tariffs of electricity for instance; none if
     * the household does not measure it. They live as long as @p meters is not changed.
     */
    std::vector<const Meter *> metersOf(Quantity quantity) const;

    /** What was used of a quantity; a gap as told at sumOfAmounts(). */
    std::optional<double> amount(Quantity quantity, const Interval &interval) const;
    /** All that was counted of a quantity in an interval, see Meter::total(); 0 without a meter. */
    double total(Quantity quantity, const Interval &interval) const;
    /** All that was ever counted of a quantity. */
    double total(Quantity quantity) const;
    /** What was measured of a quantity until now, and whether that is all, see Calendar. */
    std::optional<Measured> measured(Quantity quantity, const Interval &slot) const;

    /** Whether the house gave electricity to the grid, ever. */
    bool delivers() const;

    /**
     * The electricity that the house itself used, in kWh: import - export + solar production. It
     * can come out a little below 0, since the meters are not read at the same moment. A gap if
     * one of the three has one, if import is not measured, or if something was exported and
     * production is not measured.
     */
    std::optional<double> consumption(const Interval &interval) const;

    /** The first and the last instant of which any meter knows something; empty without data. */
    std::optional<qint64> firstInstant() const;
    std::optional<qint64> lastInstant() const;
    /** lastInstant(), or 0 without data. */
    qint64 readUntil() const { return lastInstant().value_or(0); }

    /**
     * The latest grid power: the measured one, or else the mean of the last interval in which
     * import and (where there is such a meter) export are known. Empty without import.
     */
    std::optional<GridPower> latestPower() const;

private:
    /** When one register counted what is now told by two. */
    std::map<Quantity, std::vector<Interval>> untoldTariffs;
};

} // namespace Readings

#endif
