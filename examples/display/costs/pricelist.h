// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_PRICELIST_H
#define COSTS_PRICELIST_H

#include "interval.h"
#include "price.h"

#include <map>

namespace Costs {

/** What a kWh cost in each hour. */
class PriceList
{
public:
    enum class Answer {
        Taken,
        Known, ///< that hour had just this price
        Contradiction, ///< that hour has another price, which holds
        Overlap, ///< some hour that is known has a part in it, and holds
    };

    /** The price of the hour that begins at an instant, in seconds since 1970-01-01 UTC. */
    Answer add(qint64 from, Price price);
    bool isEmpty() const { return prices.empty(); }

    /** A stretch of time in which one price holds, or none is known. */
    struct Stretch
    {
        Readings::Interval interval;
        std::optional<Price> price;
    };
    /** The longest such stretch that begins with @p interval, but not more of it than that. */
    Stretch firstOf(const Readings::Interval &interval) const;

private:
    std::map<qint64, Price> prices;
};

} // namespace Costs

#endif
