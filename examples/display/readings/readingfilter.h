// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_READINGFILTER_H
#define READINGS_READINGFILTER_H

#include "fault.h"

#include <optional>
#include <vector>

namespace Readings {

/** A counter's value at an instant. */
struct Reading
{
    /** Seconds since 1970-01-01 UTC. */
    qint64 instant = 0;
    /** In the unit of the quantity; finite and not negative. */
    double value = 0.0;
    /** Any number of the caller's; it comes back in a Fault. */
    qint64 tag = 0;
};

/**
 * Tells a counter's right readings from its wrong ones.
 *
 * Readings come in rising order of time. One that steps back, or leaps above what a household can
 * have used, waits for the next reading, which decides:
 *
 * - The counter goes on as if nothing had been: the waiting reading was wrong and is taken out.
 * - The waiting reading stepped back, but not below the last reading but one: then the reading
 *   between these two was the wrong one, and is taken out.
 * - Otherwise the readings before and after belong together no more: a break (a meter replaced or
 *   reset). A new segment begins.
 */
class ReadingFilter
{
public:
    /**
     * @p mostPerHour is the most that the counter can rise in an hour. The same rise is granted for
     * any shorter time: many meters hand on their count only once an hour, and a logger that stood
     * still for some minutes catches up in one step.
     */
    explicit ReadingFilter(double mostPerHour);

    /** Takes the next reading; its instant must lie after that of every earlier one. */
    void append(const Reading &reading);

    /**
     * Drops the readings before @p before that no sum by slots of @p step seconds needs, as told at
     * dispensable(), and all that were discarded before it.
     */
    void thin(qint64 before, qint64 step);

    /** The right readings, in the order of time. */
    const std::vector<Reading> &kept() const { return keptReadings; }
    /** The segment of kept()[index]; between two segments there is a break. */
    std::size_t segmentOf(std::size_t index) const;
    /** The index of the first reading of a segment, and the one behind its last. */
    std::size_t beginOf(std::size_t segment) const { return segments[segment].begin; }
    std::size_t endOf(std::size_t segment) const;
    /** The wrong readings, in no order. */
    const std::vector<Reading> &discarded() const { return discardedReadings; }
    /** The newest reading, while it is not decided whether it is right. */
    const std::optional<Reading> &undecided() const { return waiting; }
    const std::vector<Fault> &faults() const { return foundFaults; }

    /**
     * What was counted from the first reading of all to kept()[index], plus a constant: the breaks
     * are taken out of it, so that the difference of two is what was counted in between.
     */
    double counted(std::size_t index) const;

private:
    bool follows(const Reading &earlier, const Reading &later) const;
    void decide(const Reading &suspect, const Reading &next);
    void accept(const Reading &reading);
    void keep(const Reading &reading);
    void keepAfterBreak(const Reading &reading);
    void discard(const Reading &reading, Fault::Kind kind);
    bool lastWasWrong(const Reading &suspect) const;

    double mostPerHour;
    struct Segment
    {
        std::size_t begin; ///< index of its first reading
        double offset; ///< from its readings to what was counted
    };

    std::vector<Reading> keptReadings;
    std::vector<Reading> discardedReadings;
    std::optional<Reading> waiting;
    std::vector<Segment> segments; ///< there are few
    std::vector<Fault> foundFaults;
};

} // namespace Readings

#endif
