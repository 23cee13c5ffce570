// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "barpolygon_p.h"
#include "watchedseries.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <limits>

using namespace PlotMath;
using namespace PlotTest;

namespace {

constexpr double tail = 5.0;
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double infinite = std::numeric_limits<double>::infinity();

QPolygonF bars(const QVector<QPointF> &samples, int from, int to, double tailLength,
               const QwtScaleMap &xMap, const QwtScaleMap &yMap)
{
    Reads reads;
    const QPolygonF polygon =
        barPolygon(WatchedSeries(samples, reads), from, to, tailLength, xMap, yMap);
    return reads.stray == 0 ? polygon : QPolygonF(QRectF(0.0, 0.0, 1.0, 1.0));
}

QPolygonF bars(const QVector<QPointF> &samples, int from, int to)
{
    return bars(samples, from, to, tail, QwtScaleMap(), QwtScaleMap());
}

/** The rule in words: centre, width to the next, the last as wide as the first. */
QPolygonF model(const QVector<QPointF> &samples, int from, int to, double tailLength,
                const QwtScaleMap &xMap, const QwtScaleMap &yMap)
{
    QPolygonF polygon;
    for (int i = from; i <= to; ++i) {
        double width = 0.0;
        if (i != to) {
            width = samples[i + 1].x() - samples[i].x();
        } else if (i >= 2) {
            width = samples[1].x() - samples[0].x();
        }
        const double left = samples[i].x() - width / 2;
        const double right = samples[i].x() + width / 2;
        for (const QPointF &corner :
             {QPointF(left, samples[i].y() - tailLength), QPointF(left, samples[i].y()),
              QPointF(right, samples[i].y()), QPointF(right, samples[i].y() - tailLength)}) {
            polygon << QPointF(xMap.transform(corner.x()), yMap.transform(corner.y()));
        }
    }
    return polygon;
}

} // namespace

class tst_BarPolygon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointByPoint_data();
    void pointByPoint();
    void indicesOutsideTheSeriesAreLeftOut();
    void pointsAreNotRounded();
    void nonFiniteSamplesKeepTheirPlace();
    void randomSeriesFollowModel();
};

void tst_BarPolygon::pointByPoint_data()
{
    QTest::addColumn<QVector<QPointF>>("samples");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QVector<QPointF>>("points");

    const QVector<QPointF> even = {{0, 10}, {2, 20}, {4, 30}};
    QTest::newRow("three bars of one width")
        << even << 0 << 2
        << QVector<QPointF> {{-1, 5}, {-1, 10}, {1, 10}, {1, 5},  {1, 15}, {1, 20},
                             {3, 20}, {3, 15},  {3, 25}, {3, 30}, {5, 30}, {5, 25}};
    QTest::newRow("two samples: the second has no width")
        << QVector<QPointF> {{0, 10}, {2, 20}} << 0 << 1
        << QVector<QPointF> {{-1, 5}, {-1, 10}, {1, 10}, {1, 5},
                             {2, 15}, {2, 20},  {2, 20}, {2, 15}};
    QTest::newRow("one sample has no width") << QVector<QPointF> {{3, 10}} << 0 << 0
                                             << QVector<QPointF> {{3, 5}, {3, 10}, {3, 10}, {3, 5}};
    QTest::newRow("first sample alone of three has no width")
        << even << 0 << 0 << QVector<QPointF> {{0, 5}, {0, 10}, {0, 10}, {0, 5}};
    QTest::newRow("second sample alone of three has no width")
        << even << 1 << 1 << QVector<QPointF> {{2, 15}, {2, 20}, {2, 20}, {2, 15}};
    QTest::newRow("third sample alone is as wide as the first")
        << even << 2 << 2 << QVector<QPointF> {{3, 25}, {3, 30}, {5, 30}, {5, 25}};
    QTest::newRow("last drawn is as wide as the first, though others follow")
        << QVector<QPointF> {{0, 1}, {10, 1}, {11, 1}, {12, 1}} << 2 << 2
        << QVector<QPointF> {{6, -4}, {6, 1}, {16, 1}, {16, -4}};
    QTest::newRow("uneven: each as wide as the way to the next")
        << QVector<QPointF> {{0, 0}, {4, 0}, {6, 0}} << 0 << 2
        << QVector<QPointF> {{-2, -5}, {-2, 0}, {2, 0},  {2, -5}, {3, -5}, {3, 0},
                             {5, 0},   {5, -5}, {4, -5}, {4, 0},  {8, 0},  {8, -5}};
    QTest::newRow("backward x: left and right change places")
        << QVector<QPointF> {{4, 0}, {0, 0}} << 0 << 0
        << QVector<QPointF> {{4, -5}, {4, 0}, {4, 0}, {4, -5}};
    QTest::newRow("backward x, two drawn")
        << QVector<QPointF> {{4, 0}, {0, 0}} << 0 << 1
        << QVector<QPointF> {{6, -5}, {6, 0}, {2, 0}, {2, -5}, {0, -5}, {0, 0}, {0, 0}, {0, -5}};
    QTest::newRow("equal x: no width") << QVector<QPointF> {{1, 0}, {1, 9}, {1, 7}} << 2 << 2
                                       << QVector<QPointF> {{1, 2}, {1, 7}, {1, 7}, {1, 2}};
    QTest::newRow("end before start") << even << 2 << 1 << QVector<QPointF> {};
    QTest::newRow("end far before start") << even << 2 << -2 << QVector<QPointF> {};
    QTest::newRow("no samples") << QVector<QPointF> {} << 0 << 0 << QVector<QPointF> {};
}

void tst_BarPolygon::pointByPoint()
{
    QFETCH(QVector<QPointF>, samples);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QVector<QPointF>, points);

    QCOMPARE(bars(samples, from, to), QPolygonF(points));
}

void tst_BarPolygon::indicesOutsideTheSeriesAreLeftOut()
{
    const QVector<QPointF> samples = {{0, 10}, {2, 20}, {4, 30}};
    const QPolygonF all = bars(samples, 0, 2);
    QCOMPARE(all.size(), 12);
    QCOMPARE(bars(samples, -3, 2), all);
    QCOMPARE(bars(samples, 0, 99), all);
    QCOMPARE(bars(samples, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()), all);
    QVERIFY(bars(samples, 3, 5).isEmpty());
    QVERIFY(bars(samples, -5, -1).isEmpty());
}

void tst_BarPolygon::pointsAreNotRounded()
{
    QwtScaleMap xMap;
    xMap.setScaleInterval(0.0, 1.0);
    xMap.setPaintInterval(0.0, 10.25);
    QwtScaleMap yMap;
    yMap.setScaleInterval(0.0, 1.0);
    yMap.setPaintInterval(100.5, 0.0);
    const QPolygonF polygon = bars({{0.5, 0.5}}, 0, 0, 0.25, xMap, yMap);
    QCOMPARE(polygon.at(0), QPointF(5.125, 75.375));
    QCOMPARE(polygon.at(1), QPointF(5.125, 50.25));
}

void tst_BarPolygon::nonFiniteSamplesKeepTheirPlace()
{
    const QPolygonF polygon = bars({{0, 1}, {2, notANumber}, {4, infinite}, {6, 2}, {8, 3}}, 0, 4);
    QCOMPARE(polygon.size(), 20);
    QVERIFY(std::isnan(polygon.at(5).y()));
    QCOMPARE(polygon.at(5).x(), 1.0);
    QCOMPARE(polygon.at(9).y(), infinite);
    QCOMPARE(polygon.at(13), QPointF(5, 2));
}

void tst_BarPolygon::randomSeriesFollowModel()
{
    QRandomGenerator random(71);
    for (int round = 0; round < 3000; ++round) {
        QVector<QPointF> samples;
        const int count = 1 + static_cast<int>(random.bounded(12u));
        for (int i = 0; i < count; ++i) {
            // Quarters, so that model and code may calculate in different orders.
            samples << QPointF(random.bounded(-400, 400) / 4.0, random.bounded(-400, 400) / 4.0);
        }
        const int from = static_cast<int>(random.bounded(static_cast<quint32>(count)));
        const int to = from + static_cast<int>(random.bounded(static_cast<quint32>(count - from)));
        const double tailLength = random.bounded(-40, 40) / 4.0;
        QwtScaleMap xMap;
        xMap.setPaintInterval(0.0, std::pow(2.0, random.bounded(-2, 3)));
        QwtScaleMap yMap;
        yMap.setPaintInterval(8.0, 0.0);
        const QPolygonF expected = model(samples, from, to, tailLength, xMap, yMap);
        QCOMPARE(bars(samples, from, to, tailLength, xMap, yMap), expected);
    }
}

QTEST_APPLESS_MAIN(tst_BarPolygon)
#include "tst_barpolygon.moc"
