// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "budget.h"
#include "household.h"

#include <QTest>

using Readings::Household;
using Readings::Meter;
using Readings::Quantity;

class tst_Budget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void yearIsMadeOfDays();
    void absenceTakesLess();
    void stars_data();
    void stars();
    void takenOnADay();
};

void tst_Budget::yearIsMadeOfDays()
{
    QCOMPARE(Budget::ofDay(3650, Profile::Home) * 365.25, 3650.0);
}

void tst_Budget::absenceTakesLess()
{
    const double home = Budget::ofDay(3500, Profile::Home);
    const double away = Budget::ofDay(3500, Profile::Away);
    const double holiday = Budget::ofDay(3500, Profile::Holiday);
    QCOMPARE(away, 0.6 * home);
    QCOMPARE(holiday, 0.25 * home);
}

void tst_Budget::stars_data()
{
    QTest::addColumn<double>("used");
    QTest::addColumn<double>("budget");
    QTest::addColumn<int>("stars");

    QTest::newRow("nothing") << 0.0 << 8.0 << 3;
    QTest::newRow("three quarters") << 6.0 << 8.0 << 3;
    QTest::newRow("above them") << 6.01 << 8.0 << 2;
    QTest::newRow("all") << 8.0 << 8.0 << 2;
    QTest::newRow("above it") << 8.01 << 8.0 << 1;
    QTest::newRow("one and a quarter") << 10.0 << 8.0 << 1;
    QTest::newRow("far above") << 10.01 << 8.0 << 0;
    QTest::newRow("no budget") << 0.0 << 0.0 << 0;
    QTest::newRow("negative budget") << -2.0 << -1.0 << 0;
    QTest::newRow("no number") << 1.0 << double(qQNaN()) << 0;
}

void tst_Budget::stars()
{
    QFETCH(double, used);
    QFETCH(double, budget);
    QTEST(Budget::starsFor(used, budget), "stars");
}

void tst_Budget::takenOnADay()
{
    Household household;
    household.timeZone = QTimeZone("Europe/Amsterdam");
    const QDate date(2024, 3, 30);
    QVERIFY(!Budget::takenOn(household, date));

    Meter &meter = household.meter({Quantity::GridImport}, Meter::Kind::Counter);
    const qint64 midnight = QDateTime(date, QTime(0, 0), household.timeZone).toSecsSinceEpoch();
    for (int hour = 0; hour <= 30; ++hour) {
        meter.addReading(midnight + 3600 * hour, 0.5 * hour);
    }
    QCOMPARE(Budget::takenOn(household, date)->amount, 12.0);
    QVERIFY(Budget::takenOn(household, date)->isComplete);
    // The day on which the readings end counts so far.
    QCOMPARE(Budget::takenOn(household, date.addDays(1))->amount, 3.0);
    QVERIFY(!Budget::takenOn(household, date.addDays(2)));
    QVERIFY(!Budget::takenOn(household, date.addDays(-1)));
    meter.addReading(midnight - 7200, 0.0);
    QCOMPARE(Budget::takenOn(household, date.addDays(-1))->amount, 0.0);
    QVERIFY(!Budget::takenOn(household, date.addDays(-1))->isComplete);
}

QTEST_APPLESS_MAIN(tst_Budget)
#include "tst_budget.moc"
