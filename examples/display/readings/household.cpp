// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "household.h"

#include <algorithm>

namespace Readings {

namespace {

constexpr double WattsPerKilowatt = 1000.0;
constexpr double SecondsPerHour = 3600.0;

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

double Household::total(Quantity quantity) const
{
    double sum = 0.0;
    for (const Meter *meter : metersOf(quantity)) {
        sum += meter->total();
    }
    return sum;
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
            const double hours = static_cast<double>(step->seconds()) / SecondsPerHour;
            return GridPower {(*imported - *exported) / hours * WattsPerKilowatt, step->to};
        }
        last = step->from;
    }
    return std::nullopt;
}

} // namespace Readings
