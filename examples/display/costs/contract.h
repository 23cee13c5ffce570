// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_CONTRACT_H
#define COSTS_CONTRACT_H

#include "price.h"
#include "pricelist.h"

#include <QDate>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

namespace Costs {

/** What a unit of a quantity costs; of what the house gives, what it brings in. */
struct Rate
{
    Price low = 0; ///< at the low tariff
    Price normal = 0; ///< the same where there is one tariff
    bool isHourly = false; ///< the price of the hour comes on top

    bool hasTariffs() const { return low != normal; }
};

/** What a household pays from a date on. */
struct Contract
{
    QDate from;
    std::map<Readings::Quantity, Rate> rates = {};
    std::optional<Price> standing = {}; ///< of a month

    /** Null if there is none. */
    const Rate *rateOf(Readings::Quantity quantity) const;
};

/** A stretch of days, the last of which is the one before @p end. */
struct Days
{
    QDate first;
    QDate end;
};

/** All that tells what something cost. */
struct CostRules
{
    /** Each holds until the next one begins, in the order of time. */
    std::vector<Contract> contracts;
    /** Of the hours, for rates that are hourly. */
    PriceList prices = {};
    /** The files that the prices are of. */
    QStringList priceFiles = {};
    /** What is wrong with them, one line each. */
    QStringList problems = {};

    /** What any of the contracts has a rate for, in the order of Quantity. */
    std::vector<Readings::Quantity> quantities() const;
    /** Whether any of them has a standing charge. */
    bool hasStanding() const;
    /** Whether any of them has an hourly rate. */
    bool wantsPrices() const;

    /** Some days and the contract that holds then; null before the first of all. */
    struct Stretch
    {
        Days days;
        const Contract *contract;
    };
    /** The stretches of @p days, in the order of time. */
    std::vector<Stretch> stretchesOf(const Days &days) const;
};

} // namespace Costs

#endif
