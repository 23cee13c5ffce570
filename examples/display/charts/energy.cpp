// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energy.h"

#include "household.h"
#include "quantitylook.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>

using Readings::Household;
using Readings::Quantity;
using Readings::Tariff;

namespace {

/** Translates the names of series. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(Energy)
};

/** Adds a series unless nothing was ever counted, as by the export meter of a house without sun. */
void addSeries(std::vector<EnergySeries> &series, const QString &name, const Household &household,
               Quantity quantity)
{
    if (household.total(quantity) > 0.0) {
        const QuantityLook look = lookOf(quantity);
        series.push_back({name, look.caption, look.color, household.metersOf(quantity)});
    }
}

/** Whether each import that is known was counted by one of two tariffs. */
bool alwaysTellsTariffs(const Household &household)
{
    const std::optional<qint64> first = household.firstInstant();
    const std::optional<qint64> last = household.lastInstant();
    return first && last && household.tellsTariffs(Quantity::GridImport, {*first, *last});
}

/**
 * Import as one series, or with two tariffs the sum of both and the low one in front of it: what is
 * seen of the sum then is the normal one, unless it is of a time before there were two.
 */
void addImport(std::vector<EnergySeries> &series, const Household &household, bool showTariffs)
{
    const Readings::Calendar::Meters meters = household.metersOf(Quantity::GridImport);
    const auto low = household.meters.find({Quantity::GridImport, Tariff::Low});
    const bool twoTariffs = showTariffs && meters.size() > 1 && low != household.meters.end();
    const bool isApart = twoTariffs && alwaysTellsTariffs(household);
    addSeries(series, isApart ? Texts::tr("Normaal tarief") : Texts::tr("Van het net"), household,
              Quantity::GridImport);
    if (twoTariffs) {
        series.push_back({isApart ? Texts::tr("Laag tarief") : Texts::tr("Waarvan laag tarief"),
                          Texts::tr("laag tarief"),
                          ZEMStyle::SkyBlue,
                          {&low->second}});
    }
}

Energy electricity(const Household &household, bool showTariffs)
{
    Energy energy {
        QStringLiteral("electricity"), ZEM::TabElectricity, QStringLiteral("kWh"), {}, {}};
    addImport(energy.consumption, household, showTariffs);
    addSeries(energy.yield, Texts::tr("Opwekking"), household, Quantity::SolarProduction);
    addSeries(energy.yield, Texts::tr("Teruglevering"), household, Quantity::GridExport);
    return energy;
}

/** An energy of one series. */
Energy single(const QString &key, ZEM::ZEMTab tab, const QString &name, const Household &household,
              Quantity quantity)
{
    Energy energy {key, tab, Readings::quantityInfo(quantity).unit, {}, {}};
    addSeries(energy.consumption, name, household, quantity);
    return energy;
}

} // namespace

std::vector<Energy> energiesOf(const Household &household, bool showTariffs)
{
    std::vector<Energy> all {
        electricity(household, showTariffs),
        single(QStringLiteral("gas"), ZEM::TabGas, Texts::tr("Gas"), household, Quantity::Gas),
        single(QStringLiteral("heating"), ZEM::TabHeating, Texts::tr("Warmte"), household,
               Quantity::Heating),
        single(QStringLiteral("water"), ZEM::TabWater, Texts::tr("Water"), household,
               Quantity::Water),
        single(QStringLiteral("solar"), ZEM::TabSolar, Texts::tr("Opwekking"), household,
               Quantity::SolarProduction)};
    const auto isEmpty = [](const Energy &energy) {
        return energy.consumption.empty() && energy.yield.empty();
    };
    all.erase(std::remove_if(all.begin(), all.end(), isEmpty), all.end());
    return all;
}
