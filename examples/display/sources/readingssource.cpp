// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "readingssource.h"

#include "calendar.h"

#include <algorithm>

using Readings::Household;
using Readings::Interval;
using Readings::Quantity;

namespace {

constexpr double wattsPerKilowatt = 1000.0;
constexpr double secondsPerHour = 3600.0;

/** The mean power of the last interval that the meters of a quantity know, in watts. */
std::optional<double> lastPower(const Household &household, Quantity quantity)
{
    const auto meters = household.metersOf(quantity);
    if (meters.empty() || !meters.front()->lastInstant()) {
        return std::nullopt;
    }
    const std::optional<Interval> step =
        meters.front()->lastStepUntil(*meters.front()->lastInstant());
    const std::optional<double> amount =
        step ? household.amount(quantity, *step) : std::optional<double>();
    if (!amount) {
        return std::nullopt;
    }
    return *amount / double(step->seconds()) * secondsPerHour * wattsPerKilowatt;
}

void addDevice(PowerReport *report, const Household &household, Quantity quantity, Device device,
               double most)
{
    if (const std::optional<double> watts = lastPower(household, quantity)) {
        report->devices.append({device, *watts, most});
    }
}

} // namespace

ReadingsSource::ReadingsSource(Household household, QObject *parent)
    : EnergySource(parent), readings(std::move(household))
{
}

std::optional<PowerReport> ReadingsSource::power() const
{
    const std::optional<Readings::GridPower> grid = readings.latestPower();
    if (!grid) {
        return std::nullopt;
    }
    PowerReport report;
    report.grid = grid->watts;
    report.production = lastPower(readings, Quantity::SolarProduction);
    report.tellConsumption(readings.delivers());
    addDevice(&report, readings, Quantity::HeatPump, Device::HeatPump, 3000.0);
    addDevice(&report, readings, Quantity::ElectricCar, Device::Car, 11000.0);
    return report;
}

double ReadingsSource::mostProduction() const
{
    const Readings::Calendar calendar(readings.timeZone);
    const auto meters = readings.metersOf(Quantity::SolarProduction);
    if (meters.empty() || !readings.lastInstant()) {
        return 0.0;
    }
    double most = 0.0;
    const QDate last = calendar.dateAt(*readings.lastInstant());
    for (QDate date = calendar.dateAt(*readings.firstInstant()); date <= last;
         date = date.addDays(1)) {
        for (const std::optional<double> &amount : calendar.hoursOfDay(meters, date)) {
            most = std::max(most, amount.value_or(0.0));
        }
    }
    return most * wattsPerKilowatt;
}
