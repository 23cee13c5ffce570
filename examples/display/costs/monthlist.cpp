// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "monthlist.h"

#include "contract.h"
#include "daterange.h"
#include "household.h"

#include <algorithm>

using Readings::Quantity;

namespace Costs {

namespace {

constexpr Quantity columnOrder[] = {Quantity::GridImport,      Quantity::GridExport,
                                    Quantity::SolarProduction, Quantity::Gas,
                                    Quantity::Heating,         Quantity::Water};

} // namespace

std::vector<QDate> monthsOf(const Readings::Household &household)
{
    std::vector<QDate> months;
    if (!household.firstInstant()) {
        return months;
    }
    const DateRange dates = datesOf(household);
    for (QDate month(dates.last.year(), dates.last.month(), 1); month.addMonths(1) > dates.first;
         month = month.addMonths(-1)) {
        months.push_back(month);
    }
    return months;
}

std::vector<Quantity> countedQuantities(const Readings::Household &household)
{
    std::vector<Quantity> counted;
    for (const Quantity quantity : columnOrder) {
        if (household.total(quantity) > 0.0) {
            counted.push_back(quantity);
        }
    }
    return counted;
}

std::vector<Quantity> pricedQuantities(const Readings::Household &household, const CostRules &rules)
{
    const std::vector<Quantity> named = rules.quantities();
    std::vector<Quantity> priced;
    for (const Quantity quantity : columnOrder) {
        const bool isNamed = std::find(named.cbegin(), named.cend(), quantity) != named.cend();
        if (isNamed && (household.metersOf(quantity).empty() || household.total(quantity) > 0.0)) {
            priced.push_back(quantity);
        }
    }
    return priced;
}

} // namespace Costs
