// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotCurvePointGetter>

#include "plotfixture.h"
#include "watchedseries.h"

#include <QRandomGenerator>

#include <qwt_scale_map.h>

#include <cmath>
#include <limits>

using namespace PlotTest;

namespace {

using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

const double infinite = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

/** One sample each unit, calculated when asked for, however many there are; counts the reads. */
class EndlessSeries : public QwtSeriesData<QPointF>
{
public:
    explicit EndlessSeries(std::size_t samples) : count(samples) { }

    std::size_t size() const override { return count; }
    QPointF sample(std::size_t i) const override
    {
        ++(i < count ? reads.inside : reads.stray);
        return {static_cast<double>(i), 100.0};
    }
    QRectF boundingRect() const override { return {0.0, 0.0, 1.0, 1.0}; }

    mutable Reads reads;

private:
    std::size_t count;
};

} // namespace

class tst_ClosestPoint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void withoutPlotOrSamplesNothingIsTold();
    void tellsPixelsAndUnits();
    void choosesByXAlone();
    void sparseCurveMayMissTheNearest();
    void usesTheAxesOfTheCurve();
    void usesTheScalesOfItsOwnPlot();
    void unitsAreCutTowardsZero_data();
    void unitsAreCutTowardsZero();
    void endsOfTheSeries_data();
    void endsOfTheSeries();
    void seriesOutsideTheWindow();
    void oneSampleAndEqualX_data();
    void oneSampleAndEqualX();
    void flawedSeriesReadNoStraySample_data();
    void flawedSeriesReadNoStraySample();
    void toleratesNullOutputs();
    void randomSeriesFollowModel();
    void costDoesNotGrowWithTheSeries();

private:
    std::unique_ptr<Stage> stage;
    ZEMQwtPlotCurvePointGetter *getter = nullptr;
};

void tst_ClosestPoint::init()
{
    stage = std::make_unique<Stage>();
    getter = stage->getter.get();
}

void tst_ClosestPoint::cleanup()
{
    stage.reset();
}

void tst_ClosestPoint::withoutPlotOrSamplesNothingIsTold()
{
    double dx = 1.5;
    double dy = 2.5;
    QwtPlotCurve loose;
    loose.setSamples(levelRow(5, 0.0, 1.0));
    QCOMPARE(getter->closestPoint(&loose, QPoint(5, 5), &dx, &dy), -1);

    QwtPlotCurve *const curve = stage->addCurve({});
    QCOMPARE(getter->closestPoint(curve, QPoint(5, 5), &dx, &dy), -1);
    curve->setData(nullptr);
    QCOMPARE(getter->closestPoint(curve, QPoint(5, 5), &dx, &dy), -1);
    QCOMPARE(dx, 1.5);
    QCOMPARE(dy, 2.5);
}

void tst_ClosestPoint::tellsPixelsAndUnits()
{
    // Two units to a pixel in x, three in y.
    stage->plot->setAxisScale(QwtPlot::xBottom, 2.0 * leftScale, 2.0 * rightScale);
    stage->plot->setAxisScale(QwtPlot::yLeft, 0.0, 3.0 * topScale);
    stage->plot->updateAxes();
    QwtPlotCurve *const curve = stage->addCurve(levelRow(80, 300.0, 10.0));
    double dx = 0.0;
    double dy = 0.0;
    QCOMPARE(getter->closestPoint(curve, pixelOf(101.0, 110.0), &dx, &dy), 20);
    QCOMPARE(dx, 1.0);
    QCOMPARE(dy, 30.0);
}

void tst_ClosestPoint::choosesByXAlone()
{
    QVector<QPointF> samples = levelRow(wholeRow, 50.0);
    samples[50].setY(290.0);
    QwtPlotCurve *const curve = stage->addCurve(samples);
    double dx = -1.0;
    double dy = -1.0;
    QCOMPARE(getter->closestPoint(curve, pixelOf(100.0, 50.0), &dx, &dy), 50);
    QCOMPARE(dx, 0.0);
    QCOMPARE(dy, 240.0);
}

void tst_ClosestPoint::sparseCurveMayMissTheNearest()
{
    // Less than one sample in twelve units: the window holds one or none, and not always the best.
    QwtPlotCurve *const curve = stage->addCurve(levelRow(14, 50.0, 30.0));
    double dx = -1.0;
    QCOMPARE(getter->closestPoint(curve, pixelOf(30.0, 50.0), &dx, nullptr), 0);
    QCOMPARE(dx, 30.0);
    QCOMPARE(getter->closestPoint(curve, pixelOf(200.0, 50.0), &dx, nullptr), 6);
    QCOMPARE(dx, 20.0);
    QCOMPARE(getter->closestPoint(curve, pixelOf(100.0, 50.0), &dx, nullptr), -1);
    QCOMPARE(dx, 1e10);
}

void tst_ClosestPoint::usesTheAxesOfTheCurve()
{
    stage->plot->setAxisScale(QwtPlot::xTop, 10.0 * leftScale, 10.0 * rightScale);
    stage->plot->setAxisScale(QwtPlot::yRight, 0.0, 10.0 * topScale);
    stage->plot->updateAxes();
    QwtPlotCurve *const curve = stage->addCurve(levelRow(400, 1000.0, 10.0));
    curve->setAxes(QwtPlot::xTop, QwtPlot::yRight);
    double dx = 0.0;
    double dy = 0.0;
    QCOMPARE(getter->closestPoint(curve, pixelOf(200.0, 99.0), &dx, &dy), 200);
    QVERIFY(dx < 1e-6);
    QVERIFY(std::abs(dy - 10.0) < 1e-6);
}

void tst_ClosestPoint::usesTheScalesOfItsOwnPlot()
{
    QwtPlot other;
    arrange(&other);
    other.setAxisScale(QwtPlot::xBottom, 10.0 * leftScale, 10.0 * rightScale);
    other.setAxisScale(QwtPlot::yLeft, 0.0, 10.0 * topScale);
    other.updateAxes();
    QwtPlotCurve curve;
    curve.setSamples(levelRow(wholeRow, 100.0));
    curve.attach(&other);
    double dx = -1.0;
    double dy = -1.0;
    QCOMPARE(getter->closestPoint(&curve, pixelOf(101.0, 93.0), &dx, &dy), 50);
    QCOMPARE(dx, 1.0);
    QCOMPARE(dy, 7.0);
    curve.detach();
}

void tst_ClosestPoint::unitsAreCutTowardsZero_data()
{
    QTest::addColumn<int>("pixel");
    QTest::addColumn<int>("index");

    // Half a unit to a pixel; 200 samples, one each unit.
    QTest::newRow("205.5 is 205, which still sees the last") << 411 << 199;
    QTest::newRow("206 does not") << 412 << -1;
    QTest::newRow("-5.5 is -5, which still sees the first") << -11 << 0;
    QTest::newRow("-6 does not") << -12 << -1;
    QTest::newRow("-6.5 is -6") << -13 << -1;
    QTest::newRow("-7 sees all") << -14 << 0;
}

void tst_ClosestPoint::unitsAreCutTowardsZero()
{
    QFETCH(int, pixel);
    stage->plot->setAxisScale(QwtPlot::xBottom, 0.5 * leftScale, 0.5 * rightScale);
    stage->plot->updateAxes();
    QwtPlotCurve *const curve = stage->addCurve(levelRow(200, 50.0, 1.0));
    QTEST(getter->closestPoint(curve, QPoint(pixel, 0), nullptr, nullptr), "index");
}

void tst_ClosestPoint::endsOfTheSeries_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("index");

    // 200 samples, one each unit, of which the axis shows those from 4.
    QTest::newRow("first shown") << 4 << 4;
    QTest::newRow("left of the axis") << 0 << 0;
    QTest::newRow("left of 0") << -5 << 0;
    QTest::newRow("just no window") << -6 << -1;
    QTest::newRow("far left of 0: everywhere") << -50 << 0;
    QTest::newRow("last but one") << 198 << 198;
    QTest::newRow("last") << 199 << 199;
    QTest::newRow("behind the last") << 203 << 199;
    // 200 samples on 199 units: the window runs ahead of x by a sample.
    QTest::newRow("last one in the window") << 205 << 199;
    QTest::newRow("behind the window") << 206 << -1;
    QTest::newRow("far behind") << 390 << -1;
}

void tst_ClosestPoint::endsOfTheSeries()
{
    QFETCH(int, x);
    Reads reads;
    QwtPlotCurve *const curve = stage->addCurve({});
    curve->setData(new WatchedSeries(levelRow(200, 50.0, 1.0), reads));
    QTEST(getter->closestPoint(curve, pixelOf(x, 50.0), nullptr, nullptr), "index");
    QCOMPARE(reads.stray, 0);
}

void tst_ClosestPoint::seriesOutsideTheWindow()
{
    // A series that does not begin near 0 is looked for at the wrong place.
    QVector<QPointF> samples;
    for (int i = 0; i < 20; ++i) {
        samples << QPointF(200.0 + i, 50.0);
    }
    QwtPlotCurve *const curve = stage->addCurve(samples);
    double dx = 0.0;
    double dy = 0.0;
    QCOMPARE(getter->closestPoint(curve, pixelOf(205.0, 50.0), &dx, &dy), -1);
    QCOMPARE(dx, 1e10);
    QCOMPARE(dy, 1e10);
}

void tst_ClosestPoint::oneSampleAndEqualX_data()
{
    QTest::addColumn<QVector<QPointF>>("samples");
    QTest::addColumn<int>("x");
    QTest::addColumn<double>("dx");

    const QVector<QPointF> one = {{150, 70}};
    const QVector<QPointF> equal = {{150, 70}, {150, 80}, {150, 90}};
    for (const int x : {-40, 4, 6, 150, 390}) {
        const double way = std::abs(150.0 - x);
        QTest::addRow("one sample, asked at %d", x) << one << x << way;
        QTest::addRow("equal x, asked at %d", x) << equal << x << way;
    }
}

void tst_ClosestPoint::oneSampleAndEqualX()
{
    QFETCH(QVector<QPointF>, samples);
    QFETCH(int, x);
    QwtPlotCurve *const curve = stage->addCurve(samples);
    double dx = 0.0;
    double dy = 0.0;
    QCOMPARE(getter->closestPoint(curve, pixelOf(x, 60.0), &dx, &dy), 0);
    QTEST(dx, "dx");
    QCOMPARE(dy, 10.0);
}

void tst_ClosestPoint::flawedSeriesReadNoStraySample_data()
{
    QTest::addColumn<QVector<QPointF>>("samples");
    QTest::addColumn<int>("index");

    // All rows ask at x 100.
    QTest::newRow("unsorted, forward")
        << QVector<QPointF> {{300, 0}, {101, 0}, {0, 0}, {390, 0}} << -1;
    QTest::newRow("unsorted, backward")
        << QVector<QPointF> {{390, 0}, {0, 0}, {101, 0}, {5, 0}} << 2;
    QTest::newRow("x ends in nothing") << QVector<QPointF> {{0, 0}, {99, 0}, {notANumber, 0}} << 1;
    QTest::newRow("x begins with nothing") << QVector<QPointF> {{notANumber, 0}, {99, 0}} << 1;
    QTest::newRow("x ends nowhere") << QVector<QPointF> {{0, 0}, {99, 0}, {infinite, 0}} << -1;
    QTest::newRow("x begins nowhere") << QVector<QPointF> {{infinite, 0}, {99, 0}} << -1;
    QTest::newRow("x nowhere at both ends")
        << QVector<QPointF> {{infinite, 0}, {99, 0}, {infinite, 0}} << 1;
    QTest::newRow("very dense") << QVector<QPointF> {{0, 0}, {1e-9, 0}} << -1;
    QTest::newRow("very dense, backward") << QVector<QPointF> {{1e-9, 0}, {0, 0}} << 0;
    QTest::newRow("only x without number") << QVector<QPointF>(3, QPointF(notANumber, 0)) << -1;
}

void tst_ClosestPoint::flawedSeriesReadNoStraySample()
{
    QFETCH(QVector<QPointF>, samples);
    Reads reads;
    QwtPlotCurve *const curve = stage->addCurve({});
    curve->setData(new WatchedSeries(samples, reads));
    QTEST(getter->closestPoint(curve, pixelOf(100, 50.0), nullptr, nullptr), "index");
    QCOMPARE(reads.stray, 0);
}

void tst_ClosestPoint::toleratesNullOutputs()
{
    QwtPlotCurve *const curve = stage->addCurve(levelRow(wholeRow, 50.0));
    double dx = -1.0;
    double dy = -1.0;
    QCOMPARE(getter->closestPoint(curve, pixelOf(99, 50), &dx, nullptr), 49);
    QCOMPARE(dx, 1.0);
    QCOMPARE(getter->closestPoint(curve, pixelOf(99, 50), nullptr, &dy), 49);
    QCOMPARE(dy, 0.0);
}

void tst_ClosestPoint::randomSeriesFollowModel()
{
    QRandomGenerator random(74);
    for (int round = 0; round < 400; ++round) {
        const int count = 1 + random.bounded(120);
        QVector<QPointF> samples;
        for (int i = 0; i < count; ++i) {
            const double x = random.bounded(4) == 0 ? random.bounded(400.0) : i * 391.0 / count;
            samples << QPointF(x, random.bounded(291.0));
        }
        Reads reads;
        QwtPlotCurve curve;
        curve.setData(new WatchedSeries(samples, reads));
        curve.attach(stage->plot.get());
        for (int question = 0; question < 20; ++question) {
            const QPoint pos(random.bounded(-20, 420), random.bounded(300));

            const double span = samples.last().x() - samples.first().x();
            const double lower = span == 0.0 ? -1.0 : (pos.x() - 6) * (count / span);
            const double upper = span == 0.0 ? -1.0 : (pos.x() + 6) * (count / span);
            int best = -1;
            for (int i = 0; i < count; ++i) {
                const bool isInside =
                    i >= std::trunc(lower) && (i < std::trunc(upper) || std::trunc(upper) < 0.0);
                if (isInside
                    && (best < 0
                        || std::abs(samples[i].x() - pos.x())
                            < std::abs(samples[best].x() - pos.x()))) {
                    best = i;
                }
            }
            double dy = 0.0;
            QCOMPARE(getter->closestPoint(&curve, pos, nullptr, &dy), best);
            if (best >= 0) {
                QVERIFY(std::abs(dy - std::abs(samples[best].y() - (295.0 - pos.y()))) < 1e-9);
            }
        }
        curve.detach();
        QCOMPARE(reads.stray, 0);
    }
}

void tst_ClosestPoint::costDoesNotGrowWithTheSeries()
{
    const auto readsOf = [this](std::size_t count) {
        auto *const series = new EndlessSeries(count);
        QwtPlotCurve curve;
        curve.setData(series);
        stage->plot->addCurve(&curve, false);
        series->reads = Reads();
        const Point found = getter->getCurvePoint(QPointF(200.0, 100.0));
        const Reads reads = series->reads;
        stage->plot->removeCurve(&curve);
        return found.valid && found.index == 200u && reads.stray == 0 ? reads.inside : -1;
    };
    const int reads = readsOf(1000);
    QVERIFY(reads >= 12);
    QVERIFY(reads <= 20);
    QCOMPARE(readsOf(2000000000u), reads);
}

QTEST_MAIN(tst_ClosestPoint)
#include "tst_closestpoint.moc"
