// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "effort.h"
#include "meter.h"
#include "quantity.h"

#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <limits>
#include <map>

using namespace Readings;

namespace {

constexpr qint64 oneHour = 3600;
constexpr double most = 25.0;

using Values = QVector<double>;
using Indexes = QVector<int>;

Meter counter()
{
    return Meter(Meter::Kind::Counter, most);
}

Meter amounts()
{
    return Meter(Meter::Kind::Amounts, most);
}

// One reading an hour, from instant 0 on.
Meter hourly(const Values &values)
{
    Meter meter = counter();
    for (int i = 0; i < values.size(); ++i) {
        meter.addReading(i * oneHour, values.at(i), i);
    }
    return meter;
}

Indexes faultsOf(const Meter &meter, Fault::Kind kind)
{
    Indexes tags;
    for (const Fault &fault : meter.faults()) {
        if (fault.kind == kind) {
            tags.append(static_cast<int>(fault.tag));
        }
    }
    std::sort(tags.begin(), tags.end());
    return tags;
}

} // namespace

class tst_Meter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counterAnswersTheDifferenceAtTheBorders();
    void counterAnswersNothingWithoutAReadingAtABorder();
    void gapInsideASlotDoesNoHarm();
    void unchangedCounterIsZeroAndNoGap();
    void wrongReadings_data();
    void wrongReadings();
    void breakHidesWhatLiesAcrossIt();
    void newestReadingThatDoesNotFollowWaitsForTheNext();
    void leapIsMeasuredAgainstTheTimeThatPassed();
    void shortStepsAreGrantedAnHoursWorth();
    void firstOfTwoReadingsForAnInstantHolds();
    void readingThatIsSetHolds();
    void readingsThatAreSetAgreeWithTheModel();
    void lateReadingTurnsABreakIntoAWrongReading();
    void amountsAddUpWhereTheyCoverTheSlot();
    void amountsAreNeverSplit();
    void firstOfTwoAmountsHolds();
    void firstAmountThatCameHoldsAmongLateOnes();
    void amountThatNoHouseholdTakesIsLeftOut();
    void nonsenseIsRefused();
    void stepsAreFoundFromTheEnd();
    void emptyMeterKnowsNothing();
    void effortGrowsWithTheReadings();
};

void tst_Meter::counterAnswersTheDifferenceAtTheBorders()
{
    const Meter meter = hourly({100.5, 101.0, 103.25});
    QCOMPARE(meter.amount(0, oneHour), std::optional<double>(0.5));
    QCOMPARE(meter.amount(oneHour, 2 * oneHour), std::optional<double>(2.25));
    QCOMPARE(meter.amount(0, 2 * oneHour), std::optional<double>(2.75));
    QCOMPARE(meter.readingAt(oneHour), std::optional<double>(101.0));
    QCOMPARE(meter.total(), 2.75);
    QCOMPARE(meter.firstInstant(), std::optional<qint64>(0));
    QCOMPARE(meter.lastInstant(), std::optional<qint64>(2 * oneHour));
}

void tst_Meter::counterAnswersNothingWithoutAReadingAtABorder()
{
    const Meter meter = hourly({100.0, 101.0, 102.0});
    QVERIFY(!meter.amount(-oneHour, oneHour));
    QVERIFY(!meter.amount(0, 3 * oneHour));
    QVERIFY(!meter.amount(0, oneHour + 1));
    QVERIFY(!meter.amount(1, oneHour));
    QVERIFY(!meter.amount(oneHour, oneHour));
    QVERIFY(!meter.amount(2 * oneHour, oneHour));
    QVERIFY(!meter.readingAt(1));
    // A total asks for no reading at its borders.
    QCOMPARE(meter.total(-oneHour, 3 * oneHour), 2.0);
    QCOMPARE(meter.total(1, 3 * oneHour), 1.0);
    QCOMPARE(meter.total(0, 2 * oneHour - 1), 1.0);
    QCOMPARE(meter.total(1, oneHour - 1), 0.0);
    QCOMPARE(meter.total(2 * oneHour, 0), 0.0);
    QCOMPARE(meter.total(5 * oneHour, 9 * oneHour), 0.0);
    QCOMPARE(meter.total(-9 * oneHour, -5 * oneHour), 0.0);
}

void tst_Meter::gapInsideASlotDoesNoHarm()
{
    Meter meter = counter();
    meter.addReading(0, 10.0);
    meter.addReading(oneHour, 11.0);
    meter.addReading(50 * oneHour, 41.0);
    QCOMPARE(meter.amount(0, 50 * oneHour), std::optional<double>(31.0));
    QVERIFY(!meter.amount(oneHour, 2 * oneHour));
    QVERIFY(!meter.amount(49 * oneHour, 50 * oneHour));
    QCOMPARE(meter.total(), 31.0);
    QVERIFY(meter.faults().empty());
}

void tst_Meter::unchangedCounterIsZeroAndNoGap()
{
    const Meter meter = hourly({5.0, 5.0, 5.0});
    QCOMPARE(meter.amount(0, oneHour), std::optional<double>(0.0));
    QCOMPARE(meter.amount(0, 2 * oneHour), std::optional<double>(0.0));
}

void tst_Meter::wrongReadings_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<Indexes>("missing");
    QTest::addColumn<Indexes>("breaks");

    QTest::newRow("nothing wrong") << Values {10, 11, 12, 13} << Indexes {} << Indexes {};
    QTest::newRow("dip") << Values {10, 11, 9, 12, 13} << Indexes {2} << Indexes {};
    QTest::newRow("dip, then as before") << Values {10, 11, 9, 11, 13} << Indexes {2} << Indexes {};
    QTest::newRow("dip to zero") << Values {110, 111, 0, 112, 113} << Indexes {2} << Indexes {};
    QTest::newRow("small peak") << Values {10, 11, 15, 12, 13, 14} << Indexes {2} << Indexes {};
    QTest::newRow("small peak, then as before")
        << Values {10, 11, 15, 11, 13, 14} << Indexes {2} << Indexes {};
    QTest::newRow("high peak") << Values {10, 11, 9999, 12, 13} << Indexes {2} << Indexes {};
    QTest::newRow("two peaks") << Values {10, 11, 999, 12, 999, 13, 14} << Indexes {2, 4}
                               << Indexes {};
    QTest::newRow("peak, then dip")
        << Values {10, 11, 9999, 5, 12, 13} << Indexes {2, 3} << Indexes {};
    QTest::newRow("reset to zero") << Values {500, 501, 0, 1, 2} << Indexes {} << Indexes {2};
    QTest::newRow("another meter, lower") << Values {500, 501, 30, 31} << Indexes {} << Indexes {2};
    QTest::newRow("another meter, higher")
        << Values {500, 501, 9000, 9001} << Indexes {} << Indexes {2};
    QTest::newRow("another meter, standing still")
        << Values {500, 501, 9000, 9000} << Indexes {} << Indexes {2};
    QTest::newRow("another meter that could be ours by and by")
        << Values {500, 501, 530, 531, 532} << Indexes {} << Indexes {2};
    QTest::newRow("two other meters")
        << Values {500, 501, 3, 4, 9000, 9001} << Indexes {} << Indexes {2, 4};
    QTest::newRow("each reading another meter")
        << Values {500, 9000, 90000, 90001} << Indexes {} << Indexes {1, 2};
    QTest::newRow("second reading below the first")
        << Values {10, 9, 9.5, 10.5} << Indexes {} << Indexes {1};
    QTest::newRow("peak right after another meter")
        << Values {500, 501, 30, 90, 31, 32} << Indexes {3} << Indexes {2};
    QTest::newRow("not back to before another meter")
        << Values {40, 41, 30, 29, 29.5} << Indexes {} << Indexes {2, 3};
    QTest::newRow("last one below") << Values {10, 11, 9} << Indexes {2} << Indexes {};
    QTest::newRow("last one far above") << Values {10, 11, 999} << Indexes {2} << Indexes {};
}

void tst_Meter::wrongReadings()
{
    QFETCH(Values, values);
    QFETCH(Indexes, missing);
    QFETCH(Indexes, breaks);

    const Meter meter = hourly(values);
    for (int i = 0; i < values.size(); ++i) {
        QCOMPARE(meter.readingAt(i * oneHour).has_value(), !missing.contains(i));
    }
    double sum = 0.0;
    for (int i = 1; i < values.size(); ++i) {
        const bool gap = missing.contains(i) || missing.contains(i - 1) || breaks.contains(i);
        const std::optional<double> amount = meter.amount((i - 1) * oneHour, i * oneHour);
        QCOMPARE(amount.has_value(), !gap);
        if (gap) {
            continue;
        }
        QCOMPARE(*amount, values.at(i) - values.at(i - 1));
        QVERIFY(*amount >= 0.0);
        sum += *amount;
    }
    QVERIFY(meter.total() >= sum);

    Indexes wrong = faultsOf(meter, Fault::Kind::StepBack) + faultsOf(meter, Fault::Kind::Leap)
        + faultsOf(meter, Fault::Kind::Undecided);
    std::sort(wrong.begin(), wrong.end());
    QCOMPARE(wrong, missing);
    QCOMPARE(faultsOf(meter, Fault::Kind::Break), breaks);
}

void tst_Meter::breakHidesWhatLiesAcrossIt()
{
    const Meter meter = hourly({500, 501, 3, 4, 6, 9000, 9002});
    QVERIFY(!meter.amount(0, 2 * oneHour));
    QVERIFY(!meter.amount(oneHour, 2 * oneHour));
    QVERIFY(!meter.amount(0, 6 * oneHour));
    QCOMPARE(meter.amount(2 * oneHour, 4 * oneHour), std::optional<double>(3.0));
    QCOMPARE(meter.total(), 1.0 + 3.0 + 2.0);
    QCOMPARE(meter.total(oneHour, 5 * oneHour), 3.0);
    QCOMPARE(meter.total(oneHour, 2 * oneHour), 0.0);
}

void tst_Meter::newestReadingThatDoesNotFollowWaitsForTheNext()
{
    Meter meter = hourly({100, 101, 50});
    QVERIFY(!meter.amount(oneHour, 2 * oneHour));
    QCOMPARE(meter.lastInstant(), std::optional<qint64>(oneHour));
    QCOMPARE(faultsOf(meter, Fault::Kind::Undecided), Indexes {2});

    Meter other = meter;
    meter.addReading(3 * oneHour, 102.0, 3);
    QCOMPARE(meter.amount(oneHour, 3 * oneHour), std::optional<double>(1.0));
    QCOMPARE(faultsOf(meter, Fault::Kind::StepBack), Indexes {2});
    QVERIFY(faultsOf(meter, Fault::Kind::Undecided).isEmpty());

    other.addReading(3 * oneHour, 51.0, 3);
    QVERIFY(!other.amount(oneHour, 3 * oneHour));
    QCOMPARE(other.amount(2 * oneHour, 3 * oneHour), std::optional<double>(1.0));
    QCOMPARE(faultsOf(other, Fault::Kind::Break), Indexes {2});
}

void tst_Meter::leapIsMeasuredAgainstTheTimeThatPassed()
{
    Meter meter = counter();
    meter.addReading(0, 0.0);
    meter.addReading(10 * oneHour, 250.0);
    meter.addReading(11 * oneHour, 275.0);
    meter.addReading(12 * oneHour, 300.1);
    meter.addReading(13 * oneHour, 300.2);
    QCOMPARE(meter.amount(0, 11 * oneHour), std::optional<double>(275.0));
    QVERIFY(!meter.amount(11 * oneHour, 12 * oneHour));
    QCOMPARE(meter.total(), 275.0 + (300.2 - 300.1));
}

void tst_Meter::shortStepsAreGrantedAnHoursWorth()
{
    Meter meter = counter();
    meter.addReading(0, 0.0);
    meter.addReading(60, 25.0);
    meter.addReading(120, 50.1);
    meter.addReading(180, 50.2);
    QCOMPARE(meter.amount(0, 60), std::optional<double>(25.0));
    QVERIFY(!meter.amount(60, 120));
}

void tst_Meter::firstOfTwoReadingsForAnInstantHolds()
{
    Meter meter = counter();
    meter.addReading(0, 10.0, 1);
    meter.addReading(oneHour, 11.0, 2);
    meter.addReading(oneHour, 11.0, 3);
    meter.addReading(oneHour, 11.5, 4);
    QCOMPARE(meter.readingAt(oneHour), std::optional<double>(11.0));
    QCOMPARE(faultsOf(meter, Fault::Kind::Contradiction), Indexes {4});

    meter.addReading(0, 10.0, 5);
    meter.addReading(0, 10.1, 6);
    meter.addReading(oneHour, 12.0, 7);
    QCOMPARE(meter.readingAt(0), std::optional<double>(10.0));
    QCOMPARE(meter.readingAt(oneHour), std::optional<double>(11.0));
    QCOMPARE(faultsOf(meter, Fault::Kind::Contradiction), (Indexes {4, 6, 7}));

    meter.addReading(2 * oneHour, 12.0, 8);
    QCOMPARE(meter.amount(oneHour, 2 * oneHour), std::optional<double>(1.0));
}

void tst_Meter::readingThatIsSetHolds()
{
    Meter meter = hourly({100.0, 101.0, 102.0, 103.0});
    QVERIFY(meter.setReading(oneHour, 100.5));
    QVERIFY(meter.setReading(3 * oneHour, 102.25));
    QVERIFY(meter.setReading(4 * oneHour, 104.0));
    QVERIFY(!meter.setReading(4 * oneHour, -1.0));
    QVERIFY(!amounts().setReading(0, 1.0));
    QCOMPARE(meter.readingAt(oneHour), std::optional<double>(100.5));
    QCOMPARE(meter.amount(2 * oneHour, 3 * oneHour), std::optional<double>(0.25));
    QCOMPARE(meter.readingAt(4 * oneHour), std::optional<double>(104.0));
    QVERIFY(meter.faults().empty());
    // One that is only added afterwards does not.
    meter.addReading(oneHour, 101.0);
    QCOMPARE(meter.readingAt(oneHour), std::optional<double>(100.5));
    QCOMPARE(meter.faults().size(), std::size_t(1));
}

void tst_Meter::readingsThatAreSetAgreeWithTheModel()
{
    QRandomGenerator random(20);
    for (int round = 0; round < 200; ++round) {
        Meter meter = counter();
        std::map<qint64, double> model;
        for (int i = 0; i < 60; ++i) {
            const qint64 instant = random.bounded(30) * oneHour;
            // All follow from one another, so that none is wrong.
            const double value = double(instant) / oneHour + random.generateDouble();
            if (random.bounded(2) == 0) {
                meter.setReading(instant, value);
                model[instant] = value;
            } else {
                meter.addReading(instant, value);
                model.emplace(instant, value);
            }
            if (random.bounded(4) == 0) {
                QCOMPARE(meter.total(), model.rbegin()->second - model.begin()->second);
            }
        }
        for (int hour = 0; hour < 30; ++hour) {
            const auto known = model.find(hour * oneHour);
            QCOMPARE(meter.readingAt(hour * oneHour),
                     known == model.end() ? std::nullopt : std::optional<double>(known->second));
        }
    }
}

void tst_Meter::lateReadingTurnsABreakIntoAWrongReading()
{
    Meter meter = counter();
    meter.addReading(0, 100.0, 0);
    meter.addReading(2 * oneHour, 40.0, 2);
    meter.addReading(4 * oneHour, 41.0, 4);
    meter.addReading(5 * oneHour, 102.0, 5);
    meter.addReading(6 * oneHour, 103.0, 6);
    QCOMPARE(faultsOf(meter, Fault::Kind::Break), (Indexes {2, 5}));
    meter.addReading(3 * oneHour, 101.0, 3);
    QCOMPARE(faultsOf(meter, Fault::Kind::Break), Indexes {});
    QCOMPARE(faultsOf(meter, Fault::Kind::StepBack), (Indexes {2, 4}));
    QCOMPARE(meter.amount(0, 6 * oneHour), std::optional<double>(3.0));
}

void tst_Meter::amountsAddUpWhereTheyCoverTheSlot()
{
    Meter meter = amounts();
    for (int quarter = 0; quarter < 12; ++quarter) {
        if (quarter != 6) {
            meter.addAmount({quarter * oneHour / 4, (quarter + 1) * oneHour / 4}, 0.25);
        }
    }
    QCOMPARE(meter.kind(), Meter::Kind::Amounts);
    QCOMPARE(meter.amount(0, oneHour), std::optional<double>(1.0));
    QVERIFY(!meter.amount(oneHour, 2 * oneHour));
    QCOMPARE(meter.amount(2 * oneHour, 3 * oneHour), std::optional<double>(1.0));
    QVERIFY(!meter.amount(0, 3 * oneHour));
    QVERIFY(!meter.amount(0, 4 * oneHour));
    QVERIFY(!meter.amount(-oneHour, oneHour));
    QVERIFY(!meter.amount(oneHour, oneHour));
    QCOMPARE(meter.total(0, 3 * oneHour), 2.75);
    QCOMPARE(meter.total(-oneHour, 9 * oneHour), 2.75);
    QCOMPARE(meter.total(), 2.75);
    QVERIFY(!meter.readingAt(0));
    QCOMPARE(meter.firstInstant(), std::optional<qint64>(0));
    QCOMPARE(meter.lastInstant(), std::optional<qint64>(3 * oneHour));
}

void tst_Meter::amountsAreNeverSplit()
{
    Meter meter = amounts();
    meter.addAmount({0, 2 * oneHour}, 3.0);
    meter.addAmount({2 * oneHour, 4 * oneHour}, 5.0);
    QVERIFY(!meter.amount(0, oneHour));
    QVERIFY(!meter.amount(oneHour, 2 * oneHour));
    QVERIFY(!meter.amount(oneHour, 4 * oneHour));
    QVERIFY(!meter.amount(0, 3 * oneHour));
    QCOMPARE(meter.amount(0, 4 * oneHour), std::optional<double>(8.0));
    QCOMPARE(meter.total(oneHour, 4 * oneHour), 5.0);
    QCOMPARE(meter.total(oneHour, 3 * oneHour), 0.0);
}

void tst_Meter::firstOfTwoAmountsHolds()
{
    Meter meter = amounts();
    meter.addAmount({0, oneHour}, 1.0, 1);
    meter.addAmount({0, oneHour}, 1.0, 2);
    meter.addAmount({0, oneHour}, 2.0, 3);
    meter.addAmount({oneHour / 2, 2 * oneHour}, 2.0, 4);
    meter.addAmount({oneHour, 2 * oneHour}, 4.0, 5);
    meter.addAmount({0, oneHour}, 1.5, 6);
    QCOMPARE(meter.total(), 5.0);
    QCOMPARE(faultsOf(meter, Fault::Kind::Contradiction), (Indexes {3, 6}));
    QCOMPARE(faultsOf(meter, Fault::Kind::Overlap), Indexes {4});
}

void tst_Meter::firstAmountThatCameHoldsAmongLateOnes()
{
    Meter meter = amounts();
    meter.addAmount({10 * oneHour, 11 * oneHour}, 1.0, 1);
    meter.addAmount({5 * oneHour, 6 * oneHour}, 2.0, 2);
    meter.addAmount({4 * oneHour, 8 * oneHour}, 4.0, 3);
    meter.addAmount({5 * oneHour + 1, 6 * oneHour - 1}, 4.0, 4);
    meter.addAmount({6 * oneHour, 7 * oneHour}, 8.0, 5);
    QCOMPARE(meter.amount(5 * oneHour, 7 * oneHour), std::optional<double>(10.0));
    QCOMPARE(meter.total(), 11.0);
    QCOMPARE(faultsOf(meter, Fault::Kind::Overlap), (Indexes {3, 4}));
}

void tst_Meter::amountThatNoHouseholdTakesIsLeftOut()
{
    Meter meter = amounts();
    meter.addAmount({0, oneHour}, most, 1);
    meter.addAmount({oneHour, 2 * oneHour}, most + 0.1, 2);
    meter.addAmount({2 * oneHour, 12 * oneHour}, 10 * most, 3);
    QCOMPARE(faultsOf(meter, Fault::Kind::TooMuch), Indexes {2});
    QVERIFY(!meter.amount(oneHour, 2 * oneHour));
    QCOMPARE(meter.total(), 11 * most);
}

void tst_Meter::nonsenseIsRefused()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    Meter readings = counter();
    QVERIFY(readings.addReading(0, 0.0));
    QVERIFY(!readings.addReading(oneHour, -0.1));
    QVERIFY(!readings.addReading(oneHour, nan));
    QVERIFY(!readings.addReading(oneHour, infinity));
    QVERIFY(!readings.addAmount({0, oneHour}, nan));
    QCOMPARE(readings.lastInstant(), std::optional<qint64>(0));

    Meter rows = amounts();
    QVERIFY(!rows.addReading(0, 1.0));
    QVERIFY(!rows.addAmount({0, 0}, 1.0));
    QVERIFY(!rows.addAmount({oneHour, 0}, 1.0));
    QVERIFY(!rows.addAmount({0, oneHour}, -1.0));
    QVERIFY(!rows.addAmount({0, oneHour}, nan));
    QVERIFY(!rows.addAmount({0, oneHour}, infinity));
    QVERIFY(!rows.firstInstant());
}

void tst_Meter::stepsAreFoundFromTheEnd()
{
    const Meter meter = hourly({10, 11, 9, 12});
    QCOMPARE(meter.lastStepUntil(9 * oneHour), std::optional<Interval>({oneHour, 3 * oneHour}));
    QCOMPARE(meter.lastStepUntil(3 * oneHour), std::optional<Interval>({oneHour, 3 * oneHour}));
    QCOMPARE(meter.lastStepUntil(3 * oneHour - 1), std::optional<Interval>({0, oneHour}));
    QVERIFY(!meter.lastStepUntil(oneHour - 1));
    QVERIFY(!meter.lastStepUntil(-1));

    Meter rows = amounts();
    rows.addAmount({0, oneHour}, 1.0);
    rows.addAmount({2 * oneHour, 3 * oneHour}, 1.0);
    QCOMPARE(rows.lastStepUntil(3 * oneHour), std::optional<Interval>({2 * oneHour, 3 * oneHour}));
    QCOMPARE(rows.lastStepUntil(3 * oneHour - 1), std::optional<Interval>({0, oneHour}));
    QVERIFY(!rows.lastStepUntil(oneHour - 1));
}

void tst_Meter::emptyMeterKnowsNothing()
{
    for (const Meter &meter : {counter(), amounts()}) {
        QVERIFY(!meter.amount(0, oneHour));
        QVERIFY(!meter.readingAt(0));
        QVERIFY(!meter.firstInstant());
        QVERIFY(!meter.lastInstant());
        QVERIFY(!meter.lastStepUntil(oneHour));
        QVERIFY(meter.faults().empty());
        QCOMPARE(meter.total(), 0.0);
        QCOMPARE(meter.total(0, oneHour), 0.0);
    }
}

static double amountsOfMany(int count)
{
    Meter forward = counter();
    Meter backward = counter();
    Meter rows = amounts();
    double sum = 0.0;
    for (int i = 0; i < count; ++i) {
        forward.addReading(i * 60, i * 0.001);
        sum += forward.amount((i - 60) * 60, i * 60).value_or(0.0);
        backward.addReading((count - i) * 60, (count - i) * 0.001);
        rows.addAmount({(count - i) * 60, (count - i + 1) * 60}, 0.001);
    }
    return sum + backward.total() + rows.total();
}

void tst_Meter::effortGrowsWithTheReadings()
{
    double sum = 0.0;
    const double times = ZemTest::effortBeside([&] { sum += amountsOfMany(10000); },
                                               [&] { sum += amountsOfMany(160000); });
    QVERIFY(sum > 0.0);
    QVERIFY2(times < 64.0, qPrintable(QString::number(times)));
}

QTEST_APPLESS_MAIN(tst_Meter)
#include "tst_meter.moc"
