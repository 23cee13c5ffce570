// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "effort.h"
#include "realreadings.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace RealReadings;

class tst_RealReadings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void germanYearTotals_data();
    void germanYearTotals();
    void germanSkippedHourIsTheOnlyProblem();
    void germanGapOf54HoursIsAGapThatTheCounterCrosses();
    void germanGaps_data();
    void germanGaps();
    void germanHoursWithoutChangeAreZero();
    void germanConsumptionIsNegativeInElevenHours();
    void germanClockChanges();
    void portalYearTotals();
    void portalElectricityHasNoGap();
    void portalGasLacksOneHour();
    void portalTellsTheMeanPower();
    void canadianYearTotals();
    void canadianYearHasNoGap();
    void effortGrowsWithTheRows();
    void allFilesAtOnceTellWhatDoesNotFitTogether();
};

void tst_RealReadings::initTestCase()
{
    if (!areThere()) {
        QTest::qSkip("there are no household data beside the sources", __FILE__, __LINE__);
    }
}

void tst_RealReadings::germanYearTotals_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<QString>("total");
    QTest::newRow("import") << int(Quantity::GridImport) << "3919.4";
    QTest::newRow("export") << int(Quantity::GridExport) << "8730.9";
    QTest::newRow("solar") << int(Quantity::SolarProduction) << "11001.0";
    QTest::newRow("heat pump") << int(Quantity::HeatPump) << "2598.2";
    QTest::newRow("car") << int(Quantity::ElectricCar) << "1006.5";
}

void tst_RealReadings::germanYearTotals()
{
    QFETCH(int, quantity);
    QFETCH(QString, total);
    const Household household = load({germanFile});
    const Calendar calendar(household.timeZone);
    const Interval year = yearOf(calendar, 2016);
    // 2598.150 in binary is a little less than it, hence the hair.
    constexpr double hair = 1e-9;
    const auto wanted = static_cast<Quantity>(quantity);
    QCOMPARE(rounded(household.total(wanted) + hair, 1), total);
    QCOMPARE(rounded(household.total(wanted, year) + hair, 1), total);
    QCOMPARE(rounded(*household.amount(wanted, year) + hair, 1), total);
    QCOMPARE(household.firstInstant(), std::optional<qint64>(year.from));
    QCOMPARE(household.lastInstant(), std::optional<qint64>(year.to));
}

void tst_RealReadings::germanSkippedHourIsTheOnlyProblem()
{
    const Household household = load({germanFile});
    QCOMPARE(
        problemsOf(household),
        QStringList(germanFile
                    + QStringLiteral(":2068: a time that the clock in Europe/Berlin skips; row "
                                     "left out")));
    QCOMPARE(household.timeZone.id(), QByteArray("Europe/Berlin"));
    QCOMPARE(household.meters.size(), std::size_t(5));
}

void tst_RealReadings::germanGapOf54HoursIsAGapThatTheCounterCrosses()
{
    const Household household = load({germanFile});
    const Calendar calendar(household.timeZone);
    const QDate first(2016, 4, 22);
    for (const Quantity quantity :
         {Quantity::GridImport, Quantity::GridExport, Quantity::SolarProduction}) {
        const auto meters = household.metersOf(quantity);
        for (int hour = 0; hour < 72; ++hour) {
            const bool known =
                calendar.hoursOfDay(meters, first.addDays(hour / 24))[hour % 24].has_value();
            // The last reading before is at 14:00, the first after it at 21:00.
            QCOMPARE(known, hour < 14 || hour >= 48 + 21);
        }
        QCOMPARE(calendar.days(meters, first, 3), Calendar::Amounts(3, std::nullopt));
        QVERIFY(calendar.days(meters, first.addDays(-1), 1)[0]);
        QVERIFY(calendar.days(meters, first.addDays(3), 1)[0]);
    }
    const Interval across {calendar.hour(first, 14).from, calendar.hour(first.addDays(2), 21).from};
    QCOMPARE(rounded(household.amount(Quantity::GridImport, across), 1), QStringLiteral("17.1"));
    QCOMPARE(rounded(household.amount(Quantity::GridExport, across), 1), QStringLiteral("65.0"));
    QCOMPARE(rounded(household.amount(Quantity::SolarProduction, across), 1),
             QStringLiteral("83.2"));
    // The week has readings at both of its midnights: the counter went on.
    QVERIFY(household.amount(Quantity::GridImport, calendar.week(first)));
}

void tst_RealReadings::germanGaps_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("quantity");
    QTest::addColumn<int>("firstMissing");
    QTest::addColumn<int>("missing");
    const int import = int(Quantity::GridImport);
    QTest::newRow("February") << QDate(2016, 2, 24) << import << 13 << 2;
    QTest::newRow("October") << QDate(2016, 10, 21) << import << 10 << 12;
    QTest::newRow("December, solar")
        << QDate(2016, 12, 21) << int(Quantity::SolarProduction) << 11 << 3;
    QTest::newRow("December, heat pump")
        << QDate(2016, 12, 21) << int(Quantity::HeatPump) << 11 << 3;
}

void tst_RealReadings::germanGaps()
{
    QFETCH(QDate, date);
    QFETCH(int, quantity);
    QFETCH(int, firstMissing);
    QFETCH(int, missing);
    const Household household = load({germanFile});
    const Calendar calendar(household.timeZone);
    const auto meters = household.metersOf(static_cast<Quantity>(quantity));
    const Calendar::Amounts hours = calendar.hoursOfDay(meters, date);
    for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
        // A missing reading is the end of an hour and the start of the next.
        const bool gap = hour >= firstMissing - 1 && hour < firstMissing + missing;
        QCOMPARE(hours[static_cast<std::size_t>(hour)].has_value(), !gap);
    }
    QVERIFY(calendar.days(meters, date, 1)[0]);
    QVERIFY(*calendar.days(meters, date, 1)[0] > sumOf(hours));
}

void tst_RealReadings::germanHoursWithoutChangeAreZero()
{
    const Household household = load({germanFile});
    const Calendar calendar(household.timeZone);
    const auto hours =
        calendar.hoursOfDay(household.metersOf(Quantity::SolarProduction), QDate(2016, 1, 1));
    for (int hour = 0; hour < 6; ++hour) {
        QCOMPARE(hours[static_cast<std::size_t>(hour)], std::optional<double>(0.0));
    }
}

void tst_RealReadings::germanConsumptionIsNegativeInElevenHours()
{
    const Household household = load({germanFile});
    const Calendar calendar(household.timeZone);
    int known = 0;
    int negative = 0;
    double lowest = 0.0;
    for (QDate date(2016, 1, 1); date.year() == 2016; date = date.addDays(1)) {
        for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
            const std::optional<double> used = household.consumption(calendar.hour(date, hour));
            known += used ? 1 : 0;
            negative += used.value_or(0.0) < 0.0 ? 1 : 0;
            lowest = std::min(lowest, used.value_or(0.0));
        }
    }
    // Of the 8,705 rows with a row after them, the clock changes take three: two rows in spring
    // make one hour, and in autumn neither side of the reading that lacks is an hour.
    QCOMPARE(known, 8705 - 3);
    QCOMPARE(negative, 11);
    QCOMPARE(rounded(lowest, 3), QStringLiteral("-1.128"));
}

void tst_RealReadings::germanClockChanges()
{
    const Household household = load({germanFile});
    const Calendar calendar(household.timeZone);
    const auto meters = household.metersOf(Quantity::GridImport);

    const Calendar::Amounts spring = calendar.hoursOfDay(meters, QDate(2016, 3, 27));
    QCOMPARE(rounded(spring[0], 3), QStringLiteral("0.640"));
    QCOMPARE(rounded(spring[1], 3), QStringLiteral("0.665"));
    QVERIFY(!spring[2]);
    QCOMPARE(rounded(spring[3], 3), QStringLiteral("0.680"));
    QCOMPARE(knownIn(spring), 23);
    QCOMPARE(rounded(calendar.days(meters, QDate(2016, 3, 27), 1)[0], 3),
             rounded(sumOf(spring), 3));

    const Calendar::Amounts autumn = calendar.hoursOfDay(meters, QDate(2016, 10, 30));
    QCOMPARE(rounded(autumn[0], 3), QStringLiteral("0.794"));
    QVERIFY(!autumn[1]);
    QVERIFY(!autumn[2]);
    QCOMPARE(rounded(autumn[3], 3), QStringLiteral("0.658"));
    QCOMPARE(knownIn(autumn), 22);
    // 01:00 to the 02:00 of winter time are two hours, 02:00 to 03:00 is one.
    const Meter &meter = *meters.front();
    QCOMPARE(rounded(meter.amount(utc("2016-10-29T23:00:00"), utc("2016-10-30T01:00:00")), 3),
             QStringLiteral("1.091"));
    QCOMPARE(rounded(meter.amount(utc("2016-10-30T01:00:00"), utc("2016-10-30T02:00:00")), 3),
             QStringLiteral("0.695"));
    QCOMPARE(rounded(calendar.days(meters, QDate(2016, 10, 30), 1)[0], 3),
             rounded(sumOf(autumn) + 1.091 + 0.695, 3));
}

void tst_RealReadings::portalYearTotals()
{
    const Household household = load({quarterFile, gasFile});
    QCOMPARE(household.problems, QStringList());
    QCOMPARE(rounded(household.meters.at(importNormal).total(), 2), QStringLiteral("6328.42"));
    QCOMPARE(rounded(household.meters.at(importLow).total(), 2), QStringLiteral("2455.23"));
    QCOMPARE(household.meters.at(exportNormal).total(), 0.0);
    QCOMPARE(household.meters.at(exportLow).total(), 0.0);
    QCOMPARE(rounded(household.total(Quantity::Gas), 2), QStringLiteral("3550.10"));
    QCOMPARE(household.firstInstant(), std::optional<qint64>(utc("2022-12-31T23:00:00")));
    QCOMPARE(household.lastInstant(), std::optional<qint64>(utc("2023-12-31T23:00:00")));
}

void tst_RealReadings::portalElectricityHasNoGap()
{
    const Household household = load({quarterFile});
    const Calendar calendar(household.timeZone);
    const Interval year = yearOf(calendar, 2023);
    QCOMPARE(rounded(household.amount(Quantity::GridImport, year), 2), QStringLiteral("8783.65"));
    double sum = 0.0;
    for (QDate date(2023, 1, 1); date.year() == 2023; date = date.addDays(1)) {
        const auto hours = calendar.hoursOfDay(household.metersOf(Quantity::GridImport), date);
        QCOMPARE(knownIn(hours), date == QDate(2023, 3, 26) ? 23 : 24);
        sum += sumOf(hours);
        QCOMPARE(rounded(household.amount(Quantity::GridImport, calendar.day(date)), 2),
                 rounded(sumOf(hours), 2));
    }
    QCOMPARE(rounded(sum, 2), QStringLiteral("8783.65"));
    // Both quarters of 2:00 to 3:00, of summer time and of winter time, lie in the slot.
    const auto autumn =
        calendar.hoursOfDay(household.metersOf(Quantity::GridImport), QDate(2023, 10, 29));
    QCOMPARE(rounded(autumn[2], 2),
             rounded(0.10 + 0.11 + 0.10 + 0.32 + 0.12 + 0.10 + 0.11 + 0.11, 2));
    QCOMPARE(household.consumption(calendar.day(QDate(2023, 6, 1))),
             household.amount(Quantity::GridImport, calendar.day(QDate(2023, 6, 1))));
}

void tst_RealReadings::portalGasLacksOneHour()
{
    const Household household = load({gasFile});
    const Calendar calendar(household.timeZone);
    const auto meters = household.metersOf(Quantity::Gas);
    for (QDate date(2023, 1, 1); date.year() == 2023; date = date.addDays(1)) {
        const bool isAutumn = date == QDate(2023, 10, 29);
        const int expected = date == QDate(2023, 3, 26) || isAutumn ? 23 : 24;
        QCOMPARE(knownIn(calendar.hoursOfDay(meters, date)), expected);
        QCOMPARE(calendar.days(meters, date, 1)[0].has_value(), !isAutumn);
    }
    QVERIFY(!calendar.hoursOfDay(meters, QDate(2023, 10, 29))[2]);
    QVERIFY(!meters.front()->amount(utc("2023-10-29T00:00:00"), utc("2023-10-29T01:00:00")));
    QVERIFY(meters.front()->amount(utc("2023-10-29T01:00:00"), utc("2023-10-29T02:00:00")));
}

void tst_RealReadings::portalTellsTheMeanPower()
{
    const Household household = load({quarterFile});
    const std::optional<GridPower> power = household.latestPower();
    QVERIFY(power);
    QCOMPARE(rounded(power->watts, 6), QStringLiteral("520.000000")); // 0.13 kWh in 15 minutes
    QCOMPARE(power->instant, utc("2023-12-31T23:00:00"));
    QVERIFY(!load({gasFile}).latestPower());
}

void tst_RealReadings::canadianYearTotals()
{
    const Household household = load({canadianFile});
    QCOMPARE(household.problems, QStringList());
    const Calendar calendar(household.timeZone);
    const Interval year = yearOf(calendar, 2013);
    QCOMPARE(rounded(household.total(Quantity::Water), 4), QStringLiteral("297.4965"));
    QCOMPARE(rounded(household.amount(Quantity::Water, year), 4), QStringLiteral("297.4965"));
    QCOMPARE(rounded(household.total(Quantity::Gas), 5), QStringLiteral("420.06786"));
    QCOMPARE(rounded(household.amount(Quantity::Gas, year), 5), QStringLiteral("420.06786"));
}

void tst_RealReadings::canadianYearHasNoGap()
{
    const Household household = load({canadianFile});
    QCOMPARE(household.timeZone.id(), QByteArray("America/Vancouver"));
    const Calendar calendar(household.timeZone);
    for (const Quantity quantity : {Quantity::Water, Quantity::Gas}) {
        double sum = 0.0;
        for (QDate date(2013, 1, 1); date.year() == 2013; date = date.addDays(1)) {
            const auto hours = calendar.hoursOfDay(household.metersOf(quantity), date);
            QCOMPARE(knownIn(hours), date == QDate(2013, 3, 10) ? 23 : 24);
            sum += sumOf(hours);
        }
        QCOMPARE(rounded(sum, 4), rounded(household.total(quantity), 4));
    }
    // Nobody was at home: the hours are 0, and no gaps.
    const auto holiday =
        calendar.hoursOfDay(household.metersOf(Quantity::Water), QDate(2013, 8, 3));
    QCOMPARE(holiday, Calendar::Amounts(24, 0.0));
}

void tst_RealReadings::effortGrowsWithTheRows()
{
    const QTemporaryDir folder;
    for (const QString &name : {germanFile, minuteFile, quarterFile, canadianFile}) {
        QFile whole(pathOf(name));
        QFile part(folder.filePath(name));
        QVERIFY(whole.open(QIODevice::ReadOnly) && part.open(QIODevice::WriteOnly));
        const QByteArray rows = whole.readAll();
        part.write(rows.left(rows.indexOf('\n', rows.size() / 16) + 1));
        part.close();
        const auto read = [](const QFile &file) {
            QVERIFY(!loadReadings({file.fileName()}).meters.empty());
        };
        const double times = ZemTest::effortBeside([&] { read(part); }, [&] { read(whole); });
        QVERIFY2(times < 64.0, qPrintable(name + QStringLiteral(": %1").arg(times)));
    }
}

void tst_RealReadings::allFilesAtOnceTellWhatDoesNotFitTogether()
{
    const Household household =
        load({quarterFile, gasFile, germanFile, canadianFile, hourlyFile, minuteFile});
    QCOMPARE(household.timeZone.id(), QByteArray("Europe/Amsterdam"));
    QCOMPARE(rounded(household.total(Quantity::Water), 4), QStringLiteral("297.4965"));
    const QStringList problems = problemsOf(household);
    const auto count = [&](const QString &text) { return problems.filter(text).size(); };
    QCOMPARE(count(QStringLiteral("is of the time zone Europe/Berlin")), 1);
    QCOMPARE(count(QStringLiteral("is of the time zone America/Vancouver")), 1);
    QCOMPARE(count(QStringLiteral("electricity import is known already by tariff")), 1);
    QCOMPARE(count(QStringLiteral("electricity export is known already by tariff")), 1);
}

QTEST_GUILESS_MAIN(tst_RealReadings)
#include "tst_realreadings.moc"
