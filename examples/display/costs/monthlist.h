// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_MONTHLIST_H
#define COSTS_MONTHLIST_H

#include "quantity.h"

#include <QDate>
#include <vector>

namespace Readings {
class Household;
}

namespace Costs {

struct CostRules;

/** The first days of the months in which the house counted, newest first. */
std::vector<QDate> monthsOf(const Readings::Household &household);

/** What the house counted at all, in the order of the columns of a table. */
std::vector<Readings::Quantity> countedQuantities(const Readings::Household &household);
/**
 * What a contract has a rate for, in the same order, but what the house measures and never counted:
 * the export of a house without panels.
 */
std::vector<Readings::Quantity> pricedQuantities(const Readings::Household &household,
                                                 const CostRules &rules);

} // namespace Costs

#endif
