// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_FAULT_H
#define READINGS_FAULT_H

#include <QtGlobal>

namespace Readings {

/** Something that a meter's history found wrong in what it was fed. */
struct Fault
{
    enum class Kind {
        /** Another value for an instant or interval that was known already; the first one holds. */
        Contradiction,
        /** A single reading that made the counter step back; it was taken out. */
        StepBack,
        /** A single reading far above what can have been used; it was taken out. */
        Leap,
        /**
         * The counter goes on with the reading told here, and that does not follow from what went
         * before: the meter was replaced or reset. Nothing is counted from the reading before it
         * to this one.
         */
        Break,
        /**
         * The newest reading of all steps back or leaps; the next one will decide about it. Until
         * then it counts as missing.
         */
        Undecided,
        /** An interval that covers a part of one known already; it was left out. */
        Overlap,
        /** An amount that no household takes in such a time; it was left out. */
        TooMuch,
    };

    Kind kind;
    /** Seconds since 1970-01-01 UTC: of the reading, or the start of the interval. */
    qint64 instant;
    /** The reading or the amount. */
    double value;
    /** The number that the caller gave with it. */
    qint64 tag;
};

} // namespace Readings

#endif
