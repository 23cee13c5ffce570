// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "curvesearch_p.h"
#include "watchedseries.h"

#include <QRandomGenerator>
#include <QTest>

#include <climits>
#include <cmath>
#include <limits>

using namespace PlotMath;
using namespace PlotTest;

namespace {

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

QwtScaleMap pixelMap()
{
    QwtScaleMap map;
    map.setScaleInterval(0.0, 1000.0);
    map.setPaintInterval(0.0, 1000.0);
    return map;
}

NearestSample nearest(const QVector<QPointF> &samples, const SampleWindow &window,
                      const QPoint &pixel)
{
    Reads reads;
    return nearestInX(WatchedSeries(samples, reads), window, pixelMap(), pixelMap(), pixel);
}

} // namespace

class tst_CurveSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void density_data();
    void density();
    void window_data();
    void window();
    void windowSizeDependsOnDensityAlone();
    void randomWindowsFollowModel();
    void nearest_data();
    void nearest();
    void yOfTheSampleIsNotAsked();
    void onlyTheWindowIsRead();
};

void tst_CurveSearch::density_data()
{
    QTest::addColumn<QVector<QPointF>>("samples");
    QTest::addColumn<double>("expected");

    QTest::newRow("samples, not steps") << QVector<QPointF> {{0, 0}, {1, 0}, {2, 0}, {4, 0}} << 1.0;
    QTest::newRow("only the ends count") << QVector<QPointF> {{0, 0}, {99, 0}, {6, 0}} << 0.5;
    QTest::newRow("backward") << QVector<QPointF> {{4, 0}, {0, 0}} << -0.5;
    QTest::newRow("one sample") << QVector<QPointF> {{7, 0}} << infinite;
    QTest::newRow("equal x") << QVector<QPointF> {{7, 0}, {7, 1}, {7, 2}} << infinite;
    QTest::newRow("endless") << QVector<QPointF> {{0, 0}, {infinite, 1}} << 0.0;
}

void tst_CurveSearch::density()
{
    QFETCH(QVector<QPointF>, samples);
    Reads reads;
    QTEST(sampleDensity(WatchedSeries(samples, reads)), "expected");
}

void tst_CurveSearch::window_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<double>("density");
    QTest::addColumn<quint64>("count");
    QTest::addColumn<quint64>("first");
    QTest::addColumn<quint64>("end");

    QTest::newRow("six units to each side") << 50 << 1.0 << 100ull << 44ull << 56ull;
    QTest::newRow("dense") << 50 << 10.0 << 1000ull << 440ull << 560ull;
    QTest::newRow("sparse") << 50 << 0.1 << 100ull << 4ull << 5ull;
    QTest::newRow("sparse, nothing inside") << 54 << 0.01 << 100ull << 0ull << 0ull;
    QTest::newRow("cut, not rounded") << 50 << 0.99 << 100ull << 43ull << 55ull;
    QTest::newRow("at the start") << 0 << 1.0 << 100ull << 0ull << 6ull;
    QTest::newRow("start just inside") << 6 << 1.0 << 100ull << 0ull << 12ull;
    QTest::newRow("start just cut") << 7 << 1.0 << 100ull << 1ull << 13ull;
    QTest::newRow("end just inside") << 94 << 1.0 << 100ull << 88ull << 100ull;
    QTest::newRow("end cut off") << 95 << 1.0 << 100ull << 89ull << 100ull;
    QTest::newRow("first is the last sample") << 105 << 1.0 << 100ull << 99ull << 100ull;
    QTest::newRow("beyond the end") << 106 << 1.0 << 100ull << 100ull << 100ull;
    QTest::newRow("far beyond the end") << 2000 << 1.0 << 100ull << 1994ull << 100ull;
    QTest::newRow("left of 0, end at 1") << -5 << 1.0 << 100ull << 0ull << 1ull;
    QTest::newRow("left of 0, end at 0") << -6 << 1.0 << 100ull << 0ull << 0ull;
    QTest::newRow("left of 0, end below 0 is none") << -7 << 1.0 << 100ull << 0ull << 100ull;
    QTest::newRow("end cut to 0") << -7 << 0.5 << 100ull << 0ull << 0ull;
    QTest::newRow("backward right of 6: all") << 50 << -1.0 << 100ull << 0ull << 100ull;
    QTest::newRow("backward around 0: all") << 0 << -1.0 << 100ull << 6ull << 100ull;
    QTest::newRow("backward left of -6: empty") << -10 << -1.0 << 100ull << 16ull << 4ull;
    QTest::newRow("all at one x: all") << 50 << infinite << 100ull << 0ull << 100ull;
    QTest::newRow("all at one x, left: all") << -50 << infinite << 100ull << 0ull << 100ull;
    QTest::newRow("all at one x, at 6: all") << 6 << infinite << 100ull << 0ull << 100ull;
    QTest::newRow("no density: all") << 50 << notANumber << 100ull << 0ull << 100ull;
    QTest::newRow("density 0: none") << 50 << 0.0 << 100ull << 0ull << 0ull;
    QTest::newRow("beyond every index") << 50 << 1e12 << 100ull << quint64(INT_MAX) << 100ull;
    QTest::newRow("below every index") << -50 << 1e12 << 100ull << 0ull << 100ull;
    QTest::newRow("largest x") << INT_MAX << 1.0 << 100ull << quint64(INT_MAX - 6) << 100ull;
    QTest::newRow("smallest x") << INT_MIN << 1.0 << 100ull << 0ull << 100ull;
}

void tst_CurveSearch::window()
{
    QFETCH(int, x);
    QFETCH(double, density);
    QFETCH(quint64, count);

    const SampleWindow found = searchWindow(x, density, count);
    QTEST(quint64(found.first), "first");
    QTEST(quint64(found.end), "end");
}

void tst_CurveSearch::windowSizeDependsOnDensityAlone()
{
    const SampleWindow month = searchWindow(500, 4.0, 3000);
    const SampleWindow century = searchWindow(500, 4.0, 3500000);
    QCOMPARE(month.first, century.first);
    QCOMPARE(month.end, century.end);
    QCOMPARE(month.end - month.first, std::size_t(48));
}

void tst_CurveSearch::randomWindowsFollowModel()
{
    QRandomGenerator random(73);
    for (int round = 0; round < 20000; ++round) {
        const int x = random.bounded(-200, 2000);
        const double density = (random.bounded(4001) - 1000) / 256.0;
        const int count = random.bounded(1, 5000);

        // Whole numbers: 256 times the product, then a division that cuts.
        const int scaled = static_cast<int>(density * 256.0);
        const int lower = (x - 6) * scaled / 256;
        const int upper = (x + 6) * scaled / 256;
        const unsigned int expectedFirst = lower < 0 ? 0u : static_cast<unsigned int>(lower);
        const unsigned int expectedEnd =
            std::min(static_cast<unsigned int>(upper), static_cast<unsigned int>(count));

        const SampleWindow found = searchWindow(x, density, static_cast<std::size_t>(count));
        QCOMPARE(found.first, std::size_t(expectedFirst));
        QCOMPARE(found.end, std::size_t(expectedEnd));
    }
}

void tst_CurveSearch::nearest_data()
{
    QTest::addColumn<QVector<QPointF>>("samples");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("index");
    QTest::addColumn<double>("dx");
    QTest::addColumn<double>("dy");

    // All rows ask at x 50, y 20.
    const QVector<QPointF> row = {{30, 0}, {48, 5}, {51, 30}, {70, 20}};
    QTest::newRow("nearest in x") << row << 0 << 4 << 2 << 1.0 << 10.0;
    QTest::newRow("only in the window") << row << 0 << 2 << 1 << 2.0 << 15.0;
    QTest::newRow("window from the end") << row << 3 << 4 << 3 << 20.0 << 0.0;
    QTest::newRow("empty window") << row << 2 << 2 << -1 << 1e10 << 1e10;
    QTest::newRow("inverted window") << row << 3 << 1 << -1 << 1e10 << 1e10;
    QTest::newRow("first of equal ones")
        << QVector<QPointF> {{49, 1}, {51, 2}, {49, 3}} << 0 << 3 << 0 << 1.0 << 19.0;
    QTest::newRow("equal x: first")
        << QVector<QPointF> {{50, 7}, {50, 20}} << 0 << 2 << 0 << 0.0 << 13.0;
    QTest::newRow("unsorted") << QVector<QPointF> {{90, 1}, {10, 2}, {53, 3}, {0, 4}} << 0 << 4 << 2
                              << 3.0 << 17.0;
    QTest::newRow("too far away") << QVector<QPointF> {{1e11, 1}} << 0 << 1 << -1 << 1e10 << 1e10;
    QTest::newRow("just too far away")
        << QVector<QPointF> {{1e10 + 50.0, 1}} << 0 << 1 << -1 << 1e10 << 1e10;
    QTest::newRow("just near enough")
        << QVector<QPointF> {{1e10 + 49.0, 1}} << 0 << 1 << 0 << 1e10 - 1.0 << 19.0;
    QTest::newRow("x not finite") << QVector<QPointF> {{notANumber, 1},
                                                       {infinite, 2},
                                                       {-infinite, 3},
                                                       {70, 4}}
                                  << 0 << 4 << 3 << 20.0 << 16.0;
    QTest::newRow("no x finite") << QVector<QPointF> {{notANumber, 1}, {infinite, 2}} << 0 << 2
                                 << -1 << 1e10 << 1e10;
    QTest::newRow("y infinite") << QVector<QPointF> {{50, infinite}, {51, 20}} << 0 << 2 << 0 << 0.0
                                << infinite;
}

void tst_CurveSearch::nearest()
{
    QFETCH(QVector<QPointF>, samples);
    QFETCH(int, first);
    QFETCH(int, end);

    const SampleWindow window {static_cast<std::size_t>(first), static_cast<std::size_t>(end)};
    const NearestSample found = ::nearest(samples, window, QPoint(50, 20));
    QTEST(found.index, "index");
    QTEST(found.dx, "dx");
    QTEST(found.dy, "dy");
}

void tst_CurveSearch::yOfTheSampleIsNotAsked()
{
    const NearestSample found =
        ::nearest({{50, notANumber}, {51, 20}}, SampleWindow {0, 2}, QPoint(50, 20));
    QCOMPARE(found.index, 0);
    QVERIFY(std::isnan(found.dy));
}

void tst_CurveSearch::onlyTheWindowIsRead()
{
    Reads reads;
    const WatchedSeries series(QVector<QPointF>(1000), reads);
    nearestInX(series, searchWindow(500, 1.0, 1000), pixelMap(), pixelMap(), QPoint());
    QCOMPARE(reads.inside, 12);
    QCOMPARE(reads.stray, 0);
}

QTEST_APPLESS_MAIN(tst_CurveSearch)
#include "tst_curvesearch.moc"
