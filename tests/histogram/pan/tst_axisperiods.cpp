// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "axisperiods_p.h"

#include <QRandomGenerator>
#include <QTest>

#include <climits>

using namespace AxisPeriods;

namespace {

const QwtInterval noLimit;
const QwtInterval tenDays(-240.0, 24.0);

} // namespace

class tst_AxisPeriods : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void moves_data();
    void moves();
    void neighbours_data();
    void neighbours();
    void kept_data();
    void kept();
    void newestPeriodEndsTheInterval();
    void withoutPeriodNothingIsSnapped();
    void numbersPastAnyIntAreHarmless_data();
    void numbersPastAnyIntAreHarmless();
    void randomMovesFollowModel();
    void randomDragsFollowModel();
};

void tst_AxisPeriods::moves_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<QwtInterval>("valid");
    QTest::addColumn<bool>("snap");
    QTest::addColumn<double>("previousMin");
    QTest::addColumn<double>("previousMax");
    QTest::addColumn<double>("nextMin");
    QTest::addColumn<double>("nextMax");

    QTest::newRow("whole") << -48.0 << tenDays << true << -72.0 << -48.0 << -24.0 << 0.0;
    QTest::newRow("half way") << -12.0 << tenDays << true << -24.0 << 0.0 << 0.0 << 24.0;
    QTest::newRow("newest") << 0.0 << tenDays << true << -24.0 << 0.0 << 0.0 << 24.0;
    QTest::newRow("oldest") << -240.0 << tenDays << true << -240.0 << -216.0 << -216.0 << -192.0;
    QTest::newRow("just after the oldest")
        << -239.0 << tenDays << true << -240.0 << -216.0 << -216.0 << -192.0;
    QTest::newRow("just before the newest")
        << -1.0 << tenDays << true << -24.0 << 0.0 << 0.0 << 24.0;
    QTest::newRow("just after the newest") << 1.0 << tenDays << true << 0.0 << 24.0 << 0.0 << 24.0;
    QTest::newRow("no limit, whole")
        << -48.0 << noLimit << true << -48.0 << -24.0 << -48.0 << -24.0;
    QTest::newRow("no limit, half way") << -12.0 << noLimit << true << 0.0 << 24.0 << -24.0 << 0.0;
    QTest::newRow("free") << -13.0 << tenDays << false << -37.0 << -13.0 << 11.0 << 35.0;
    QTest::newRow("free past the low end")
        << -240.0 << tenDays << false << -264.0 << -240.0 << -216.0 << -192.0;
    QTest::newRow("free past the high end")
        << 0.0 << tenDays << false << -24.0 << 0.0 << 24.0 << 48.0;
    QTest::newRow("free without limit") << 5.0 << noLimit << false << -19.0 << 5.0 << 29.0 << 53.0;
}

void tst_AxisPeriods::moves()
{
    QFETCH(double, position);
    QFETCH(QwtInterval, valid);
    QFETCH(bool, snap);
    const View before = previous(position, 24.0, valid, snap);
    QTEST(before.minimum, "previousMin");
    QTEST(before.maximum, "previousMax");
    const View after = next(position, 24.0, valid, snap);
    QTEST(after.minimum, "nextMin");
    QTEST(after.maximum, "nextMax");
}

void tst_AxisPeriods::neighbours_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<QwtInterval>("valid");
    QTest::addColumn<bool>("snap");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");

    QTest::newRow("inside") << -48.0 << tenDays << true << true << true;
    QTest::newRow("oldest") << -240.0 << tenDays << true << false << true;
    QTest::newRow("newest") << 0.0 << tenDays << true << true << false;
    QTest::newRow("snapped up to a period with one before")
        << -239.0 << tenDays << true << true << true;
    QTest::newRow("snapped down to the newest") << 3.0 << tenDays << true << true << false;
    QTest::newRow("only its start in range")
        << 0.0 << QwtInterval(-240.0, 24.5) << true << true << false;
    QTest::newRow("one unit in range") << 0.0 << QwtInterval(-240.0, 25.0) << true << true << true;
    QTest::newRow("free") << -217.0 << tenDays << false << false << true;
    QTest::newRow("free, exactly at the end") << -216.0 << tenDays << false << true << true;
    QTest::newRow("free, next by less than a unit") << -0.5 << tenDays << false << true << false;
    QTest::newRow("free, next by a unit") << -1.0 << tenDays << false << true << true;
    QTest::newRow("no limit") << 0.0 << noLimit << true << false << false;
    QTest::newRow("no limit, free") << 0.0 << noLimit << false << false << false;
}

void tst_AxisPeriods::neighbours()
{
    QFETCH(double, position);
    QFETCH(QwtInterval, valid);
    QFETCH(bool, snap);
    QTEST(hasPrevious(position, 24.0, valid, snap), "previous");
    QTEST(hasNext(position, 24.0, valid, snap), "next");
}

void tst_AxisPeriods::kept_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QwtInterval>("valid");
    QTest::addColumn<double>("keptMin");
    QTest::addColumn<double>("keptMax");

    QTest::newRow("inside") << -50.0 << -20.0 << tenDays << -50.0 << -20.0;
    QTest::newRow("on both ends") << -240.0 << 24.0 << tenDays << -240.0 << 24.0;
    QTest::newRow("no limit") << -5000.0 << -4976.0 << noLimit << -5000.0 << -4976.0;
    QTest::newRow("past the low end") << -241.0 << -217.0 << tenDays << -240.0 << -216.0;
    QTest::newRow("past the high end") << 1.0 << 25.0 << tenDays << 0.0 << 24.0;
    QTest::newRow("far past it") << 900.0 << 924.0 << tenDays << 0.0 << 24.0;
    QTest::newRow("past both ends") << -300.0 << 300.0 << tenDays << -240.0 << -216.0;
    QTest::newRow("wider than a period") << -250.0 << -150.0 << tenDays << -240.0 << -216.0;
    QTest::newRow("interval smaller than a period")
        << 2.0 << 26.0 << QwtInterval(0.0, 10.0) << -14.0 << 10.0;
}

void tst_AxisPeriods::kept()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QwtInterval, valid);
    const View view = keptInside({min, max}, valid, 24.0);
    QTEST(view.minimum, "keptMin");
    QTEST(view.maximum, "keptMax");
}

void tst_AxisPeriods::newestPeriodEndsTheInterval()
{
    const View view = first(24.0, QwtInterval(-240.0, 30.0));
    QCOMPARE(view.minimum, 6.0);
    QCOMPARE(view.maximum, 30.0);
}

void tst_AxisPeriods::withoutPeriodNothingIsSnapped()
{
    for (const bool snap : {false, true}) {
        QCOMPARE(previous(-7.5, 0.0, tenDays, snap).minimum, -7.5);
        QCOMPARE(previous(-7.5, 0.0, tenDays, snap).maximum, -7.5);
        QCOMPARE(next(-7.5, 0.0, tenDays, snap).minimum, -7.5);
        QCOMPARE(next(-7.5, 0.0, tenDays, snap).maximum, -7.5);
        QVERIFY(hasPrevious(-7.5, 0.0, tenDays, snap));
        QVERIFY(hasNext(-7.5, 0.0, tenDays, snap));
        QVERIFY(!hasPrevious(-241.0, 0.0, tenDays, snap));
        QVERIFY(!hasNext(23.5, 0.0, tenDays, snap));
    }
}

void tst_AxisPeriods::numbersPastAnyIntAreHarmless_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<double>("period");
    QTest::newRow("far away") << 1.0e300 << 24.0;
    QTest::newRow("far back") << -1.0e300 << 24.0;
    QTest::newRow("tiny period") << 1.0 << 1.0e-300;
    QTest::newRow("infinite") << qInf() << 24.0;
    QTest::newRow("no number") << qQNaN() << 24.0;
}

void tst_AxisPeriods::numbersPastAnyIntAreHarmless()
{
    QFETCH(double, position);
    QFETCH(double, period);
    // A period before or after a place that is so far away is never inside.
    const QwtInterval far(2.0e300, 3.0e300);
    QVERIFY(!hasPrevious(position, period, far, true));
    QVERIFY(!hasNext(position, period, far, true));
    const View before = previous(position, period, far, true);
    QVERIFY(!far.contains(before.minimum));
    const View after = next(position, period, far, true);
    QVERIFY(!far.contains(after.minimum));
}

/**
 * Everything is counted in quarters of an axis unit, so the model is whole numbers throughout and
 * the doubles under test are exact.
 */
void tst_AxisPeriods::randomMovesFollowModel()
{
    constexpr quint32 seed = 4405;
    constexpr int cases = 20000;
    constexpr double quarter = 0.25;
    QRandomGenerator random(seed);
    for (int i = 0; i < cases; ++i) {
        const int period = random.bounded(1, 120);
        const int position = random.bounded(-2000, 2000);
        const int low = random.bounded(-2000, 1000);
        const int high = low + random.bounded(-20, 1500);
        const QwtInterval valid(low * quarter, high * quarter);
        const auto isInside = [&](int place) { return low <= place && place <= high; };

        int above = -3000 * period;
        while (above < position) {
            above += period * (above + 100 * period < position ? 100 : 1);
        }
        const int below = above == position ? position : above - period;

        QCOMPARE(hasPrevious(position * quarter, period * quarter, valid, true),
                 isInside(above - period));
        QCOMPARE(hasNext(position * quarter, period * quarter, valid, true),
                 isInside(below + period + 4));
        QCOMPARE(hasPrevious(position * quarter, period * quarter, valid, false),
                 isInside(position - period));
        QCOMPARE(hasNext(position * quarter, period * quarter, valid, false),
                 isInside(position + period + 4));

        const bool steps = isInside(above - period) && isInside(above);
        const View before = previous(position * quarter, period * quarter, valid, true);
        QCOMPARE(before.minimum, (steps ? above - period : above) * quarter);
        QCOMPARE(before.maximum, before.minimum + period * quarter);

        const bool stepsOn = isInside(below + period) && isInside(below + 2 * period);
        const View after = next(position * quarter, period * quarter, valid, true);
        QCOMPARE(after.minimum, (stepsOn ? below + period : below) * quarter);
        QCOMPARE(after.maximum, after.minimum + period * quarter);
    }
}

void tst_AxisPeriods::randomDragsFollowModel()
{
    constexpr quint32 seed = 4406;
    constexpr int cases = 20000;
    QRandomGenerator random(seed);
    for (int i = 0; i < cases; ++i) {
        const int period = random.bounded(1, 50);
        const int min = random.bounded(-300, 300);
        const int max = min + random.bounded(1, 80);
        const int low = random.bounded(-250, 100);
        const int high = low + random.bounded(-20, 250);

        int expectedMin = min;
        int expectedMax = max;
        if (low <= high && min < low) {
            expectedMin = low;
            expectedMax = low + period;
        } else if (low <= high && (max > high || min > high)) {
            expectedMin = high - period;
            expectedMax = high;
        }
        const View view = keptInside({double(min), double(max)}, QwtInterval(low, high), period);
        QCOMPARE(view.minimum, double(expectedMin));
        QCOMPARE(view.maximum, double(expectedMax));
    }
}

QTEST_APPLESS_MAIN(tst_AxisPeriods)
#include "tst_axisperiods.moc"
