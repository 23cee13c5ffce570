// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMScaleEngine>

#include <QRandomGenerator>
#include <QTest>

#include <qwt_plot.h>

#include <climits>
#include <cmath>
#include <limits>

using Ticks = QList<double>;

namespace {

Ticks major(const QwtScaleDiv &division)
{
    return division.ticks(QwtScaleDiv::MajorTick);
}

Ticks medium(const QwtScaleDiv &division)
{
    return division.ticks(QwtScaleDiv::MediumTick);
}

Ticks minor(const QwtScaleDiv &division)
{
    return division.ticks(QwtScaleDiv::MinorTick);
}

Ticks inside(const Ticks &ticks, double low, double high)
{
    Ticks result;
    for (const double tick : ticks) {
        if (low <= tick && tick <= high) {
            result.append(tick);
        }
    }
    return result;
}

} // namespace

class tst_ZEMScaleEngine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void majorTicks_data();
    void majorTicks();
    void ticksStopAtTheirLimit();
    void invalidIntervalHasOneTick();
    void unusableStepsGiveFewTicksOrTheLimit_data();
    void unusableStepsGiveFewTicksOrTheLimit();

    void weekIsDividedInItsMiddles();
    void dividesWithoutMinorSteps();
    void minorTicksFollowTheMajorOnes();
    void endlessRangeHasNoTicks_data();
    void endlessRangeHasNoTicks();
    void endlessStepIsChosen_data();
    void endlessStepIsChosen();
    void minorTicksHaveALimit();
    void emptyRangeHasNoTicks_data();
    void emptyRangeHasNoTicks();
    void reversedRangeIsInverted();
    void signOfStepDoesNotMatter();
    void stepIsChosenForZero_data();
    void stepIsChosenForZero();
    void ticksOutsideAreStripped();
    void almostZeroIsZero();
    void withoutOffsetOnlyTheClosingTickLacks();
    void plotUsesTheEngine();
    void randomDivisionsFollowModel();
};

void tst_ZEMScaleEngine::majorTicks_data()
{
    QTest::addColumn<double>("offset");
    QTest::addColumn<QwtInterval>("interval");
    QTest::addColumn<double>("step");
    QTest::addColumn<QList<double>>("expected");
    QTest::newRow("week") << 0.5 << QwtInterval(0.0, 7.0) << 1.0
                          << Ticks {0.5, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5};
    QTest::newRow("older week") << 0.5 << QwtInterval(-14.0, -11.0) << 1.0
                                << Ticks {-13.5, -12.5, -11.5};
    QTest::newRow("no offset") << 0.0 << QwtInterval(0.0, 24.0) << 6.0
                               << Ticks {0.0, 6.0, 12.0, 18.0};
    QTest::newRow("step as wide as the interval")
        << 0.5 << QwtInterval(2.0, 3.0) << 1.0 << Ticks {2.5};
    QTest::newRow("step a little wider") << 0.5 << QwtInterval(2.0, 3.0) << 1.5 << Ticks {2.5};
    QTest::newRow("step much wider") << 0.5 << QwtInterval(2.0, 3.0) << 100.0 << Ticks {2.5};
    QTest::newRow("rounded up") << 0.0 << QwtInterval(0.0, 2.5) << 1.0 << Ticks {0.0, 1.0, 2.0};
    QTest::newRow("rounded down") << 0.0 << QwtInterval(0.0, 2.4) << 1.0 << Ticks {0.0, 1.0};
    QTest::newRow("offset beyond a step")
        << 2.0 << QwtInterval(0.0, 2.0) << 1.0 << Ticks {2.0, 3.0};
    QTest::newRow("no width") << 0.5 << QwtInterval(4.0, 4.0) << 1.0 << Ticks {4.5};
}

void tst_ZEMScaleEngine::majorTicks()
{
    QFETCH(double, offset);
    QFETCH(QwtInterval, interval);
    QFETCH(double, step);
    QTEST(ZEMScaleEngine(offset).buildMajorTicks(interval, step), "expected");
}

void tst_ZEMScaleEngine::ticksStopAtTheirLimit()
{
    const ZEMScaleEngine engine(0.5);
    QCOMPARE(engine.buildMajorTicks(QwtInterval(0.0, 9998.0), 1.0).size(), 9998);
    QCOMPARE(engine.buildMajorTicks(QwtInterval(0.0, 9999.0), 1.0).size(), 9999);
    QCOMPARE(engine.buildMajorTicks(QwtInterval(0.0, 10000.0), 1.0).size(), 9999);
    const Ticks ticks = engine.buildMajorTicks(QwtInterval(0.0, 1.0e12), 1.0);
    QCOMPARE(ticks.size(), 9999);
    QCOMPARE(ticks.constLast(), 9998.5);
    QCOMPARE(major(engine.divideScale(0.0, 20000.0, 5, 0, 1.0)).size(), 9999);
}

void tst_ZEMScaleEngine::invalidIntervalHasOneTick()
{
    QCOMPARE(ZEMScaleEngine(0.5).buildMajorTicks(QwtInterval(10.0, 3.0), 1.0), Ticks {10.5});
}

void tst_ZEMScaleEngine::unusableStepsGiveFewTicksOrTheLimit_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("ticks");
    QTest::newRow("zero") << 0.0 << 9999;
    QTest::newRow("negative") << -1.0 << 1;
    QTest::newRow("infinite") << qInf() << 1;
    QTest::newRow("no number") << qQNaN() << 1;
}

void tst_ZEMScaleEngine::unusableStepsGiveFewTicksOrTheLimit()
{
    QFETCH(double, step);
    QTEST(int(ZEMScaleEngine(0.5).buildMajorTicks(QwtInterval(0.0, 7.0), step).size()), "ticks");
}

void tst_ZEMScaleEngine::weekIsDividedInItsMiddles()
{
    const QwtScaleDiv division = ZEMScaleEngine(0.5).divideScale(0.0, 7.0, 7, 2, 1.0);
    QCOMPARE(division.lowerBound(), 0.0);
    QCOMPARE(division.upperBound(), 7.0);
    QCOMPARE(major(division), Ticks({0.5, 1.5, 2.5, 3.5, 4.5, 5.5, 6.5}));
    // The separators between the slots.
    QCOMPARE(medium(division), Ticks({1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0}));
    QCOMPARE(minor(division), Ticks());
}

void tst_ZEMScaleEngine::dividesWithoutMinorSteps()
{
    for (const int maxMinSteps : {0, -1}) {
        const QwtScaleDiv division = ZEMScaleEngine(0.5).divideScale(0.0, 7.0, 7, maxMinSteps, 1.0);
        QCOMPARE(major(division).size(), 7);
        QCOMPARE(medium(division), Ticks());
        QCOMPARE(minor(division), Ticks());
    }
}

void tst_ZEMScaleEngine::minorTicksFollowTheMajorOnes()
{
    const QwtScaleDiv division = ZEMScaleEngine(3.0).divideScale(0.0, 24.0, 4, 6, 6.0);
    QCOMPARE(major(division), Ticks({3.0, 9.0, 15.0, 21.0}));
    QCOMPARE(medium(division), Ticks({6.0, 12.0, 18.0, 24.0}));
    QCOMPARE(
        minor(division),
        Ticks({4.0, 5.0, 7.0, 8.0, 10.0, 11.0, 13.0, 14.0, 16.0, 17.0, 19.0, 20.0, 22.0, 23.0}));
}

void tst_ZEMScaleEngine::endlessRangeHasNoTicks_data()
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double largest = std::numeric_limits<double>::max();
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::newRow("to infinity") << 0.0 << inf;
    QTest::newRow("from infinity") << inf << 0.0;
    QTest::newRow("from minus infinity") << -inf << 0.0;
    QTest::newRow("all numbers") << -inf << inf;
    QTest::newRow("no number") << nan << 1.0;
    QTest::newRow("to no number") << 0.0 << nan;
    QTest::newRow("wider than a number") << -largest << largest;
}

void tst_ZEMScaleEngine::endlessRangeHasNoTicks()
{
    QFETCH(double, from);
    QFETCH(double, to);
    const ZEMScaleEngine engine(0.5);
    for (const double step : {0.0, 1.0, 1.0e300}) {
        QVERIFY(engine.divideScale(from, to, 7, 2, step) == QwtScaleDiv());
    }
    Ticks ticks[QwtScaleDiv::NTickTypes];
    engine.buildTicks(QwtInterval(from, to), 1.0, 2, ticks);
    QVERIFY(ticks[QwtScaleDiv::MajorTick].isEmpty());
    QVERIFY(ticks[QwtScaleDiv::MinorTick].isEmpty());
}

void tst_ZEMScaleEngine::endlessStepIsChosen_data()
{
    QTest::addColumn<double>("step");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void tst_ZEMScaleEngine::endlessStepIsChosen()
{
    QFETCH(double, step);
    const ZEMScaleEngine engine(0.5);
    QVERIFY(engine.divideScale(0.0, 7.0, 7, 2, step) == engine.divideScale(0.0, 7.0, 7, 2));
}

void tst_ZEMScaleEngine::minorTicksHaveALimit()
{
    constexpr int atMost = 1000000;
    const ZEMScaleEngine engine(0.0);
    for (const int minSteps : {100000, std::numeric_limits<int>::max()}) {
        for (const double step : {0.0001, 1.0}) {
            const QwtScaleDiv division = engine.divideScale(0.0, 7.0, INT_MAX, minSteps, step);
            QVERIFY(minor(division).count() + medium(division).count() <= atMost);
            QVERIFY(!medium(division).isEmpty());
        }
    }
    QCOMPARE(minor(engine.divideScale(0.0, 7.0, 7, 1000, 1.0)).count(), 7 * 998);
}

void tst_ZEMScaleEngine::emptyRangeHasNoTicks_data()
{
    QTest::addColumn<double>("x1");
    QTest::addColumn<double>("x2");
    QTest::newRow("no width") << 3.0 << 3.0;
    QTest::newRow("no number") << qQNaN() << 3.0;
}

void tst_ZEMScaleEngine::emptyRangeHasNoTicks()
{
    QFETCH(double, x1);
    QFETCH(double, x2);
    QVERIFY(ZEMScaleEngine(0.5).divideScale(x1, x2, 7, 2, 1.0) == QwtScaleDiv());
}

void tst_ZEMScaleEngine::reversedRangeIsInverted()
{
    const QwtScaleDiv division = ZEMScaleEngine(0.5).divideScale(7.0, 4.0, 7, 2, 1.0);
    QCOMPARE(division.lowerBound(), 7.0);
    QCOMPARE(division.upperBound(), 4.0);
    QCOMPARE(major(division), Ticks({6.5, 5.5, 4.5}));
    QCOMPARE(medium(division), Ticks({7.0, 6.0, 5.0}));
}

void tst_ZEMScaleEngine::signOfStepDoesNotMatter()
{
    const ZEMScaleEngine engine(0.5);
    QVERIFY(engine.divideScale(0.0, 7.0, 7, 2, -1.0) == engine.divideScale(0.0, 7.0, 7, 2, 1.0));
}

void tst_ZEMScaleEngine::stepIsChosenForZero_data()
{
    QTest::addColumn<int>("maxMajSteps");
    QTest::addColumn<QList<double>>("expected");
    QTest::newRow("five") << 5 << Ticks {0.0, 2.0, 4.0, 6.0, 8.0};
    QTest::newRow("ten") << 10 << Ticks {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0};
    QTest::newRow("one") << 1 << Ticks {0.0};
    QTest::newRow("none counts as one") << 0 << Ticks {0.0};
    QTest::newRow("fewer count as one") << -4 << Ticks {0.0};
}

void tst_ZEMScaleEngine::stepIsChosenForZero()
{
    QFETCH(int, maxMajSteps);
    QTEST(major(ZEMScaleEngine(0.0).divideScale(0.0, 10.0, maxMajSteps, 0, 0.0)), "expected");
    // The step may be left out.
    QTEST(major(ZEMScaleEngine(0.0).divideScale(0.0, 10.0, maxMajSteps, 0)), "expected");
}

void tst_ZEMScaleEngine::ticksOutsideAreStripped()
{
    // The steps are laid from 0 to 8 and what falls outside is left out.
    const QwtScaleDiv division = ZEMScaleEngine(0.5).divideScale(0.75, 7.25, 7, 2, 1.0);
    QCOMPARE(major(division), Ticks({1.5, 2.5, 3.5, 4.5, 5.5, 6.5}));
    QCOMPARE(medium(division), Ticks({1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0}));
}

void tst_ZEMScaleEngine::almostZeroIsZero()
{
    QVERIFY(-0.3 + 3 * 0.1 != 0.0);
    const QwtScaleDiv division = ZEMScaleEngine(0.0).divideScale(-0.3, 0.3, 6, 0, 0.1);
    int zeros = 0;
    for (const double tick : major(division)) {
        QVERIFY(tick == 0.0 || std::abs(tick) > 0.05);
        zeros += tick == 0.0 ? 1 : 0;
    }
    QCOMPARE(zeros, 1);
    // The border of the tolerance belongs to it.
    const ZEMScaleEngine onBorder(1.0e-6);
    QCOMPARE(major(onBorder.divideScale(0.0, 2.0, 2, 0, 1.0)).constFirst(), 0.0);
    const ZEMScaleEngine past(1.5e-6);
    QVERIFY(major(past.divideScale(0.0, 2.0, 2, 0, 1.0)).constFirst() > 0.0);
}

void tst_ZEMScaleEngine::withoutOffsetOnlyTheClosingTickLacks()
{
    const QwtLinearScaleEngine qwt;
    const ZEMScaleEngine own(0.0);
    for (const double max : {1.0, 7.0, 10.0, 23.0, 24.0, 250.0}) {
        Ticks expected = major(qwt.divideScale(0.0, max, 8, 5, 1.0));
        QCOMPARE(expected.takeLast(), max);
        QCOMPARE(major(own.divideScale(0.0, max, 8, 5, 1.0)), expected);
    }
}

void tst_ZEMScaleEngine::plotUsesTheEngine()
{
    QwtPlot plot;
    plot.setAxisScaleEngine(QwtPlot::xBottom, new ZEMScaleEngine(0.5));
    plot.setAxisMaxMajor(QwtPlot::xBottom, 5);
    plot.setAxisMaxMinor(QwtPlot::xBottom, 2);
    plot.setAxisScale(QwtPlot::xBottom, 0.0, 5.0, 1.0);
    plot.replot();
    QCOMPARE(major(plot.axisScaleDiv(QwtPlot::xBottom)), Ticks({0.5, 1.5, 2.5, 3.5, 4.5}));
}

/** Bounds are eighths and steps whole numbers, so that every tick is exact. */
void tst_ZEMScaleEngine::randomDivisionsFollowModel()
{
    constexpr quint32 seed = 4504;
    constexpr int cases = 10000;
    constexpr double eighth = 0.125;
    const int steps[] = {1, 2, 4, 10};
    QRandomGenerator random(seed);
    for (int i = 0; i < cases; ++i) {
        const int step = steps[random.bounded(4)];
        const int low = random.bounded(-2000, 2000);
        const int high = low + random.bounded(1, 400);
        const double offset = random.bounded(-8, 9) * eighth;
        const bool hasSeparators = random.bounded(2) == 1;

        const int first = int(std::floor(low * eighth / step));
        const int end = int(std::ceil(high * eighth / step));
        Ticks slots;
        Ticks separators;
        for (int slot = first; slot < end; ++slot) {
            slots.append(slot * step + offset);
            separators.append(slot * step + offset + step / 2.0);
        }
        const QwtScaleDiv division = ZEMScaleEngine(offset).divideScale(
            low * eighth, high * eighth, 5, hasSeparators ? 2 : 0,
            random.bounded(2) ? step : -step);
        QCOMPARE(major(division), inside(slots, low * eighth, high * eighth));
        QCOMPARE(medium(division),
                 hasSeparators ? inside(separators, low * eighth, high * eighth) : Ticks());
        QCOMPARE(minor(division), Ticks());
    }
}

QTEST_MAIN(tst_ZEMScaleEngine)
#include "tst_zemscaleengine.moc"
