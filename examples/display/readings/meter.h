// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_METER_H
#define READINGS_METER_H

#include "amounthistory.h"
#include "counterhistory.h"
#include "fault.h"
#include "interval.h"

#include <optional>
#include <vector>

namespace Readings {

/** What was measured in an interval. */
struct Measured
{
    double amount = 0.0;
    /** Whether it is all that was used in the interval, and not only what is known of it. */
    bool isComplete = true;
};

/**
 * The history of one register of a household meter, and the answer to "how much was used from then
 * to then".
 *
 * A meter is fed with readings of its counter (Kind::Counter) or with the amounts of intervals,
 * from files, from a smart meter's telegrams or from a simulation. A counter may be fed with
 * amounts as well, of a time in which nobody read it: they fill what its readings do not know, and
 * the two may meet anywhere at an instant of which both tell. Where both know the same, the
 * readings hold. Instants are seconds since 1970-01-01 UTC; amounts and readings are in the unit of
 * the quantity.
 *
 *     Meter meter(Meter::Kind::Counter, quantityInfo(Quantity::Gas).mostPerHour);
 *     meter.addReading(nine, 4012.10);
 *     meter.addReading(ten, 4012.85);
 *     meter.amount(nine, ten); // 0.75
 *
 * Nothing is ever interpolated or averaged: a slot whose borders are not known is a gap, told by
 * an empty answer, and is not the same as 0. A live source must therefore feed a reading at the
 * exact instants that will be asked for (the full hour at least), which is the last one that it
 * heard at or before that instant.
 *
 * Feeding in the order of time takes constant time for each reading. Questions take logarithmic
 * time; the first one after something was fed out of order sorts the history once. Questions
 * may therefore come from one thread only. A meter can be copied.
 */
class Meter
{
public:
    enum class Kind { Counter, Amounts };

    /**
     * @p mostPerHour is the most that can be used in an hour, see QuantityInfo. The same is granted
     * for any shorter time.
     */
    Meter(Kind kind, double mostPerHour);

    /** Counter if the meter takes readings; it always takes amounts. */
    Kind kind() const;
    /** From now on the meter takes readings, and is of the kind Counter. */
    void takeReadings();

    /**
     * Adds a reading of the counter. @p tag is any number of the caller's that comes back in
     * faults(). Returns false and changes nothing if the meter takes no readings, or if the value
     * is negative or not finite.
     *
     * A second reading for the same instant is ignored, and is a fault if it differs. Readings
     * that step back or leap are judged as told at ReadingFilter.
     */
    bool addReading(qint64 instant, double value, qint64 tag = 0);

    /**
     * As addReading(), but the reading takes the place of one for the same instant: what a meter
     * that is followed tells later holds, since its clock may have been wrong before.
     */
    bool setReading(qint64 instant, double value);

    /**
     * Adds what was used in an interval. Returns false and changes nothing if the interval is
     * empty, or if the amount is negative or not finite.
     *
     * An interval that is known already, or overlaps one, is ignored, and is a fault unless it
     * says the same. So is an amount above what can be used in the time.
     */
    bool addAmount(const Interval &interval, double amount, qint64 tag = 0);

    /**
     * Forgets the readings of a counter before @p before that no slot of @p step seconds needs: all
     * between the borders of a slot that are both known. Nothing between the borders can be asked
     * for any more. Does nothing for a meter of amounts.
     */
    void thin(qint64 before, qint64 step);

    /**
     * What was used in the interval. Of a counter: the difference of the readings at its two
     * borders. Of amounts: the sum of the rows, which must cover it without a gap and end at its
     * borders. Of both: parts of it in turns.
     *
     * Empty if the interval is empty, if a border has no reading, if there is a break in between,
     * or if a part is not covered. A gap of a counter in the midst of the interval does no harm:
     * the counter went on.
     */
    std::optional<double> amount(const Interval &interval) const;
    std::optional<double> amount(qint64 from, qint64 to) const;

    /** Whether amount() is what its readings tell, without any amount that was fed. */
    bool isRead(const Interval &interval) const;

    /**
     * What is known of an interval: amount(), or else, marked as incomplete, total(). Empty if
     * nothing is known, which a reading alone does not change.
     */
    std::optional<Measured> measured(const Interval &interval) const;

    /**
     * All that was counted in the interval: of a counter from its first to its last reading in it,
     * without what a break hides; of amounts the sum of all rows that lie in it whole. 0 if there
     * is nothing.
     */
    double total(const Interval &interval) const;
    double total(qint64 from, qint64 to) const;
    /** All that was ever counted. */
    double total() const;

    /**
     * The counter at an instant; empty if there is no right reading at just that instant, and for
     * a meter of amounts.
     */
    std::optional<double> readingAt(qint64 instant) const;

    /** The first and the last instant of which something is known; empty without data. */
    std::optional<qint64> firstInstant() const;
    std::optional<qint64> lastInstant() const;

    /**
     * The shortest interval known that ends last, but not after @p instant: from one reading to the
     * next, or a row of amounts. There may be a break in it.
     */
    std::optional<Interval> lastStepUntil(qint64 instant) const;

    /** All readings in the order of time, those that were judged wrong too. */
    std::vector<Reading> readings() const;
    /** All rows of amounts in the order of time. */
    std::vector<IntervalAmount> amountRows() const;

    /** Everything wrong that was found so far, in no particular order. */
    std::vector<Fault> faults() const;

private:
    double mostPerHour;
    std::optional<CounterHistory> counter;
    AmountHistory amounts;
};

} // namespace Readings

#endif
