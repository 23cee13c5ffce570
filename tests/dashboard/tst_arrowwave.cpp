// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "arrowwave_p.h"

#include <QRandomGenerator>
#include <QTest>
#include <QTimeLine>

class tst_ArrowWave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timings_data();
    void timings();
    void secondAndThirdRunBehind_data();
    void secondAndThirdRunBehind();
    void followsTheCurveOfATimeLine();
};

void tst_ArrowWave::timings_data()
{
    QTest::addColumn<int>("pass");
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("third");
    QTest::addColumn<int>("wantedPass");
    QTest::addColumn<int>("wantedSecond");
    QTest::addColumn<int>("wantedThird");

    using namespace ArrowWave;
    QTest::newRow("slow") << slow.pass << slow.secondDelay << slow.thirdDelay << 3000 << 500 << 750;
    QTest::newRow("medium") << medium.pass << medium.secondDelay << medium.thirdDelay << 2000 << 250
                            << 500;
    QTest::newRow("fast") << fast.pass << fast.secondDelay << fast.thirdDelay << 1000 << 125 << 250;
}

void tst_ArrowWave::timings()
{
    QFETCH(int, pass);
    QFETCH(int, second);
    QFETCH(int, third);
    QTEST(pass, "wantedPass");
    QTEST(second, "wantedSecond");
    QTEST(third, "wantedThird");
}

void tst_ArrowWave::secondAndThirdRunBehind_data()
{
    QTest::addColumn<int>("time");
    QTest::addColumn<qreal>("second");
    QTest::addColumn<qreal>("third");

    QTest::newRow("start") << 0 << 0.0 << 0.0;
    QTest::newRow("before the second") << 249 << 0.0 << 0.0;
    QTest::newRow("second starts") << 260 << 0.01 << 0.0;
    QTest::newRow("third starts") << 510 << 0.26 << 0.01;
    QTest::newRow("end") << 1000 << 0.75 << 0.5;
}

void tst_ArrowWave::secondAndThirdRunBehind()
{
    QFETCH(int, time);
    QFETCH(qreal, second);
    QFETCH(qreal, third);

    const auto straight = [](int ms) { return qBound(0, ms, 1000) / 1000.0; };
    const auto opacities = ArrowWave::opacities(0.625, time, 250, 500, straight);
    QCOMPARE(opacities[0], 0.625); // the value is taken as told, and not from the curve
    QCOMPARE(opacities[1], second);
    QCOMPARE(opacities[2], third);
}

void tst_ArrowWave::followsTheCurveOfATimeLine()
{
    QRandomGenerator random(20160307);
    for (int i = 0; i < 5000; ++i) {
        QTimeLine line(random.bounded(1, 4000));
        const int second = random.bounded(1000);
        const int third = random.bounded(1000);
        line.setCurrentTime(random.bounded(line.duration()));
        const auto curve = [&](int ms) { return line.valueForTime(ms); };
        const auto opacities =
            ArrowWave::opacities(line.currentValue(), line.currentTime(), second, third, curve);
        // A line that was started later is the same curve, drawn at an earlier time.
        QTimeLine later(line.duration());
        later.setCurrentTime(qMax(0, line.currentTime() - second));
        QCOMPARE(opacities[1], later.currentValue());
        later.setCurrentTime(qMax(0, line.currentTime() - third));
        QCOMPARE(opacities[2], later.currentValue());
        for (const qreal opacity : opacities) {
            QVERIFY(opacity >= 0.0 && opacity <= 1.0);
        }
    }
}

QTEST_APPLESS_MAIN(tst_ArrowWave)
#include "tst_arrowwave.moc"
