// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "monthstransfer.h"

#include "monthsfile.h"
#include "options.h"
#include "readingsfile.h"

using Readings::Household;

namespace {

/** The months of which household are meant; empty for the reason in @p failure. */
std::optional<Household> householdOf(const Options &options, const QTimeZone &zone,
                                     Transfer *failure)
{
    if (options.readings.isEmpty()) {
        return readHistory(options.history, zone, failure);
    }
    Household household = Readings::loadReadings(options.readings);
    if (!household.firstInstant()) {
        *failure = {false,
                    QStringLiteral("nothing is written, as no reading of the files could be used"),
                    household.problems};
        return std::nullopt;
    }
    return household;
}

} // namespace

Transfer exportMonths(const Options &options, const QTimeZone &zone)
{
    Transfer failure;
    const std::optional<Household> household = householdOf(options, zone, &failure);
    if (!household) {
        return failure;
    }
    const Costs::CostRules *rules = options.costs ? &*options.costs : nullptr;
    Transfer done = writeRows(options.exportMonthsTo, [&](QIODevice *device) {
        return Costs::writeMonths(*household, rules, device);
    });
    done.problems = household->problems;
    if (rules) {
        done.problems += rules->problems;
    }
    return done;
}
