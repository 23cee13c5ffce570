// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "realreadings.h"

#include <QTest>

using namespace RealReadings;

/** The readings of a house with a P1 meter: four registers, by the hour and by the minute. */
class tst_RealP1Readings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void p1TotalsByRegister_data();
    void p1TotalsByRegister();
    void p1StepsBackAreGaps();
    void p1MissingRowsAreGaps();
    void p1ClockChanges();
    void p1MinutesAgreeWithHours();
    void p1MinutesTellThePower();
    void p1WrongMinuteIsLeftOut();
    void p1FilesMerge();
};

void tst_RealP1Readings::initTestCase()
{
    if (!areThere()) {
        QTest::qSkip("there are no household data beside the sources", __FILE__, __LINE__);
    }
}

void tst_RealP1Readings::p1TotalsByRegister_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<int>("tariff");
    QTest::addColumn<QString>("total");
    QTest::newRow("import low") << int(Quantity::GridImport) << int(Tariff::Low) << "4476.432";
    QTest::newRow("import normal")
        << int(Quantity::GridImport) << int(Tariff::Normal) << "1356.902";
    QTest::newRow("export low") << int(Quantity::GridExport) << int(Tariff::Low) << "1084.760";
    QTest::newRow("export normal")
        << int(Quantity::GridExport) << int(Tariff::Normal) << "2796.309";
}

void tst_RealP1Readings::p1TotalsByRegister()
{
    QFETCH(int, quantity);
    QFETCH(int, tariff);
    QFETCH(QString, total);
    const Household household = load({hourlyFile});
    const Calendar calendar(household.timeZone);
    // A row is read at the end of its hour.
    const Interval year {calendar.hour(QDate(2023, 2, 1), 0).to,
                         calendar.hour(QDate(2024, 2, 1), 0).to};
    const Meter &meter =
        household.meters.at({static_cast<Quantity>(quantity), static_cast<Tariff>(tariff)});
    QCOMPARE(rounded(meter.amount(year), 3), total);
    QCOMPARE(rounded(meter.total(year), 3), total);
}

void tst_RealP1Readings::p1StepsBackAreGaps()
{
    const Household household = load({hourlyFile});
    const Calendar calendar(household.timeZone);
    const QDate date(2023, 8, 12);
    const auto low = calendar.hoursOfDay({&household.meters.at(exportLow)}, date);
    QCOMPARE(rounded(low[10], 3), QStringLiteral("1.188"));
    QVERIFY(!low[11]);
    QVERIFY(!low[12]);
    // The other registers of that hour are right.
    QCOMPARE(rounded(calendar.hoursOfDay({&household.meters.at(importLow)}, date)[11], 3),
             QStringLiteral("0.000"));
    QVERIFY(!calendar.hoursOfDay(household.metersOf(Quantity::GridExport), date)[11]);

    // 2024-02-25 00:00 is missing from then on; what follows is known from 12:00 on.
    for (const Register &meterRegister : {importLow, exportLow}) {
        const auto hours =
            calendar.hoursOfDay({&household.meters.at(meterRegister)}, QDate(2024, 2, 25));
        for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
            QCOMPARE(hours[static_cast<std::size_t>(hour)].has_value(), hour >= 12);
        }
    }
    const QString low3638 = QStringLiteral("electricity export (low tariff) 3638.373 ");
    const QString low15521 = QStringLiteral("electricity import (low tariff) 15521.3 ");
    const QString low4013 = QStringLiteral("electricity export (low tariff) 4013.016 ");
    const QString what = QStringLiteral("is less than before, and the next is not; left out");
    QCOMPARE(problemsOf(household),
             (QStringList {hourlyFile + QStringLiteral(":4620: ") + low3638 + what,
                           hourlyFile + QStringLiteral(":9311: ") + low15521 + what,
                           hourlyFile + QStringLiteral(":9311: ") + low4013 + what}));
}

void tst_RealP1Readings::p1MissingRowsAreGaps()
{
    const Household household = load({hourlyFile});
    const Calendar calendar(household.timeZone);
    const auto meters = household.metersOf(Quantity::GridImport);
    const auto first = calendar.hoursOfDay(meters, QDate(2023, 8, 12));
    const auto second = calendar.hoursOfDay(meters, QDate(2023, 8, 13));
    for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
        QCOMPARE(first[static_cast<std::size_t>(hour)].has_value(), hour <= 12);
        QCOMPARE(second[static_cast<std::size_t>(hour)].has_value(), hour >= 16);
    }
    // Neither day ends or begins with a reading, but both together do.
    QCOMPARE(calendar.days(meters, QDate(2023, 8, 12), 2), Calendar::Amounts(2, std::nullopt));
    QVERIFY(sumOfAmounts(
        meters, {calendar.day(QDate(2023, 8, 12)).from, calendar.day(QDate(2023, 8, 13)).to}));
}

void tst_RealP1Readings::p1ClockChanges()
{
    const Household household = load({hourlyFile});
    const Calendar calendar(household.timeZone);
    const auto meters = household.metersOf(Quantity::GridImport);

    const Calendar::Amounts spring = calendar.hoursOfDay(meters, QDate(2023, 3, 26));
    QVERIFY(!spring[2]);
    QCOMPARE(knownIn(spring), 23);
    QCOMPARE(rounded(spring[3], 3), QStringLiteral("0.696"));
    QCOMPARE(rounded(calendar.days(meters, QDate(2023, 3, 26), 1)[0], 3),
             rounded(sumOf(spring), 3));

    const Calendar::Amounts autumn = calendar.hoursOfDay(meters, QDate(2023, 10, 29));
    QCOMPARE(knownIn(autumn), 24);
    QCOMPARE(rounded(autumn[2], 3), QStringLiteral("4.306"));
    QCOMPARE(rounded(calendar.days(meters, QDate(2023, 10, 29), 1)[0], 3),
             rounded(sumOf(autumn), 3));
}

void tst_RealP1Readings::p1MinutesAgreeWithHours()
{
    const Household hours = load({hourlyFile});
    const Household minutes = load({minuteFile});
    const Calendar calendar(hours.timeZone);
    int compared = 0;
    for (const Register &meterRegister : {importLow, importNormal, exportLow, exportNormal}) {
        const Meter &hourly = hours.meters.at(meterRegister);
        const Meter &fine = minutes.meters.at(meterRegister);
        for (QDate date(2024, 2, 19); date <= QDate(2024, 2, 23); date = date.addDays(1)) {
            for (int hour = 1; hour < Calendar::hoursPerDay; ++hour) {
                const Interval slot = calendar.hour(date, hour);
                const std::optional<double> expected = hourly.amount(slot);
                const std::optional<double> found = fine.amount(slot);
                QVERIFY(expected && found);
                QCOMPARE(rounded(found, 3), rounded(expected, 3));
                ++compared;
            }
        }
    }
    QCOMPARE(compared, 4 * 5 * 23);
}

void tst_RealP1Readings::p1MinutesTellThePower()
{
    const Household household = load({minuteFile});
    const std::optional<GridPower> power = household.latestPower();
    QVERIFY(power);
    QCOMPARE(rounded(power->watts, 3), rounded(1232.14285714286 - 206.285714285714, 3));
    QCOMPARE(power->instant, utc("2024-03-03T10:10:00"));
}

void tst_RealP1Readings::p1WrongMinuteIsLeftOut()
{
    const Household household = load({minuteFile});
    const Meter &low = household.meters.at(importLow);
    // 23:17 and 23:18 need the reading that was wrong; before and after it all is known.
    QVERIFY(!low.amount(utc("2024-02-24T22:17:00"), utc("2024-02-24T22:18:00")));
    QVERIFY(!low.amount(utc("2024-02-24T22:18:00"), utc("2024-02-24T22:19:00")));
    QCOMPARE(rounded(low.amount(utc("2024-02-24T22:17:00"), utc("2024-02-24T22:19:00")), 3),
             QStringLiteral("0.000"));
    QCOMPARE(rounded(low.amount(utc("2024-02-24T22:19:00"), utc("2024-02-24T22:20:00")), 3),
             QStringLiteral("0.001"));
    QCOMPARE(
        problemsOf(household),
        (QStringList {
            minuteFile
                + QStringLiteral(":8599: electricity import (low tariff) 15521.409 is more than "
                                 "what follows; left out"),
            minuteFile
                + QStringLiteral(":8599: electricity export (low tariff) 4013.046 is more than "
                                 "what follows; left out")}));
    // Rows miss from 00:02 to 11:09.
    QVERIFY(!low.amount(utc("2024-02-24T23:02:00"), utc("2024-02-24T23:03:00")));
    QCOMPARE(rounded(low.amount(utc("2024-02-24T23:02:00"), utc("2024-02-25T10:11:00")), 3),
             QStringLiteral("0.109"));
}

void tst_RealP1Readings::p1FilesMerge()
{
    const Household household = load({hourlyFile, minuteFile});
    const Meter &low = household.meters.at(importLow);
    QCOMPARE(rounded(low.total(), 3), QStringLiteral("4987.931"));
    QCOMPARE(household.lastInstant(), std::optional<qint64>(utc("2024-03-03T11:00:00")));
    QCOMPARE(household.latestPower()->instant, utc("2024-03-03T10:10:00"));
    QVERIFY(low.amount(utc("2024-02-24T10:10:00"), utc("2024-02-24T10:11:00")));
    QVERIFY(low.amount(utc("2023-06-14T10:00:00"), utc("2023-06-14T11:00:00")));
    for (const QString &line : household.problems) {
        QVERIFY2(!line.contains(QStringLiteral("another meter")), qPrintable(line));
    }
}

QTEST_GUILESS_MAIN(tst_RealP1Readings)
#include "tst_realp1readings.moc"
