// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energy.h"

#include "household.h"

#include <QCoreApplication>

using Readings::Household;
using Readings::Quantity;
using Readings::Tariff;

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Energy", text);
}

QString icon(const char *name)
{
    return QStringLiteral(":/zem/graphics/gwe/icons/icon_%1_15x20.png").arg(QLatin1String(name));
}

/** Adds a series unless nothing was ever counted, as by the export meter of a house without sun. */
void addSeries(std::vector<EnergySeries> &series, const QString &name, ZEMStyle::ZEMColor color,
               const Household &household, Quantity quantity)
{
    if (household.total(quantity) > 0.0) {
        series.push_back({name, color, household.metersOf(quantity)});
    }
}

/** Import as one series, or with two tariffs the sum of both and the low one in front of it. */
void addImport(std::vector<EnergySeries> &series, const Household &household)
{
    const Readings::Calendar::Meters meters = household.metersOf(Quantity::GridImport);
    const auto low = household.meters.find({Quantity::GridImport, Tariff::Low});
    const bool twoTariffs = meters.size() > 1 && low != household.meters.end();
    addSeries(series, twoTariffs ? tr("Normaal tarief") : tr("Verbruik"), ZEMStyle::Amber,
              household, Quantity::GridImport);
    if (twoTariffs) {
        series.push_back({tr("Laag tarief"), ZEMStyle::SkyBlue, {&low->second}});
    }
}

Energy electricity(const Household &household)
{
    Energy energy {QStringLiteral("electricity"),
                   tr("Elektriciteit"),
                   icon("el"),
                   QStringLiteral("kWh"),
                   {},
                   {}};
    addImport(energy.consumption, household);
    addSeries(energy.yield, tr("Opwekking"), ZEMStyle::Yellow, household,
              Quantity::SolarProduction);
    addSeries(energy.yield, tr("Teruglevering"), ZEMStyle::Green, household, Quantity::GridExport);
    return energy;
}

Energy gas(const Household &household)
{
    Energy energy {QStringLiteral("gas"), tr("Gas"), icon("fi"), QStringLiteral("m³"), {}, {}};
    addSeries(energy.consumption, tr("Gas"), ZEMStyle::Orange, household, Quantity::Gas);
    return energy;
}

Energy water(const Household &household)
{
    Energy energy {QStringLiteral("water"), tr("Water"), icon("wa"), QStringLiteral("m³"), {}, {}};
    addSeries(energy.consumption, tr("Water"), ZEMStyle::SkyBlue, household, Quantity::Water);
    return energy;
}

Energy heating(const Household &household)
{
    Energy energy {QStringLiteral("heating"), tr("Warmte"), icon("ci"),
                   QStringLiteral("GJ"),      {},           {}};
    addSeries(energy.consumption, tr("Warmte"), ZEMStyle::SoftRed, household, Quantity::Heating);
    return energy;
}

} // namespace

std::vector<Energy> energiesOf(const Household &household)
{
    std::vector<Energy> energies;
    for (Energy &energy : std::vector<Energy> {electricity(household), gas(household),
                                               water(household), heating(household)}) {
        if (!energy.consumption.empty() || !energy.yield.empty()) {
            energies.push_back(std::move(energy));
        }
    }
    return energies;
}
