// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef POWERCOUNTER_H
#define POWERCOUNTER_H

#include <QtGlobal>
#include <optional>

/**
 * Adds up power, so that a publisher that has no counters gives readings of one all the same.
 *
 * A power holds until the next one. Where none came for too long, or where it was unknown, nothing
 * is made up: the counter then goes on at the next full @p segment, which is a leap that every
 * reader of a counter takes for a meter that was replaced, and so the stretch stays a gap.
 */
class PowerCounter
{
public:
    /** The longest time for which a power holds, in seconds. */
    static constexpr qint64 longestSilence = 180;
    /** In kWh: more than a household uses while a program waits, and a whole number of Wh. */
    static constexpr double segment = 1000000.0;

    /** Told once, before add(): the last reading, in kWh, of a counter of earlier days. */
    void goOnFrom(double kilowattHours);

    /**
     * From @p instant (seconds since 1970-01-01 UTC) on the power is @p watts; what is below 0
     * counts as 0. Empty: it is unknown. An instant before the last one is left out.
     */
    void add(qint64 instant, std::optional<double> watts);

    /** The counter at the last instant, in kWh; empty while the power is unknown. */
    std::optional<double> reading() const;

private:
    bool isBegun = false;
    bool isKnown = false;
    double counter = 0.0;
    std::optional<double> power;
    qint64 last = 0;
};

#endif
