// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1RECORDER_H
#define P1RECORDER_H

#include "p1telegram.h"

#include <QtGlobal>
#include <functional>
#include <map>
#include <optional>

namespace Readings {
class Household;
}

/**
 * Enters a smart meter's telegrams into the history of a household.
 *
 * A meter tells its counters every second, and a year of that is more than a small device can hold.
 * So only the readings that are asked for are entered: at each full hour, and every @p step between
 * them so that the running hour is known, the last one heard at or before that instant. The first
 * reading of all and those around a silence are entered at their own instants.
 *
 * Nothing is made up: when the silence around a full hour was longer than told below, that hour has
 * no reading, which makes the slots on both sides of it gaps.
 */
class P1Recorder
{
public:
    /** Readings are entered so often, in seconds. */
    static constexpr qint64 step = 300;
    /** The longest silence across which a reading still holds, in seconds. */
    static constexpr qint64 longestSilence = 180;
    /**
     * The same for meters on the M-Bus, which are read every 5 or 15 minutes; those that are read
     * once an hour are read at the full hour.
     */
    static constexpr qint64 longestChannelSilence = 1200;

    /** Hears of each reading that is entered: its register, instant and value. */
    using Listener = std::function<void(const Readings::Register &, qint64, double)>;

    /** @p household must outlive the recorder; its clock becomes that of the meter. */
    explicit P1Recorder(Readings::Household *household, Listener entered = nullptr);

    /**
     * Enters a telegram, and its power as the household's. A telegram with a problem changes
     * nothing. @p receivedAt, in seconds since 1970-01-01 UTC, is the time of a telegram that does
     * not tell its own. What the household counted by other tariffs makes way, see
     * Readings::Household::makeWayFor(). Of an instant that is told twice, since the clock was put
     * back, the later telegram holds.
     */
    void add(const P1Telegram &telegram, qint64 receivedAt);

    /**
     * Enters the newest reading of each register at its own instant. To be called when nothing
     * follows, or before the very last moment is shown; each call may add a reading to each meter.
     */
    void enterNewest();

private:
    /** The latest of a register that was heard. */
    struct Latest
    {
        qint64 instant = 0;
        double value = 0.0;
        /** The instant of the newest reading that was entered. */
        std::optional<qint64> entered;
    };

    void add(const P1Reading &reading, qint64 instant);
    void enter(const Readings::Register &meterRegister, Latest &latest, qint64 instant);

    Readings::Household *household;
    const Listener entered;
    std::map<Readings::Register, Latest> latestOf;
};

#endif
