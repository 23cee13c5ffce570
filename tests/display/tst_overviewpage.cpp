// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dutchmonths.h"
#include "playedsource.h"
#include "quantitylook.h"

#include <QLabel>
#include <QTest>
#include <ZEMHistogramButton>
#include <ZEMTotalsTodayWidget>
#include <qwt_plot.h>
#include <qwt_text.h>

using Readings::Quantity;

Q_DECLARE_METATYPE(QVector<Readings::Quantity>)

/** What the start page tells of today and of this week. */
class tst_OverviewPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void totalsAreOfWhatTheHouseMeasures_data();
    void totalsAreOfWhatTheHouseMeasures();
    void meterThatIsHeardLaterTakesItsPlace();
    void meterThatNeverCountsComesLast();
    void oldReadingsAreNotOfToday();
    void anotherDayIsNotToday();
};

namespace {

struct Totals
{
    explicit Totals(const PlayedDisplay &display)
        : tile(display.onPage<ZEMTotalsTodayWidget>("ZEMTotalsTodayWidget")),
          week(display.onPage<ZEMHistogramButton>("ZEMHistogramButton"))
    {
    }

    bool hasLower() const { return tile->findChild<QWidget *>("btnBottom")->isVisible(); }
    QString unitOfWeek() const
    {
        return week->findChild<QwtPlot *>()->axisTitle(QwtPlot::yLeft).text();
    }

    ZEMTotalsTodayWidget *tile;
    ZEMHistogramButton *week;
};

} // namespace

void tst_OverviewPage::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_OverviewPage::totalsAreOfWhatTheHouseMeasures_data()
{
    using Quantities = QVector<Quantity>;
    QTest::addColumn<QVector<Quantity>>("measured");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");
    QTest::addColumn<QString>("unit");

    QTest::newRow("nothing") << Quantities {} << "van het net" << QString() << "kWh";
    QTest::newRow("import alone") << Quantities {Quantity::GridImport} << "van het net" << QString()
                                  << "kWh";
    QTest::newRow("panels with a meter")
        << Quantities {Quantity::GridImport, Quantity::GridExport, Quantity::SolarProduction}
        << "van het net"
        << "opwekking"
        << "kWh";
    QTest::newRow("panels without one")
        << Quantities {Quantity::GridImport, Quantity::GridExport, Quantity::Gas} << "van het net"
        << "teruglevering"
        << "kWh";
    QTest::newRow("electricity and gas")
        << Quantities {Quantity::GridImport, Quantity::Gas} << "van het net"
        << "gas"
        << "kWh";
    QTest::newRow("gas alone") << Quantities {Quantity::Gas} << "gas" << QString() << "m³";
    QTest::newRow("gas and water") << Quantities {Quantity::Gas, Quantity::Water} << "gas"
                                   << "water"
                                   << "m³";
    QTest::newRow("heat and water") << Quantities {Quantity::Heating, Quantity::Water} << "warmte"
                                    << "water"
                                    << "GJ";
    QTest::newRow("panels alone") << Quantities {Quantity::SolarProduction} << "opwekking"
                                  << QString() << "kWh";
}

void tst_OverviewPage::totalsAreOfWhatTheHouseMeasures()
{
    QFETCH(QVector<Quantity>, measured);
    QFETCH(QString, upper);
    QFETCH(QString, lower);
    QFETCH(QString, unit);
    PlayedSource source;
    for (const Quantity quantity : measured) {
        source.count(quantity, 3, 0.25);
    }
    PlayedDisplay display(source);
    QVERIFY(display.show());
    const Totals totals(display);
    QCOMPARE(totals.tile->getTopTitle(), upper);
    QCOMPARE(totals.unitOfWeek(), unit);
    QVERIFY2(totals.week->getTitle().startsWith(upper), qPrintable(totals.week->getTitle()));
    QCOMPARE(totals.hasLower(), !lower.isEmpty());
    if (totals.hasLower()) {
        QCOMPARE(totals.tile->getBottomTitle(), lower);
    }
    for (const Quantity quantity : measured) {
        const QuantityLook look = lookOf(quantity);
        if (look.caption == upper) {
            QCOMPARE(totals.tile->getTopEnergyType(), look.icon);
        } else if (look.caption == lower) {
            QCOMPARE(totals.tile->getBottomEnergyType(), look.icon);
        }
    }
}

void tst_OverviewPage::meterThatIsHeardLaterTakesItsPlace()
{
    PlayedSource source;
    source.count(Quantity::Gas, 3);
    PlayedDisplay display(source);
    QVERIFY(display.show());
    const Totals totals(display);
    QCOMPARE(totals.tile->getTopTitle(), QStringLiteral("gas"));

    source.count(Quantity::GridImport, 3);
    Q_EMIT source.historyChanged();
    QCOMPARE(totals.tile->getTopTitle(), QStringLiteral("van het net"));
    QCOMPARE(totals.tile->getBottomTitle(), QStringLiteral("gas"));
    QVERIFY(totals.hasLower());
    QCOMPARE(totals.unitOfWeek(), QStringLiteral("kWh"));
}

void tst_OverviewPage::meterThatNeverCountsComesLast()
{
    PlayedSource source;
    source.count(Quantity::GridImport, 3);
    source.count(Quantity::Water, 3);
    Readings::Meter &given = source.readings.meter({Quantity::GridExport, Readings::Tariff::Single},
                                                   Readings::Meter::Kind::Counter);
    const qint64 noon = source.time.toSecsSinceEpoch();
    given.addReading(noon - 7200, 0.0);
    given.addReading(noon - 3600, 0.0);
    PlayedDisplay display(source);
    QVERIFY(display.show());
    QCOMPARE(Totals(display).tile->getBottomTitle(), QStringLiteral("water"));
}

void tst_OverviewPage::oldReadingsAreNotOfToday()
{
    PlayedSource source;
    source.count(Quantity::GridImport, 3); // until the end of Wednesday 9 March 2016
    PlayedDisplay display(source);
    QVERIFY(display.show());
    const Totals totals(display);
    QCOMPARE(totals.tile->getTitle(), QStringLiteral("totaal vandaag"));
    QCOMPARE(totals.week->getTitle(), QStringLiteral("van het net deze week"));

    source.time = source.time.addDays(4); // the Sunday of that week
    Q_EMIT source.historyChanged();
    QCOMPARE(totals.tile->getTitle(), withMonthsOfQt(QStringLiteral("totaal 9 mrt. 2016")));
    QCOMPARE(totals.week->getTitle(), QStringLiteral("van het net deze week"));
    source.time = source.time.addDays(1);
    Q_EMIT source.historyChanged();
    QCOMPARE(totals.week->getTitle(),
             withMonthsOfQt(QStringLiteral("van het net, week van 7 mrt. 2016")));
}

void tst_OverviewPage::anotherDayIsNotToday()
{
    PlayedSource source;
    source.count(Quantity::GridImport, 3);
    PlayedDisplay display(source);
    QVERIFY(display.show());
    const Totals totals(display);
    display.window.openPage(QStringLiteral("goals"));
    source.time = source.time.addDays(1);
    display.window.openPage(QStringLiteral("overview"));
    QCOMPARE(totals.tile->getTitle(), withMonthsOfQt(QStringLiteral("totaal 9 mrt. 2016")));
}

QTEST_MAIN(tst_OverviewPage)
#include "tst_overviewpage.moc"
