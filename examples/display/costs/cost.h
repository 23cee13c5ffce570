// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_COST_H
#define COSTS_COST_H

#include "meter.h"
#include "price.h"

namespace Costs {

/**
 * What something cost, as far as it is known; below 0 it is what came in. The sum is exact: it is
 * counted in hundred-millionths of a euro, since amounts are told in thousandths of a unit and
 * prices in hundred-thousandths of a euro.
 *
 * Of what is not known only the sign may be: an amount that nobody measured at a price above 0
 * makes a cost a least, what the house gave at such a price makes it a most, and an hour without a
 * price may do either.
 */
struct Cost
{
    qint64 known = 0;
    bool isPartKnown = false; ///< whether there is anything in the sum
    bool mayBeMore = false;
    bool mayBeLess = false;

    /** Whether the sum is a number that can be told: all of it, or a least or a most. */
    bool isTold() const { return isPartKnown && !(mayBeMore && mayBeLess); }

    /** Adds a known amount in thousandths of a unit; a price below 0 brings in. */
    void add(qint64 thousandths, Price price);
    /** Adds what was measured, rounded to a thousandth of a unit, and what was not. */
    void add(const std::optional<Readings::Measured> &measured, Price price);
    /** Adds an amount at @p price that is not known. */
    void addUnknown(Price price);
    /** Adds an amount of which the price is not known. */
    void addUnknown();

    /** Rounded to whole cents, halves away from 0, as on a bill. */
    Cost rounded() const;
    /** The cents, rounded so. */
    qint64 cents() const;
};

Cost operator+(const Cost &left, const Cost &right);

/** An amount in thousandths of a unit, rounded to one. */
qint64 thousandthsOf(double amount);

} // namespace Costs

#endif
