// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "household.h"

#include "calendar.h"

#include <algorithm>
#include <iterator>

namespace Readings {

namespace {

constexpr double wattsPerKilowatt = 1000.0;
constexpr double secondsPerHour = 3600.0;
/** A meter that never gave may have been tested up to here before it was built in, in kWh. */
constexpr double testedCounter = 1.0;

bool hasTariffs(const Register &meterRegister)
{
    return meterRegister.tariff != Tariff::Single;
}

/** All instants at which a meter may know something. */
std::vector<qint64> bordersOf(const Meter &meter)
{
    std::vector<qint64> borders;
    for (const Reading &reading : meter.readings()) {
        borders.push_back(reading.instant);
    }
    for (const IntervalAmount &row : meter.amountRows()) {
        borders.push_back(row.interval.from);
        borders.push_back(row.interval.to);
    }
    std::sort(borders.begin(), borders.end());
    borders.erase(std::unique(borders.begin(), borders.end()), borders.end());
    return borders;
}

/** The stretches that rows cover; those of rows that follow each other are one. */
std::vector<Interval> stretchesOf(const std::vector<IntervalAmount> &rows)
{
    std::vector<Interval> stretches;
    for (const IntervalAmount &row : rows) {
        if (!stretches.empty() && stretches.back().to == row.interval.from) {
            stretches.back().to = row.interval.to;
        } else {
            stretches.push_back(row.interval);
        }
    }
    return stretches;
}

/** What meters counted together, from each instant at which all of them know to the next. */
std::vector<IntervalAmount> sumOfRows(const std::vector<const Meter *> &meters)
{
    std::vector<IntervalAmount> rows;
    std::optional<qint64> start;
    for (const qint64 end : bordersOf(*meters.front())) {
        const std::optional<double> sum =
            start ? sumOfAmounts(meters, {*start, end}) : std::optional<double>();
        if (sum) {
            rows.push_back({{*start, end}, *sum, 0});
        }
        start = end;
    }
    return rows;
}

} // namespace

std::optional<double> sumOfAmounts(const std::vector<const Meter *> &meters,
                                   const Interval &interval)
{
    if (meters.empty()) {
        return std::nullopt;
    }
    double sum = 0.0;
    for (const Meter *meter : meters) {
        const std::optional<double> amount = meter->amount(interval);
        if (!amount) {
            return std::nullopt;
        }
        sum += *amount;
    }
    return sum;
}

Meter &Household::meter(const Register &meterRegister, Meter::Kind kind)
{
    const double most = quantityInfo(meterRegister.quantity).mostPerHour;
    Meter &found = meters.try_emplace(meterRegister, kind, most).first->second;
    if (kind == Meter::Kind::Counter) {
        found.takeReadings();
    }
    return found;
}

void Household::makeWayFor(const Register &meterRegister)
{
    const Quantity quantity = meterRegister.quantity;
    const auto isOther = [&](const auto &entry) {
        return entry.first.quantity == quantity
            && hasTariffs(entry.first) != hasTariffs(meterRegister);
    };
    std::vector<const Meter *> others;
    for (const auto &entry : meters) {
        if (isOther(entry)) {
            others.push_back(&entry.second);
        }
    }
    if (others.empty()) {
        return;
    }
    const std::vector<IntervalAmount> counted = sumOfRows(others);
    for (auto entry = meters.begin(); entry != meters.end();) {
        entry = isOther(*entry) ? meters.erase(entry) : std::next(entry);
    }
    if (hasTariffs(meterRegister)) {
        const std::vector<Interval> stretches = stretchesOf(counted);
        std::vector<Interval> &untold = untoldTariffs[quantity];
        untold.insert(untold.end(), stretches.cbegin(), stretches.cend());
    }
    const Tariff whole = hasTariffs(meterRegister) ? Tariff::Normal : Tariff::Single;
    for (const IntervalAmount &row : counted) {
        meter({quantity, whole}, Meter::Kind::Amounts).addAmount(row.interval, row.amount);
        if (hasTariffs(meterRegister)) {
            meter({quantity, Tariff::Low}, Meter::Kind::Amounts).addAmount(row.interval, 0.0);
        }
    }
}

void Household::add(Household older)
{
    for (const auto &entry : meters) {
        older.makeWayFor(entry.first);
    }
    for (const auto &[meterRegister, known] : older.meters) {
        Meter &here = meter(meterRegister, known.kind());
        for (const Reading &reading : known.readings()) {
            here.addReading(reading.instant, reading.value, reading.tag);
        }
        for (const IntervalAmount &row : known.amountRows()) {
            here.addAmount(row.interval, row.amount, row.tag);
        }
    }
    for (const auto &[quantity, stretches] : older.untoldTariffs) {
        std::vector<Interval> &untold = untoldTariffs[quantity];
        untold.insert(untold.end(), stretches.cbegin(), stretches.cend());
    }
    problems += older.problems;
}

bool Household::tellsTariffs(Quantity quantity, const Interval &interval) const
{
    const auto low = meters.find({quantity, Tariff::Low});
    const auto normal = meters.find({quantity, Tariff::Normal});
    if (low == meters.end() || normal == meters.end()) {
        return false;
    }
    if (low->second.isRead(interval) && normal->second.isRead(interval)) {
        return true;
    }
    const auto untold = untoldTariffs.find(quantity);
    return untold == untoldTariffs.end()
        || std::none_of(untold->second.cbegin(), untold->second.cend(),
                        [&](const Interval &stretch) {
                            return stretch.from < interval.to && interval.from < stretch.to;
                        });
}

std::vector<const Meter *> Household::metersOf(Quantity quantity) const
{
    std::vector<const Meter *> found;
    for (const auto &entry : meters) {
        if (entry.first.quantity == quantity) {
            found.push_back(&entry.second);
        }
    }
    return found;
}

std::optional<double> Household::amount(Quantity quantity, const Interval &interval) const
{
    return sumOfAmounts(metersOf(quantity), interval);
}

double Household::total(Quantity quantity, const Interval &interval) const
{
    double sum = 0.0;
    for (const Meter *meter : metersOf(quantity)) {
        sum += meter->total(interval);
    }
    return sum;
}

std::optional<Measured> Household::measured(Quantity quantity, const Interval &slot) const
{
    return Calendar::measured(metersOf(quantity), slot, readUntil());
}

double Household::total(Quantity quantity) const
{
    double sum = 0.0;
    for (const Meter *meter : metersOf(quantity)) {
        sum += meter->total();
    }
    return sum;
}

bool Household::delivers() const
{
    const auto given = metersOf(Quantity::GridExport);
    return std::any_of(given.begin(), given.end(), [](const Meter *meter) {
        const std::optional<qint64> last = meter->lastInstant();
        return last
            && (meter->total() > 0.0 || meter->readingAt(*last).value_or(0.0) >= testedCounter);
    });
}

std::optional<double> Household::consumption(const Interval &interval) const
{
    const std::optional<double> imported = amount(Quantity::GridImport, interval);
    if (!imported) {
        return std::nullopt;
    }

    const bool hasExport = !metersOf(Quantity::GridExport).empty();
    const bool hasSolar = !metersOf(Quantity::SolarProduction).empty();
    const std::optional<double> exported =
        hasExport ? amount(Quantity::GridExport, interval) : std::optional<double>(0.0);
    const std::optional<double> produced =
        hasSolar ? amount(Quantity::SolarProduction, interval) : std::optional<double>(0.0);
    if (!exported || !produced) {
        return std::nullopt;
    }
    if (!hasSolar && *exported > 0.0) {
        return std::nullopt;
    }
    return *imported - *exported + *produced;
}

std::optional<qint64> Household::firstInstant() const
{
    std::optional<qint64> first;
    for (const auto &entry : meters) {
        if (const std::optional<qint64> instant = entry.second.firstInstant()) {
            first = first ? std::min(*first, *instant) : *instant;
        }
    }
    return first;
}

std::optional<qint64> Household::lastInstant() const
{
    std::optional<qint64> last;
    for (const auto &entry : meters) {
        if (const std::optional<qint64> instant = entry.second.lastInstant()) {
            last = last ? std::max(*last, *instant) : *instant;
        }
    }
    return last;
}

std::optional<GridPower> Household::latestPower() const
{
    if (measuredPower) {
        return measuredPower;
    }
    const std::vector<const Meter *> importers = metersOf(Quantity::GridImport);
    const std::vector<const Meter *> exporters = metersOf(Quantity::GridExport);
    if (importers.empty()) {
        return std::nullopt;
    }

    std::optional<qint64> last = importers.front()->lastInstant();
    while (last) {
        const std::optional<Interval> step = importers.front()->lastStepUntil(*last);
        if (!step) {
            return std::nullopt;
        }
        const std::optional<double> imported = sumOfAmounts(importers, *step);
        const std::optional<double> exported =
            exporters.empty() ? std::optional<double>(0.0) : sumOfAmounts(exporters, *step);
        if (imported && exported) {
            const double hours = static_cast<double>(step->seconds()) / secondsPerHour;
            return GridPower {(*imported - *exported) / hours * wattsPerKilowatt, step->to};
        }
        last = step->from;
    }
    return std::nullopt;
}

} // namespace Readings
