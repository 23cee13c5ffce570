// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "profile.h"

#include "csvreader.h"

#include <QTest>
#include <QTimeZone>
#include <set>

using namespace Readings;

namespace {

std::string_view view(const QByteArray &text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

} // namespace

class tst_Profile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowOfTheTableHoldsTogether();
    void wholeHeadersAreFound();
    void ownHeaderMayHaveAnyColumns_data();
    void ownHeaderMayHaveAnyColumns();
    void refusedHeadersAreExplained_data();
    void refusedHeadersAreExplained();
    void quantitiesHaveUnitsAndLimits();
    void registersHaveNames();
};

void tst_Profile::everyRowOfTheTableHoldsTogether()
{
    std::set<QByteArray> headers;
    for (const Profile &profile : profiles()) {
        QVERIFY2(headers.insert(profile.header).second, profile.header.constData());
        QVERIFY(!profile.columns.empty());
        QVERIFY(profile.timeZone.isEmpty() || QTimeZone(profile.timeZone).isValid());
        QVERIFY(isWallClock(profile.timeFormat) ? !profile.timeZone.isEmpty() : true);
        QVERIFY(profile.separator != profile.decimalSign);
        std::set<std::pair<Column::Role, Register>> known;
        bool needsStep = profile.stamp == Profile::Stamp::IntervalStart;
        for (const Column &column : profile.columns) {
            QVERIFY2(known.insert({column.role, column.meterRegister}).second, column.name.data());
            QVERIFY(column.factor > 0.0);
            needsStep = needsStep || column.role == Column::Role::Amount;
        }
        QVERIFY(!needsStep || profile.step > 0);
    }
}

void tst_Profile::wholeHeadersAreFound()
{
    int found = 0;
    for (const Profile &profile : profiles()) {
        if (profile.recognition != Profile::Recognition::WholeHeader) {
            continue;
        }
        ++found;
        const HeaderMatch match = matchHeader(view(profile.header));
        QCOMPARE(match.profile, &profile);
        QCOMPARE(match.problem, QString());
        // Each column that the row names must be in the header, or it would be silently ignored.
        QCOMPARE(match.columns.size(), profile.columns.size());
        std::vector<std::string_view> fields;
        QVERIFY(CsvReader::split(view(profile.header), profile.separator, fields));
        QCOMPARE(match.fieldCount, fields.size());
        QVERIFY(fields[match.timeField] == view(profile.timeColumn));
        for (const HeaderMatch::UsedColumn &used : match.columns) {
            QVERIFY(fields[used.field] == view(used.column->name));
        }
    }
    QCOMPARE(found, 6);
}

void tst_Profile::ownHeaderMayHaveAnyColumns_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QByteArrayList>("columns");
    QTest::newRow("one") << QByteArray("time,gas_m3") << QByteArrayList {"gas_m3"};
    QTest::newRow("all") << QByteArray("time,electricity_import_kwh,electricity_export_kwh,"
                                       "solar_kwh,gas_m3,water_m3,heating_gj,heat_pump_kwh,car_kwh")
                         << QByteArrayList {"electricity_import_kwh",
                                            "electricity_export_kwh",
                                            "solar_kwh",
                                            "gas_m3",
                                            "water_m3",
                                            "heating_gj",
                                            "heat_pump_kwh",
                                            "car_kwh"};
    QTest::newRow("another order") << QByteArray("time,water_m3,solar_kwh,gas_m3")
                                   << QByteArrayList {"water_m3", "solar_kwh", "gas_m3"};
    QTest::newRow("tariffs") << QByteArray("time,electricity_import_normal_kwh,"
                                           "electricity_import_low_kwh")
                             << QByteArrayList {"electricity_import_normal_kwh",
                                                "electricity_import_low_kwh"};
    QTest::newRow("quoted") << QByteArray("\"time\",\"gas_m3\"") << QByteArrayList {"gas_m3"};
}

void tst_Profile::ownHeaderMayHaveAnyColumns()
{
    QFETCH(QByteArray, header);
    QFETCH(QByteArrayList, columns);
    const HeaderMatch match = matchHeader(view(header));
    QVERIFY(match.profile);
    QCOMPARE(match.profile->recognition, Profile::Recognition::TimeColumn);
    QCOMPARE(match.timeField, std::size_t(0));
    QByteArrayList found;
    for (const HeaderMatch::UsedColumn &used : match.columns) {
        QCOMPARE(used.field, static_cast<std::size_t>(found.size()) + 1);
        found.append(used.column->name);
    }
    QCOMPARE(found, columns);
}

void tst_Profile::refusedHeadersAreExplained_data()
{
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QString>("problem");
    QTest::newRow("unknown")
        << QByteArray("date,price")
        << QStringLiteral("no known kind of file has the header "
                          "\"date,price\"; docs/readings.md tells of those that there are");
    QTest::newRow("empty") << QByteArray()
                           << QStringLiteral("no known kind of file has the header \"\"; "
                                             "docs/readings.md tells of those that there are");
    QTest::newRow("long") << QByteArray(200, 'x')
                          << QStringLiteral("no known kind of file has the header \"%1...\"; "
                                            "docs/readings.md tells of those that there are")
                                 .arg(QString(60, QLatin1Char('x')));
    QTest::newRow("unknown column")
        << QByteArray("time,gas_m3,oil_l") << QStringLiteral("unknown column \"oil_l\"");
    QTest::newRow("twice") << QByteArray("time,gas_m3,gas_m3")
                           << QStringLiteral("column \"gas_m3\" comes twice");
    QTest::newRow("time alone") << QByteArray("time")
                                << QStringLiteral("there is no column but \"time\"");
    QTest::newRow("time later")
        << QByteArray("gas_m3,time")
        << QStringLiteral("no known kind of file has the header "
                          "\"gas_m3,time\"; docs/readings.md tells of those that there are");
    QTest::newRow("one column more")
        << QByteArray("unix_ts,water_counter,furnace_gas_counter,x")
        << QStringLiteral("no known kind of file has the header \"unix_"
                          "ts,water_counter,furnace_gas_counter,x\"; docs/readings.md tells of "
                          "those that there are");
}

void tst_Profile::refusedHeadersAreExplained()
{
    QFETCH(QByteArray, header);
    QFETCH(QString, problem);
    const HeaderMatch match = matchHeader(view(header));
    QVERIFY(!match.profile);
    QCOMPARE(match.problem, problem);
}

void tst_Profile::quantitiesHaveUnitsAndLimits()
{
    for (const Profile &profile : profiles()) {
        for (const Column &column : profile.columns) {
            const Quantity quantity = column.meterRegister.quantity;
            QCOMPARE(quantityInfo(quantity).quantity, quantity);
            QVERIFY(quantityInfo(quantity).mostPerHour > 0.0);
            QVERIFY(!quantityName(quantity).isEmpty());
        }
    }
    QCOMPARE(quantityInfo(Quantity::GridImport).unit, QStringLiteral("kWh"));
    QCOMPARE(quantityInfo(Quantity::Gas).unit, QString::fromUtf8("m³"));
    QCOMPARE(quantityInfo(Quantity::Heating).unit, QStringLiteral("GJ"));
    QCOMPARE(quantityInfo(Quantity::ElectricCar).unit, QStringLiteral("kWh"));
}

void tst_Profile::registersHaveNames()
{
    QCOMPARE(registerName({Quantity::Gas, Tariff::Single}), QStringLiteral("gas"));
    QCOMPARE(registerName({Quantity::GridImport, Tariff::Low}),
             QStringLiteral("electricity import (low tariff)"));
    QCOMPARE(registerName({Quantity::GridExport, Tariff::Normal}),
             QStringLiteral("electricity export (normal tariff)"));
}

QTEST_APPLESS_MAIN(tst_Profile)
#include "tst_profile.moc"
