// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_MONTHSFILE_H
#define COSTS_MONTHSFILE_H

class QIODevice;

namespace Readings {
class Household;
}

namespace Costs {

struct CostRules;

/**
 * Writes the months of a household as CSV, oldest first: the amounts of each to a thousandth, and
 * with @p rules, which may be null, what they cost to the cent. What is not known is an empty cell;
 * the columns "at_least" and "at_most" name the cells of a row that are less, or more, than all.
 *
 * Returns the number of rows. Errors of @p device are the caller's to ask for.
 */
int writeMonths(const Readings::Household &household, const CostRules *rules, QIODevice *device);

} // namespace Costs

#endif
