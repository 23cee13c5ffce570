// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pricelist.h"

#include <algorithm>
#include <iterator>

namespace Costs {

namespace {

constexpr qint64 hour = 3600; // seconds

} // namespace

PriceList::Answer PriceList::add(qint64 from, Price price)
{
    const auto next = prices.lower_bound(from);
    if (next != prices.end() && next->first == from) {
        return next->second == price ? Answer::Known : Answer::Contradiction;
    }
    const bool isInHourBefore = next != prices.begin() && std::prev(next)->first + hour > from;
    const bool isInHourBehind = next != prices.end() && from + hour > next->first;
    if (isInHourBefore || isInHourBehind) {
        return Answer::Overlap;
    }
    prices.emplace_hint(next, from, price);
    return Answer::Taken;
}

PriceList::Stretch PriceList::firstOf(const Readings::Interval &interval) const
{
    const auto next = prices.upper_bound(interval.from);
    if (next != prices.begin() && std::prev(next)->first + hour > interval.from) {
        const auto present = std::prev(next);
        return {{interval.from, std::min(present->first + hour, interval.to)}, present->second};
    }
    const qint64 end = next == prices.end() ? interval.to : std::min(next->first, interval.to);
    return {{interval.from, end}, std::nullopt};
}

} // namespace Costs
