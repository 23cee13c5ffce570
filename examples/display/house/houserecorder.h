// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HOUSERECORDER_H
#define HOUSERECORDER_H

#include "quantity.h"

#include <QtGlobal>
#include <map>

struct DayPlan;
struct MinuteUse;
class SimulatedHouse;

namespace Readings {
class Household;
}

/**
 * Reads the meters of a simulated house, as its time goes on, into the history of a household.
 *
 * @code
 * HouseRecorder recorder(&house, &household);
 * recorder.recordUntil(clock.instantAt(now)); // two years at first, then what has passed since
 * @endcode
 */
class HouseRecorder
{
public:
    /** Both must outlive the recorder. The household gets the clock of the house. */
    HouseRecorder(const SimulatedHouse *house, Readings::Household *household);

    /**
     * Enters the readings at each full hour of the house's clock up to @p instant, and those at the
     * last minute that ended by then, and makes the power of that moment the household's. An
     * instant before the last one changes nothing.
     *
     * Each call may add one reading to each meter, so once in some minutes is often enough.
     */
    void recordUntil(qint64 instant);

private:
    void count(const DayPlan &day, const MinuteUse &use);
    void enter();

    const SimulatedHouse *house;
    Readings::Household *household;
    /** In W·min, cm³ or J: whole numbers, so that nothing is lost in sums of years. */
    std::map<Readings::Register, qint64> counters;
    qint64 position;
    qint64 entered;
};

#endif
