// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "quantity.h"

#include <array>

namespace Readings {

namespace {

// A house connection of three phases of 35 A gives 24 kW; a gas meter G6 10 m³/h; a water meter
// QN 2.5 at most 5 m³/h; the largest house station of district heating about 100 kW.
constexpr double mostElectricityPerHour = 25.0;
constexpr double mostGasPerHour = 10.0;
constexpr double mostWaterPerHour = 5.0;
constexpr double mostHeatPerHour = 0.4;

constexpr int quantityCount = 8;

} // namespace

const QuantityInfo &quantityInfo(Quantity quantity)
{
    static const QString kWh = QStringLiteral("kWh");
    static const QString cubicMetre = QString::fromUtf8("m³");
    static const QString gigajoule = QStringLiteral("GJ");
    static const std::array<QuantityInfo, quantityCount> table = {{
        {Quantity::GridImport, QStringLiteral("electricity import"), kWh, mostElectricityPerHour},
        {Quantity::GridExport, QStringLiteral("electricity export"), kWh, mostElectricityPerHour},
        {Quantity::SolarProduction, QStringLiteral("solar production"), kWh,
         mostElectricityPerHour},
        {Quantity::Gas, QStringLiteral("gas"), cubicMetre, mostGasPerHour},
        {Quantity::Water, QStringLiteral("water"), cubicMetre, mostWaterPerHour},
        {Quantity::Heating, QStringLiteral("heating"), gigajoule, mostHeatPerHour},
        {Quantity::HeatPump, QStringLiteral("heat pump"), kWh, mostElectricityPerHour},
        {Quantity::ElectricCar, QStringLiteral("electric car"), kWh, mostElectricityPerHour},
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
