// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "analysispage.h"
#include "energy.h"
#include "household.h"
#include "nightstyler.h"
#include "powerplayers.h"
#include "powerplot.h"
#include "quantitylook.h"

#include "zemtest.h"

#include <QLabel>
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
    void consumptionHasNoColourOfAMeter();
    void importOfAnHourHasOneColour_data();
    void importOfAnHourHasOneColour();
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

void tst_QuantityLook::consumptionHasNoColourOfAMeter()
{
    for (const Quantity quantity :
         {Quantity::GridImport, Quantity::GridExport, Quantity::SolarProduction, Quantity::Gas,
          Quantity::Water, Quantity::Heating, Quantity::HeatPump, Quantity::ElectricCar}) {
        QVERIFY(NightStyler::colorOf(PowerKind::Consumption)
                != ZEMStyle(nullptr).color(lookOf(quantity).color));
    }
}

void tst_QuantityLook::importOfAnHourHasOneColour_data()
{
    QTest::addColumn<double>("taken");
    QTest::addColumn<double>("given");
    QTest::addColumn<double>("produced");
    QTest::newRow("night") << 800.0 << 0.0 << 0.0;
    QTest::newRow("behind consumption") << 800.0 << 0.0 << 500.0;
    QTest::newRow("behind production") << 800.0 << 700.0 << 1500.0;
}

/** The legend shows a bar of the plot, whatever curve is before it, in the hue of the charts. */
void tst_QuantityLook::importOfAnHourHasOneColour()
{
    QFETCH(double, taken);
    QFETCH(double, given);
    QFETCH(double, produced);
    MeterPlayer meters;
    constexpr std::size_t minutes = 1440;
    meters.count(Quantity::GridImport, lastDate, std::vector<double>(minutes, taken));
    meters.count(Quantity::GridExport, lastDate, std::vector<double>(minutes, given));
    meters.count(Quantity::SolarProduction, lastDate, std::vector<double>(minutes, produced));
    AnalysisPage page(meters);
    page.resize(640, 480);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page, ZemTest::hangs));

    // The name of the bars is the last one, right of its swatch.
    const QLabel *name = page.findChildren<QLabel *>(QStringLiteral("legend")).constLast();
    constexpr int beside = 10; // pixels
    const QWidget *swatch = page.childAt(name->mapTo(&page, QPoint(-beside, name->height() / 2)));
    const QRect place(swatch->mapTo(&page, QPoint(0, 0)), swatch->size());
    const QColor inLegend =
        page.grab(place).toImage().pixelColor(place.width() / 2, place.height() / 2);
    // Between the lines of the grid, in the middle of an hour.
    const QPoint inBar(int(page.plot()->transform(QwtPlot::xBottom, 4.5 * 60.0)),
                       int(page.plot()->transform(QwtPlot::yLeft, 330.0)));
    const QColor inPlot = page.plot()->canvas()->grab().toImage().pixelColor(inBar);
    QCOMPARE(inPlot.name(), inLegend.name());
    constexpr int sameHue = 5; // degrees
    const QColor inCharts = ZEMStyle(nullptr).color(lookOf(Quantity::GridImport).color);
    QVERIFY2(std::abs(inPlot.hue() - inCharts.hue()) <= sameHue, qPrintable(inPlot.name()));
}

QTEST_MAIN(tst_QuantityLook)
#include "tst_quantitylook.moc"
