// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "energy.h"
#include "household.h"
#include "nightstyler.h"
#include "quantitylook.h"

#include <QTest>
#include <ZEMStyle>
#include <algorithm>

using Readings::Household;
using Readings::Quantity;
using Readings::Tariff;

Q_DECLARE_METATYPE(PowerKind)
Q_DECLARE_METATYPE(Readings::Quantity)

/** How quantities look, wherever they are shown. */
class tst_QuantityLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coloursOfOneLegendAreToldApart();
    void barOfTwoTariffsIsNamedByThem();
    void barOfWhichATimeIsWithoutTariffsIsNamedAsAWhole();
    void importIsNamedByTheGrid();
    void analysisHasTheColoursOfTheCharts_data();
    void analysisHasTheColoursOfTheCharts();
};

static Household houseWithTwoTariffsAndPanels()
{
    Household household;
    household.timeZone = QTimeZone("Europe/Amsterdam");
    for (const Readings::Register &channel :
         {Readings::Register {Quantity::GridImport, Tariff::Normal},
          Readings::Register {Quantity::GridImport, Tariff::Low},
          Readings::Register {Quantity::SolarProduction, Tariff::Single},
          Readings::Register {Quantity::GridExport, Tariff::Single}}) {
        Readings::Meter &meter = household.meter(channel, Readings::Meter::Kind::Counter);
        meter.addReading(0, 0.0);
        meter.addReading(3600, 1.0);
    }
    return household;
}

static QStringList namesOf(const std::vector<EnergySeries> &allSeries)
{
    QStringList names;
    for (const EnergySeries &series : allSeries) {
        names << series.name;
    }
    return names;
}

void tst_QuantityLook::coloursOfOneLegendAreToldApart()
{
    constexpr int leastDifference = 25; // degrees on the circle of hues
    const Household household = houseWithTwoTariffsAndPanels();
    const Energy electricity = energiesOf(household).front();
    std::vector<EnergySeries> all = electricity.consumption;
    all.insert(all.end(), electricity.yield.begin(), electricity.yield.end());
    QCOMPARE(int(all.size()), 4);
    const ZEMStyle style(nullptr);
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const int apart =
                std::abs(style.color(all[i].color).hue() - style.color(all[j].color).hue());
            QVERIFY2(std::min(apart, 360 - apart) >= leastDifference,
                     qPrintable(all[i].name + QLatin1String(" and ") + all[j].name));
        }
    }
}

/** Of the bar of both tariffs only the normal one is seen behind that of the low one. */
void tst_QuantityLook::barOfTwoTariffsIsNamedByThem()
{
    const Household household = houseWithTwoTariffsAndPanels();
    const Energy electricity = energiesOf(household).front();
    QCOMPARE(namesOf(electricity.consumption),
             QStringList({QStringLiteral("Normaal tarief"), QStringLiteral("Laag tarief")}));
    QCOMPARE(electricity.consumption.front().caption, QStringLiteral("van het net"));
    QCOMPARE(electricity.consumption.front().meters.size(), std::size_t(2));
    QCOMPARE(namesOf(electricity.yield),
             QStringList({QStringLiteral("Opwekking"), QStringLiteral("Teruglevering")}));
}

void tst_QuantityLook::barOfWhichATimeIsWithoutTariffsIsNamedAsAWhole()
{
    Household older;
    Readings::Meter &whole = older.meter({Quantity::GridImport}, Readings::Meter::Kind::Counter);
    whole.addReading(-7200, 10.0);
    whole.addReading(-3600, 12.0);
    Household household = houseWithTwoTariffsAndPanels();
    household.add(older);
    QCOMPARE(namesOf(energiesOf(household).front().consumption),
             QStringList({QStringLiteral("Van het net"), QStringLiteral("Waarvan laag tarief")}));
}

void tst_QuantityLook::importIsNamedByTheGrid()
{
    const Household household = houseWithTwoTariffsAndPanels();
    const std::vector<EnergySeries> series = energiesOf(household, false).front().consumption;
    QCOMPARE(namesOf(series), QStringList {QStringLiteral("Van het net")});
    QCOMPARE(lookOf(Quantity::GridImport).caption, nameOf(PowerKind::GridImport));
    QVERIFY(series.front().caption != nameOf(PowerKind::Consumption));
}

void tst_QuantityLook::analysisHasTheColoursOfTheCharts_data()
{
    QTest::addColumn<PowerKind>("kind");
    QTest::addColumn<Quantity>("quantity");
    QTest::newRow("consumption") << PowerKind::Consumption << Quantity::GridImport;
    QTest::newRow("import") << PowerKind::GridImport << Quantity::GridImport;
    QTest::newRow("production") << PowerKind::Production << Quantity::SolarProduction;
    QTest::newRow("export") << PowerKind::GridExport << Quantity::GridExport;
}

void tst_QuantityLook::analysisHasTheColoursOfTheCharts()
{
    QFETCH(PowerKind, kind);
    QFETCH(Quantity, quantity);
    QCOMPARE(NightStyler::colorOf(kind), ZEMStyle(nullptr).color(lookOf(quantity).color));
}

QTEST_MAIN(tst_QuantityLook)
#include "tst_quantitylook.moc"
