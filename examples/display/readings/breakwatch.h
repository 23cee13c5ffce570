// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_BREAKWATCH_H
#define READINGS_BREAKWATCH_H

#include "household.h"

#include <QStringList>
#include <set>
#include <utility>

namespace Readings {

/** Tells once of each meter that was replaced or reset while it was followed. */
class BreakWatch
{
public:
    /** What has happened to the meters so far is no news. */
    void start(const Household &household);

    /**
     * What happened until @p now and was not told yet, one line for each register. What lies behind
     * that is of a clock that was put back since, and may turn out to be nothing.
     */
    QStringList news(const Household &household, qint64 now);

private:
    std::set<std::pair<Register, qint64>> known;
};

} // namespace Readings

#endif
