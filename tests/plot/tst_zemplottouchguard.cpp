// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMPlotTouchGuard>
#include <ZEMQwtPlotPointPicker>
#include <ZEMQwtPlotTracker>

#include "plotfixture.h"

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QStack>

#include <qwt_scale_div.h>

using namespace PlotTest;

class tst_ZEMPlotTouchGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void plotHasNoneByItself();
    void isOwnedByTheCanvas();
    void tremblingTapPicks();
    void tremblingTapDoesNotZoom();
    void tapIsGuardedForPickersMadeLater();
    void dragZoomsAfterAPickerIsGone_data();
    void dragZoomsAfterAPickerIsGone();
    void swiftTapIsGuardedForPickersMadeLater();
    void quickSecondTapIsGuardedToo();
    void movesBeyondTheDistanceReachTheZoomer_data();
    void movesBeyondTheDistanceReachTheZoomer();
    void dragThatComesBackStaysOne();
    void otherButtonsAndHoveringAreFree();

    void leastViewIsThatOfTheConstructor();
    void smallViewIsWidened();
    void viewStaysInsideTheBase();
    void viewOutsideTheBaseHasTheLeastSizeOfTheZoomer_data();
    void viewOutsideTheBaseHasTheLeastSizeOfTheZoomer();
    void withoutLeastViewTheZoomerDecides();
    void programIsGuardedToo();
    void zoomToTheSameViewLeavesTheStack();
    void depthIsKept();
    void resetStillLeadsBack();
    void nothingIsGuardedWithoutIt();
    void zoomerMayEndFirst();
    void endsInASlotOfTheGuardedZoom_data();
    void endsInASlotOfTheGuardedZoom();

private:
    QRectF shown() const;
    ZEMPlotZoomerAdvanced *zoomer() const { return stage->plot->getZoomer(); }
    ZEMPlotTouchGuard *addGuard(const QSizeF &leastView = QSizeF(0.0, 0.0));

    std::unique_ptr<Stage> stage;
};

namespace {

const QPoint start(200, 150);
const QSizeF leastView(20.0, 10.0);

/** A press, @p moves from there, and a release where the last one ended. */
void touch(QWidget *canvas, const QVector<QPoint> &moves, Qt::MouseButton button = Qt::LeftButton)
{
    ZemTest::press(canvas, start, button);
    for (const QPoint &way : moves) {
        ZemTest::moveTo(canvas, start + way);
    }
    ZemTest::release(canvas, start + moves.last(), button);
}

/** A trembling tap of which all is delivered before the event loop gets its
 * turn. */
void tapSwiftly(QWidget *canvas, QEvent::Type press)
{
    const QPoint end = start + QPoint(2, 2);
    QMouseEvent down(press, start, start, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(canvas, &down);
    QMouseEvent move(QEvent::MouseMove, end, end, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(canvas, &move); // of which the first may only arm a picker
    QCoreApplication::sendEvent(canvas, &move);
    QMouseEvent up(QEvent::MouseButtonRelease, end, end, Qt::LeftButton, Qt::NoButton,
                   Qt::NoModifier);
    QCoreApplication::sendEvent(canvas, &up);
}

const QVector<QPoint> tremble = {QPoint(2, 1), QPoint(-3, -4), QPoint(1, -2)};

} // namespace

void tst_ZEMPlotTouchGuard::init()
{
    stage = std::make_unique<Stage>();
    stage->addCurve(levelRow(wholeRow, 145.0));
    QVERIFY(stage->show());
    ZemTest::moveTo(stage->canvas(), start);
}

void tst_ZEMPlotTouchGuard::cleanup()
{
    stage.reset();
}

ZEMPlotTouchGuard *tst_ZEMPlotTouchGuard::addGuard(const QSizeF &leastView)
{
    return new ZEMPlotTouchGuard(stage->plot.get(), leastView);
}

QRectF tst_ZEMPlotTouchGuard::shown() const
{
    const QwtScaleDiv &x = stage->plot->axisScaleDiv(QwtPlot::xBottom);
    const QwtScaleDiv &y = stage->plot->axisScaleDiv(QwtPlot::yLeft);
    return {x.lowerBound(), y.lowerBound(), x.range(), y.range()};
}

void tst_ZEMPlotTouchGuard::plotHasNoneByItself()
{
    QVERIFY(!stage->plot->findChild<ZEMPlotTouchGuard *>());
    touch(stage->canvas(), tremble);
    QCOMPARE(zoomer()->zoomRectIndex(), 1u);
}

void tst_ZEMPlotTouchGuard::isOwnedByTheCanvas()
{
    const QPointer<ZEMPlotTouchGuard> guard = addGuard();
    QCOMPARE(guard->parent(), stage->canvas());
    stage->plot->setCanvas(new QwtPlotCanvas(stage->plot.get()));
    QVERIFY(!guard);
}

void tst_ZEMPlotTouchGuard::tremblingTapPicks()
{
    const ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    touch(stage->canvas(), tremble);
    QVERIFY(!picker.getPickedPlotPoint().valid);
    zoomer()->zoom(0);
    addGuard();
    touch(stage->canvas(), tremble);
    QVERIFY(picker.getPickedPlotPoint().valid);
}

void tst_ZEMPlotTouchGuard::tremblingTapDoesNotZoom()
{
    addGuard();
    touch(stage->canvas(), tremble);
    QCOMPARE(zoomer()->zoomRectIndex(), 0u);
}

void tst_ZEMPlotTouchGuard::tapIsGuardedForPickersMadeLater()
{
    addGuard();
    const ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    zoomer()->setEnabled(false);
    zoomer()->setEnabled(true); // puts it before all other filters
    touch(stage->canvas(), tremble);
    QVERIFY(picker.getPickedPlotPoint().valid);
    QCOMPARE(zoomer()->zoomRectIndex(), 0u);
}

void tst_ZEMPlotTouchGuard::dragZoomsAfterAPickerIsGone_data()
{
    QTest::addColumn<bool>("deleted");

    QTest::newRow("deleted") << true;
    QTest::newRow("disabled") << false;
}

void tst_ZEMPlotTouchGuard::dragZoomsAfterAPickerIsGone()
{
    QFETCH(bool, deleted);
    addGuard();
    auto picker = std::make_unique<ZEMQwtPlotPointPicker>(QString(), stage->plot.get(),
                                                          QwtEventPattern::MouseSelect1);
    if (deleted) {
        picker.reset();
    } else {
        picker->setEnabled(false);
    }
    touch(stage->canvas(), {QPoint(40, 30), QPoint(80, 60)});
    QCOMPARE(zoomer()->zoomRectIndex(), 1u);
}

void tst_ZEMPlotTouchGuard::swiftTapIsGuardedForPickersMadeLater()
{
    addGuard();
    const ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    QCoreApplication::processEvents();
    tapSwiftly(stage->canvas(), QEvent::MouseButtonPress);
    QVERIFY(picker.getPickedPlotPoint().valid);
}

void tst_ZEMPlotTouchGuard::quickSecondTapIsGuardedToo()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    addGuard();
    const QSignalSpy spy(&picker, &ZEMQwtPlotPointPicker::selectedPlotPoint);
    touch(stage->canvas(), tremble);
    tapSwiftly(stage->canvas(), QEvent::MouseButtonDblClick);
    QCOMPARE(spy.count(), 2);
}

void tst_ZEMPlotTouchGuard::movesBeyondTheDistanceReachTheZoomer_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<unsigned int>("zooms");

    const int distance = QApplication::startDragDistance();
    QTest::newRow("as far as a tremble goes") << QPoint(distance, 0) << 0u;
    QTest::newRow("further") << QPoint(distance + 1, 0) << 1u;
    QTest::newRow("further by both ways") << QPoint(distance, 1) << 1u;
}

void tst_ZEMPlotTouchGuard::movesBeyondTheDistanceReachTheZoomer()
{
    QFETCH(QPoint, way);
    addGuard();
    touch(stage->canvas(), {way});
    QTEST(zoomer()->zoomRectIndex(), "zooms");
}

void tst_ZEMPlotTouchGuard::dragThatComesBackStaysOne()
{
    addGuard();
    const ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    touch(stage->canvas(), {QPoint(80, 60), QPoint(2, 1)});
    QVERIFY(!picker.getPickedPlotPoint().valid);
    QCOMPARE(zoomer()->zoomRectIndex(), 1u);
}

void tst_ZEMPlotTouchGuard::otherButtonsAndHoveringAreFree()
{
    class Tracker : public ZEMQwtPlotTracker
    {
    public:
        using ZEMQwtPlotTracker::ZEMQwtPlotTracker;
        int moves = 0;

    protected:
        void curvePointValidChanged(bool) override { }
        void curvePointMoved(ZEMQwtPlotCurvePointGetter::PlotCurvePoint) override { ++moves; }
    };
    Tracker tracker(stage->plot.get());
    addGuard();
    touch(stage->canvas(), tremble);
    QCOMPARE(tracker.moves, 0);
    ZemTest::moveTo(stage->canvas(), start);
    ZemTest::moveTo(stage->canvas(), start + QPoint(1, 0));
    ZemTest::moveTo(stage->canvas(), start + QPoint(2, 0));
    QVERIFY(tracker.moves >= 2);
    const double before = shown().left();
    touch(stage->canvas(), {QPoint(2, 0), QPoint(3, 0)}, Qt::RightButton);
    stage->plot->updateAxes();
    QCOMPARE(shown().left(), before - 3.0);
}

void tst_ZEMPlotTouchGuard::leastViewIsThatOfTheConstructor()
{
    QCOMPARE(addGuard()->leastView(), QSizeF(0.0, 0.0));
    ZEMPlotTouchGuard *const guard = addGuard(leastView);
    QCOMPARE(guard->leastView(), leastView);
    guard->setLeastView(QSizeF(1.0, 2.0));
    QCOMPARE(guard->leastView(), QSizeF(1.0, 2.0));
}

void tst_ZEMPlotTouchGuard::smallViewIsWidened()
{
    ZEMPlotTouchGuard *const guard = addGuard(leastView);
    zoomer()->zoom(QRectF(100.0, 200.0, 2.0, 4.0));
    QCOMPARE(zoomer()->zoomRect(), QRectF(91.0, 197.0, 20.0, 10.0));
    QCOMPARE(shown(), QRectF(91.0, 197.0, 20.0, 10.0));
    QCOMPARE(zoomer()->zoomRectIndex(), 1u);

    guard->setLeastView(QSizeF(4.0, 4.0));
    QCOMPARE(shown(), QRectF(91.0, 197.0, 20.0, 10.0));
    zoomer()->zoom(QRectF(100.0, 200.0, 2.0, 2.0));
    QCOMPARE(shown(), QRectF(99.0, 199.0, 4.0, 4.0));
}

void tst_ZEMPlotTouchGuard::viewStaysInsideTheBase()
{
    addGuard(leastView);
    ZemTest::press(stage->canvas(), QPoint(300, 100));
    ZemTest::moveTo(stage->canvas(), QPoint(380, 200));
    ZemTest::moveTo(stage->canvas(), QPoint(399, 299)); // right of and below the scales
    ZemTest::release(stage->canvas(), QPoint(399, 299));
    QCOMPARE(shown().right(), rightScale);
    QCOMPARE(shown().top(), bottomScale);
    QVERIFY(zoomer()->zoomBase().contains(shown()));
}

void tst_ZEMPlotTouchGuard::viewOutsideTheBaseHasTheLeastSizeOfTheZoomer_data()
{
    QTest::addColumn<QRectF>("view");

    QTest::newRow("right of it") << QRectF(1000.0, 100.0, 50.0, 40.0);
    QTest::newRow("below it") << QRectF(100.0, -1000.0, 50.0, 40.0);
    QTest::newRow("touching it") << QRectF(rightScale, topScale, 50.0, 40.0);
}

void tst_ZEMPlotTouchGuard::viewOutsideTheBaseHasTheLeastSizeOfTheZoomer()
{
    QFETCH(QRectF, view);
    addGuard();
    zoomer()->zoom(view);
    const QRectF base = zoomer()->zoomBase();
    QVERIFY(base.contains(shown().center()));
    QVERIFY(shown().width() > base.width() / 200000.0);
    QVERIFY(shown().height() > base.height() / 200000.0);
    drag(stage->canvas(), start, start - QPoint(12, 12));
    QCOMPARE(shown(), base);
}

void tst_ZEMPlotTouchGuard::withoutLeastViewTheZoomerDecides()
{
    addGuard();
    zoomer()->zoom(QRectF(100.0, 200.0, 0.5, 0.25));
    QCOMPARE(shown(), QRectF(100.0, 200.0, 0.5, 0.25));
}

void tst_ZEMPlotTouchGuard::programIsGuardedToo()
{
    addGuard(leastView);
    QVector<QRectF> heard;
    connect(zoomer(), &QwtPlotZoomer::zoomed, this, [&] { heard << zoomer()->zoomRect(); });
    zoomer()->zoom(QRectF(100.0, 200.0, 2.0, 4.0));
    const QRectF kept(91.0, 197.0, 20.0, 10.0);
    QCOMPARE(heard, QVector<QRectF>({kept, kept}));
    QStack<QRectF> views;
    views << zoomer()->zoomBase() << QRectF(100.0, 200.0, 2.0, 4.0);
    zoomer()->setZoomStack(views, 1);
    QCOMPARE(shown(), kept);
}

void tst_ZEMPlotTouchGuard::zoomToTheSameViewLeavesTheStack()
{
    addGuard(leastView);
    zoomer()->zoom(QRectF(QPointF(100.0, 200.0), leastView));
    zoomer()->zoom(QRectF(108.0, 204.0, 4.0, 2.0)); // around the same centre
    QCOMPARE(shown(), QRectF(QPointF(100.0, 200.0), leastView));
    QCOMPARE(zoomer()->zoomRectIndex(), 1u);
    QCOMPARE(zoomer()->zoomStack().size(), 2);
}

void tst_ZEMPlotTouchGuard::depthIsKept()
{
    addGuard(leastView);
    zoomer()->setMaxStackDepth(1);
    zoomer()->zoom(QRectF(100.0, 200.0, 2.0, 4.0));
    QCOMPARE(shown(), QRectF(91.0, 197.0, 20.0, 10.0));
    QCOMPARE(zoomer()->maxStackDepth(), 1);
    QCOMPARE(zoomer()->zoomRectIndex(), 1u);
    zoomer()->zoom(QRectF(100.0, 200.0, 40.0, 40.0));
    QCOMPARE(shown(), QRectF(91.0, 197.0, 20.0, 10.0));
}

void tst_ZEMPlotTouchGuard::resetStillLeadsBack()
{
    addGuard(leastView);
    const QRectF base = shown();
    for (int i = 0; i < 5; ++i) {
        drag(stage->canvas(), start, start + QPoint(12, 12));
    }
    drag(stage->canvas(), start, start - QPoint(12, 12));
    QCOMPARE(zoomer()->zoomRectIndex(), 0u);
    QCOMPARE(shown(), base);
}

void tst_ZEMPlotTouchGuard::nothingIsGuardedWithoutIt()
{
    delete addGuard(leastView);
    zoomer()->zoom(QRectF(100.0, 200.0, 2.0, 4.0));
    QCOMPARE(shown(), QRectF(100.0, 200.0, 2.0, 4.0));
    touch(stage->canvas(), tremble);
    QCOMPARE(zoomer()->zoomRectIndex(), 2u);
}

void tst_ZEMPlotTouchGuard::zoomerMayEndFirst()
{
    const QPointer<ZEMPlotTouchGuard> guard = addGuard(leastView);
    delete zoomer();
    const ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    touch(stage->canvas(), tremble);
    QVERIFY(picker.getPickedPlotPoint().valid);
    delete guard;
    addGuard();
    touch(stage->canvas(), tremble);
}

void tst_ZEMPlotTouchGuard::endsInASlotOfTheGuardedZoom_data()
{
    QTest::addColumn<bool>("withPlot");

    QTest::newRow("zoomer") << false;
    QTest::newRow("plot") << true;
}

void tst_ZEMPlotTouchGuard::endsInASlotOfTheGuardedZoom()
{
    QFETCH(bool, withPlot);
    addGuard(leastView);
    const QPointer<ZEMPlotZoomerAdvanced> ending = zoomer();
    connect(ending, &QwtPlotZoomer::zoomed, this, [&] {
        if (withPlot) {
            stage->plot.reset();
        } else {
            delete ending;
        }
    });
    ending->zoom(QRectF(100.0, 200.0, 2.0, 4.0));
    QVERIFY(!ending);
    QCOMPARE(!stage->plot, withPlot);
}

QTEST_MAIN(tst_ZEMPlotTouchGuard)
#include "tst_zemplottouchguard.moc"
