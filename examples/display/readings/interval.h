// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_INTERVAL_H
#define READINGS_INTERVAL_H

#include <QtGlobal>

namespace Readings {

/**
 * A stretch of real time: from @p from on, up to but without @p to, both in seconds since
 * 1970-01-01 UTC. An interval whose end is not after its start is empty; the hour that the clock
 * skips in spring is such a one.
 */
struct Interval
{
    qint64 from = 0;
    qint64 to = 0;

    bool isEmpty() const { return to <= from; }
    /** The length in seconds of real time, 0 for an empty interval. */
    qint64 seconds() const { return isEmpty() ? 0 : to - from; }
};

inline bool operator==(const Interval &left, const Interval &right)
{
    return left.from == right.from && left.to == right.to;
}

} // namespace Readings

#endif
