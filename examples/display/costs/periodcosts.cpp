// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "periodcosts.h"

#include "calendar.h"
#include "daterange.h"
#include "household.h"

#include <algorithm>

using Readings::Calendar;
using Readings::Household;
using Readings::Interval;
using Readings::Measured;
using Readings::Quantity;
using Readings::Tariff;

namespace Costs {

namespace {

/** From a price of a month to a sum of the unit of Cost. */
constexpr qint64 wholeUnit = 1000;

Days monthOf(const QDate &date)
{
    const QDate first(date.year(), date.month(), 1);
    return {first, first.addMonths(1)};
}

/** What is paid for a unit at a price: what the house gives brings it in. */
Price paid(Quantity quantity, Price price)
{
    return quantity == Quantity::GridExport ? -price : price;
}

/** The part of a stretch that all meters have reached. */
Interval untilLastReading(const Calendar::Meters &meters, Interval stretch)
{
    for (const Readings::Meter *meter : meters) {
        const std::optional<qint64> last = meter->lastInstant();
        if (last && *last > stretch.from) {
            stretch.to = std::min(stretch.to, *last);
        }
    }
    return stretch;
}

bool isNothing(const std::optional<Measured> &measured)
{
    return measured && measured->isComplete && thousandthsOf(measured->amount) == 0;
}

Cost byTariff(const Household &household, Quantity quantity, const Interval &stretch,
              const Rate &rate)
{
    Cost cost;
    const bool isTold =
        household.tellsTariffs(quantity, untilLastReading(household.metersOf(quantity), stretch));
    for (const auto &[tariff, price] :
         {std::pair(Tariff::Low, rate.low), std::pair(Tariff::Normal, rate.normal)}) {
        if (isTold) {
            const Calendar::Meters meter {&household.meters.at({quantity, tariff})};
            cost.add(Calendar::measured(meter, stretch, household.readUntil()),
                     paid(quantity, price));
        } else {
            cost.addUnknown(paid(quantity, price));
        }
    }
    return cost;
}

Cost byHour(const Household &household, Quantity quantity, const Interval &stretch,
            const Rate &rate, const PriceList &prices)
{
    Cost cost;
    const Calendar::Meters meters = household.metersOf(quantity);
    const qint64 end = household.readUntil();
    Interval rest = stretch.to > end ? untilLastReading(meters, stretch) : stretch;
    double counted = 0.0;
    qint64 charged = 0;
    while (!rest.isEmpty()) {
        const PriceList::Stretch hour = prices.firstOf(rest);
        rest.from = hour.interval.to;
        const std::optional<Measured> measured = Calendar::measured(meters, hour.interval, end);
        if (!hour.price) {
            if (!isNothing(measured)) {
                cost.addUnknown();
            }
            continue;
        }
        const Price price = paid(quantity, *hour.price + rate.normal);
        if (measured) {
            // What is less than a thousandth goes to the next hour, and is not lost in each.
            counted += measured->amount;
            const qint64 amount = thousandthsOf(counted) - charged;
            charged += amount;
            cost.add(amount, price);
        }
        if (!measured || !measured->isComplete) {
            cost.addUnknown(price);
        }
    }
    return cost;
}

Cost ofStretch(const Household &household, const CostRules &rules, Quantity quantity,
               const Interval &stretch, const Contract *contract)
{
    Cost cost;
    const std::optional<Measured> measured = household.measured(quantity, stretch);
    const Rate *rate = contract ? contract->rateOf(quantity) : nullptr;
    if (!rate) {
        if (measured && thousandthsOf(measured->amount) > 0) {
            cost.addUnknown();
        }
        return cost;
    }
    if (isNothing(measured)) {
        cost.add(0, 0);
        return cost;
    }
    if (rate->isHourly) {
        return byHour(household, quantity, stretch, *rate, rules.prices);
    }
    if (rate->hasTariffs()) {
        return byTariff(household, quantity, stretch, *rate);
    }
    cost.add(measured, paid(quantity, rate->normal));
    return cost;
}

} // namespace

Cost costOf(const Household &household, const CostRules &rules, Quantity quantity, const Days &days)
{
    Cost cost;
    const std::optional<qint64> last = household.lastInstant();
    const Calendar calendar(household.timeZone);
    for (const CostRules::Stretch &stretch : rules.stretchesOf(days)) {
        const Interval interval {calendar.day(stretch.days.first).from,
                                 calendar.day(stretch.days.end).from};
        if (last && interval.from < *last) {
            cost = cost + ofStretch(household, rules, quantity, interval, stretch.contract);
        }
    }
    return cost;
}

Cost standingOf(const Household &household, const CostRules &rules, const QDate &month)
{
    Cost cost;
    const Days days = monthOf(month);
    const QDate end = std::min(days.end, datesOf(household).last.addDays(1));
    qint64 sum = 0;
    for (const CostRules::Stretch &stretch : rules.stretchesOf({days.first, end})) {
        if (stretch.contract && stretch.contract->standing) {
            sum += *stretch.contract->standing * stretch.days.first.daysTo(stretch.days.end);
            cost.isPartKnown = true;
        }
    }
    // Divided once, so that a month whose charge changes has no more rounded than any other.
    const qint64 count = month.daysInMonth();
    const qint64 half = sum < 0 ? -count / 2 : count / 2;
    cost.known = (sum * wholeUnit + half) / count;
    return cost;
}

MonthCosts costsOfMonth(const Household &household, const CostRules &rules, const QDate &month)
{
    MonthCosts costs;
    costs.standing = standingOf(household, rules, month).rounded();
    costs.total = costs.standing;
    for (const Quantity quantity : rules.quantities()) {
        const Cost line = costOf(household, rules, quantity, monthOf(month)).rounded();
        costs.lines[quantity] = line;
        costs.total = costs.total + line;
    }
    return costs;
}

} // namespace Costs
