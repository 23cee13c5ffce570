// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "readingsfolder.h"

#include "calendar.h"

#include <QTest>

using namespace Readings;

namespace {

const QByteArray germanHeader =
    "local_time,grid_import_kwh,grid_export_kwh,pv_kwh,heat_pump_kwh,ev_kwh,interpolated\n";
const QByteArray minuteHeader =
    "TIMESTAMP,VERBR_KWH_181,VERBR_KWH_182,GELVR_KWH_281,GELVR_KWH_282,VERBR_KWH_X,GELVR_KWH_X,"
    "TARIEFCODE,ACT_VERBR_KW_170,ACT_GELVR_KW_270\n";
const QByteArray portalGasHeader = "datum_tijd;levering;buitentemperatuur\n";

} // namespace

class tst_Household : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filesAreMerged();
    void sameFileTwiceIsSilent();
    void contradictionsAreToldWithTheLaterFile();
    void otherWaysOfCountingAreLeftOut();
    void amountsOfOneFileMeetReadingsOfAnother();
    void firstFileGivesTheTimeZone();
    void oldReadingsMeetNewOnes();
    void oneRegisterMakesWayForTwoTariffs();
    void tariffsOfOneRegisterAreNotTold();
    void registersThatAreThereStay();
    void twoTariffsMakeWayForOneRegister();
    void ownFormatHasNoTimeZoneOfItsOwn();
    void ownFormatTellsAmountsAndTheirLength();
    void ownFormatTellsTheTimeZone();
    void nothingGivesAnEmptyHousehold();
    void measuredPowerIsThatOfTheLastRow();
    void meanPowerIsThatOfTheLastCompleteInterval();
    void consumptionNeedsWhatItIsMadeOf();
    void problemsAreInTheOrderOfFilesAndLines();

private:
    ReadingsFolder folder;
};

void tst_Household::filesAreMerged()
{
    const QString first = folder.write(QStringLiteral("first.csv"),
                                       "time,gas_m3\n"
                                       "2024-05-01T00:00Z,10\n"
                                       "2024-05-01T02:00Z,12\n"
                                       "2024-05-01T04:00Z,14\n");
    const QString second = folder.write(QStringLiteral("second.csv"),
                                        "time,gas_m3,water_m3\n"
                                        "2024-05-01T01:00Z,10.5,1\n"
                                        "2024-05-01T02:00Z,12,2\n"
                                        "2024-05-01T03:00Z,12.5,3\n");
    for (const QStringList &files : {QStringList {first, second}, QStringList {second, first}}) {
        const Household household = loadReadings(files);
        QCOMPARE(household.problems, QStringList());
        const auto hours = Calendar(QTimeZone::utc())
                               .hoursOfDay(household.metersOf(Quantity::Gas), QDate(2024, 5, 1));
        QCOMPARE(hours[0], Amount(0.5));
        QCOMPARE(hours[1], Amount(1.5));
        QCOMPARE(hours[2], Amount(0.5));
        QCOMPARE(hours[3], Amount(1.5));
        QCOMPARE(household.total(Quantity::Water), 2.0);
    }
}

void tst_Household::sameFileTwiceIsSilent()
{
    const QString path = folder.write(QStringLiteral("twice.csv"),
                                      portalGasHeader
                                          + "01-01-2023 01:00:00 +0100;0,50;14,00\n"
                                            "01-01-2023 02:00:00 +0100;0,75;13,00\n");
    const Household household = loadReadings({path, path});
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(household.total(Quantity::Gas), 1.25);
}

void tst_Household::contradictionsAreToldWithTheLaterFile()
{
    const QString first = folder.write(QStringLiteral("first.csv"),
                                       "time,gas_m3\n"
                                       "2024-05-01T00:00Z,10\n"
                                       "2024-05-01T01:00Z,11\n");
    const QString second = folder.write(QStringLiteral("second.csv"),
                                        "time,gas_m3\n"
                                        "2024-05-01T00:00Z,10\n"
                                        "2024-05-01T01:00Z,11.25\n"
                                        "2024-05-01T02:00Z,12\n");
    const Household household = loadReadings({first, second});
    QCOMPARE(
        household.problems,
        QStringList(second
                    + QStringLiteral(":3: gas 11.25 contradicts an earlier value for this time; "
                                     "left out")));
    const qint64 start = utc("2024-05-01T00:00:00");
    QCOMPARE(household.amount(Quantity::Gas, {start, start + oneHour}), Amount(1.0));
    QCOMPARE(household.amount(Quantity::Gas, {start + oneHour, start + 2 * oneHour}), Amount(1.0));
}

void tst_Household::otherWaysOfCountingAreLeftOut()
{
    const QString counter = folder.write(QStringLiteral("counter.csv"),
                                         "time,gas_m3,electricity_import_kwh\n"
                                         "2023-01-01T00:00Z,10,1\n"
                                         "2023-01-01T01:00Z,11,2\n");
    const QString tariffs = folder.write(QStringLiteral("tariffs.csv"),
                                         "time,electricity_import_low_kwh\n"
                                         "2023-01-01T00:00Z,10\n"
                                         "2023-01-01T01:00Z,11\n");
    const Household household = loadReadings({counter, tariffs});
    QCOMPARE(household.total(Quantity::Gas), 1.0);
    QCOMPARE(household.total(Quantity::GridImport), 1.0);
    QCOMPARE(household.problems.filter(QStringLiteral(":1: ")),
             QStringList(tariffs
                         + QStringLiteral(":1: left out: electricity_import_low_kwh; electricity "
                                          "import is known already by one register")));
    QCOMPARE(household.metersOf(Quantity::GridImport).size(), std::size_t(1));
}

void tst_Household::amountsOfOneFileMeetReadingsOfAnother()
{
    const QString amounts = folder.write(QStringLiteral("portal.csv"),
                                         portalGasHeader
                                             + "01-01-2023 01:00:00 +0100;0,50;14,00\n"
                                               "01-01-2023 02:00:00 +0100;0,75;14,00\n"
                                               "01-01-2023 03:00:00 +0100;9,00;14,00\n");
    const QString counter = folder.write(QStringLiteral("counter.csv"),
                                         "time,gas_m3\n"
                                         "2023-01-01T01:00Z,10\n"
                                         "2023-01-01T02:00Z,11\n"
                                         "2023-01-01T03:00Z,13\n");
    for (const QStringList &files : {QStringList {amounts, counter}, {counter, amounts}}) {
        const Household household = loadReadings(files);
        QCOMPARE(household.problems.filter(QStringLiteral("left out")), QStringList());
        // From the first row to the last reading; the hour that both tell is counted once.
        QCOMPARE(household.total(Quantity::Gas), 4.25);
        const qint64 first = utc("2022-12-31T23:00:00");
        QCOMPARE(household.amount(Quantity::Gas, {first, first + 4 * oneHour}), Amount(4.25));
        QCOMPARE(household.amount(Quantity::Gas, {first + 2 * oneHour, first + 3 * oneHour}),
                 Amount(1.0));
    }
}

void tst_Household::firstFileGivesTheTimeZone()
{
    const QString german = folder.write(QStringLiteral("german.csv"),
                                        germanHeader + "2016-01-01T00:00:00,1,2,3,4,5,\n");
    const QString dutch = folder.write(QStringLiteral("dutch.csv"),
                                       portalGasHeader + "01-01-2023 01:00:00 +0100;0,50;14,00\n");
    const Household germanFirst = loadReadings({german, dutch});
    QCOMPARE(germanFirst.timeZone.id(), QByteArray("Europe/Berlin"));
    QCOMPARE(
        germanFirst.problems,
        QStringList(dutch
                    + QStringLiteral(": is of the time zone Europe/Amsterdam; its readings are "
                                     "shown by the clock in Europe/Berlin")));
    const Household dutchFirst = loadReadings({dutch, german});
    QCOMPARE(dutchFirst.timeZone.id(), QByteArray("Europe/Amsterdam"));
    QCOMPARE(dutchFirst.problems.size(), 1);
    // A file that cannot be read does not decide.
    const Household third = loadReadings({folder.filePath(QStringLiteral("none")), dutch});
    QCOMPARE(third.timeZone.id(), QByteArray("Europe/Amsterdam"));
}

void tst_Household::ownFormatHasNoTimeZoneOfItsOwn()
{
    const QString german = folder.write(QStringLiteral("german.csv"),
                                        germanHeader + "2016-01-01T00:00:00,1,2,3,4,5,\n");
    const QString own =
        folder.write(QStringLiteral("own.csv"), "time,gas_m3\n2024-05-01T00:00Z,10\n");
    const Household household = loadReadings({german, own});
    QCOMPARE(household.timeZone.id(), QByteArray("Europe/Berlin"));
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(loadReadings({own}).timeZone, QTimeZone::systemTimeZone());
}

void tst_Household::nothingGivesAnEmptyHousehold()
{
    const Household household = loadReadings({});
    QVERIFY(household.meters.empty());
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(household.timeZone, QTimeZone::systemTimeZone());
    QVERIFY(!household.firstInstant());
    QVERIFY(!household.latestPower());
    QVERIFY(!household.consumption({0, oneHour}));
}

void tst_Household::measuredPowerIsThatOfTheLastRow()
{
    const Household household = folder.load(minuteHeader
                                            + "2024-02-19 00:02:00,10,20,30,40,0,0,D,1.5,0.25\n"
                                              "2024-02-19 00:00:00,10,20,30,40,0,0,D,3,0\n"
                                              "2024-02-19 00:03:00,10,20,30,40,0,0,D,,0\n"
                                              "2024-02-19 00:04:00,10,20,30,40,0,0,D,x,0\n");
    QCOMPARE(household.problems.size(), 1);
    QCOMPARE(household.latestPower()->watts, 1250.0);
    QCOMPARE(household.latestPower()->instant, utc("2024-02-18T23:03:00"));
}

void tst_Household::meanPowerIsThatOfTheLastCompleteInterval()
{
    const Household both = folder.load("time,electricity_import_kwh,electricity_export_kwh\n"
                                       "2024-05-01T10:00Z,100,50\n"
                                       "2024-05-01T10:15Z,100.5,52\n"
                                       "2024-05-01T10:30Z,101,\n");
    QCOMPARE(both.latestPower()->watts, -6000.0);
    QCOMPARE(both.latestPower()->instant, utc("2024-05-01T10:15:00"));

    const Household importOnly = folder.load("time,electricity_import_kwh\n"
                                             "2024-05-01T10:00Z,100\n"
                                             "2024-05-01T12:00Z,103\n");
    QCOMPARE(importOnly.latestPower()->watts, 1500.0);

    QVERIFY(!folder
                 .load("time,electricity_export_kwh\n"
                       "2024-05-01T10:00Z,100\n"
                       "2024-05-01T12:00Z,103\n")
                 .latestPower());
    QVERIFY(!folder.load("time,electricity_import_kwh\n2024-05-01T10:00Z,100\n").latestPower());
}

void tst_Household::consumptionNeedsWhatItIsMadeOf()
{
    const qint64 start = utc("2024-05-01T10:00:00");
    const Interval hour {start, start + oneHour};
    QCOMPARE(folder.load("time,electricity_import_kwh\n2024-05-01T10:00Z,1\n2024-05-01T11:00Z,3\n")
                 .consumption(hour),
             Amount(2.0));
    QCOMPARE(folder.load("time,electricity_export_kwh\n2024-05-01T10:00Z,1\n2024-05-01T11:00Z,3\n")
                 .consumption(hour),
             Amount());
    QCOMPARE(folder
                 .load("time,electricity_import_kwh,electricity_export_kwh\n"
                       "2024-05-01T10:00Z,1,0\n2024-05-01T11:00Z,3,0\n")
                 .consumption(hour),
             Amount(2.0));
    QCOMPARE(folder
                 .load("time,electricity_import_kwh,electricity_export_kwh\n"
                       "2024-05-01T10:00Z,1,0\n2024-05-01T11:00Z,3,1\n")
                 .consumption(hour),
             Amount());
    QCOMPARE(folder
                 .load("time,electricity_import_kwh,electricity_export_kwh,solar_kwh\n"
                       "2024-05-01T10:00Z,1,0,5\n2024-05-01T11:00Z,3,1,9\n")
                 .consumption(hour),
             Amount(5.0));
    QCOMPARE(folder
                 .load("time,electricity_import_kwh,electricity_export_kwh,solar_kwh\n"
                       "2024-05-01T10:00Z,1,0,5\n2024-05-01T11:00Z,3,1,\n")
                 .consumption(hour),
             Amount());
}

void tst_Household::problemsAreInTheOrderOfFilesAndLines()
{
    const QString first = folder.write(QStringLiteral("first.csv"),
                                       "time,gas_m3\n"
                                       "2024-05-01T00:00Z,10\n"
                                       "2024-05-01T01:00Z,9\n"
                                       "2024-05-01T02:00Z,11\n"
                                       "broken\n");
    const QString second = folder.write(QStringLiteral("second.csv"), "unknown\n");
    const QStringList problems = loadReadings({second, first}).problems;
    QCOMPARE(problems.size(), 3);
    QVERIFY(problems.at(0).startsWith(second + QStringLiteral(":1: ")));
    QVERIFY(problems.at(1).startsWith(first + QStringLiteral(":3: ")));
    QVERIFY(problems.at(2).startsWith(first + QStringLiteral(":5: ")));
}

void tst_Household::ownFormatTellsAmountsAndTheirLength()
{
    const Household household = folder.load("time,gas_m3_counted,water_m3,interval_s\n"
                                            "2024-05-01T01:00Z,1.5,20,\n"
                                            "2024-05-01T01:15Z,0.25,21,900\n"
                                            "2024-05-01T02:00Z,0.5,,2700\n"
                                            "2024-05-01T03:00Z,1,,0\n"
                                            "2024-05-01T03:00Z,1,,1.5\n"
                                            "2024-05-01T03:00Z,1,,soon\n");
    QCOMPARE(
        household.problems,
        (QStringList {QStringLiteral("FILE:5: bad length \"0\" of an interval; row left out"),
                      QStringLiteral("FILE:6: bad length \"1.5\" of an interval; row left out"),
                      QStringLiteral("FILE:7: bad length \"soon\" of an interval; row left out")}));
    const qint64 midnight = utc("2024-05-01T00:00:00");
    const Meter &meter = household.meters.at({Quantity::Gas});
    QCOMPARE(meter.amount(midnight, midnight + oneHour), Amount(1.5));
    QCOMPARE(meter.amount(midnight + oneHour, midnight + 2 * oneHour), Amount(0.75));
    QCOMPARE(meter.total(), 2.25);
    QCOMPARE(household.amount(Quantity::Water,
                              {midnight + oneHour, midnight + oneHour + 15 * oneMinute}),
             Amount(1.0));
}

void tst_Household::ownFormatTellsTheTimeZone()
{
    const Household household = folder.load("time,gas_m3,time_zone\n"
                                            "2024-05-01T00:00Z,1,Mars/Olympus\n"
                                            "2024-05-01T01:00Z,2,\n"
                                            "2024-05-01T02:00Z,3,Asia/Kolkata\n"
                                            "2024-05-01T03:00Z,4,Europe/Berlin\n");
    QCOMPARE(
        household.problems,
        QStringList(QStringLiteral("FILE:2: unknown time zone \"Mars/Olympus\"; row left out")));
    QCOMPARE(household.timeZone.id(), QByteArray("Asia/Kolkata"));
    QCOMPARE(household.total(Quantity::Gas), 2.0);
}

static Household ofRegisters(const std::vector<std::pair<Register, std::vector<double>>> &hourly,
                             qint64 from)
{
    Household household;
    for (const auto &[meterRegister, values] : hourly) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            household.meter(meterRegister, Meter::Kind::Counter)
                .addReading(from + qint64(i) * oneHour, values[i]);
        }
    }
    return household;
}

void tst_Household::oldReadingsMeetNewOnes()
{
    const Register gas {Quantity::Gas};
    Household house = ofRegisters({{gas, {12, 13, 14}}}, 4 * oneHour);
    // The fifth hour is told twice, and once wrongly.
    house.add(ofRegisters({{gas, {10, 10.5, 11, 11.25, 12, 12.75}}}, 0));
    QCOMPARE(house.amount(Quantity::Gas, {0, 6 * oneHour}), Amount(4.0));
    QCOMPARE(house.amount(Quantity::Gas, {4 * oneHour, 5 * oneHour}), Amount(1.0));
    Household apart = ofRegisters({{gas, {12, 13, 14}}}, 4 * oneHour);
    apart.add(ofRegisters({{gas, {10, 10.5}}}, 0));
    QCOMPARE(apart.amount(Quantity::Gas, {2 * oneHour, 3 * oneHour}), Amount());
    QCOMPARE(apart.amount(Quantity::Gas, {0, 6 * oneHour}), Amount(4.0));
}

void tst_Household::oneRegisterMakesWayForTwoTariffs()
{
    constexpr Quantity quantity = Quantity::GridImport;
    Household house = ofRegisters({{{quantity}, {10, 11, 13, 16}}}, 0);
    house.makeWayFor({quantity, Tariff::Low});
    house.meter({quantity, Tariff::Low}, Meter::Kind::Counter).addReading(2 * oneHour, 500.0);
    house.meter({quantity, Tariff::Normal}, Meter::Kind::Counter).addReading(2 * oneHour, 700.0);
    house.meter({quantity, Tariff::Low}, Meter::Kind::Counter).addReading(4 * oneHour, 501.0);
    house.meter({quantity, Tariff::Normal}, Meter::Kind::Counter).addReading(4 * oneHour, 706.0);
    QCOMPARE(house.meters.size(), std::size_t(2));
    QCOMPARE(house.amount(quantity, {0, 4 * oneHour}), Amount(10.0));
    QCOMPARE(house.meters.at({quantity, Tariff::Low}).amount(0, 4 * oneHour), Amount(1.0));
    QCOMPARE(house.amount(quantity, {0, oneHour}), Amount(1.0));
    house.makeWayFor({quantity, Tariff::Normal});
    QCOMPARE(house.amount(quantity, {0, 4 * oneHour}), Amount(10.0));
}

void tst_Household::tariffsOfOneRegisterAreNotTold()
{
    constexpr Quantity quantity = Quantity::GridImport;
    const Register low {quantity, Tariff::Low};
    const Register normal {quantity, Tariff::Normal};
    Household house = ofRegisters({{low, {1, 2, 2}}, {normal, {5, 9, 9}}}, 2 * oneHour);
    QVERIFY(house.tellsTariffs(quantity, {2 * oneHour, 4 * oneHour}));
    QVERIFY(!house.tellsTariffs(Quantity::GridExport, {2 * oneHour, 4 * oneHour}));
    // The third hour is told twice.
    house.add(ofRegisters({{{quantity}, {10, 11, 13, 18}}}, 0));
    QVERIFY(!house.tellsTariffs(quantity, {0, oneHour}));
    QVERIFY(!house.tellsTariffs(quantity, {oneHour, 3 * oneHour}));
    QVERIFY(house.tellsTariffs(quantity, {2 * oneHour, 3 * oneHour}));
    QVERIFY(house.tellsTariffs(quantity, {3 * oneHour, 4 * oneHour}));
    // What a further household is told of is known to the next.
    Household live = ofRegisters({{low, {2, 2}}, {normal, {9, 11}}}, 4 * oneHour);
    live.add(house);
    QVERIFY(!live.tellsTariffs(quantity, {0, oneHour}));
    QVERIFY(live.tellsTariffs(quantity, {3 * oneHour, 5 * oneHour}));
    QVERIFY(!ofRegisters({{{quantity}, {10, 11}}}, 0).tellsTariffs(quantity, {0, oneHour}));
}

void tst_Household::registersThatAreThereStay()
{
    constexpr Quantity quantity = Quantity::GridImport;
    Household house = ofRegisters({{{quantity}, {10, 11, 13}}}, 0);
    const Household newer = ofRegisters(
        {{{quantity, Tariff::Low}, {1, 2}}, {{quantity, Tariff::Normal}, {5, 9}}}, 2 * oneHour);
    house.meters.insert(newer.meters.cbegin(), newer.meters.cend());
    house.makeWayFor({quantity, Tariff::Low});
    QCOMPARE(house.meters.size(), std::size_t(2));
    QCOMPARE(house.amount(quantity, {0, 3 * oneHour}), Amount(8.0));
}

void tst_Household::twoTariffsMakeWayForOneRegister()
{
    constexpr Quantity quantity = Quantity::GridImport;
    Household house = ofRegisters(
        {{{quantity, Tariff::Low}, {1, 2, 2, 2}}, {{quantity, Tariff::Normal}, {5, 5, 7, 10}}}, 0);
    Household live = ofRegisters({{{quantity}, {100, 101}}}, 3 * oneHour);
    live.add(house);
    QCOMPARE(live.meters.size(), std::size_t(1));
    QCOMPARE(live.amount(quantity, {0, 4 * oneHour}), Amount(7.0));
    QCOMPARE(live.amount(quantity, {oneHour, 2 * oneHour}), Amount(2.0));
}

QTEST_GUILESS_MAIN(tst_Household)
#include "tst_household.moc"
