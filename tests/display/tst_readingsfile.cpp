// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "readingsfolder.h"

#include "calendar.h"
#include "problemlist.h"

#include <QFileInfo>
#include <QTest>

using namespace Readings;

namespace {

const QByteArray germanHeader =
    "local_time,grid_import_kwh,grid_export_kwh,pv_kwh,heat_pump_kwh,ev_kwh,interpolated\n";
const QByteArray hourlyHeader =
    "TIMESTAMP,VERBR_KWH_181,VERBR_KWH_182,GELVR_KWH_281,GELVR_KWH_282,VERBR_KWH_X,GELVR_KWH_X,"
    "TARIEFCODE\n";
const QByteArray minuteHeader =
    "TIMESTAMP,VERBR_KWH_181,VERBR_KWH_182,GELVR_KWH_281,GELVR_KWH_282,VERBR_KWH_X,GELVR_KWH_X,"
    "TARIEFCODE,ACT_VERBR_KW_170,ACT_GELVR_KW_270\n";
const QByteArray portalHeader =
    "datum_tijd;levering_normaal;levering_laag;teruglevering_normaal;teruglevering_laag;"
    "buitentemperatuur\n";
const QByteArray portalGasHeader = "datum_tijd;levering;buitentemperatuur\n";
const QByteArray canadianHeader = "unix_ts,water_counter,furnace_gas_counter\n";

constexpr Register gas {Quantity::Gas, Tariff::Single};
constexpr Register importSingle {Quantity::GridImport, Tariff::Single};
constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr Register importNormal {Quantity::GridImport, Tariff::Normal};
constexpr Register exportLow {Quantity::GridExport, Tariff::Low};
constexpr Register exportNormal {Quantity::GridExport, Tariff::Normal};

} // namespace

class tst_ReadingsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownFormatTellsEveryQuantity();
    void ownFormatTellsTariffs();
    void germanCountersAreReadAtTheStamp();
    void hourlyP1CountersAreReadAtTheEndOfTheHour();
    void minuteP1CountersAreReadAtTheEndOfTheMinute();
    void portalAmountsEndAtTheStamp();
    void portalGasAmountsEndAtTheStamp();
    void canadianCountersAreInCubicMetres();
    void emptyCellIsAGapOfItsMeterOnly();
    void emptyTariffIsZeroOnlyBesideTheOtherOne();
    void skippedWallClockTimeIsLeftOut();
    void singleDoubledTimeIsWinterTime();
    void firstOfADoubledTimeIsSummerTime();
    void singleTimeBeforeTheClockIsPutBackIsSummerTime();
    void doubledHoursOfEachYearAreToldApart();
    void stepBackAndLeapAndReplacementAreTold();
    void resetToZeroIsABreak();
    void lastReadingThatDoesNotFollowIsTold();
    void brokenRows_data();
    void brokenRows();
    void everythingElseOfABrokenFileIsRead();
    void thousandsOfBrokenRowsAreSummedUp();
    void missingFilesAndFoldersAreTold();
    void fileThatFailsToReadIsTold();
    void unknownHeadersAreTold_data();
    void unknownHeadersAreTold();
    void formsOfTextDoNotMatter_data();
    void formsOfTextDoNotMatter();

private:
    ReadingsFolder folder;
};

void tst_ReadingsFile::ownFormatTellsEveryQuantity()
{
    const Household household =
        folder.load("time,electricity_import_kwh,electricity_export_kwh,solar_kwh,gas_m3,water_m3,"
                    "heating_gj,heat_pump_kwh,car_kwh\n"
                    "2024-05-01T12:00:00+02:00,1,2,3,4,5,6,7,8\n"
                    "2024-05-01T11:00:00Z,1.5,3.5,5.5,7.5,8,6.25,10.5,15\n");
    QCOMPARE(household.problems, QStringList());
    const Interval hour {utc("2024-05-01T10:00:00"), utc("2024-05-01T11:00:00")};
    const auto amount = [&](Quantity quantity) { return household.amount(quantity, hour); };
    QCOMPARE(amount(Quantity::GridImport), Amount(0.5));
    QCOMPARE(amount(Quantity::GridExport), Amount(1.5));
    QCOMPARE(amount(Quantity::SolarProduction), Amount(2.5));
    QCOMPARE(amount(Quantity::Gas), Amount(3.5));
    QCOMPARE(amount(Quantity::Water), Amount(3.0));
    QCOMPARE(amount(Quantity::Heating), Amount(0.25));
    QCOMPARE(amount(Quantity::HeatPump), Amount(3.5));
    QCOMPARE(amount(Quantity::ElectricCar), Amount(7.0));
    QCOMPARE(household.consumption(hour), Amount(0.5 - 1.5 + 2.5));
    QCOMPARE(household.timeZone, QTimeZone::systemTimeZone());
    QCOMPARE(household.firstInstant(), std::optional<qint64>(hour.from));
    QCOMPARE(household.lastInstant(), std::optional<qint64>(hour.to));
}

void tst_ReadingsFile::ownFormatTellsTariffs()
{
    const Household household =
        folder.load("time,electricity_import_normal_kwh,electricity_import_low_kwh,"
                    "electricity_export_low_kwh,electricity_export_normal_kwh\n"
                    "2024-05-01T10:00Z,100,200,300,400\n"
                    "2024-05-01T11:00Z,101,202,303,404\n");
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(household.meters.at(importNormal).total(), 1.0);
    QCOMPARE(household.meters.at(importLow).total(), 2.0);
    QCOMPARE(household.meters.at(exportLow).total(), 3.0);
    QCOMPARE(household.meters.at(exportNormal).total(), 4.0);
    QCOMPARE(household.total(Quantity::GridImport), 3.0);
    QCOMPARE(household.metersOf(Quantity::GridImport).size(), std::size_t(2));
    QVERIFY(household.metersOf(Quantity::Gas).empty());
    QCOMPARE(household.total(Quantity::Gas), 0.0);
    QCOMPARE(household.amount(Quantity::Gas, {0, oneHour}), Amount());
}

void tst_ReadingsFile::germanCountersAreReadAtTheStamp()
{
    const Household household = folder.load(germanHeader
                                            + "2016-01-01T00:00:00,10,20,30,40,50,\n"
                                              "2016-01-01T01:00:00,11,22,33,44,55,ev|pv\n");
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(household.timeZone.id(), QByteArray("Europe/Berlin"));
    const Interval hour = Calendar(household.timeZone).hour(QDate(2016, 1, 1), 0);
    QCOMPARE(household.amount(Quantity::GridImport, hour), Amount(1.0));
    QCOMPARE(household.amount(Quantity::GridExport, hour), Amount(2.0));
    QCOMPARE(household.amount(Quantity::SolarProduction, hour), Amount(3.0));
    QCOMPARE(household.amount(Quantity::HeatPump, hour), Amount(4.0));
    QCOMPARE(household.amount(Quantity::ElectricCar, hour), Amount(5.0));
    QCOMPARE(household.meters.size(), std::size_t(5));
}

void tst_ReadingsFile::hourlyP1CountersAreReadAtTheEndOfTheHour()
{
    const Household household = folder.load(hourlyHeader
                                            + "2023-02-01 00:00:00,10,20,30,40,9,9,D\n"
                                              "2023-02-01 01:00:00,11,22,33,44,99,99,P\n");
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(household.timeZone.id(), QByteArray("Europe/Amsterdam"));
    const Interval hour = Calendar(household.timeZone).hour(QDate(2023, 2, 1), 1);
    QCOMPARE(household.meters.at(importLow).amount(hour), Amount(1.0));
    QCOMPARE(household.meters.at(importNormal).amount(hour), Amount(2.0));
    QCOMPARE(household.meters.at(exportLow).amount(hour), Amount(3.0));
    QCOMPARE(household.meters.at(exportNormal).amount(hour), Amount(4.0));
    QCOMPARE(household.amount(Quantity::GridImport, hour), Amount(3.0));
    QCOMPARE(household.meters.size(), std::size_t(4));
    QVERIFY(!household.measuredPower);
}

void tst_ReadingsFile::minuteP1CountersAreReadAtTheEndOfTheMinute()
{
    const Household household =
        folder.load(minuteHeader
                    + "2024-02-19 00:00:00,10,20,30,40,9,9,D,1.5,0\n"
                      "2024-02-19 00:01:00,10.25,20,30,40,9,9,D,0.25,0.75\n");
    QCOMPARE(household.problems, QStringList());
    const qint64 start = utc("2024-02-18T23:01:00");
    QCOMPARE(household.meters.at(importLow).amount(start, start + oneMinute), Amount(0.25));
    QCOMPARE(household.amount(Quantity::GridExport, {start, start + oneMinute}), Amount(0.0));
    QCOMPARE(household.meters.size(), std::size_t(4));
    QCOMPARE(household.latestPower()->watts, -500.0);
    QCOMPARE(household.latestPower()->instant, start + oneMinute);
}

void tst_ReadingsFile::portalAmountsEndAtTheStamp()
{
    const Household household = folder.load(portalHeader
                                            + "01-01-2023 00:15:00 +0100;;0,11;;0,00;-\n"
                                              "01-01-2023 00:30:00 +0100;0,25;;0,00;;7,90\n");
    QCOMPARE(household.problems, QStringList());
    const qint64 start = utc("2022-12-31T23:00:00");
    const Interval both {start, start + 30 * oneMinute};
    QCOMPARE(household.meters.at(importLow).amount(both), Amount(0.11));
    QCOMPARE(household.meters.at(importNormal).amount(both), Amount(0.25));
    QCOMPARE(household.amount(Quantity::GridImport, both), Amount(0.36));
    QCOMPARE(household.amount(Quantity::GridExport, both), Amount(0.0));
    QCOMPARE(household.meters.at(importLow).kind(), Meter::Kind::Amounts);
    QCOMPARE(household.meters.at(importNormal).amount(start, start + 15 * oneMinute), Amount(0.0));
}

void tst_ReadingsFile::portalGasAmountsEndAtTheStamp()
{
    const Household household = folder.load(portalGasHeader
                                            + "29-10-2023 02:00:00 +0200;0,50;14,00\n"
                                              "29-10-2023 03:00:00 +0100;0,75;-\n");
    QCOMPARE(household.problems, QStringList());
    const Meter &meter = household.meters.at(gas);
    QCOMPARE(meter.amount(utc("2023-10-28T23:00:00"), utc("2023-10-29T00:00:00")), Amount(0.5));
    QCOMPARE(meter.amount(utc("2023-10-29T00:00:00"), utc("2023-10-29T01:00:00")), Amount());
    QCOMPARE(meter.amount(utc("2023-10-29T01:00:00"), utc("2023-10-29T02:00:00")), Amount(0.75));
    QCOMPARE(meter.total(), 1.25);
}

void tst_ReadingsFile::canadianCountersAreInCubicMetres()
{
    const Household household = folder.load(canadianHeader
                                            + "1357027200,0.0,1000.0\n"
                                              "1357028100,0.5,1028.316\n");
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(household.timeZone.id(), QByteArray("America/Vancouver"));
    const Interval quarter {1357027200, 1357028100};
    QCOMPARE(household.amount(Quantity::Water, quarter).value_or(-1.0), 0.0005);
    QCOMPARE(household.amount(Quantity::Gas, quarter).value_or(-1.0), 0.028316);
}

void tst_ReadingsFile::emptyCellIsAGapOfItsMeterOnly()
{
    const Household household = folder.load("time,gas_m3,water_m3\n"
                                            "2024-05-01T10:00Z,10,20\n"
                                            "2024-05-01T11:00Z,,21\n"
                                            "2024-05-01T12:00Z, ,22\n"
                                            "2024-05-01T13:00Z,13,23\n");
    QCOMPARE(household.problems, QStringList());
    const qint64 start = utc("2024-05-01T10:00:00");
    for (int hour = 0; hour < 3; ++hour) {
        const Interval slot {start + hour * oneHour, start + (hour + 1) * oneHour};
        QCOMPARE(household.amount(Quantity::Gas, slot), Amount());
        QCOMPARE(household.amount(Quantity::Water, slot), Amount(1.0));
    }
    QCOMPARE(household.amount(Quantity::Gas, {start, start + 3 * oneHour}), Amount(3.0));
}

void tst_ReadingsFile::emptyTariffIsZeroOnlyBesideTheOtherOne()
{
    const Household household = folder.load(portalHeader
                                            + "01-01-2023 00:15:00 +0100;;0,11;;0,00;-\n"
                                              "01-01-2023 00:30:00 +0100;;;;0,00;-\n"
                                              "01-01-2023 00:45:00 +0100;0,20;;;;-\n");
    QCOMPARE(household.problems, QStringList());
    const qint64 start = utc("2022-12-31T23:00:00");
    const auto quarter = [&](const Register &meterRegister, int index) {
        return household.meters.at(meterRegister)
            .amount(start + index * 15 * oneMinute, start + (index + 1) * 15 * oneMinute);
    };
    QCOMPARE(quarter(importNormal, 0), Amount(0.0));
    QCOMPARE(quarter(importLow, 0), Amount(0.11));
    QCOMPARE(quarter(importNormal, 1), Amount());
    QCOMPARE(quarter(importLow, 1), Amount());
    QCOMPARE(quarter(exportNormal, 1), Amount(0.0));
    QCOMPARE(quarter(importNormal, 2).value_or(-1.0), 0.2);
    QCOMPARE(quarter(importLow, 2), Amount(0.0));
    QCOMPARE(quarter(exportLow, 2), Amount());
    QCOMPARE(quarter(exportNormal, 2), Amount());
}

void tst_ReadingsFile::skippedWallClockTimeIsLeftOut()
{
    const Household household = folder.load(germanHeader
                                            + "2016-03-27T01:00:00,10,20,30,40,50,\n"
                                              "2016-03-27T02:00:00,10.5,20.5,30.5,40.5,50.5,pv\n"
                                              "2016-03-27T03:00:00,11,21,31,41,51,\n"
                                              "2016-03-27T04:00:00,13,22,32,42,52,\n");
    QCOMPARE(household.problems,
             QStringList(QStringLiteral("FILE:3: a time that the clock in Europe/Berlin skips; row "
                                        "left out")));
    const auto hours =
        Calendar(household.timeZone)
            .hoursOfDay(household.metersOf(Quantity::GridImport), QDate(2016, 3, 27));
    QCOMPARE(hours[1], Amount(1.0));
    QCOMPARE(hours[2], Amount());
    QCOMPARE(hours[3], Amount(2.0));
}

void tst_ReadingsFile::singleDoubledTimeIsWinterTime()
{
    const Household german = folder.load(germanHeader
                                         + "2016-10-30T01:00:00,10,0,0,0,0,\n"
                                           "2016-10-30T02:00:00,12,0,0,0,0,\n"
                                           "2016-10-30T03:00:00,13,0,0,0,0,\n");
    QCOMPARE(german.problems, QStringList());
    const Meter &meter = german.meters.at(importSingle);
    QCOMPARE(meter.amount(utc("2016-10-29T23:00:00"), utc("2016-10-30T01:00:00")), Amount(2.0));
    QCOMPARE(meter.amount(utc("2016-10-30T01:00:00"), utc("2016-10-30T02:00:00")), Amount(1.0));
    QCOMPARE(meter.readingAt(utc("2016-10-30T00:00:00")), Amount());

    // Of stamps that begin an hour, the reading lies an hour of real time later.
    const Household dutch = folder.load(hourlyHeader
                                        + "2023-10-29 01:00:00,10,0,0,0,0,0,D\n"
                                          "2023-10-29 02:00:00,12,0,0,0,0,0,D\n"
                                          "2023-10-29 03:00:00,13,0,0,0,0,0,D\n");
    const auto hours =
        Calendar(dutch.timeZone).hoursOfDay({&dutch.meters.at(importLow)}, QDate(2023, 10, 29));
    QCOMPARE(hours[2], Amount(2.0));
    QCOMPARE(hours[3], Amount(1.0));
}

void tst_ReadingsFile::firstOfADoubledTimeIsSummerTime()
{
    const Household household = folder.load(germanHeader
                                            + "2016-10-30T01:00:00,10,0,0,0,0,\n"
                                              "2016-10-30T02:00:00,11,0,0,0,0,\n"
                                              "2016-10-30T02:00:00,13,0,0,0,0,\n"
                                              "2016-10-30T03:00:00,16,0,0,0,0,\n");
    QCOMPARE(household.problems, QStringList());
    const Meter &meter = household.meters.at(importSingle);
    QCOMPARE(meter.amount(utc("2016-10-29T23:00:00"), utc("2016-10-30T00:00:00")), Amount(1.0));
    QCOMPARE(meter.amount(utc("2016-10-30T00:00:00"), utc("2016-10-30T01:00:00")), Amount(2.0));
    QCOMPARE(meter.amount(utc("2016-10-30T01:00:00"), utc("2016-10-30T02:00:00")), Amount(3.0));
    const auto hours = Calendar(household.timeZone).hoursOfDay({&meter}, QDate(2016, 10, 30));
    QCOMPARE(hours[1], Amount(1.0));
    QCOMPARE(hours[2], Amount(5.0));
}

void tst_ReadingsFile::singleTimeBeforeTheClockIsPutBackIsSummerTime()
{
    // 2:15 lacks in winter time and 2:45 in summer time.
    const Household household = folder.load(germanHeader
                                            + "2016-10-30T02:00:00,1,0,0,0,0,\n"
                                              "2016-10-30T02:15:00,2,0,0,0,0,\n"
                                              "2016-10-30T02:30:00,3,0,0,0,0,\n"
                                              "2016-10-30T02:00:00,4,0,0,0,0,\n"
                                              "2016-10-30T02:30:00,5,0,0,0,0,\n"
                                              "2016-10-30T02:45:00,6,0,0,0,0,\n");
    QCOMPARE(household.problems, QStringList());
    const Meter &meter = household.meters.at(importSingle);
    const qint64 start = utc("2016-10-30T00:00:00");
    const QVector<int> minutes {0, 15, 30, 60, 90, 105};
    for (int i = 0; i < minutes.size(); ++i) {
        QCOMPARE(meter.readingAt(start + minutes.at(i) * oneMinute), Amount(i + 1.0));
    }
}

void tst_ReadingsFile::doubledHoursOfEachYearAreToldApart()
{
    const Household household = folder.load(germanHeader
                                            + "2015-10-25T02:00:00,1,0,0,0,0,\n"
                                              "2015-10-25T02:00:00,2,0,0,0,0,\n"
                                              "2016-10-30T02:00:00,3,0,0,0,0,\n"
                                              "2017-10-29T02:00:00,4,0,0,0,0,\n"
                                              "2017-10-29T02:00:00,5,0,0,0,0,\n");
    QCOMPARE(household.problems, QStringList());
    const Meter &meter = household.meters.at(importSingle);
    QCOMPARE(meter.readingAt(utc("2015-10-25T00:00:00")), Amount(1.0));
    QCOMPARE(meter.readingAt(utc("2015-10-25T01:00:00")), Amount(2.0));
    QCOMPARE(meter.readingAt(utc("2016-10-30T01:00:00")), Amount(3.0));
    QCOMPARE(meter.readingAt(utc("2017-10-29T00:00:00")), Amount(4.0));
    QCOMPARE(meter.readingAt(utc("2017-10-29T01:00:00")), Amount(5.0));
}

void tst_ReadingsFile::stepBackAndLeapAndReplacementAreTold()
{
    const Household household = folder.load("time,gas_m3\n"
                                            "2024-05-01T00:00Z,100\n"
                                            "2024-05-01T01:00Z,101\n"
                                            "2024-05-01T02:00Z,100.5\n"
                                            "2024-05-01T03:00Z,102\n"
                                            "2024-05-01T04:00Z,5555\n"
                                            "2024-05-01T05:00Z,103\n"
                                            "2024-05-01T06:00Z,7\n"
                                            "2024-05-01T07:00Z,8\n");
    QCOMPARE(
        household.problems,
        (QStringList {QStringLiteral("FILE:4: gas 100.5 is less than before, and the next is "
                                     "not; left out"),
                      QStringLiteral("FILE:6: gas 5555 is more than what follows; left out"),
                      QStringLiteral("FILE:8: gas 7 does not follow from before: another meter "
                                     "or a reset")}));
    const Calendar calendar(QTimeZone::utc());
    const auto hours = calendar.hoursOfDay(household.metersOf(Quantity::Gas), QDate(2024, 5, 1));
    Calendar::Amounts expected(24, std::nullopt);
    expected[0] = 1.0;
    expected[6] = 1.0;
    QCOMPARE(hours, expected);
    QCOMPARE(household.total(Quantity::Gas), 4.0);
}

void tst_ReadingsFile::resetToZeroIsABreak()
{
    const Household household = folder.load("time,solar_kwh\n"
                                            "2024-05-01T00:00Z,9876.5\n"
                                            "2024-05-01T01:00Z,9877.5\n"
                                            "2024-05-01T02:00Z,0\n"
                                            "2024-05-01T03:00Z,2\n");
    QCOMPARE(household.problems.size(), 1);
    QVERIFY(household.problems.first().startsWith(QStringLiteral("FILE:4: solar production 0 ")));
    const Calendar calendar(QTimeZone::utc());
    const auto hours =
        calendar.hoursOfDay(household.metersOf(Quantity::SolarProduction), QDate(2024, 5, 1));
    QCOMPARE(hours[0], Amount(1.0));
    QCOMPARE(hours[1], Amount());
    QCOMPARE(hours[2], Amount(2.0));
    QCOMPARE(household.total(Quantity::SolarProduction), 3.0);
}

void tst_ReadingsFile::lastReadingThatDoesNotFollowIsTold()
{
    const Household household = folder.load("time,water_m3\n"
                                            "2024-05-01T00:00Z,10\n"
                                            "2024-05-01T01:00Z,9\n");
    QCOMPARE(
        household.problems,
        QStringList(QStringLiteral("FILE:3: water 9 does not follow from before; left out until "
                                   "more is known")));
}

void tst_ReadingsFile::brokenRows_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QString>("what");
    const auto badNumber = [](const char *text) {
        return QStringLiteral("bad number \"%1\" in column \"gas_m3\"").arg(QLatin1String(text));
    };
    QTest::newRow("too few fields")
        << QByteArray("2024-05-01T01:00Z,11") << "the number of fields is 2, not 3";
    QTest::newRow("too many fields")
        << QByteArray("2024-05-01T01:00Z,11,12,13") << "the number of fields is 4, not 3";
    QTest::newRow("cut") << QByteArray("2024-05-") << "the number of fields is 1, not 3";
    QTest::newRow("no time") << QByteArray(",11,12") << "bad time stamp \"\"";
    QTest::newRow("bad time") << QByteArray("2024-05-41T01:00Z,11,12")
                              << "bad time stamp \"2024-05-41T01:00Z\"";
    QTest::newRow("time without offset")
        << QByteArray("2024-05-01T01:00:00,11,12") << "bad time stamp \"2024-05-01T01:00:00\"";
    QTest::newRow("letters") << QByteArray("2024-05-01T01:00Z,abc,12") << badNumber("abc");
    QTest::newRow("decimal comma")
        << QByteArray("2024-05-01T01:00Z,\"11,5\",12") << badNumber("11,5");
    QTest::newRow("negative") << QByteArray("2024-05-01T01:00Z,-1,12") << badNumber("-1");
    QTest::newRow("not a number") << QByteArray("2024-05-01T01:00Z,nan,12") << badNumber("nan");
    QTest::newRow("infinite") << QByteArray("2024-05-01T01:00Z,inf,12") << badNumber("inf");
    QTest::newRow("huge") << QByteArray("2024-05-01T01:00Z,1e999,12") << badNumber("1e999");
    QTest::newRow("more than a meter shows")
        << QByteArray("2024-05-01T01:00Z,1e300,12") << badNumber("1e300");
    QTest::newRow("second number bad")
        << QByteArray("2024-05-01T01:00Z,11,x") << "bad number \"x\" in column \"water_m3\"";
    QTest::newRow("open quote") << QByteArray("2024-05-01T01:00Z,11,\"12")
                                << "a quote is not closed where its field ends";
    QTest::newRow("long line") << QByteArray("2024-05-01T01:00Z,11,") + QByteArray(100000, '1')
                               << "the line is too long";
    QTest::newRow("bytes") << QByteArray("\x1b\x00\x01,\x80,\xc3", 7)
                           << QStringLiteral("bad time stamp \"???\"");
}

void tst_ReadingsFile::brokenRows()
{
    QFETCH(QByteArray, row);
    QFETCH(QString, what);
    const Household household = folder.load("time,gas_m3,water_m3\n2024-05-01T00:00Z,10,20\n" + row
                                            + "\n2024-05-01T02:00Z,12,22\n");
    QCOMPARE(household.problems,
             QStringList(QStringLiteral("FILE:3: ") + what + QStringLiteral("; row left out")));
    const qint64 start = utc("2024-05-01T00:00:00");
    QCOMPARE(household.meters.at(gas).readingAt(start + oneHour), Amount());
    QCOMPARE(household.amount(Quantity::Gas, {start, start + 2 * oneHour}), Amount(2.0));
    QCOMPARE(household.amount(Quantity::Water, {start, start + 2 * oneHour}), Amount(2.0));
}

void tst_ReadingsFile::everythingElseOfABrokenFileIsRead()
{
    const Household household = folder.load("time,gas_m3\n"
                                            "garbage\n"
                                            "2024-05-01T00:00Z,10\n"
                                            "\n"
                                            "2024-05-01T01:00Z,x\n"
                                            "   \n"
                                            "2024-05-01T02:00Z,11\n"
                                            "2024-05-01T03:00Z,12");
    QCOMPARE(household.problems.size(), 2);
    QVERIFY(household.problems.at(0).startsWith(QStringLiteral("FILE:2: ")));
    QVERIFY(household.problems.at(1).startsWith(QStringLiteral("FILE:5: ")));
    QCOMPARE(household.total(Quantity::Gas), 2.0);
}

void tst_ReadingsFile::thousandsOfBrokenRowsAreSummedUp()
{
    QByteArray content = "time,gas_m3\n2024-05-01T00:00Z,10\n";
    for (int row = 0; row < 3000; ++row) {
        content += "no row\n";
    }
    content += "2024-05-01T01:00Z,11\n";
    const Household household = folder.load(content);
    QCOMPARE(household.problems.size(), ProblemList::toldPerKind + 1);
    for (int i = 0; i < ProblemList::toldPerKind; ++i) {
        QVERIFY(household.problems.at(i).startsWith(QStringLiteral("FILE:%1: ").arg(i + 3)));
    }
    QCOMPARE(
        household.problems.last(),
        QStringLiteral("FILE: %1 more broken rows, left out").arg(3000 - ProblemList::toldPerKind));
    QCOMPARE(household.total(Quantity::Gas), 1.0);
}

void tst_ReadingsFile::missingFilesAndFoldersAreTold()
{
    const QString good = folder.write(QStringLiteral("good.csv"),
                                      "time,gas_m3\n2024-05-01T00:00Z,10\n2024-05-01T01:00Z,11\n");
    const QString none = folder.filePath(QStringLiteral("none.csv"));
    const Household household = loadReadings({none, folder.path(), good});
    QCOMPARE(household.problems,
             (QStringList {none + QStringLiteral(": no such file"),
                           folder.path() + QStringLiteral(": is a directory")}));
    QCOMPARE(household.total(Quantity::Gas), 1.0);
}

void tst_ReadingsFile::fileThatFailsToReadIsTold()
{
    // On Linux this file can be opened, and reading its first page fails.
    const QString path = QStringLiteral("/proc/self/mem");
    if (!QFileInfo::exists(path)) {
        return;
    }
    const Household household = loadReadings({path});
    QCOMPARE(household.problems.size(), 1);
    QVERIFY(household.problems.first().startsWith(path + QStringLiteral(": cannot be ")));
    QVERIFY(household.meters.empty());

    const QString locked = folder.write(QStringLiteral("locked.csv"), "time,gas_m3\n");
    QVERIFY(QFile::setPermissions(locked, QFileDevice::Permissions()));
    if (QFile(locked).open(QIODevice::ReadOnly)) {
        return; // the superuser reads everything
    }
    QVERIFY(loadReadings({locked}).problems.first().startsWith(
        locked + QStringLiteral(": cannot be opened: ")));
}

void tst_ReadingsFile::unknownHeadersAreTold_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("problems");
    QTest::newRow("empty") << QByteArray() << QStringList {"FILE: the file is empty"};
    QTest::newRow("unknown")
        << QByteArray("date,price\n1,2\n")
        << QStringList {"FILE:1: no known kind of file has the header "
                        "\"date,price\"; docs/readings.md tells of those that there are"};
    QTest::newRow("unknown column") << QByteArray("time,oil_l\n2024-05-01T00:00Z,10\n")
                                    << QStringList {"FILE:1: unknown column \"oil_l\""};
    QTest::newRow("column twice") << QByteArray("time,gas_m3,gas_m3\n2024-05-01T00:00Z,10,10\n")
                                  << QStringList {"FILE:1: column \"gas_m3\" comes twice"};
    QTest::newRow("header alone") << QByteArray("time,gas_m3\n")
                                  << QStringList {"FILE: there are no readings in it"};
    QTest::newRow("no header")
        << QByteArray("2024-05-01T00:00Z,10\n2024-05-01T01:00Z,11\n")
        << QStringList {"FILE:1: no known kind of file has the header "
                        "\"2024-05-01T00:00Z,10\"; docs/readings.md tells of those that there are"};
}

void tst_ReadingsFile::unknownHeadersAreTold()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, problems);
    const Household household = folder.load(content);
    QCOMPARE(household.problems, problems);
    QVERIFY(!household.firstInstant());
    QVERIFY(!household.lastInstant());
    QVERIFY(!household.latestPower());
}

void tst_ReadingsFile::formsOfTextDoNotMatter_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray plain = "time,gas_m3\n2024-05-01T00:00Z,10\n2024-05-01T01:00Z,11\n";
    QTest::newRow("plain") << plain;
    QTest::newRow("CRLF") << QByteArray(plain).replace("\n", "\r\n");
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + plain;
    QTest::newRow("no last line end") << plain.chopped(1);
    QTest::newRow("empty lines at the end") << plain + "\n\r\n\n";
    QTest::newRow("blanks") << QByteArray(plain).replace(",1", ", 1");
    QTest::newRow("quotes")
        << QByteArray(plain).replace("10", "\"10\"").replace("gas_m3", "\"gas_m3\"");
    QTest::newRow("newest first") << QByteArray(
        "time,gas_m3\n2024-05-01T01:00Z,11\n2024-05-01T00:00Z,10\n");
}

void tst_ReadingsFile::formsOfTextDoNotMatter()
{
    QFETCH(QByteArray, content);
    const Household household = folder.load(content);
    QCOMPARE(household.problems, QStringList());
    const qint64 start = utc("2024-05-01T00:00:00");
    QCOMPARE(household.amount(Quantity::Gas, {start, start + oneHour}), Amount(1.0));
}

QTEST_GUILESS_MAIN(tst_ReadingsFile)
#include "tst_readingsfile.moc"
