// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"
#include "household.h"
#include "thinning.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

#include <cmath>

using namespace Readings;

namespace {

constexpr qint64 hour = 3600;
constexpr qint64 quarter = 900;
constexpr qint64 step = 300;
constexpr double most = 25.0;
const qint64 noon = QDateTime(QDate(2024, 6, 1), QTime(12, 0), QTimeZone::utc()).toSecsSinceEpoch();

/** Readings every five minutes from @p from to @p to, 0.01 more each time. */
std::vector<Reading> rising(qint64 from, qint64 to)
{
    std::vector<Reading> readings;
    for (qint64 at = from; at <= to; at += step) {
        readings.push_back({at, double(at - from) / step * 0.01});
    }
    return readings;
}

/** The instants that stay, in seconds after noon. */
QList<int> kept(const std::vector<Reading> &readings)
{
    const std::vector<bool> isDispensable = dispensable(readings, hour, most);
    QList<int> instants;
    for (std::size_t i = 0; i < readings.size(); ++i) {
        if (!isDispensable[i]) {
            instants << int(readings[i].instant - noon);
        }
    }
    return instants;
}

} // namespace

/** Which readings a history can do without. */
class tst_Thinning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hoursStay();
    void beginningAndEndStay();
    void readingsBesideASilenceStay();
    void replacedMeterStays_data();
    void replacedMeterStays();
    void stepFollowsTheClockOfTheZone_data();
    void stepFollowsTheClockOfTheZone();
    void sumsByTheHourStay();
    void onlyTheOldIsThinned();
    void thinnedMeterCountsOn();
};

void tst_Thinning::hoursStay()
{
    QCOMPARE(kept(rising(noon, noon + 3 * hour)),
             QList<int>({0, int(hour), int(2 * hour), int(3 * hour)}));
    QCOMPARE(kept({}), QList<int>());
}

void tst_Thinning::beginningAndEndStay()
{
    QCOMPARE(kept(rising(noon - 2 * step, noon + hour + 2 * step)),
             QList<int>({-600, -300, 0, 3600, 3900, 4200}));
}

void tst_Thinning::readingsBesideASilenceStay()
{
    std::vector<Reading> readings = rising(noon, noon + 3 * hour);
    // Nothing was heard from 12:50 to 13:20.
    readings.erase(readings.begin() + 11, readings.begin() + 16);
    QCOMPARE(kept(readings),
             QList<int>({0,    300,  600,  900,  1200, 1500, 1800, 2100, 2400, 2700, 3000,
                         4800, 5100, 5400, 5700, 6000, 6300, 6600, 6900, 7200, 10800}));
}

void tst_Thinning::replacedMeterStays_data()
{
    QTest::addColumn<double>("offset");
    QTest::newRow("the new one begins lower") << -0.05;
    QTest::newRow("the new one begins much higher") << 100.0;
}

void tst_Thinning::replacedMeterStays()
{
    QFETCH(double, offset);
    std::vector<Reading> readings = rising(noon, noon + 2 * hour);
    for (std::size_t i = 6; i < readings.size(); ++i) {
        readings[i].value += offset;
    }
    const QList<int> instants = kept(readings);
    QCOMPARE(instants.size(), 13 + 1); // all of the first hour, and the end of the second
    QCOMPARE(instants.last(), int(2 * hour));
}

void tst_Thinning::stepFollowsTheClockOfTheZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("expected");
    QTest::newRow("whole hours") << QByteArray("Europe/Amsterdam") << hour;
    QTest::newRow("half an hour") << QByteArray("Asia/Kolkata") << quarter;
    QTest::newRow("half an hour in one half of the year")
        << QByteArray("Australia/Lord_Howe") << quarter;
    QTest::newRow("no zone") << QByteArray() << hour;
}

void tst_Thinning::stepFollowsTheClockOfTheZone()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, expected);
    QCOMPARE(keptStep(zone.isEmpty() ? QTimeZone() : QTimeZone(zone)), expected);
}

/** A year of a meter that is silent now and then and replaced twice, with and without thinning. */
void tst_Thinning::sumsByTheHourStay()
{
    QRandomGenerator random(20240601);
    for (int round = 0; round < 20; ++round) {
        Meter all(Meter::Kind::Counter, most);
        double value = 1000.0;
        for (qint64 at = noon; at < noon + 20 * 24 * hour; at += step) {
            if (random.bounded(300) == 0) {
                at += step * random.bounded(40);
            }
            if (random.bounded(3000) == 0) {
                value = double(random.bounded(2000));
            }
            value += random.bounded(0.2);
            all.addReading(random.bounded(500) == 0 ? at + 7 : at, value);
        }
        Meter thinned = all;
        thinned.thin(noon + 30 * 24 * hour, hour);
        for (qint64 at = noon; at < noon + 20 * 24 * hour; at += hour) {
            QCOMPARE(thinned.amount(at, at + hour), all.amount(at, at + hour));
            QCOMPARE(thinned.amount(at, at + 24 * hour), all.amount(at, at + 24 * hour));
            QCOMPARE(thinned.total(at, at + hour), all.total(at, at + hour));
        }
        QCOMPARE(thinned.total(), all.total());
        QCOMPARE(thinned.firstInstant(), all.firstInstant());
        QCOMPARE(thinned.lastInstant(), all.lastInstant());
        QVERIFY(!thinned.readingAt(noon + step) || !thinned.readingAt(noon + hour));
    }
}

void tst_Thinning::onlyTheOldIsThinned()
{
    Meter meter(Meter::Kind::Counter, most);
    for (const Reading &reading : rising(noon, noon + 4 * hour)) {
        meter.addReading(reading.instant, reading.value);
    }
    meter.thin(noon + 2 * hour, hour);
    QVERIFY(!meter.readingAt(noon + step));
    QVERIFY(meter.readingAt(noon + hour));
    QVERIFY(meter.readingAt(noon + 2 * hour + step));
    // The hour that the limit lies in stays whole until it is over.
    meter.thin(noon + 2 * hour + 2 * step, hour);
    QVERIFY(meter.readingAt(noon + 2 * hour + step));
}

void tst_Thinning::thinnedMeterCountsOn()
{
    Meter meter(Meter::Kind::Counter, most);
    for (const Reading &reading : rising(noon, noon + 2 * hour)) {
        meter.addReading(reading.instant, reading.value);
    }
    meter.thin(noon + 10 * hour, hour);
    QVERIFY(meter.addReading(noon + 3 * hour, 0.5));
    QVERIFY(std::abs(*meter.amount(noon, noon + 3 * hour) - 0.5) < 1e-9);
    QVERIFY(meter.addReading(noon + step, 0.01)); // late, where one was dropped
    QVERIFY(std::abs(*meter.amount(noon, noon + step) - 0.01) < 1e-9);
}

QTEST_GUILESS_MAIN(tst_Thinning)
#include "tst_thinning.moc"
