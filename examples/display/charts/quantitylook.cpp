// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "quantitylook.h"

#include <QCoreApplication>

using Readings::Quantity;

namespace {

/** Translates the captions. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(QuantityLook)
};

} // namespace

QuantityLook lookOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::GridImport:
        return {Texts::tr("van het net"), ZEMStyle::Amber, ZEMEnergyIcon::Electricity};
    case Quantity::GridExport:
        return {Texts::tr("teruglevering"), ZEMStyle::Green, ZEMEnergyIcon::Electricity};
    case Quantity::SolarProduction:
        return {Texts::tr("opwekking"), ZEMStyle::Lime, ZEMEnergyIcon::SolarProduction};
    case Quantity::Gas:
        return {Texts::tr("gas"), ZEMStyle::Orange, ZEMEnergyIcon::Gas};
    case Quantity::Water:
        return {Texts::tr("water"), ZEMStyle::SkyBlue, ZEMEnergyIcon::Water};
    case Quantity::Heating:
        return {Texts::tr("warmte"), ZEMStyle::SoftRed, ZEMEnergyIcon::Heating};
    case Quantity::HeatPump:
        return {Texts::tr("warmtepomp"), ZEMStyle::SoftRed, ZEMEnergyIcon::Electricity};
    case Quantity::ElectricCar:
        break;
    }
    return {Texts::tr("auto"), ZEMStyle::Amber, ZEMEnergyIcon::Electricity};
}
