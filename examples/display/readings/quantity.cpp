// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "quantity.h"

#include <QCoreApplication>
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
        {Quantity::GridImport, QT_TRANSLATE_NOOP("Readings", "electricity import"), kWh,
         mostElectricityPerHour},
        {Quantity::GridExport, QT_TRANSLATE_NOOP("Readings", "electricity export"), kWh,
         mostElectricityPerHour},
        {Quantity::SolarProduction, QT_TRANSLATE_NOOP("Readings", "solar production"), kWh,
         mostElectricityPerHour},
        {Quantity::Gas, QT_TRANSLATE_NOOP("Readings", "gas"), cubicMetre, mostGasPerHour},
        {Quantity::Water, QT_TRANSLATE_NOOP("Readings", "water"), cubicMetre, mostWaterPerHour},
        {Quantity::Heating, QT_TRANSLATE_NOOP("Readings", "heating"), gigajoule, mostHeatPerHour},
        {Quantity::HeatPump, QT_TRANSLATE_NOOP("Readings", "heat pump"), kWh,
         mostElectricityPerHour},
        {Quantity::ElectricCar, QT_TRANSLATE_NOOP("Readings", "electric car"), kWh,
         mostElectricityPerHour},
    }};
    return table.at(static_cast<std::size_t>(quantity));
}

QString quantityName(Quantity quantity)
{
    return QCoreApplication::translate("Readings", quantityInfo(quantity).name);
}

QString registerName(const Register &meterRegister)
{
    const QString name = quantityName(meterRegister.quantity);
    switch (meterRegister.tariff) {
    case Tariff::Single:
        return name;
    case Tariff::Low:
        return QCoreApplication::translate("Readings", "%1 (low tariff)").arg(name);
    case Tariff::Normal:
        return QCoreApplication::translate("Readings", "%1 (normal tariff)").arg(name);
    }
    return name;
}

} // namespace Readings
