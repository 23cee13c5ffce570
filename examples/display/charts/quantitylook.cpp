// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "quantitylook.h"

#include <QCoreApplication>

using Readings::Quantity;

QuantityLook lookOf(Quantity quantity)
{
    const auto tr = [](const char *text) {
        return QCoreApplication::translate("QuantityLook", text);
    };
    switch (quantity) {
    case Quantity::GridImport:
        return {tr("verbruik"), ZEMStyle::Amber, ZEMEnergyIcon::Electricity};
    case Quantity::GridExport:
        return {tr("teruglevering"), ZEMStyle::Green, ZEMEnergyIcon::Electricity};
    case Quantity::SolarProduction:
        return {tr("opwekking"), ZEMStyle::Lime, ZEMEnergyIcon::SolarProduction};
    case Quantity::Gas:
        return {tr("gas"), ZEMStyle::Orange, ZEMEnergyIcon::Gas};
    case Quantity::Water:
        return {tr("water"), ZEMStyle::SkyBlue, ZEMEnergyIcon::Water};
    case Quantity::Heating:
        return {tr("warmte"), ZEMStyle::SoftRed, ZEMEnergyIcon::Heating};
    case Quantity::HeatPump:
        return {tr("warmtepomp"), ZEMStyle::SoftRed, ZEMEnergyIcon::Electricity};
    case Quantity::ElectricCar:
        break;
    }
    return {tr("auto"), ZEMStyle::Amber, ZEMEnergyIcon::Electricity};
}
