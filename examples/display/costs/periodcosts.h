// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_PERIODCOSTS_H
#define COSTS_PERIODCOSTS_H

#include "contract.h"
#include "cost.h"

#include <map>

namespace Readings {
class Household;
}

namespace Costs {

/**
 * What a quantity cost on some days, by the clock of the house, up to its last reading: the amount
 * times the price of the contract that holds then. What the house gives is below 0.
 *
 * With two tariffs each register has its price; where the house does not tell them apart, the cost
 * is not known. At an hourly rate the amount of each hour has the price of that hour. A time before
 * the first contract, or under one that has no rate for the quantity, has an unknown cost if
 * anything was counted in it. Where nothing was used, nothing is paid, whatever the price.
 */
Cost costOf(const Readings::Household &household, const CostRules &rules,
            Readings::Quantity quantity, const Days &days);

/**
 * The standing charge of a month, to which its days contribute equally: those under each contract,
 * up to the day of the household's last reading. @p month is any day of it.
 */
Cost standingOf(const Readings::Household &household, const CostRules &rules, const QDate &month);

/** What a month cost, each in whole cents as the lines of a bill, and their sum. */
struct MonthCosts
{
    std::map<Readings::Quantity, Cost> lines; ///< of all that some contract has a rate for
    Cost standing;
    Cost total;
};

/** What a month cost so far; @p month is any day of it. */
MonthCosts costsOfMonth(const Readings::Household &household, const CostRules &rules,
                        const QDate &month);

} // namespace Costs

#endif
