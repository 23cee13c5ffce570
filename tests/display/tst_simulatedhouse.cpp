// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"
#include "effort.h"
#include "houserecorder.h"
#include "housetest.h"
#include "simulatedhouse.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QTest>
#include <QVector>

using namespace HouseTest;
using namespace Readings;

namespace {

constexpr double joulesPerKilowattHour = 3.6e6;

const QTimeZone dutchZone("Europe/Amsterdam");

qint64 midnight(const QDate &date, const QTimeZone &zone = dutchZone)
{
    return date.startOfDay(zone).toSecsSinceEpoch();
}

/** 1 January 2023 to 2025: two years, all days of clock changes among them. */
SimulatedHouse dutchHouse(quint64 seed)
{
    return SimulatedHouse(seed, utrecht, dutchZone, midnight(QDate(2023, 1, 1)));
}

double amountOf(const Household &household, Quantity quantity, const QDate &first, const QDate &end)
{
    const std::optional<double> amount = household.amount(
        quantity, {midnight(first, household.timeZone), midnight(end, household.timeZone)});
    return amount.value_or(-1.0);
}

bool isSame(const PowerNow &left, const PowerNow &right)
{
    return left.production == right.production && left.heatPump == right.heatPump
        && left.car == right.car && left.kitchen == right.kitchen && left.washing == right.washing
        && left.rest == right.rest;
}

} // namespace

class tst_SimulatedHouse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameSeedIsTheSameHouse();
    void orderOfQuestionsDoesNotMatter();
    void otherSeedIsAnotherHouse();
    void powerIsSteadyWithinAMinute();
    void powerAddsUp();
    void noSunAtNight();
    void countersAreTheSumOfThePower_data();
    void countersAreTheSumOfThePower();
    void tariffsFollowTheClock();
    void yearsArePlausible_data();
    void yearsArePlausible();
    void winterAndSummer();
    void southernHouse();
    void eachDayHasItsRhythm();
    void carIsChargedOnSomeNights();
    void hoursHaveNoGap_data();
    void hoursHaveNoGap();
    void clockChangesAreKept();
    void historyEndsAtTheLastMinute();
    void historyInPiecesIsTheSame();
    void timeThatGoesBackChangesNothing();
    void startIsCutToTheMinute();
    void invalidZoneIsUtc();
    void effortGrowsWithTheDays();
};

void tst_SimulatedHouse::sameSeedIsTheSameHouse()
{
    const SimulatedHouse one = dutchHouse(5);
    const SimulatedHouse other = dutchHouse(5);
    const qint64 until = one.start() + 20 * day;
    const Household first = one.history(until);
    const Household second = other.history(until);
    for (qint64 at = one.start(); at <= until; at += hour) {
        QVERIFY(isSame(one.powerAt(at), other.powerAt(at)));
        for (const auto &[meterRegister, meter] : first.meters) {
            QVERIFY(meter.readingAt(at));
            QCOMPARE(*meter.readingAt(at), *second.meters.at(meterRegister).readingAt(at));
        }
    }
}

void tst_SimulatedHouse::orderOfQuestionsDoesNotMatter()
{
    const SimulatedHouse inOrder = dutchHouse(5);
    const SimulatedHouse atRandom = dutchHouse(5);
    QVector<PowerNow> known;
    for (qint64 at = inOrder.start(); at < inOrder.start() + 60 * day; at += hour) {
        known.append(inOrder.powerAt(at));
    }
    QRandomGenerator random(17);
    for (int i = 0; i < 400; ++i) {
        const int index = random.bounded(known.size());
        QVERIFY(isSame(atRandom.powerAt(inOrder.start() + index * hour), known.at(index)));
    }
}

void tst_SimulatedHouse::otherSeedIsAnotherHouse()
{
    const SimulatedHouse one = dutchHouse(5);
    const SimulatedHouse other = dutchHouse(6);
    int different = 0;
    for (qint64 at = one.start(); at < one.start() + 10 * day; at += hour) {
        different += isSame(one.powerAt(at), other.powerAt(at)) ? 0 : 1;
    }
    QVERIFY(different > 200);
}

void tst_SimulatedHouse::powerIsSteadyWithinAMinute()
{
    const SimulatedHouse house = dutchHouse(5);
    for (qint64 at = house.start(); at < house.start() + 3 * day; at += minute) {
        const PowerNow first = house.powerAt(at);
        QVERIFY(isSame(first, house.powerAt(at + 1)));
        QVERIFY(isSame(first, house.powerAt(at + minute - 1)));
    }
}

void tst_SimulatedHouse::powerAddsUp()
{
    const SimulatedHouse house = dutchHouse(5);
    bool hasImported = false;
    bool hasExported = false;
    for (qint64 at = midnight(QDate(2023, 5, 1)); at < midnight(QDate(2023, 6, 1)); at += minute) {
        const PowerNow now = house.powerAt(at);
        QCOMPARE(now.imported() - now.exported() + now.production, now.consumption());
        QVERIFY(now.imported() == 0 || now.exported() == 0);
        QVERIFY(now.imported() >= 0 && now.exported() >= 0);
        for (const int watts :
             {now.production, now.heatPump, now.car, now.kitchen, now.washing, now.rest}) {
            QVERIFY(watts >= 0);
        }
        QVERIFY(now.production <= SimulatedHouse::mostProduction);
        QVERIFY(now.consumption() < 17000);
        hasImported = hasImported || now.imported() > 0;
        hasExported = hasExported || now.exported() > 0;
    }
    QVERIFY(hasImported && hasExported);
}

void tst_SimulatedHouse::noSunAtNight()
{
    const SimulatedHouse house = dutchHouse(5);
    int sunnyMinutes = 0;
    for (qint64 at = house.start(); at < house.start() + 365 * day; at += 7 * minute) {
        const double elevation = house.weatherAt(at).sunElevation;
        const int production = house.powerAt(at).production;
        if (elevation < -2.0) {
            QCOMPARE(production, 0);
        } else if (elevation > 12.0) {
            QVERIFY(production > 0);
            ++sunnyMinutes;
        }
    }
    QVERIFY(sunnyMinutes > 1000);
}

void tst_SimulatedHouse::countersAreTheSumOfThePower_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("minutes");
    QTest::newRow("winter") << QDate(2023, 1, 17) << 1440;
    QTest::newRow("summer") << QDate(2023, 6, 17) << 1440;
    QTest::newRow("clock put forward") << QDate(2023, 3, 26) << 1380;
    QTest::newRow("clock put back") << QDate(2023, 10, 29) << 1500;
    QTest::newRow("leap day") << QDate(2024, 2, 29) << 1440;
}

void tst_SimulatedHouse::countersAreTheSumOfThePower()
{
    QFETCH(QDate, date);
    QFETCH(int, minutes);
    const SimulatedHouse house = dutchHouse(5);
    const qint64 from = midnight(date);
    const qint64 to = midnight(date.addDays(1));
    QCOMPARE(to - from, minutes * minute);
    const Household household = house.history(to);

    double imported = 0.0;
    double exported = 0.0;
    double produced = 0.0;
    double heatPump = 0.0;
    double car = 0.0;
    double used = 0.0;
    const double seconds = 60.0;
    QRandomGenerator random(3);
    for (qint64 at = from; at < to; at += minute) {
        const PowerNow now = house.powerAt(at + random.bounded(60));
        imported += now.imported() * seconds / joulesPerKilowattHour;
        exported += now.exported() * seconds / joulesPerKilowattHour;
        produced += now.production * seconds / joulesPerKilowattHour;
        heatPump += now.heatPump * seconds / joulesPerKilowattHour;
        car += now.car * seconds / joulesPerKilowattHour;
        used += now.consumption() * seconds / joulesPerKilowattHour;
    }
    const Interval slot = {from, to};
    const auto agrees = [&](Quantity quantity, double sum) {
        const std::optional<double> counted = household.amount(quantity, slot);
        return counted && isNear(*counted, sum, 1e-9);
    };
    QVERIFY(agrees(Quantity::GridImport, imported));
    QVERIFY(agrees(Quantity::GridExport, exported));
    QVERIFY(agrees(Quantity::SolarProduction, produced));
    QVERIFY(agrees(Quantity::HeatPump, heatPump));
    QVERIFY(agrees(Quantity::ElectricCar, car));
    QVERIFY(isNear(*household.consumption(slot), used, 1e-9));
    QVERIFY(imported > 0.0 && produced > 0.0);
}

void tst_SimulatedHouse::tariffsFollowTheClock()
{
    const SimulatedHouse house = dutchHouse(5);
    const Household household = house.history(midnight(QDate(2023, 1, 17)));
    const Meter &low = household.meters.at({Quantity::GridImport, Tariff::Low});
    const Meter &normal = household.meters.at({Quantity::GridImport, Tariff::Normal});
    const Calendar calendar(dutchZone);
    for (QDate date(2023, 1, 2); date < QDate(2023, 1, 17); date = date.addDays(1)) {
        for (int h = 0; h < 24; ++h) {
            const bool isLow = date.dayOfWeek() >= Qt::Saturday || h < 7 || h >= 23;
            const Interval slot = calendar.hour(date, h);
            QCOMPARE(*(isLow ? normal : low).amount(slot), 0.0);
        }
    }
    QVERIFY(low.total() > 10.0 && normal.total() > 10.0);
}

void tst_SimulatedHouse::yearsArePlausible_data()
{
    QTest::addColumn<quint64>("seed");
    for (const quint64 seed : {1, 2, 42}) {
        QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed;
    }
}

void tst_SimulatedHouse::yearsArePlausible()
{
    QFETCH(quint64, seed);
    const SimulatedHouse house = dutchHouse(seed);
    const Household household = house.history(midnight(QDate(2025, 1, 1)));
    for (const int year : {2023, 2024}) {
        const QDate first(year, 1, 1);
        const QDate end(year + 1, 1, 1);
        const auto verify = [&](Quantity quantity, double least, double most) {
            const double amount = amountOf(household, quantity, first, end);
            if (amount < least || amount > most) {
                qInfo("%s in %d: %f", quantityInfo(quantity).name, year, amount);
                return false;
            }
            return true;
        };
        QVERIFY(verify(Quantity::SolarProduction, 3400.0, 4300.0));
        QVERIFY(verify(Quantity::Gas, 750.0, 1050.0));
        QVERIFY(verify(Quantity::Water, 115.0, 145.0));
        QVERIFY(verify(Quantity::Heating, 24.0, 35.0));
        QVERIFY(verify(Quantity::HeatPump, 550.0, 800.0));
        QVERIFY(verify(Quantity::ElectricCar, 1750.0, 2250.0));
        const double used = *household.consumption({midnight(first), midnight(end)})
            - amountOf(household, Quantity::ElectricCar, first, end);
        QVERIFY2(used > 3200.0 && used < 3800.0, qPrintable(QString::number(used)));
        QVERIFY(verify(Quantity::GridExport, 1800.0, 3200.0));
    }
    QVERIFY(household.meters.begin()->second.faults().empty());
}

void tst_SimulatedHouse::winterAndSummer()
{
    const SimulatedHouse house = dutchHouse(5);
    const Household household = house.history(midnight(QDate(2024, 1, 1)));
    const auto inMonth = [&](Quantity quantity, int month) {
        const QDate first(2023, month, 1);
        return amountOf(household, quantity, first, first.addMonths(1));
    };
    QVERIFY(inMonth(Quantity::SolarProduction, 6) > 3.0 * inMonth(Quantity::SolarProduction, 1));
    QVERIFY(inMonth(Quantity::Gas, 1) > 10.0 * inMonth(Quantity::Gas, 7));
    QVERIFY(inMonth(Quantity::Heating, 1) > 10.0 * inMonth(Quantity::Heating, 7));
    QVERIFY(inMonth(Quantity::HeatPump, 1) > 1.1 * inMonth(Quantity::HeatPump, 6));
}

void tst_SimulatedHouse::southernHouse()
{
    const QTimeZone zone("Australia/Sydney");
    const SimulatedHouse house(5, {-33.87, 151.21}, zone, midnight(QDate(2023, 1, 1), zone));
    const Household household = house.history(midnight(QDate(2024, 1, 1), zone));
    const auto inMonth = [&](Quantity quantity, int month) {
        const QDate first(2023, month, 1);
        return amountOf(household, quantity, first, first.addMonths(1));
    };
    QCOMPARE(household.timeZone, zone);
    QVERIFY(inMonth(Quantity::SolarProduction, 12) > inMonth(Quantity::SolarProduction, 6));
    QVERIFY(inMonth(Quantity::Gas, 7) > 10.0 * inMonth(Quantity::Gas, 1));
}

void tst_SimulatedHouse::eachDayHasItsRhythm()
{
    const SimulatedHouse house = dutchHouse(5);
    QVector<double> mean(24, 0.0);
    double kitchenAtNight = 0.0;
    const int days = 120;
    for (int d = 0; d < days; ++d) {
        const qint64 start = midnight(QDate(2023, 1, 1).addDays(d));
        for (int h = 0; h < 24; ++h) {
            for (qint64 at = start + h * hour; at < start + (h + 1) * hour; at += minute) {
                const PowerNow now = house.powerAt(at);
                mean[h] += (now.kitchen + now.rest) / (days * 60.0);
                kitchenAtNight += h < 5 ? now.kitchen : 0;
            }
        }
    }
    QCOMPARE(kitchenAtNight, 0.0);
    QVERIFY(mean.at(18) > 3.0 * mean.at(3));
    QVERIFY(mean.at(21) > 2.0 * mean.at(3));
    QVERIFY(mean.at(7) > 1.3 * mean.at(3));
    QVERIFY(mean.at(3) > 50.0 && mean.at(3) < 250.0);
}

void tst_SimulatedHouse::carIsChargedOnSomeNights()
{
    const SimulatedHouse house = dutchHouse(5);
    int nights = 0;
    for (int d = 0; d < 200; ++d) {
        const qint64 noon = midnight(QDate(2023, 1, 1).addDays(d)) + 12 * hour;
        bool isCharged = false;
        for (qint64 at = noon; at < noon + day; at += minute) {
            const int car = house.powerAt(at).car;
            const int wallHour = QDateTime::fromSecsSinceEpoch(at, dutchZone).time().hour();
            QVERIFY(car == 0 || wallHour < 7 || wallHour >= 23);
            isCharged = isCharged || car > 7000;
        }
        nights += isCharged ? 1 : 0;
    }
    QVERIFY2(nights > 50 && nights < 120, qPrintable(QString::number(nights)));
}

void tst_SimulatedHouse::hoursHaveNoGap_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::newRow("Amsterdam") << QByteArray("Europe/Amsterdam");
    QTest::newRow("half an hour off") << QByteArray("Asia/Kolkata");
    QTest::newRow("clock changed by half an hour") << QByteArray("Australia/Lord_Howe");
    QTest::newRow("clock changed at midnight") << QByteArray("America/Asuncion");
}

void tst_SimulatedHouse::hoursHaveNoGap()
{
    QFETCH(QByteArray, zone);
    const QTimeZone timeZone(zone);
    QVERIFY(timeZone.isValid());
    const QDate first(2023, 1, 1);
    const QDate end(2024, 1, 1);
    const SimulatedHouse house(5, utrecht, timeZone, midnight(first, timeZone));
    const Household household = house.history(midnight(end, timeZone));
    const Calendar calendar(timeZone);
    for (QDate date = first; date < end; date = date.addDays(1)) {
        for (int h = 0; h < 24; ++h) {
            const Interval slot = calendar.hour(date, h);
            for (const auto &[meterRegister, meter] : household.meters) {
                QVERIFY2(slot.isEmpty() || meter.amount(slot), qPrintable(date.toString()));
            }
        }
    }
}

void tst_SimulatedHouse::clockChangesAreKept()
{
    const SimulatedHouse house = dutchHouse(5);
    const DayPlan spring = house.dayAt(midnight(QDate(2023, 3, 26)));
    QCOMPARE(int(spring.minutes.size()), 1380);
    QCOMPARE(spring.minutes.at(119).wallMinute, 119);
    QCOMPARE(spring.minutes.at(120).wallMinute, 180);
    const DayPlan autumn = house.dayAt(midnight(QDate(2023, 10, 29)));
    QCOMPARE(int(autumn.minutes.size()), 1500);
    QCOMPARE(autumn.minutes.at(179).wallMinute, 179);
    QCOMPARE(autumn.minutes.at(180).wallMinute, 120);
    QCOMPARE(autumn.minutes.at(1499).wallMinute, 1439);
}

void tst_SimulatedHouse::historyEndsAtTheLastMinute()
{
    const SimulatedHouse house = dutchHouse(5);
    const qint64 until = house.start() + 30 * hour + 17 * minute + 42;
    const Household household = house.history(until);
    QCOMPARE(household.timeZone, dutchZone);
    QCOMPARE(*household.firstInstant(), house.start());
    QCOMPARE(*household.lastInstant(), until - 42);
    QVERIFY(household.measuredPower);
    QCOMPARE(household.measuredPower->instant, until - 42);
    QCOMPARE(household.measuredPower->watts, double(house.powerAt(until).grid()));
    QCOMPARE(int(household.meters.size()), 10);
    for (const auto &[meterRegister, meter] : household.meters) {
        int known = 0;
        for (qint64 at = house.start(); at <= until; at += minute) {
            known += meter.readingAt(at) ? 1 : 0;
        }
        QCOMPARE(known, 31 + 1);
    }
}

void tst_SimulatedHouse::historyInPiecesIsTheSame()
{
    const SimulatedHouse house = dutchHouse(5);
    const qint64 until = house.start() + 40 * day;
    const Household atOnce = house.history(until);
    Household inPieces;
    HouseRecorder recorder(&house, &inPieces);
    QRandomGenerator random(8);
    for (qint64 at = house.start(); at < until; at += random.bounded(20000)) {
        recorder.recordUntil(at);
        QCOMPARE(inPieces.measuredPower->instant, at - at % minute);
    }
    recorder.recordUntil(until);
    for (const auto &[meterRegister, meter] : atOnce.meters) {
        for (qint64 at = house.start(); at <= until; at += hour) {
            const std::optional<double> value = inPieces.meters.at(meterRegister).readingAt(at);
            QVERIFY(value);
            QCOMPARE(*value, *meter.readingAt(at));
        }
        QVERIFY(inPieces.meters.at(meterRegister).faults().empty());
    }
}

void tst_SimulatedHouse::timeThatGoesBackChangesNothing()
{
    const SimulatedHouse house = dutchHouse(5);
    Household household;
    HouseRecorder recorder(&house, &household);
    recorder.recordUntil(house.start() - 1);
    QVERIFY(household.meters.empty());
    recorder.recordUntil(house.start() + day);
    const double total = household.total(Quantity::GridImport);
    recorder.recordUntil(house.start() + hour);
    QCOMPARE(household.total(Quantity::GridImport), total);
    QCOMPARE(household.measuredPower->instant, house.start() + day);
}

void tst_SimulatedHouse::startIsCutToTheMinute()
{
    const qint64 start = utc("2023-05-01T10:20:59");
    const SimulatedHouse house(5, utrecht, dutchZone, start);
    QCOMPARE(house.start(), start - 59);
    const Household household = house.history(start + hour);
    QCOMPARE(*household.firstInstant(), start - 59);
    QVERIFY(household.meters.begin()->second.readingAt(utc("2023-05-01T11:00:00")));
    QVERIFY(!household.meters.begin()->second.readingAt(utc("2023-05-01T10:21:00")));
}

void tst_SimulatedHouse::invalidZoneIsUtc()
{
    const SimulatedHouse house(5, utrecht, QTimeZone(), utc("2023-05-01T00:00:00"));
    QCOMPARE(house.timeZone(), QTimeZone::utc());
    QCOMPARE(house.dayAt(house.start()).from, house.start());
}

void tst_SimulatedHouse::effortGrowsWithTheDays()
{
    const auto live = [](int days) {
        const SimulatedHouse house = dutchHouse(5);
        QVERIFY(house.history(house.start() + days * day).total(Quantity::GridImport) > 0.0);
    };
    const double times = ZemTest::effortBeside([&] { live(20); }, [&] { live(320); });
    QVERIFY2(times < 64.0, qPrintable(QString::number(times)));
}

QTEST_GUILESS_MAIN(tst_SimulatedHouse)
#include "tst_simulatedhouse.moc"
