// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_COUNTERHISTORY_H
#define READINGS_COUNTERHISTORY_H

#include "interval.h"
#include "readingfilter.h"

#include <map>
#include <optional>
#include <vector>

namespace Readings {

/**
 * The history of a counter: readings at instants, in any order. See Meter, which is how the rest
 * of the program uses it.
 */
class CounterHistory
{
public:
    explicit CounterHistory(double mostPerHour);

    /**
     * Adds a reading. One that is newer than all others takes constant time; one that is not makes
     * the next question sort the whole history.
     */
    void add(const Reading &reading);
    /** As add(), but it takes the place of a reading of the same instant. */
    void replace(const Reading &reading);

    /** All readings in the order of time, the wrong ones too. */
    std::vector<Reading> all() const;

    /** See Meter::thin(). */
    void thin(qint64 before, qint64 step);

    std::optional<double> readingAt(qint64 instant) const;
    std::optional<double> amount(const Interval &interval) const;
    double total(const Interval &interval) const;
    std::optional<qint64> firstInstant() const;
    std::optional<qint64> lastInstant() const;
    std::optional<Interval> lastStepUntil(qint64 instant) const;

    /** The last instant in the interval up to which all from its start on is known. */
    std::optional<qint64> knownUntil(const Interval &interval) const;
    /** The last instant until the given one from which, or up to which, something may be known. */
    std::optional<qint64> lastStart(qint64 instant) const;
    std::optional<qint64> lastEnd(qint64 instant) const { return lastStart(instant); }
    /** The first instant from which on all is known until a reading at the given one. */
    qint64 knownSince(qint64 instant) const;
    /** The instant of the first reading that is not before the given one. */
    std::optional<qint64> firstStart(qint64 instant) const;
    /** From the first to the last reading in the interval; empty if there are not two. */
    Interval readIn(const Interval &interval) const;
    /** Whether there are two readings in the interval without a break between them. */
    bool knowsPartOf(const Interval &interval) const;
    std::vector<Fault> faults() const;

private:
    using KeptReading = std::vector<Reading>::const_iterator;

    bool isSettled() const { return late.empty() && retold.empty(); }
    void settle() const;
    std::vector<Reading> collected() const;
    KeptReading notBefore(qint64 instant) const;
    KeptReading after(qint64 instant) const;
    KeptReading find(qint64 instant) const;
    std::size_t indexOf(KeptReading kept) const;

    double mostPerHour;
    // A file may be read in any order, and sorting at each row would make that quadratic: what
    // comes late waits for the next question, which is why a question may change these.
    mutable ReadingFilter filter;
    mutable std::vector<Reading> late;
    mutable std::map<qint64, Reading> retold;
    mutable std::vector<Fault> contradictions;
    mutable std::optional<Reading> newest;
};

} // namespace Readings

#endif
