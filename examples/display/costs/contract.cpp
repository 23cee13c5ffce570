// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "contract.h"

#include <algorithm>
#include <set>

namespace Costs {

const Rate *Contract::rateOf(Readings::Quantity quantity) const
{
    const auto found = rates.find(quantity);
    return found == rates.end() ? nullptr : &found->second;
}

std::vector<Readings::Quantity> CostRules::quantities() const
{
    std::set<Readings::Quantity> found;
    for (const Contract &contract : contracts) {
        for (const auto &entry : contract.rates) {
            found.insert(entry.first);
        }
    }
    return {found.cbegin(), found.cend()};
}

bool CostRules::hasStanding() const
{
    return std::any_of(contracts.cbegin(), contracts.cend(),
                       [](const Contract &contract) { return contract.standing.has_value(); });
}

bool CostRules::wantsPrices() const
{
    return std::any_of(contracts.cbegin(), contracts.cend(), [](const Contract &contract) {
        return std::any_of(contract.rates.cbegin(), contract.rates.cend(),
                           [](const auto &entry) { return entry.second.isHourly; });
    });
}

std::vector<CostRules::Stretch> CostRules::stretchesOf(const Days &days) const
{
    std::vector<Stretch> stretches;
    Days rest = days;
    const Contract *present = nullptr;
    for (const Contract &next : contracts) {
        if (next.from >= days.end) {
            break;
        }
        if (next.from > rest.first) {
            stretches.push_back({{rest.first, next.from}, present});
            rest.first = next.from;
        }
        present = &next;
    }
    if (rest.first < rest.end) {
        stretches.push_back({rest, present});
    }
    return stretches;
}

} // namespace Costs
