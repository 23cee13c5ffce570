// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DICE_H
#define DICE_H

#include <QtGlobal>

/**
 * Chance that can be repeated: the same seed, purpose and number give the same throws, on every
 * machine. What happens on a day does not depend on what was asked of another one.
 */
class Dice
{
public:
    /** What chance decides; each has throws of its own. */
    enum class Purpose {
        Clouds,
        Warmth,
        Household,
        Kitchen,
        Washing,
        Water,
        Car,
        Driving,
        HeatPump,
        Holiday,
        Devices,
        Meters,
    };

    Dice(quint64 seed, Purpose purpose, qint64 number = 0)
        : state(mixed(mixed(seed + quint64(purpose) * spread) + quint64(number)))
    {
    }

    /** The next throw, from 0 up to but without 1. */
    double next()
    {
        constexpr int unusedBits = 11;
        constexpr double scale = 1.0 / double(Q_UINT64_C(1) << (64 - unusedBits));
        state += spread;
        return double(mixed(state) >> unusedBits) * scale;
    }
    /** From @p low to @p high. */
    double between(double low, double high) { return low + (high - low) * next(); }
    /** A whole number from @p low to @p high, both included. */
    int between(int low, int high) { return low + int(next() * (high - low + 1)); }
    /** True in @p chance of all cases. */
    bool chance(double probability) { return next() < probability; }

private:
    static constexpr quint64 spread = Q_UINT64_C(0x9E3779B97F4A7C15);

    static quint64 mixed(quint64 bits)
    {
        bits = (bits ^ (bits >> 30)) * Q_UINT64_C(0xBF58476D1CE4E5B9);
        bits = (bits ^ (bits >> 27)) * Q_UINT64_C(0x94D049BB133111EB);
        return bits ^ (bits >> 31);
    }

    quint64 state;
};

#endif
