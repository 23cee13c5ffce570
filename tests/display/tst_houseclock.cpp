// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "houseclock.h"

#include <QTest>

#include <limits>

namespace {

constexpr qint64 noon = 1717236000; // 2024-06-01T10:00:00Z
constexpr qint64 start = noon * 1000;

} // namespace

class tst_HouseClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void realTimeIsTheSystems();
    void fasterClockStartsWithTheSystem_data();
    void fasterClockStartsWithTheSystem();
    void clockMayBeginAtAnotherTime();
    void speedStaysInRange_data();
    void speedStaysInRange();
    void speeds_data();
    void speeds();
};

void tst_HouseClock::realTimeIsTheSystems()
{
    const HouseClock clock(start);
    QCOMPARE(clock.speed(), 1.0);
    QCOMPARE(clock.instantAt(start), noon);
    QCOMPARE(clock.instantAt(start + 999), noon);
    QCOMPARE(clock.instantAt(start + 1000), noon + 1);
    // A system clock that is put back takes the house along, even before the start.
    QCOMPARE(clock.instantAt(start - 1), noon - 1);
    QCOMPARE(clock.instantAt(start - 86400000), noon - 86400);
}

void tst_HouseClock::fasterClockStartsWithTheSystem_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<qint64>("seconds");
    QTest::newRow("at the start") << 3600.0 << Q_INT64_C(0) << Q_INT64_C(0);
    QTest::newRow("an hour a second") << 3600.0 << Q_INT64_C(1000) << Q_INT64_C(3600);
    QTest::newRow("a part of a second") << 60.0 << Q_INT64_C(250) << Q_INT64_C(15);
    QTest::newRow("half as fast") << 0.5 << Q_INT64_C(3000) << Q_INT64_C(1);
    QTest::newRow("a year at full speed")
        << 86400.0 << Q_INT64_C(31536000000) << Q_INT64_C(31536000) * 86400;
}

void tst_HouseClock::fasterClockStartsWithTheSystem()
{
    QFETCH(double, speed);
    QFETCH(qint64, milliseconds);
    QFETCH(qint64, seconds);
    const HouseClock clock(start, speed);
    QCOMPARE(clock.instantAt(start + milliseconds), noon + seconds);
}

void tst_HouseClock::clockMayBeginAtAnotherTime()
{
    const HouseClock clock(start, 60.0, (noon - 86400) * 1000);
    QCOMPARE(clock.instantAt(start), noon - 86400);
    QCOMPARE(clock.instantAt(start + 2000), noon - 86400 + 120);
}

void tst_HouseClock::speedStaysInRange_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<double>("taken");
    QTest::newRow("zero") << 0.0 << HouseClock::slowest;
    QTest::newRow("backwards") << -5.0 << HouseClock::slowest;
    QTest::newRow("too fast") << 1e9 << HouseClock::fastest;
    QTest::newRow("endless") << std::numeric_limits<double>::infinity() << HouseClock::fastest;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 1.0;
}

void tst_HouseClock::speedStaysInRange()
{
    QFETCH(double, speed);
    QFETCH(double, taken);
    QCOMPARE(HouseClock(start, speed).speed(), taken);
}

void tst_HouseClock::speeds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("speed"); // 0: none
    QTest::newRow("one") << QStringLiteral("1") << 1.0;
    QTest::newRow("fraction") << QStringLiteral("0.5") << 0.5;
    QTest::newRow("fastest") << QStringLiteral("86400") << 86400.0;
    QTest::newRow("too fast") << QStringLiteral("86401") << 0.0;
    QTest::newRow("zero") << QStringLiteral("0") << 0.0;
    QTest::newRow("backwards") << QStringLiteral("-1") << 0.0;
    QTest::newRow("comma") << QStringLiteral("0,5") << 0.0;
    QTest::newRow("word") << QStringLiteral("fast") << 0.0;
    QTest::newRow("no number") << QStringLiteral("nan") << 0.0;
    QTest::newRow("empty") << QString() << 0.0;
}

void tst_HouseClock::speeds()
{
    QFETCH(QString, text);
    QFETCH(double, speed);
    QCOMPARE(parseSpeed(text).value_or(0.0), speed);
}

QTEST_GUILESS_MAIN(tst_HouseClock)
#include "tst_houseclock.moc"
