// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotPointPicker>
#include <ZEMTrackerPickerMachine>

#include "plotfixture.h"

#include <QSignalSpy>

using namespace PlotTest;

namespace {

using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

class Picker : public ZEMQwtPlotPointPicker
{
public:
    explicit Picker(ZEMPlot *plot,
                    QwtEventPattern::MousePatternCode pattern = QwtEventPattern::MouseSelect1)
        : ZEMQwtPlotPointPicker(QStringLiteral("power"), plot, pattern)
    {
    }
    ~Picker() override = default;

    using ZEMQwtPlotPointPicker::updateCurrentPoint;
};

} // namespace

class tst_ZEMQwtPlotPointPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void defaults();
    void declaresItsSignalAndSlot();
    void slotPicksTheCurvePoint();
    void baseSignalReachesTheSlot();
    void missKeepsTheOldPoint();
    void invalidPointIsNotTaken();
    void stepsBeforeTheFirstTapAreSilent();
    void pickedPointCanBeRead();
    void clearedPointIsForgotten();
    void stepsAlongTheCurve();
    void pointIsTakenBeforeItIsSignalled();
    void stepsBeyondTheEndSignalAgain();
    void stepsAcrossTheCurves();
    void stepBeyondTheLastCurveSignalsAnewWithoutDistance();
    void shorterCurveKeepsThePoint();
    void tapPicks();
    void dragPicksNothingAndZooms();
    void tapAfterADragPicks();
    void otherButtonPicksNothing();
    void keysAreIgnored();

private:
    Point last() const { return spy->last().first().value<Point>(); }

    std::unique_ptr<Stage> stage;
    QwtPlotCurve *upper = nullptr;
    QwtPlotCurve *lower = nullptr;
    Picker *picker = nullptr;
    std::unique_ptr<QSignalSpy> spy;
};

void tst_ZEMQwtPlotPointPicker::init()
{
    stage = std::make_unique<Stage>();
    upper = stage->addCurve(levelRow(wholeRow, 200.0));
    lower = stage->addCurve(levelRow(96, 50.0));
    picker = new Picker(stage->plot.get());
    spy = std::make_unique<QSignalSpy>(picker, &ZEMQwtPlotPointPicker::selectedPlotPoint);
}

void tst_ZEMQwtPlotPointPicker::cleanup()
{
    spy.reset();
    stage.reset();
}

void tst_ZEMQwtPlotPointPicker::defaults()
{
    QCOMPARE(picker->parent(), stage->plot->canvas());
    QCOMPARE(picker->trackerMode(), QwtPicker::AlwaysOff);
    QCOMPARE(picker->rubberBand(), QwtPicker::NoRubberBand);
    QVERIFY(dynamic_cast<ZEMTrackerPickerMachine *>(picker->stateMachine()));
}

void tst_ZEMQwtPlotPointPicker::declaresItsSignalAndSlot()
{
    const QMetaObject &meta = ZEMQwtPlotPointPicker::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QVERIFY(meta.indexOfSignal("selectedPlotPoint(ZEMQwtPlotCurvePointGetter::PlotCurvePoint)")
            >= meta.methodOffset());
    QVERIFY(meta.indexOfSlot("selected(QPointF)") >= meta.methodOffset());
}

void tst_ZEMQwtPlotPointPicker::slotPicksTheCurvePoint()
{
    picker->selected(QPointF(101.0, 195.0));
    QCOMPARE(spy->count(), 1);
    QCOMPARE(last().index, 50u);
    QCOMPARE(last().curve, upper);
    QCOMPARE(last().point, QPointF(100.0, 200.0));
    QCOMPARE(last().distance, 5.0);
    QVERIFY(last().valid);
}

void tst_ZEMQwtPlotPointPicker::baseSignalReachesTheSlot()
{
    QVERIFY(QMetaObject::invokeMethod(picker, "selected", Q_ARG(QPointF, QPointF(50.0, 50.0))));
    QCOMPARE(last().curve, lower);
    Q_EMIT static_cast<QwtPlotPicker *>(picker)->selected(QPointF(30.0, 200.0));
    QCOMPARE(spy->count(), 2);
    QCOMPARE(last().index, 15u);
}

void tst_ZEMQwtPlotPointPicker::missKeepsTheOldPoint()
{
    picker->selected(QPointF(100.0, 200.0));
    picker->selected(QPointF(100.0, 120.0));
    picker->selected(QPointF(-3.0, 200.0));
    QCOMPARE(spy->count(), 1);
    picker->pickNextPlotPoint();
    QCOMPARE(last().index, 51u);
}

void tst_ZEMQwtPlotPointPicker::invalidPointIsNotTaken()
{
    Point point;
    point.curve = lower;
    point.index = 4;
    picker->updateCurrentPoint(point);
    QCOMPARE(spy->count(), 0);
    picker->pickNextPlotPoint();
    QCOMPARE(spy->count(), 0);
    point.valid = true;
    picker->updateCurrentPoint(point);
    QCOMPARE(spy->count(), 1);
    picker->pickNextPlotPoint();
    QCOMPARE(last().index, 5u);
}

void tst_ZEMQwtPlotPointPicker::stepsBeforeTheFirstTapAreSilent()
{
    picker->pickNextPlotPoint();
    picker->pickPrevPlotPoint();
    picker->pickNextCurve();
    picker->pickPrevCurve();
    QCOMPARE(spy->count(), 0);
}

void tst_ZEMQwtPlotPointPicker::pickedPointCanBeRead()
{
    QVERIFY(!picker->getPickedPlotPoint().valid);
    picker->selected(QPointF(100.0, 195.0));
    const Point picked = picker->getPickedPlotPoint();
    QVERIFY(picked.valid);
    QCOMPARE(picked.curve, upper);
    QCOMPARE(picked.index, 50u);
    QCOMPARE(picked.point, QPointF(100.0, 200.0));
    QCOMPARE(picked.distance, 5.0);
    picker->pickNextCurve();
    QCOMPARE(picker->getPickedPlotPoint().curve, lower);
    picker->selected(QPointF(100.0, 120.0)); // beside all curves
    QCOMPARE(picker->getPickedPlotPoint().curve, lower);
}

void tst_ZEMQwtPlotPointPicker::clearedPointIsForgotten()
{
    picker->selected(QPointF(100.0, 200.0));
    spy->clear();
    picker->clearPickedPlotPoint();
    QVERIFY(!picker->getPickedPlotPoint().valid);
    picker->pickNextPlotPoint();
    picker->pickNextCurve();
    QCOMPARE(spy->count(), 0);
    picker->selected(QPointF(100.0, 200.0));
    QCOMPARE(spy->count(), 1);
}

void tst_ZEMQwtPlotPointPicker::stepsAlongTheCurve()
{
    picker->selected(QPointF(100.0, 195.0));
    picker->pickNextPlotPoint();
    QCOMPARE(last().index, 51u);
    QCOMPARE(last().distance, 0.0);
    picker->pickPrevPlotPoint();
    picker->pickPrevPlotPoint();
    QCOMPARE(last().index, 49u);
    QCOMPARE(last().curve, upper);
}

void tst_ZEMQwtPlotPointPicker::pointIsTakenBeforeItIsSignalled()
{
    connect(picker, &ZEMQwtPlotPointPicker::selectedPlotPoint, picker, [this](const Point &point) {
        if (point.index < 53u) {
            picker->pickNextPlotPoint();
        }
    });
    picker->selected(QPointF(100.0, 200.0));
    QCOMPARE(spy->count(), 4);
    picker->pickNextPlotPoint();
    QCOMPARE(last().index, 54u);
}

void tst_ZEMQwtPlotPointPicker::stepsBeyondTheEndSignalAgain()
{
    picker->selected(QPointF(188.0, 50.0));
    picker->pickNextPlotPoint();
    QCOMPARE(last().index, 95u);
    picker->pickNextPlotPoint();
    QCOMPARE(spy->count(), 3);
    QCOMPARE(last().index, 95u);
    picker->selected(QPointF(0.0, 53.0));
    picker->pickPrevPlotPoint();
    QCOMPARE(spy->count(), 5);
    QCOMPARE(last().index, 0u);
    // Unchanged, not found anew.
    QCOMPARE(last().distance, 3.0);
}

void tst_ZEMQwtPlotPointPicker::stepsAcrossTheCurves()
{
    picker->selected(QPointF(100.0, 200.0));
    picker->pickNextCurve();
    QCOMPARE(last().curve, lower);
    QCOMPARE(last().index, 50u);
    picker->pickPrevCurve();
    QCOMPARE(last().curve, upper);
    QCOMPARE(last().index, 50u);
}

void tst_ZEMQwtPlotPointPicker::stepBeyondTheLastCurveSignalsAnewWithoutDistance()
{
    picker->selected(QPointF(100.0, 53.0));
    QCOMPARE(last().distance, 3.0);
    picker->pickNextCurve();
    QCOMPARE(spy->count(), 2);
    QCOMPARE(last().curve, lower);
    QCOMPARE(last().index, 50u);
    QCOMPARE(last().distance, 0.0);
}

void tst_ZEMQwtPlotPointPicker::shorterCurveKeepsThePoint()
{
    picker->selected(QPointF(300.0, 203.0));
    picker->pickNextCurve();
    QCOMPARE(spy->count(), 2);
    QCOMPARE(last().curve, upper);
    QCOMPARE(last().index, 150u);
    QCOMPARE(last().distance, 3.0);
}

void tst_ZEMQwtPlotPointPicker::tapPicks()
{
    QVERIFY(stage->show());
    QWidget *const canvas = stage->canvas();
    ZemTest::press(canvas, pixelOf(101, 204));
    QCOMPARE(spy->count(), 0);
    ZemTest::release(canvas, pixelOf(101, 204));
    QCOMPARE(spy->count(), 1);
    QCOMPARE(last().index, 50u);
    QCOMPARE(last().curve, upper);
    QCOMPARE(last().distance, 4.0);
    QCOMPARE(stage->plot->getZoomer()->zoomRectIndex(), 0u);
}

void tst_ZEMQwtPlotPointPicker::dragPicksNothingAndZooms()
{
    QVERIFY(stage->show());
    drag(stage->canvas(), pixelOf(100, 200), pixelOf(250, 60));
    QCOMPARE(spy->count(), 0);
    QCOMPARE(stage->plot->getZoomer()->zoomRectIndex(), 1u);
}

void tst_ZEMQwtPlotPointPicker::tapAfterADragPicks()
{
    QVERIFY(stage->show());
    QWidget *const canvas = stage->canvas();
    drag(canvas, pixelOf(100, 100), pixelOf(50, 150)); // to the upper left: no zoom
    ZemTest::press(canvas, pixelOf(60, 50));
    ZemTest::release(canvas, pixelOf(60, 50));
    QCOMPARE(spy->count(), 1);
    QCOMPARE(last().curve, lower);
    QCOMPARE(last().index, 30u);
}

void tst_ZEMQwtPlotPointPicker::otherButtonPicksNothing()
{
    QVERIFY(stage->show());
    QWidget *const canvas = stage->canvas();
    ZemTest::moveTo(canvas, pixelOf(99, 200));
    ZemTest::press(canvas, pixelOf(100, 200), Qt::RightButton);
    ZemTest::release(canvas, pixelOf(100, 200), Qt::RightButton);
    QCOMPARE(spy->count(), 0);

    auto *const rightPicker = new Picker(stage->plot.get(), QwtEventPattern::MouseSelect2);
    QSignalSpy rightSpy(rightPicker, &ZEMQwtPlotPointPicker::selectedPlotPoint);
    ZemTest::press(canvas, pixelOf(100, 200), Qt::RightButton);
    ZemTest::release(canvas, pixelOf(100, 200), Qt::RightButton);
    QCOMPARE(rightSpy.count(), 1);
    QCOMPARE(spy->count(), 0);
}

void tst_ZEMQwtPlotPointPicker::keysAreIgnored()
{
    QVERIFY(stage->show());
    QWidget *const canvas = stage->canvas();
    ZemTest::press(canvas, pixelOf(100, 200));
    QTest::keyClick(canvas, Qt::Key_Escape);
    QTest::keyClick(canvas, Qt::Key_Left);
    QTest::keyClick(canvas, Qt::Key_Return);
    QCOMPARE(spy->count(), 0);
    ZemTest::release(canvas, pixelOf(100, 200));
    QCOMPARE(spy->count(), 1);
}

QTEST_MAIN(tst_ZEMQwtPlotPointPicker)
#include "tst_zemqwtplotpointpicker.moc"
