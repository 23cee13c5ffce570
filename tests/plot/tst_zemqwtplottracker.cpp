// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotTracker>

#include "plotfixture.h"

#include <QMetaObject>
#include <QSignalSpy>

#include <qwt_picker_machine.h>

using namespace PlotTest;

namespace {

class Tracker : public ZEMQwtPlotTracker
{
public:
    using ZEMQwtPlotTracker::move;
    using ZEMQwtPlotTracker::ZEMQwtPlotTracker;
    ~Tracker() override = default;

    QStringList log;

protected:
    void curvePointValidChanged(bool valid) override
    {
        log << (valid ? QStringLiteral("on") : QStringLiteral("off"));
    }
    void curvePointMoved(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point) override
    {
        log << QStringLiteral("%1").arg(point.index);
    }
};

} // namespace

class tst_ZEMQwtPlotTracker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void defaults();
    void hasAMetaObjectWithoutMembers();
    void emptyPlotIsSilent();
    void enteringAPointTellsBoth();
    void eachMoveTellsThePoint();
    void leavingThePointsTellsOnce();
    void baseHearsNothing();
    void realMouseIsFollowedWithoutAButton();
    void leavingTheCanvasTellsNothing();
    void keysAreIgnored();

private:
    std::unique_ptr<Stage> stage;
    Tracker *tracker = nullptr;
};

void tst_ZEMQwtPlotTracker::init()
{
    stage = std::make_unique<Stage>();
    tracker = new Tracker(stage->plot.get());
}

void tst_ZEMQwtPlotTracker::cleanup()
{
    stage.reset();
}

void tst_ZEMQwtPlotTracker::defaults()
{
    QCOMPARE(tracker->canvas(), stage->plot->canvas());
    QCOMPARE(tracker->parent(), stage->plot->canvas());
    QCOMPARE(tracker->trackerMode(), QwtPicker::AlwaysOff);
    QCOMPARE(tracker->rubberBand(), QwtPicker::NoRubberBand);
    QVERIFY(tracker->stateMachine());
    QCOMPARE(tracker->stateMachine()->selectionType(), QwtPickerMachine::NoSelection);
    QVERIFY(stage->canvas()->testAttribute(Qt::WA_MouseTracking));
}

void tst_ZEMQwtPlotTracker::hasAMetaObjectWithoutMembers()
{
    const QMetaObject &meta = ZEMQwtPlotTracker::staticMetaObject;
    QCOMPARE(meta.className(), "ZEMQwtPlotTracker");
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_ZEMQwtPlotTracker::emptyPlotIsSilent()
{
    tracker->move(QPoint(100, 100));
    tracker->move(QPoint(110, 100));
    QVERIFY(tracker->log.isEmpty());
}

void tst_ZEMQwtPlotTracker::enteringAPointTellsBoth()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    tracker->move(pixelOf(100, 100));
    QCOMPARE(tracker->log, QStringList({QStringLiteral("on"), QStringLiteral("50")}));
}

void tst_ZEMQwtPlotTracker::eachMoveTellsThePoint()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    for (const int x : {100, 100, 101, 112}) {
        tracker->move(pixelOf(x, 100));
    }
    QCOMPARE(tracker->log.join(QLatin1Char(' ')), QStringLiteral("on 50 50 50 56"));
}

void tst_ZEMQwtPlotTracker::leavingThePointsTellsOnce()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    tracker->move(pixelOf(100, 100));
    tracker->log.clear();
    tracker->move(pixelOf(100, 200));
    tracker->move(pixelOf(110, 200));
    QCOMPARE(tracker->log, QStringList({QStringLiteral("off")}));
    tracker->move(pixelOf(110, 100));
    QCOMPARE(tracker->log.join(QLatin1Char(' ')), QStringLiteral("off on 55"));
}

void tst_ZEMQwtPlotTracker::baseHearsNothing()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    QSignalSpy spy(tracker, QOverload<const QPointF &>::of(&QwtPlotPicker::moved));
    tracker->move(pixelOf(100, 100));
    QCOMPARE(spy.count(), 0);
}

void tst_ZEMQwtPlotTracker::realMouseIsFollowedWithoutAButton()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(stage->show());
    ZemTest::moveTo(stage->canvas(), pixelOf(80, 250));
    ZemTest::moveTo(stage->canvas(), pixelOf(90, 250));
    tracker->log.clear();
    ZemTest::moveTo(stage->canvas(), pixelOf(100, 100));
    ZemTest::moveTo(stage->canvas(), pixelOf(121, 101));
    ZemTest::moveTo(stage->canvas(), pixelOf(121, 250));
    QCOMPARE(tracker->log.join(QLatin1Char(' ')), QStringLiteral("on 50 60 off"));
}

void tst_ZEMQwtPlotTracker::leavingTheCanvasTellsNothing()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(stage->show());
    ZemTest::moveTo(stage->canvas(), pixelOf(100, 101));
    ZemTest::moveTo(stage->canvas(), pixelOf(100, 100));
    QVERIFY(tracker->log.contains(QStringLiteral("on")));
    tracker->log.clear();
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(stage->canvas(), &leave);
    QVERIFY(tracker->log.isEmpty());
    QVERIFY(stage->canvas()->testAttribute(Qt::WA_MouseTracking));
}

void tst_ZEMQwtPlotTracker::keysAreIgnored()
{
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(stage->show());
    ZemTest::moveTo(stage->canvas(), pixelOf(100, 101));
    ZemTest::moveTo(stage->canvas(), pixelOf(100, 100));
    tracker->log.clear();
    const QPoint cursor = QCursor::pos();
    QTest::keyClick(stage->canvas(), Qt::Key_Right);
    QTest::keyClick(stage->canvas(), Qt::Key_Escape);
    QCOMPARE(QCursor::pos(), cursor);
    QVERIFY(tracker->log.isEmpty());
    QVERIFY(tracker->isActive());
}

QTEST_MAIN(tst_ZEMQwtPlotTracker)
#include "tst_zemqwtplottracker.moc"
