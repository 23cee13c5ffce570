// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotCurvePointGetter>

#include "plotfixture.h"
#include "watchedseries.h"

#include <qwt_scale_map.h>

#include <climits>
#include <cmath>
#include <limits>

using namespace PlotTest;

namespace {

using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

constexpr double unfound = 2147483647.0;
const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

class tst_ZEMQwtPlotCurvePointGetter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void distance_data();
    void distance();
    void newRecordIsDefined();
    void curvesComeFromThePlot();

    void emptyPlotFindsNothing();
    void findsTheSample();
    void cutToWholePixels();
    void curveThatEndsBeforeThePositionIsSkipped();
    void negativeXFindsNothing();
    void earlierCurveWinsATie();
    void nearerCurveWins();
    void toleranceIsATenthOfTheSpan_data();
    void toleranceIsATenthOfTheSpan();
    void invertedAxisFindsNothing();
    void hiddenCurveIsFound();
    void curvesWithoutSamplesAreSkipped();
    void detachedCurveIsSkipped();
    void nonFinitePositionsFindNothing();
    void nonFiniteSamplesAreSkipped();
    void positionIsReadByLeftAndBottomAxis();
    void widgetCoordinates();

    void sampleOfACurve();
    void nextAndPreviousSample();
    void stepsOfInvalidPointsReturnThem();
    void shrunkCurveRefusesTheStep();
    void nextAndPreviousCurve();
    void stepFromForeignCurveKeepsThePoint();
    void survivesThePlot();

private:
    std::unique_ptr<Stage> stage;
    ZEMQwtPlotCurvePointGetter *getter = nullptr;
};

void tst_ZEMQwtPlotCurvePointGetter::init()
{
    stage = std::make_unique<Stage>();
    getter = stage->getter.get();
}

void tst_ZEMQwtPlotCurvePointGetter::cleanup()
{
    stage.reset();
}

void tst_ZEMQwtPlotCurvePointGetter::distance_data()
{
    QTest::addColumn<QLineF>("way");
    QTest::addColumn<double>("expected");
    QTest::newRow("none") << QLineF(3, 4, 3, 4) << 0.0;
    QTest::newRow("slanted") << QLineF(0, 0, 3, 4) << 5.0;
    QTest::newRow("backward") << QLineF(1, 2, -2, -2) << 5.0;
    QTest::newRow("level") << QLineF(-7, 1, 3, 1) << 10.0;
}

void tst_ZEMQwtPlotCurvePointGetter::distance()
{
    QFETCH(QLineF, way);
    QTEST(ZEMQwtPlotCurvePointGetter::distance(way.x1(), way.y1(), way.x2(), way.y2()), "expected");
}

void tst_ZEMQwtPlotCurvePointGetter::newRecordIsDefined()
{
    const Point point;
    QCOMPARE(point.point, QPointF(0.0, 0.0));
    QVERIFY(!point.curve);
    QCOMPARE(point.index, 0u);
    QCOMPARE(point.distance, 0.0);
    QVERIFY(!point.valid);
}

void tst_ZEMQwtPlotCurvePointGetter::curvesComeFromThePlot()
{
    QCOMPARE(getter->getNumCurves(), 0);
    QVERIFY(!getter->getCurveByIndex(0));
    QwtPlotCurve *const first = stage->addCurve(levelRow(5, 0.0, 1.0));
    QwtPlotCurve *const second = stage->addCurve(levelRow(5, 0.0, 1.0));
    QCOMPARE(getter->getNumCurves(), 2);
    QCOMPARE(getter->getCurveByIndex(0), first);
    QCOMPARE(getter->getCurveByIndex(1), second);
    QVERIFY(!getter->getCurveByIndex(2));
    QVERIFY(!getter->getCurveByIndex(-1));

    Point point;
    QCOMPARE(getter->getCurveIndex(point), -1);
    point.curve = second;
    QCOMPARE(getter->getCurveIndex(point), 1);
}

void tst_ZEMQwtPlotCurvePointGetter::emptyPlotFindsNothing()
{
    const Point found = getter->getCurvePoint(QPointF(10.0, 10.0));
    QVERIFY(!found.valid);
    QCOMPARE(found.point, QPointF(0.0, 0.0));
    QCOMPARE(found.distance, unfound);
}

void tst_ZEMQwtPlotCurvePointGetter::findsTheSample()
{
    QwtPlotCurve *const curve = stage->addCurve(levelRow(wholeRow, 100.0));
    const Point found = getter->getCurvePoint(QPointF(101.0, 92.0));
    QVERIFY(found.valid);
    QCOMPARE(found.curve, curve);
    QCOMPARE(found.index, 50u);
    QCOMPARE(found.point, QPointF(100.0, 100.0));
    QCOMPARE(found.distance, 8.0);
}

void tst_ZEMQwtPlotCurvePointGetter::cutToWholePixels()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    // Pixel 101 is as near to the sample at 100 as to that at 102; 101.9 is cut to it.
    QCOMPARE(getter->getCurvePoint(QPointF(101.9, 100.0)).index, 50u);
    QCOMPARE(getter->getCurvePoint(QPointF(102.0, 100.0)).index, 51u);
    // Pixel 195.5 from the top is cut to 195, which is the level 100 again.
    QCOMPARE(getter->getCurvePoint(QPointF(100.0, 99.5)).distance, 0.0);
    QCOMPARE(getter->getCurvePoint(QPointF(100.0, 99.0)).distance, 1.0);
}

void tst_ZEMQwtPlotCurvePointGetter::curveThatEndsBeforeThePositionIsSkipped()
{
    stage->addCurve(levelRow(101, 100.0)); // up to 200
    QVERIFY(getter->getCurvePoint(QPointF(199.5, 100.0)).valid);
    QVERIFY(!getter->getCurvePoint(QPointF(200.0, 100.0)).valid);
    QVERIFY(!getter->getCurvePoint(QPointF(201.0, 100.0)).valid);
    QVERIFY(!getter->getCurvePoint(QPointF(1e300, 100.0)).valid);
}

void tst_ZEMQwtPlotCurvePointGetter::negativeXFindsNothing()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(getter->getCurvePoint(QPointF(0.0, 100.0)).valid);
    QVERIFY(getter->getCurvePoint(QPointF(-0.0, 100.0)).valid);
    QVERIFY(!getter->getCurvePoint(QPointF(-0.001, 100.0)).valid);
    QVERIFY(!getter->getCurvePoint(QPointF(-100.0, 100.0)).valid);
}

void tst_ZEMQwtPlotCurvePointGetter::earlierCurveWinsATie()
{
    QwtPlotCurve *const first = stage->addCurve(levelRow(wholeRow, 110.0));
    stage->addCurve(levelRow(wholeRow, 90.0));
    stage->addCurve(levelRow(wholeRow, 110.0));
    const Point found = getter->getCurvePoint(QPointF(100.0, 100.0));
    QCOMPARE(found.curve, first);
    QCOMPARE(found.distance, 10.0);
}

void tst_ZEMQwtPlotCurvePointGetter::nearerCurveWins()
{
    stage->addCurve(levelRow(wholeRow, 110.0));
    QwtPlotCurve *const second = stage->addCurve(levelRow(wholeRow, 91.0));
    QCOMPARE(getter->getCurvePoint(QPointF(100.0, 100.0)).curve, second);
}

void tst_ZEMQwtPlotCurvePointGetter::toleranceIsATenthOfTheSpan_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<bool>("isFound");

    // The axis runs from 0 to 200, the samples lie at 100.
    QTest::newRow("on it") << 100.0 << true;
    QTest::newRow("just near enough above") << 119.0 << true;
    QTest::newRow("just near enough below") << 81.0 << true;
    QTest::newRow("20 is too far above") << 120.0 << false;
    QTest::newRow("20 is too far below") << 80.0 << false;
    QTest::newRow("far") << 180.0 << false;
}

void tst_ZEMQwtPlotCurvePointGetter::toleranceIsATenthOfTheSpan()
{
    QFETCH(double, y);
    // 200 pixels high, so that whole units are whole pixels.
    stage->plot->setAxisScale(QwtPlot::yLeft, 0.0, 200.0);
    stage->plot->resize(stage->plot->size() - QSize(0, 91));
    stage->plot->updateLayout();
    stage->plot->replot();
    const QwtScaleMap map = stage->plot->canvasMap(QwtPlot::yLeft);
    QCOMPARE(map.p1() - map.p2(), 200.0);

    stage->addCurve(levelRow(wholeRow, 100.0));
    QTEST(getter->getCurvePoint(QPointF(100.0, y)).valid, "isFound");
}

void tst_ZEMQwtPlotCurvePointGetter::invertedAxisFindsNothing()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
    stage->plot->setAxisScale(QwtPlot::yLeft, topScale, bottomScale);
    stage->plot->updateAxes();
    QVERIFY(!getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
}

void tst_ZEMQwtPlotCurvePointGetter::hiddenCurveIsFound()
{
    QwtPlotCurve *const curve = stage->addCurve(levelRow(wholeRow, 100.0));
    curve->setVisible(false);
    QCOMPARE(getter->getCurvePoint(QPointF(100.0, 100.0)).curve, curve);
}

void tst_ZEMQwtPlotCurvePointGetter::curvesWithoutSamplesAreSkipped()
{
    stage->addCurve({});
    stage->addCurve({})->setData(nullptr);
    QwtPlotCurve *const curve = stage->addCurve(levelRow(wholeRow, 100.0));
    QCOMPARE(getter->getCurvePoint(QPointF(100.0, 100.0)).curve, curve);
}

void tst_ZEMQwtPlotCurvePointGetter::detachedCurveIsSkipped()
{
    const std::unique_ptr<QwtPlotCurve> curve(stage->addCurve(levelRow(wholeRow, 100.0)));
    // Listed twice and removed once: the only way to be listed and on no plot.
    stage->plot->addCurve(curve.get(), false);
    stage->plot->removeCurve(curve.get());
    QVERIFY(!curve->plot());
    QCOMPARE(getter->getNumCurves(), 1);
    QVERIFY(!getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
}

void tst_ZEMQwtPlotCurvePointGetter::nonFinitePositionsFindNothing()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    for (const double x : {notANumber, infinite, -infinite}) {
        QVERIFY(!getter->getCurvePoint(QPointF(x, 100.0)).valid);
    }
    QVERIFY(!getter->getCurvePoint(QPointF(100.0, infinite)).valid);
    QVERIFY(!getter->getCurvePoint(QPointF(100.0, -infinite)).valid);
}

void tst_ZEMQwtPlotCurvePointGetter::nonFiniteSamplesAreSkipped()
{
    QVector<QPointF> samples = levelRow(wholeRow, 100.0);
    samples[50].setY(notANumber);
    samples[100].setY(infinite);
    samples[150].setX(notANumber);
    stage->addCurve(samples);
    QVERIFY(!getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
    QVERIFY(!getter->getCurvePoint(QPointF(200.0, 100.0)).valid);
    // The neighbour is the nearest that has an x.
    QCOMPARE(getter->getCurvePoint(QPointF(300.0, 100.0)).index, 149u);
}

void tst_ZEMQwtPlotCurvePointGetter::positionIsReadByLeftAndBottomAxis()
{
    stage->plot->setAxisScale(QwtPlot::xTop, 2.0 * leftScale, 2.0 * rightScale);
    stage->plot->setAxisScale(QwtPlot::yRight, 0.0, 10.0 * topScale);
    stage->plot->updateAxes();
    QwtPlotCurve *const curve = stage->addCurve(levelRow(2 * wholeRow, 1000.0));
    curve->setAxes(QwtPlot::xTop, QwtPlot::yRight);
    // (100, 100) by the left and the bottom axis is the pixel of (200, 1000) by the curve's own.
    const Point found = getter->getCurvePoint(QPointF(100.0, 100.0));
    QCOMPARE(found.curve, curve);
    QCOMPARE(found.index, 100u);
    QVERIFY(!getter->getCurvePoint(QPointF(100.0, 200.0)).valid);
}

void tst_ZEMQwtPlotCurvePointGetter::widgetCoordinates()
{
    QwtPlotCurve *const curve = stage->addCurve(levelRow(wholeRow, 100.0));
    const Point found = getter->getCurvePointByWidgetCoords(pixelOf(99.0, 107.0));
    QVERIFY(found.valid);
    QCOMPARE(found.curve, curve);
    QCOMPARE(found.index, 49u);
    QCOMPARE(found.distance, 7.0);
    QVERIFY(!getter->getCurvePointByWidgetCoords(pixelOf(99.0, 200.0)).valid);

    // Half a unit to a pixel in x, two in y.
    stage->plot->setAxisScale(QwtPlot::xBottom, 0.5 * leftScale, 0.5 * rightScale);
    stage->plot->setAxisScale(QwtPlot::yLeft, 0.0, 2.0 * topScale);
    stage->plot->updateAxes();
    const Point scaled = getter->getCurvePointByWidgetCoords(pixelOf(100.0, 52.0));
    QCOMPARE(scaled.index, 25u);
    QCOMPARE(scaled.distance, 4.0);
}

void tst_ZEMQwtPlotCurvePointGetter::sampleOfACurve()
{
    QwtPlotCurve *const first = stage->addCurve(levelRow(wholeRow, 100.0));
    stage->addCurve({})->setData(nullptr);
    const Point found = getter->getCurvePoint(0u, 195u);
    QVERIFY(found.valid);
    QCOMPARE(found.curve, first);
    QCOMPARE(found.index, 195u);
    QCOMPARE(found.point, QPointF(390.0, 100.0));
    QCOMPARE(found.distance, 0.0);

    const std::pair<unsigned int, unsigned int> absent[] = {
        {0u, 196u}, {0u, UINT_MAX}, {1u, 0u}, {2u, 0u}, {UINT_MAX, 0u}};
    for (const auto &place : absent) {
        const Point none = getter->getCurvePoint(place.first, place.second);
        QVERIFY(!none.valid);
        QCOMPARE(none.point, QPointF(0.0, 0.0));
    }
}

void tst_ZEMQwtPlotCurvePointGetter::nextAndPreviousSample()
{
    QwtPlotCurve *const curve = stage->addCurve({{0, 1}, {2, 2}, {4, 3}});
    Point point = getter->getCurvePoint(QPointF(0.5, 3.0));
    QCOMPARE(point.index, 0u);
    QCOMPARE(point.distance, 2.0);

    const Point before = getter->getPrevCurvePoint(point);
    QCOMPARE(before.index, 0u);
    QCOMPARE(before.distance, 2.0);

    point = getter->getNextCurvePoint(point);
    QCOMPARE(point.index, 1u);
    QCOMPARE(point.point, QPointF(2.0, 2.0));
    QCOMPARE(point.distance, 0.0);
    QCOMPARE(point.curve, curve);
    QVERIFY(point.valid);

    point = getter->getNextCurvePoint(point);
    QCOMPARE(point.index, 2u);
    point.distance = 9.0;
    QCOMPARE(getter->getNextCurvePoint(point).index, 2u);
    QCOMPARE(getter->getNextCurvePoint(point).distance, 9.0);

    point = getter->getPrevCurvePoint(point);
    QCOMPARE(point.index, 1u);
    QCOMPARE(point.point, QPointF(2.0, 2.0));
    QCOMPARE(point.distance, 0.0);
    QCOMPARE(getter->getPrevCurvePoint(point).index, 0u);
}

void tst_ZEMQwtPlotCurvePointGetter::stepsOfInvalidPointsReturnThem()
{
    QwtPlotCurve *const curve = stage->addCurve(levelRow(5, 100.0, 10.0));
    stage->addCurve(levelRow(5, 100.0, 10.0));
    Point point;
    point.curve = curve;
    point.index = 1;
    point.distance = 4.0;
    for (const Point &stepped :
         {getter->getNextCurvePoint(point), getter->getPrevCurvePoint(point),
          getter->getNextCurveForPoint(point), getter->getPrevCurveForPoint(point)}) {
        QVERIFY(!stepped.valid);
        QCOMPARE(stepped.index, 1u);
        QCOMPARE(stepped.distance, 4.0);
        QCOMPARE(stepped.curve, curve);
    }
    getter->getNextCurvePoint(Point());
}

void tst_ZEMQwtPlotCurvePointGetter::shrunkCurveRefusesTheStep()
{
    Reads reads;
    QwtPlotCurve *const curve = stage->addCurve(levelRow(wholeRow, 100.0));
    const Point point = getter->getCurvePoint(0u, 30u);
    curve->setData(new WatchedSeries(levelRow(30, 100.0), reads));
    QCOMPARE(getter->getNextCurvePoint(point).index, 30u);
    QCOMPARE(getter->getPrevCurvePoint(point).index, 29u);
    curve->setData(new WatchedSeries(levelRow(29, 100.0), reads));
    QCOMPARE(getter->getPrevCurvePoint(point).index, 30u);
    curve->setData(nullptr);
    QCOMPARE(getter->getNextCurvePoint(point).index, 30u);
    QCOMPARE(getter->getPrevCurvePoint(point).index, 30u);
    QCOMPARE(reads.stray, 0);
}

void tst_ZEMQwtPlotCurvePointGetter::nextAndPreviousCurve()
{
    QwtPlotCurve *const first = stage->addCurve(levelRow(10, 100.0, 10.0));
    QwtPlotCurve *const second = stage->addCurve(levelRow(5, 50.0, 20.0));
    Point point = getter->getCurvePoint(0u, 4u);
    point.distance = 3.0;

    // The same number, not the same x.
    const Point below = getter->getNextCurveForPoint(point);
    QCOMPARE(below.curve, second);
    QCOMPARE(below.index, 4u);
    QCOMPARE(below.point, QPointF(80.0, 50.0));
    QCOMPARE(below.distance, 0.0);
    QCOMPARE(getter->getPrevCurveForPoint(below).curve, first);

    const Point same = getter->getPrevCurveForPoint(point);
    QCOMPARE(same.curve, first);
    QCOMPARE(same.index, 4u);
    QCOMPARE(same.distance, 0.0);
    Point last = below;
    last.distance = 3.0;
    QCOMPARE(getter->getNextCurveForPoint(last).curve, second);
    QCOMPARE(getter->getNextCurveForPoint(last).distance, 0.0);

    Point tooFar = getter->getCurvePoint(0u, 5u);
    tooFar.distance = 3.0;
    QCOMPARE(getter->getNextCurveForPoint(tooFar).curve, first);
    QCOMPARE(getter->getNextCurveForPoint(tooFar).distance, 3.0);
}

void tst_ZEMQwtPlotCurvePointGetter::stepFromForeignCurveKeepsThePoint()
{
    stage->addCurve(levelRow(10, 100.0, 10.0));
    QwtPlotCurve foreign;
    foreign.setSamples(levelRow(10, 100.0, 10.0));
    const Point point = {QPointF(10.0, 100.0), &foreign, 2.0, 1u, true};
    QCOMPARE(getter->getNextCurveForPoint(point).curve, &foreign);
    QCOMPARE(getter->getPrevCurveForPoint(point).curve, &foreign);
    QCOMPARE(getter->getPrevCurveForPoint(point).distance, 2.0);
    // Along the curve there is no need of a plot.
    QCOMPARE(getter->getNextCurvePoint(point).index, 2u);
}

void tst_ZEMQwtPlotCurvePointGetter::survivesThePlot()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    stage->plot.reset();
    QCOMPARE(getter->getNumCurves(), 0);
    QVERIFY(!getter->getCurveByIndex(0));
    QCOMPARE(getter->getCurveIndex(Point()), -1);
    QVERIFY(!getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
    QVERIFY(!getter->getCurvePointByWidgetCoords(QPointF(100.0, 195.0)).valid);
    QVERIFY(!getter->getCurvePoint(0u, 0u).valid);
}

QTEST_MAIN(tst_ZEMQwtPlotCurvePointGetter)
#include "tst_zemqwtplotcurvepointgetter.moc"
