// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QwtPlotMover>

#include "moverfixture.h"
#include "zemtest.h"

#include <QRandomGenerator>
#include <QTest>

#include <climits>
#include <cmath>
#include <memory>

using namespace MoverTest;

class tst_QwtPlotMover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void defaults();
    void settersAreRead();
    void numbersThatAreNoAxis_data();
    void numbersThatAreNoAxis();
    void knowsItsCanvasAndPlot();
    void withoutCanvas();
    void withoutPlot();

    void realDragMovesBeyondThreshold();
    void realDragToTheRightShowsOlderData();
    void realDragStopsAtNewestPeriod();
    void realDragStopsAtOldestPeriod();
    void disabledMoverIgnoresDrags();

    void eachAxisFollowsItsDirection();
    void disabledAxisIsUntouched();
    void noWayIsNoMove();
    void wayAcrossStillCounts();
    void wideViewBecomesOnePeriodAtTheEnd();
    void withoutLimitDraggingIsUnbounded();
    void stepSizeIsKept();
    void oneReplotForEachMove_data();
    void oneReplotForEachMove();
    void axisChangedFollowsReplotInOrder();

    void periodMoves_data();
    void periodMoves();
    void firstPeriodIsTheNewest();
    void periodMoveReplotsThenTells();
    void periodMoveWorksOnDisabledAxis();
    void periodMovesContinueAfterDrag();
    void foreignScaleIsNotNoted();
    void axesAreIndependent();
    void hasPeriods();
    void withoutLimitThereAreNoPeriods();
    void withoutPeriodNothingBreaks();

    void randomMovesFollowModel();

private:
    bool showPlot();
    void limitToTenDays();

    std::unique_ptr<Plot> plot;
    Mover *mover = nullptr;
};

void tst_QwtPlotMover::init()
{
    plot = std::make_unique<Plot>();
    mover = new Mover(plot->plotCanvas());
    connect(mover, &QwtPlotMover::axisChanged, plot.get(),
            [this](int axis) { plot->log << QStringLiteral("axis %1").arg(axis); });
}

void tst_QwtPlotMover::cleanup()
{
    plot.reset();
    mover = nullptr;
}

bool tst_QwtPlotMover::showPlot()
{
    plot->show();
    return QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs);
}

void tst_QwtPlotMover::limitToTenDays()
{
    mover->setAxisPeriod(QwtPlot::xBottom, day);
    mover->setAxisValidInterval(QwtPlot::xBottom, tenDays);
}

void tst_QwtPlotMover::defaults()
{
    for (const int axis : axes) {
        QVERIFY(mover->isAxisEnabled(axis));
        QCOMPARE(mover->axisPeriodSize(axis), 0.0);
        QCOMPARE(mover->axisValidInterval(axis), QwtInterval(0.0, -1.0));
        QVERIFY(!mover->hasAxisPrevPeriod(axis));
        QVERIFY(!mover->hasAxisNextPeriod(axis));
    }
    QVERIFY(mover->isEnabled());
    QCOMPARE(mover->objectName(), QStringLiteral("QwtPlotMover"));
}

void tst_QwtPlotMover::settersAreRead()
{
    for (const int axis : axes) {
        mover->setAxisEnabled(axis, false);
        mover->setAxisPeriod(axis, axis + 0.5);
        mover->setAxisValidInterval(axis, QwtInterval(-axis - 1.0, axis));
    }
    for (const int axis : axes) {
        QVERIFY(!mover->isAxisEnabled(axis));
        QCOMPARE(mover->axisPeriodSize(axis), axis + 0.5);
        QCOMPARE(mover->axisValidInterval(axis), QwtInterval(-axis - 1.0, axis));
    }
    QCOMPARE(plot->log, Log());
}

void tst_QwtPlotMover::numbersThatAreNoAxis_data()
{
    QTest::addColumn<int>("axis");
    QTest::newRow("-1") << -1;
    QTest::newRow("4") << 4;
    QTest::newRow("smallest") << INT_MIN;
    QTest::newRow("largest") << INT_MAX;
}

void tst_QwtPlotMover::numbersThatAreNoAxis()
{
    QFETCH(int, axis);
    mover->setAxisEnabled(axis, false);
    mover->setAxisPeriod(axis, day);
    mover->setAxisValidInterval(axis, tenDays);
    QVERIFY(mover->isAxisEnabled(axis));
    QCOMPARE(mover->axisPeriodSize(axis), 0.0);
    QCOMPARE(mover->axisValidInterval(axis), QwtInterval(0.0, -1.0));
    QVERIFY(!mover->hasAxisPrevPeriod(axis));
    QVERIFY(!mover->hasAxisNextPeriod(axis));
    mover->moveAxisPrevPeriod(axis);
    mover->moveAxisNextPeriod(axis);
    mover->moveAxisFirstPeriod(axis);
    QCOMPARE(plot->log, Log());
}

void tst_QwtPlotMover::knowsItsCanvasAndPlot()
{
    const QwtPlotMover &constMover = *mover;
    QCOMPARE(mover->canvas(), plot->plotCanvas());
    QCOMPARE(constMover.canvas(), plot->plotCanvas());
    QCOMPARE(mover->plot(), static_cast<QwtPlot *>(plot.get()));
    QCOMPARE(constMover.plot(), static_cast<const QwtPlot *>(plot.get()));
}

void tst_QwtPlotMover::withoutCanvas()
{
    Mover alone(nullptr);
    QVERIFY(!alone.canvas());
    QVERIFY(!alone.plot());
    alone.moveCanvas(10, 10);
    alone.moveAxisPrevPeriod(QwtPlot::xBottom);
}

void tst_QwtPlotMover::withoutPlot()
{
    QwtPlotCanvas canvas;
    Mover alone(&canvas);
    int changes = 0;
    connect(&alone, &QwtPlotMover::axisChanged, this, [&changes] { ++changes; });
    QCOMPARE(alone.canvas(), &canvas);
    QVERIFY(!alone.plot());
    alone.setAxisPeriod(QwtPlot::xBottom, day);
    alone.setAxisValidInterval(QwtPlot::xBottom, tenDays);
    alone.moveCanvas(10, 10);
    alone.moveAxisPrevPeriod(QwtPlot::xBottom);
    alone.moveAxisNextPeriod(QwtPlot::xBottom);
    alone.moveAxisFirstPeriod(QwtPlot::xBottom);
    QCOMPARE(changes, 0);
    // The position has stayed at the newest period, which has no next one.
    QVERIFY(!alone.hasAxisNextPeriod(QwtPlot::xBottom));
}

void tst_QwtPlotMover::realDragMovesBeyondThreshold()
{
    QVERIFY(showPlot());
    mover->setOrientations(Qt::Horizontal);
    mover->setDxSignalThreshold(5);
    const QPoint start = plot->canvas()->rect().center();
    ZemTest::press(plot->canvas(), start);
    ZemTest::moveTo(plot->canvas(), start + QPoint(5, 30));
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
    ZemTest::moveTo(plot->canvas(), start + QPoint(6, 30));
    QCOMPARE(plot->lower(QwtPlot::xBottom), -6 * plot->unitsOfPixel(QwtPlot::xBottom));
    QCOMPARE(plot->lower(QwtPlot::yLeft), 0.0);
    ZemTest::release(plot->canvas(), start + QPoint(6, 30));
}

void tst_QwtPlotMover::realDragToTheRightShowsOlderData()
{
    QVERIFY(showPlot());
    limitToTenDays();
    const QPoint start = plot->canvas()->rect().center();
    ZemTest::press(plot->canvas(), start);
    ZemTest::moveTo(plot->canvas(), start + QPoint(40, 0));
    ZemTest::moveTo(plot->canvas(), start + QPoint(100, 0));
    ZemTest::release(plot->canvas(), start + QPoint(100, 0));
    QCOMPARE(plot->lower(QwtPlot::xBottom), -100 * plot->unitsOfPixel(QwtPlot::xBottom));
    QCOMPARE(plot->upper(QwtPlot::xBottom) - plot->lower(QwtPlot::xBottom), day);
}

void tst_QwtPlotMover::realDragStopsAtNewestPeriod()
{
    QVERIFY(showPlot());
    limitToTenDays();
    const int right = plot->canvas()->width() - 1;
    ZemTest::press(plot->canvas(), QPoint(right, 10));
    for (int x = right - 10; x > 0; x -= 10) {
        ZemTest::moveTo(plot->canvas(), QPoint(x, 10));
        QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
        QCOMPARE(plot->upper(QwtPlot::xBottom), day);
    }
    ZemTest::release(plot->canvas(), QPoint(0, 10));
}

void tst_QwtPlotMover::realDragStopsAtOldestPeriod()
{
    QVERIFY(showPlot());
    mover->setAxisPeriod(QwtPlot::xBottom, day);
    mover->setAxisValidInterval(QwtPlot::xBottom, QwtInterval(-5.0, day));
    const int right = plot->canvas()->width() - 1;
    ZemTest::press(plot->canvas(), QPoint(0, 10));
    ZemTest::moveTo(plot->canvas(), QPoint(right, 10));
    ZemTest::release(plot->canvas(), QPoint(right, 10));
    QCOMPARE(plot->lower(QwtPlot::xBottom), -5.0);
    QCOMPARE(plot->upper(QwtPlot::xBottom), -5.0 + day);
}

void tst_QwtPlotMover::disabledMoverIgnoresDrags()
{
    QVERIFY(showPlot());
    mover->setEnabled(false);
    plot->log.clear();
    const QPoint start = plot->canvas()->rect().center();
    ZemTest::press(plot->canvas(), start);
    ZemTest::moveTo(plot->canvas(), start + QPoint(40, 0));
    ZemTest::release(plot->canvas(), start + QPoint(40, 0));
    QCOMPARE(plot->log, Log());
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
}

void tst_QwtPlotMover::eachAxisFollowsItsDirection()
{
    const double x = plot->unitsOfPixel(QwtPlot::xBottom);
    const double y = plot->unitsOfPixel(QwtPlot::yLeft);
    QVERIFY(x > 0.0 && y < 0.0);
    mover->moveCanvas(10, 20);
    QCOMPARE(plot->lower(QwtPlot::xBottom), -10 * x);
    QCOMPARE(plot->lower(QwtPlot::xTop), -10 * x);
    QCOMPARE(plot->lower(QwtPlot::yLeft), -20 * y);
    QCOMPARE(plot->lower(QwtPlot::yRight), -20 * y);
    for (const int axis : axes) {
        QCOMPARE(plot->upper(axis) - plot->lower(axis), day);
    }
}

void tst_QwtPlotMover::disabledAxisIsUntouched()
{
    plot->setAxisAutoScale(QwtPlot::yLeft, true);
    mover->setAxisEnabled(QwtPlot::yLeft, false);
    mover->setAxisEnabled(QwtPlot::xTop, false);
    mover->moveCanvas(10, 20);
    QVERIFY(plot->axisAutoScale(QwtPlot::yLeft));
    QCOMPARE(plot->lower(QwtPlot::xTop), 0.0);
    QVERIFY(plot->lower(QwtPlot::xBottom) < 0.0);
    QVERIFY(plot->lower(QwtPlot::yRight) > 0.0);
    QVERIFY(!plot->log.contains(QStringLiteral("axis 0")));
    QVERIFY(!plot->log.contains(QStringLiteral("axis 3")));
}

void tst_QwtPlotMover::noWayIsNoMove()
{
    mover->moveCanvas(0, 0);
    QCOMPARE(plot->log, Log());
}

void tst_QwtPlotMover::wayAcrossStillCounts()
{
    mover->moveCanvas(0, 1);
    QCOMPARE(plot->log.size(), 5);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
}

void tst_QwtPlotMover::wideViewBecomesOnePeriodAtTheEnd()
{
    plot->setAxisScale(QwtPlot::xBottom, -48.0, 24.0, step);
    plot->replot();
    limitToTenDays();
    mover->moveCanvas(-1, 0);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
    QCOMPARE(plot->upper(QwtPlot::xBottom), day);
}

void tst_QwtPlotMover::withoutLimitDraggingIsUnbounded()
{
    mover->setAxisPeriod(QwtPlot::xBottom, day);
    double expected = 0.0;
    for (int i = 0; i < 20; ++i) {
        expected += 200 * plot->unitsOfPixel(QwtPlot::xBottom);
        mover->moveCanvas(-200, 0);
        QVERIFY(std::abs(plot->lower(QwtPlot::xBottom) - expected) < 1.0e-6);
        QVERIFY(std::abs(plot->upper(QwtPlot::xBottom) - expected - day) < 1.0e-6);
    }
    QVERIFY(expected > 10 * day);
}

void tst_QwtPlotMover::stepSizeIsKept()
{
    limitToTenDays();
    mover->moveCanvas(10, 0);
    QCOMPARE(plot->axisStepSize(QwtPlot::xBottom), step);
    mover->moveCanvas(-50, 0);
    QCOMPARE(plot->axisStepSize(QwtPlot::xBottom), step);
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->axisStepSize(QwtPlot::xBottom), step);
    mover->moveAxisFirstPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->axisStepSize(QwtPlot::xBottom), step);
}

void tst_QwtPlotMover::oneReplotForEachMove_data()
{
    QTest::addColumn<bool>("autoReplot");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plot that replots by itself") << true << QStringLiteral("auto replot");
    QTest::newRow("plot that does not") << false << QStringLiteral("replot");
}

void tst_QwtPlotMover::oneReplotForEachMove()
{
    QFETCH(bool, autoReplot);
    QFETCH(QString, expected);
    plot->setAutoReplot(autoReplot);
    mover->moveCanvas(10, 20);
    QCOMPARE(plot->log.filter(QStringLiteral("replot")), Log {expected});
    QCOMPARE(plot->autoReplot(), autoReplot);
}

void tst_QwtPlotMover::axisChangedFollowsReplotInOrder()
{
    mover->setAxisEnabled(QwtPlot::yRight, false);
    Q_EMIT mover->moved(3, 4);
    QCOMPARE(plot->log,
             Log({QStringLiteral("replot"), QStringLiteral("axis 0"), QStringLiteral("axis 2"),
                  QStringLiteral("axis 3")}));
}

void tst_QwtPlotMover::periodMoves_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<bool>("snap");
    QTest::addColumn<double>("previous");
    QTest::addColumn<double>("next");
    QTest::newRow("whole") << -48.0 << true << -72.0 << -24.0;
    QTest::newRow("half way") << -12.0 << true << -24.0 << 0.0;
    QTest::newRow("oldest") << -240.0 << true << -240.0 << -216.0;
    QTest::newRow("newest") << 0.0 << true << -24.0 << 0.0;
    QTest::newRow("free") << -12.0 << false << -36.0 << 12.0;
    QTest::newRow("free at the oldest") << -240.0 << false << -264.0 << -216.0;
}

void tst_QwtPlotMover::periodMoves()
{
    QFETCH(double, position);
    QFETCH(bool, snap);
    const auto goTo = [this](double place) {
        mover->setAxisValidInterval(QwtPlot::xBottom, QwtInterval(place, place + day));
        mover->setAxisPeriod(QwtPlot::xBottom, day);
        mover->moveAxisFirstPeriod(QwtPlot::xBottom);
        mover->setAxisValidInterval(QwtPlot::xBottom, tenDays);
    };
    mover->setScaleToPeriodSize(snap);

    goTo(position);
    QCOMPARE(plot->lower(QwtPlot::xBottom), position);
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QTEST(plot->lower(QwtPlot::xBottom), "previous");
    QCOMPARE(plot->upper(QwtPlot::xBottom), plot->lower(QwtPlot::xBottom) + day);

    goTo(position);
    mover->moveAxisNextPeriod(QwtPlot::xBottom);
    QTEST(plot->lower(QwtPlot::xBottom), "next");
    QCOMPARE(plot->upper(QwtPlot::xBottom), plot->lower(QwtPlot::xBottom) + day);
}

void tst_QwtPlotMover::firstPeriodIsTheNewest()
{
    mover->setAxisPeriod(QwtPlot::xBottom, day);
    mover->setAxisValidInterval(QwtPlot::xBottom, QwtInterval(-240.0, 30.0));
    mover->moveAxisFirstPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 6.0);
    QCOMPARE(plot->upper(QwtPlot::xBottom), 30.0);
    // The next move starts from there.
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
}

void tst_QwtPlotMover::periodMoveReplotsThenTells()
{
    limitToTenDays();
    const Log expected = {QStringLiteral("replot"), QStringLiteral("axis 2")};
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->log, expected);
    plot->log.clear();
    mover->moveAxisNextPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->log, expected);
    plot->log.clear();
    mover->moveAxisFirstPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->log, expected);
}

void tst_QwtPlotMover::periodMoveWorksOnDisabledAxis()
{
    mover->setAxisEnabled(QwtPlot::xBottom, false);
    limitToTenDays();
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), -day);
}

void tst_QwtPlotMover::periodMovesContinueAfterDrag()
{
    limitToTenDays();
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    mover->moveCanvas(20, 0);
    QVERIFY(plot->lower(QwtPlot::xBottom) < -24.0);
    QVERIFY(plot->lower(QwtPlot::xBottom) > -48.0);
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), -48.0);
    mover->moveCanvas(-20, 0);
    mover->moveAxisNextPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), -24.0);
}

void tst_QwtPlotMover::foreignScaleIsNotNoted()
{
    limitToTenDays();
    plot->setAxisScale(QwtPlot::xBottom, -120.0, -96.0, step);
    plot->replot();
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), -24.0);
}

void tst_QwtPlotMover::axesAreIndependent()
{
    limitToTenDays();
    mover->setAxisPeriod(QwtPlot::xTop, 7.0);
    mover->setAxisValidInterval(QwtPlot::xTop, QwtInterval(-70.0, 7.0));
    mover->moveAxisPrevPeriod(QwtPlot::xTop);
    QCOMPARE(plot->lower(QwtPlot::xTop), -7.0);
    QCOMPARE(plot->upper(QwtPlot::xTop), 0.0);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
    QVERIFY(mover->hasAxisNextPeriod(QwtPlot::xTop));
    QVERIFY(!mover->hasAxisNextPeriod(QwtPlot::xBottom));
}

void tst_QwtPlotMover::hasPeriods()
{
    mover->setAxisPeriod(QwtPlot::xBottom, day);
    mover->setAxisValidInterval(QwtPlot::xBottom, QwtInterval(-48.0, 25.0));
    QVERIFY(mover->hasAxisPrevPeriod(QwtPlot::xBottom));
    QVERIFY(mover->hasAxisNextPeriod(QwtPlot::xBottom));
    mover->setAxisValidInterval(QwtPlot::xBottom, QwtInterval(-48.0, 24.0));
    QVERIFY(!mover->hasAxisNextPeriod(QwtPlot::xBottom));
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QVERIFY(mover->hasAxisPrevPeriod(QwtPlot::xBottom));
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QVERIFY(!mover->hasAxisPrevPeriod(QwtPlot::xBottom));
    QVERIFY(mover->hasAxisNextPeriod(QwtPlot::xBottom));
}

void tst_QwtPlotMover::withoutLimitThereAreNoPeriods()
{
    mover->setAxisPeriod(QwtPlot::xBottom, day);
    mover->moveCanvas(20, 0);
    QVERIFY(!mover->hasAxisPrevPeriod(QwtPlot::xBottom));
    QVERIFY(!mover->hasAxisNextPeriod(QwtPlot::xBottom));
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
    QCOMPARE(plot->upper(QwtPlot::xBottom), day);
    mover->moveAxisNextPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
    mover->setScaleToPeriodSize(false);
    mover->moveAxisNextPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), day);
}

void tst_QwtPlotMover::withoutPeriodNothingBreaks()
{
    mover->setAxisValidInterval(QwtPlot::xBottom, tenDays);
    QVERIFY(mover->hasAxisPrevPeriod(QwtPlot::xBottom));
    mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    mover->moveAxisNextPeriod(QwtPlot::xBottom);
    mover->moveAxisFirstPeriod(QwtPlot::xBottom);
    mover->moveCanvas(-500, 0);
    ZemTest::render(plot.get());
    // Given a period, the axis comes back.
    mover->setAxisPeriod(QwtPlot::xBottom, day);
    mover->moveAxisFirstPeriod(QwtPlot::xBottom);
    QCOMPARE(plot->lower(QwtPlot::xBottom), 0.0);
    QCOMPARE(plot->upper(QwtPlot::xBottom), day);
}

void tst_QwtPlotMover::randomMovesFollowModel()
{
    constexpr quint32 seed = 4407;
    constexpr int moves = 3000;
    constexpr double tolerance = 1.0e-6;
    QRandomGenerator random(seed);
    for (const int axis : {QwtPlot::yLeft, QwtPlot::yRight, QwtPlot::xTop}) {
        mover->setAxisEnabled(axis, false);
    }
    limitToTenDays();

    for (int i = 0; i < moves; ++i) {
        // Each move is predicted from where the last one really ended, so errors do not add up.
        const double at = plot->lower(QwtPlot::xBottom);
        double expected = at;
        switch (random.bounded(4)) {
        case 0: {
            const double below = std::fmod(at, day);
            const double start = below == 0.0 ? at : at - below - (below < 0.0 ? day : 0.0);
            expected = std::min(start + day, 0.0);
            mover->moveAxisNextPeriod(QwtPlot::xBottom);
            break;
        }
        case 1: {
            const double below = std::fmod(at, day);
            const double start = below == 0.0 ? at : at - below + (below > 0.0 ? day : 0.0);
            expected = std::max(start - day, -240.0);
            mover->moveAxisPrevPeriod(QwtPlot::xBottom);
            break;
        }
        default: {
            int way = random.bounded(-150, 151);
            way += way == 0 ? 1 : 0;
            expected = qBound(-240.0, at - way * plot->unitsOfPixel(QwtPlot::xBottom), 0.0);
            mover->moveCanvas(way, random.bounded(-9, 10));
            break;
        }
        }
        QVERIFY2(std::abs(plot->lower(QwtPlot::xBottom) - expected) < tolerance,
                 qPrintable(QStringLiteral("move %1 from %2").arg(i).arg(at)));
        QVERIFY(std::abs(plot->upper(QwtPlot::xBottom) - expected - day) < tolerance);
    }
    QCOMPARE(plot->log.count(QStringLiteral("replot")), moves);
    QCOMPARE(plot->log.count(QStringLiteral("axis 2")), moves);
}

QTEST_MAIN(tst_QwtPlotMover)
#include "tst_qwtplotmover.moc"
