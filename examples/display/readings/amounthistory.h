// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_AMOUNTHISTORY_H
#define READINGS_AMOUNTHISTORY_H

#include "fault.h"
#include "interval.h"

#include <optional>
#include <vector>

namespace Readings {

/** What was used in one interval. */
struct IntervalAmount
{
    Interval interval;
    /** In the unit of the quantity; finite and not negative. */
    double amount = 0.0;
    /** Any number of the caller's; it comes back in a Fault. */
    qint64 tag = 0;
};

/**
 * The history of amounts for each interval, in any order. See Meter, which is how the rest of the
 * program uses it.
 */
class AmountHistory
{
public:
    explicit AmountHistory(double mostPerHour);

    /**
     * Adds an interval's amount. An interval after all others takes constant time; one that is not
     * makes the next question sort the whole history.
     */
    void add(const IntervalAmount &amount);

    std::optional<double> amount(const Interval &interval) const;
    double total(const Interval &interval) const;
    std::optional<qint64> firstInstant() const;
    std::optional<qint64> lastInstant() const;
    std::optional<Interval> lastStepUntil(qint64 instant) const;
    /** All rows in the order of time. */
    std::vector<IntervalAmount> all() const;
    bool isEmpty() const { return rows.empty() && late.empty(); }

    /** The last instant in the interval up to which all from its start on is known. */
    std::optional<qint64> knownUntil(const Interval &interval) const;
    /** The last instant until the given one at which a row begins, or ends. */
    std::optional<qint64> lastStart(qint64 instant) const;
    std::optional<qint64> lastEnd(qint64 instant) const;
    /** The first instant not before the given one at which a row ends. */
    std::optional<qint64> firstEnd(qint64 instant) const;
    /** Whether a row lies in the interval whole. */
    bool knowsPartOf(const Interval &interval) const;
    std::vector<Fault> faults() const;

private:
    struct Row
    {
        IntervalAmount data;
        /** The sum of all rows before this one. */
        double sumBefore = 0.0;
        /** Rows of the same run follow each other without a gap. */
        int run = 0;

        double sumAfter() const { return sumBefore + data.amount; }
    };
    using RowIterator = std::vector<Row>::const_iterator;

    bool isPlausible(const IntervalAmount &amount) const;
    void append(const IntervalAmount &amount) const;
    void settle() const;
    void reportDouble(const IntervalAmount &known, const IntervalAmount &added) const;
    RowIterator startingNotBefore(qint64 instant) const;
    RowIterator endingAfter(qint64 instant) const;

    double mostPerHour;
    // See CounterHistory: what comes late waits for the next question.
    mutable std::vector<Row> rows;
    mutable std::vector<IntervalAmount> late;
    mutable std::vector<Fault> foundFaults;
};

} // namespace Readings

#endif
