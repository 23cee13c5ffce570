// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "houserecorder.h"

#include "dice.h"
#include "simulatedhouse.h"

using namespace Readings;

namespace {

constexpr qint64 secondsPerMinute = 60;
constexpr int minutesPerHour = 60;
constexpr double wattMinutesPerKilowattHour = 60000.0;
constexpr double cubicCentimetresPerCubicMetre = 1e6;
constexpr double joulesPerGigajoule = 1e9;
constexpr int lowTariffUntil = 7 * minutesPerHour;
constexpr int lowTariffFrom = 23 * minutesPerHour;

double unitsPerCount(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Gas:
    case Quantity::Water:
        return 1.0 / cubicCentimetresPerCubicMetre;
    case Quantity::Heating:
        return 1.0 / joulesPerGigajoule;
    default:
        return 1.0 / wattMinutesPerKilowattHour;
    }
}

/** Where the clock skips a full hour, the hour begins with what comes instead of it. */
bool isFullHour(const DayPlan &day, std::size_t index)
{
    const qint32 now = day.minutes[index].wallMinute;
    return now % minutesPerHour == 0
        || (index > 0
            && now / minutesPerHour != day.minutes[index - 1].wallMinute / minutesPerHour);
}

} // namespace

HouseRecorder::HouseRecorder(const SimulatedHouse *counted, Household *recorded)
    : house(counted), household(recorded), position(counted->start()), entered(position - 1)
{
    static const Register registers[] = {
        {Quantity::GridImport, Tariff::Low},         {Quantity::GridImport, Tariff::Normal},
        {Quantity::GridExport, Tariff::Low},         {Quantity::GridExport, Tariff::Normal},
        {Quantity::SolarProduction, Tariff::Single}, {Quantity::Gas, Tariff::Single},
        {Quantity::Water, Tariff::Single},           {Quantity::Heating, Tariff::Single},
        {Quantity::HeatPump, Tariff::Single},        {Quantity::ElectricCar, Tariff::Single},
    };
    constexpr int oldest = 9000; // kWh, m³ or GJ
    Dice dice(house->seed(), Dice::Purpose::Meters);
    for (const Register &meterRegister : registers) {
        const double value = dice.between(0, oldest);
        counters[meterRegister] = qint64(value / unitsPerCount(meterRegister.quantity));
    }
    household->timeZone = house->timeZone();
}

void HouseRecorder::recordUntil(qint64 instant)
{
    while (position + secondsPerMinute <= instant) {
        const DayPlan &day = house->dayAt(position);
        std::size_t index = std::size_t((position - day.from) / secondsPerMinute);
        for (; index < day.minutes.size() && position + secondsPerMinute <= instant; ++index) {
            const MinuteUse &use = day.minutes[index];
            if (position == house->start() || isFullHour(day, index)) {
                enter();
            }
            count(day, use);
            position += secondsPerMinute;
        }
    }
    if (position <= instant) {
        enter();
        household->measuredPower = GridPower {double(house->powerAt(position).grid()), position};
    }
}

void HouseRecorder::count(const DayPlan &day, const MinuteUse &use)
{
    const bool isLow =
        day.isWeekend || use.wallMinute < lowTariffUntil || use.wallMinute >= lowTariffFrom;
    const Tariff tariff = isLow ? Tariff::Low : Tariff::Normal;
    const qint32 grid = use.consumption() - use.solar;
    if (grid > 0) {
        counters[{Quantity::GridImport, tariff}] += grid;
    } else {
        counters[{Quantity::GridExport, tariff}] -= grid;
    }
    counters[{Quantity::SolarProduction, Tariff::Single}] += use.solar;
    counters[{Quantity::HeatPump, Tariff::Single}] += use.heatPump;
    counters[{Quantity::ElectricCar, Tariff::Single}] += use.car;
    counters[{Quantity::Gas, Tariff::Single}] += use.gas;
    counters[{Quantity::Water, Tariff::Single}] += use.water;
    counters[{Quantity::Heating, Tariff::Single}] += use.heat;
}

void HouseRecorder::enter()
{
    if (position == entered) {
        return;
    }
    entered = position;
    for (const auto &[meterRegister, counter] : counters) {
        const double value = double(counter) * unitsPerCount(meterRegister.quantity);
        household->meter(meterRegister, Meter::Kind::Counter).addReading(position, value);
    }
}
