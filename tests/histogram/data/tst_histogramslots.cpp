// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "histogramslots_p.h"

#include <QRandomGenerator>
#include <QTest>

#include <vector>

class tst_HistogramSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsAreCounted_data();
    void runsAreCounted();
    void nearestBarFollowsEveryWrite();
};

void tst_HistogramSlots::runsAreCounted_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<uint>("count");
    QTest::addColumn<int>("runs");

    QTest::newRow("all equal") << QVector<double> {2.0, 2.0, 2.0} << 3u << 1;
    QTest::newRow("two runs") << QVector<double> {3.0, 3.0, 3.0, 5.0} << 4u << 2;
    QTest::newRow("all different") << QVector<double> {1.0, 2.0, 1.0} << 3u << 3;
    QTest::newRow("no values") << QVector<double> {2.0} << 0u << 1;
    QTest::newRow("not numbers") << QVector<double> {qQNaN(), qQNaN()} << 2u << 2;
}

void tst_HistogramSlots::runsAreCounted()
{
    QFETCH(QVector<double>, values);
    QFETCH(uint, count);
    QFETCH(int, runs);

    HistogramSlots store;
    store.resize(8);
    QCOMPARE(store.writeRuns(0.0, 0, count, values.constData(), HistogramBarShape()), runs);
}

void tst_HistogramSlots::nearestBarFollowsEveryWrite()
{
    constexpr int slotCount = 40;
    QRandomGenerator random(7);
    HistogramSlots store;
    for (int step = 0; step < 20000; ++step) {
        const auto index = uint(random.bounded(slotCount));
        const auto count = uint(random.bounded(slotCount / 4));
        double values[slotCount];
        for (double &value : values) {
            value = random.bounded(3);
        }
        switch (random.bounded(4)) {
        case 0:
            store.writeBars(0.0, index, count, values, HistogramBarShape());
            break;
        case 1:
            store.writeRuns(0.0, index, count, values, HistogramBarShape());
            break;
        case 2:
            store.clearValue(index, count, values[0]);
            store.clearValue(index, count, values[1]);
            break;
        default:
            store.resize(int(index));
            store.resize(slotCount - int(random.bounded(4)));
            break;
        }
        int bar = -1;
        for (int k = 0; k < store.count(); ++k) {
            if (store.at(k).interval.isValid()) {
                bar = k;
            }
            QCOMPARE(store.barAtOrBefore(k), bar);
        }
    }
}

QTEST_GUILESS_MAIN(tst_HistogramSlots)
#include "tst_histogramslots.moc"
