// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "quantity.h"

#include <array>

namespace Readings {

namespace {

// A house connection of three phases of 35 A gives 24 kW; a gas meter G6 10 m³/h; a water meter
// QN 2.5 at most 5 m³/h; the largest house station of district heating about 100 kW.
constexpr double MostElectricityPerHour = 25.0;
constexpr double MostGasPerHour = 10.0;
constexpr double MostWaterPerHour = 5.0;
constexpr double MostHeatPerHour = 0.4;

constexpr int QuantityCount = 8;

} // namespace

const QuantityInfo &quantityInfo(Quantity quantity)
{
    static const QString kWh = QStringLiteral("kWh");
    static const QString cubicMetre = QString::fromUtf8("m³");
    static const QString gigajoule = QStringLiteral("GJ");
    static const std::array<QuantityInfo, QuantityCount> table = {{
        {Quantity::GridImport, QStringLiteral("electricity import"), kWh, MostElectricityPerHour},
        {Quantity::GridExport, QStringLiteral("electricity export"), kWh, MostElectricityPerHour},
        {Quantity::SolarProduction, QStringLiteral("solar production"), kWh,
         MostElectricityPerHour},
        {Quantity::Gas, QStringLiteral("gas"), cubicMetre, MostGasPerHour},
        {Quantity::Water, QStringLiteral("water"), cubicMetre, MostWaterPerHour},
        {Quantity::Heating, QStringLiteral("heating"), gigajoule, MostHeatPerHour},
        {Quantity::HeatPump, QStringLiteral("heat pump"), kWh, MostElectricityPerHour},
        {Quantity::ElectricCar, QStringLiteral("electric car"), kWh, MostElectricityPerHour},
    }};
    return table.at(static_cast<std::size_t>(quantity));
}

QString registerName(const Register &meterRegister)
{
    QString name = quantityInfo(meterRegister.quantity).name;
    switch (meterRegister.tariff) {
    case Tariff::Single:
        return name;
    case Tariff::Low:
        return name + QStringLiteral(" (low tariff)");
    case Tariff::Normal:
        return name + QStringLiteral(" (normal tariff)");
    }
    return name;
}

} // namespace Readings
