// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QwtPannerBase>

#include "pannerfixture.h"
#include "zemtest.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>

#include <climits>
#include <memory>

using namespace PannerTest;

namespace {

/** Notes the operations that events reach, and does nothing else. */
class Listener : public QwtPannerBase
{
public:
    using QwtPannerBase::QwtPannerBase;

    Log log;

protected:
    void widgetMousePressEvent(QMouseEvent *) override { log << QStringLiteral("press"); }
    void widgetMouseReleaseEvent(QMouseEvent *) override { log << QStringLiteral("release"); }
    void widgetMouseMoveEvent(QMouseEvent *) override { log << QStringLiteral("move"); }
    void widgetKeyPressEvent(QKeyEvent *) override { log << QStringLiteral("key press"); }
    void widgetKeyReleaseEvent(QKeyEvent *) override { log << QStringLiteral("key release"); }
};

void pressKey(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class tst_QwtPannerBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void defaults();
    void isNeverShown();
    void settersAreRead();
    void signalNames();
    void isOrientationEnabled_data();
    void isOrientationEnabled();
    void otherButtonDoesNotStart();
    void otherButtonCanBeChosen();
    void modifiersMustMatch_data();
    void modifiersMustMatch();
    void disabledHearsNothing();
    void enabledTwiceHearsOnce();
    void parentSeesEveryEvent();
    void eventsReachTheirOperation();
    void eventsOfOthersAreIgnored();
    void withoutParent();
    void cursorFallsBack();
    void cursorIsShownWhilePressed();
    void cursorOfParentReturns();
    void noCursorLeavesParentAlone();
    void showCursorTwiceKeepsTheSavedOne();
    void newCursorWaitsForNextPress();
    void abortKeyEndsCursorOnly_data();
    void abortKeyEndsCursorOnly();

private:
    // A window of its own would keep a cursor of its own.
    std::unique_ptr<QWidget> window;
    std::unique_ptr<Ground> ground;
    Panner *panner = nullptr;
};

void tst_QwtPannerBase::init()
{
    window = std::make_unique<QWidget>();
    ground = std::make_unique<Ground>();
    ground->setParent(window.get());
    ground->resize(parentSize);
    panner = new Panner(ground.get());
}

void tst_QwtPannerBase::cleanup()
{
    ground.reset();
    window.reset();
    panner = nullptr;
}

void tst_QwtPannerBase::defaults()
{
    int button = -1;
    int state = -1;
    panner->getMouseButton(button, state);
    QCOMPARE(button, int(Qt::LeftButton));
    QCOMPARE(state, 0);
    panner->getAbortKey(button, state);
    QCOMPARE(button, int(Qt::Key_Escape));
    QCOMPARE(state, 0);
    QCOMPARE(panner->clickDetectInterval(), QwtInterval(100.0, 1000.0));
    QVERIFY(panner->isEnabled());
    QCOMPARE(panner->orientations(), Qt::Horizontal | Qt::Vertical);
    QVERIFY(panner->isOrientationEnabled(Qt::Horizontal));
    QVERIFY(panner->isOrientationEnabled(Qt::Vertical));
    QCOMPARE(panner->dxSignalThreshold(), 0U);
    QCOMPARE(panner->dySignalThreshold(), 0U);
    QVERIFY(panner->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(panner->testAttribute(Qt::WA_NoSystemBackground));
    QCOMPARE(panner->focusPolicy(), Qt::NoFocus);
    QCOMPARE(panner->parentWidget(), static_cast<QWidget *>(ground.get()));
    QCOMPARE(panner->objectName(), QStringLiteral("QwtPannerBase"));
}

void tst_QwtPannerBase::isNeverShown()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get(), ZemTest::hangs));
    QVERIFY(ground->isVisible());
    QVERIFY(!panner->isVisible());
    press(ground.get(), QPoint(10, 10));
    move(ground.get(), QPoint(30, 10));
    QVERIFY(!panner->isVisible());
}

void tst_QwtPannerBase::settersAreRead()
{
    panner->setMouseButton(Qt::RightButton, Qt::ShiftModifier);
    panner->setAbortKey(Qt::Key_F1, Qt::ControlModifier);
    panner->setOrientations(Qt::Vertical);
    panner->setDxSignalThreshold(7);
    panner->setDySignalThreshold(UINT_MAX);
    panner->setClickDetectInterval(5, 50);

    int value = 0;
    int state = 0;
    panner->getMouseButton(value, state);
    QCOMPARE(value, int(Qt::RightButton));
    QCOMPARE(state, int(Qt::ShiftModifier));
    panner->getAbortKey(value, state);
    QCOMPARE(value, int(Qt::Key_F1));
    QCOMPARE(state, int(Qt::ControlModifier));
    QCOMPARE(panner->orientations(), Qt::Orientations(Qt::Vertical));
    QCOMPARE(panner->dxSignalThreshold(), 7U);
    QCOMPARE(panner->dySignalThreshold(), UINT_MAX);
    QCOMPARE(panner->clickDetectInterval(), QwtInterval(5.0, 50.0));
    QCOMPARE(int(panner->clickDetectInterval().borderFlags()), int(QwtInterval::IncludeBorders));
}

void tst_QwtPannerBase::signalNames()
{
    const QMetaObject &meta = QwtPannerBase::staticMetaObject;
    QVERIFY(meta.indexOfSignal("moved(int,int)") >= 0);
    QVERIFY(meta.indexOfSignal("panned(int,int)") >= 0);
    QVERIFY(meta.indexOfSignal("clicked(QPoint&)") >= 0);
}

void tst_QwtPannerBase::isOrientationEnabled_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<Qt::Orientations>("orientations");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");
    QTest::newRow("horizontal") << true << Qt::Orientations(Qt::Horizontal) << true << false;
    QTest::newRow("vertical") << true << Qt::Orientations(Qt::Vertical) << false << true;
    QTest::newRow("none") << true << Qt::Orientations() << false << false;
    QTest::newRow("disabled") << false << Qt::Orientations(Qt::Horizontal | Qt::Vertical) << false
                              << false;
}

void tst_QwtPannerBase::isOrientationEnabled()
{
    QFETCH(bool, enabled);
    QFETCH(Qt::Orientations, orientations);
    panner->setOrientations(orientations);
    panner->enableOrientations(enabled);
    QTEST(panner->isOrientationEnabled(Qt::Horizontal), "horizontal");
    QTEST(panner->isOrientationEnabled(Qt::Vertical), "vertical");
    QCOMPARE(panner->orientations(), orientations);
}

void tst_QwtPannerBase::otherButtonDoesNotStart()
{
    press(ground.get(), QPoint(50, 50));
    release(ground.get(), QPoint(50, 50));
    panner->take();
    // The way is still measured from the last press that counted.
    press(ground.get(), QPoint(90, 90), Qt::RightButton);
    move(ground.get(), QPoint(91, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 41 0")});
}

void tst_QwtPannerBase::otherButtonCanBeChosen()
{
    panner->setMouseButton(Qt::RightButton, Qt::NoModifier);
    press(ground.get(), QPoint(50, 50), Qt::RightButton);
    move(ground.get(), QPoint(57, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 7 0")});
}

void tst_QwtPannerBase::modifiersMustMatch_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<Qt::KeyboardModifiers>("held");
    QTest::addColumn<bool>("starts");
    const int shift = Qt::ShiftModifier;
    QTest::newRow("none asked, none held") << 0 << Qt::KeyboardModifiers() << true;
    QTest::newRow("none asked, one held") << 0 << Qt::KeyboardModifiers(Qt::ShiftModifier) << false;
    QTest::newRow("one asked, none held") << shift << Qt::KeyboardModifiers() << false;
    QTest::newRow("one asked, it held")
        << shift << Qt::KeyboardModifiers(Qt::ShiftModifier) << true;
    QTest::newRow("one asked, two held")
        << shift << Qt::KeyboardModifiers(Qt::ShiftModifier | Qt::ControlModifier) << false;
    QTest::newRow("held bits that are no modifiers")
        << shift << Qt::KeyboardModifiers(QFlag(shift | 0x1)) << true;
    QTest::newRow("bits that are no modifiers")
        << (shift | 0x1) << Qt::KeyboardModifiers(Qt::ShiftModifier) << true;
}

void tst_QwtPannerBase::modifiersMustMatch()
{
    QFETCH(int, state);
    QFETCH(Qt::KeyboardModifiers, held);
    QFETCH(bool, starts);
    panner->setMouseButton(Qt::LeftButton, state);
    panner->setCursor(Qt::ClosedHandCursor);
    press(ground.get(), QPoint(50, 50), Qt::LeftButton, held);
    QCOMPARE(ground->cursor().shape() == Qt::ClosedHandCursor, starts);
    QCOMPARE(panner->size() == parentSize, starts);
}

void tst_QwtPannerBase::disabledHearsNothing()
{
    acceptEveryClick(*panner);
    panner->setEnabled(false);
    QVERIFY(!panner->isEnabled());
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    release(ground.get(), QPoint(60, 50));
    QCOMPARE(panner->take(), Log());
    QVERIFY(ground->isEnabled());

    panner->setEnabled(true);
    QVERIFY(panner->isEnabled());
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 10 0")});
}

void tst_QwtPannerBase::enabledTwiceHearsOnce()
{
    Listener first(ground.get());
    Listener second(ground.get());
    first.setEnabled(true);
    press(ground.get(), QPoint(50, 50));
    QCOMPARE(first.log, Log {QStringLiteral("press")});
    first.setEnabled(false);
    first.setEnabled(false);
    press(ground.get(), QPoint(50, 50));
    QCOMPARE(first.log.size(), 1);
    QCOMPARE(second.log.size(), 2);
}

void tst_QwtPannerBase::parentSeesEveryEvent()
{
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    release(ground.get(), QPoint(60, 50));
    QCOMPARE(ground->events, 3);
    QMouseEvent event(QEvent::MouseButtonPress, QPoint(1, 1), QPoint(1, 1), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!panner->eventFilter(ground.get(), &event));
}

void tst_QwtPannerBase::eventsReachTheirOperation()
{
    Listener listener(ground.get());
    press(ground.get(), QPoint(50, 50));
    move(ground.get(), QPoint(60, 50));
    release(ground.get(), QPoint(60, 50));
    pressKey(ground.get(), Qt::Key_A);
    QKeyEvent keyRelease(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(ground.get(), &keyRelease);
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(ground.get(), &enter);
    send(ground.get(), QEvent::MouseButtonDblClick, QPoint(50, 50));
    QCOMPARE(listener.log,
             Log({QStringLiteral("press"), QStringLiteral("move"), QStringLiteral("release"),
                  QStringLiteral("key press"), QStringLiteral("key release")}));
}

void tst_QwtPannerBase::eventsOfOthersAreIgnored()
{
    QWidget other;
    Listener listener(ground.get());
    QMouseEvent event(QEvent::MouseButtonPress, QPoint(50, 50), QPoint(50, 50), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!listener.eventFilter(&other, &event));
    QVERIFY(!listener.eventFilter(nullptr, &event));
    QCOMPARE(listener.log, Log());
}

void tst_QwtPannerBase::withoutParent()
{
    Panner alone(nullptr);
    QVERIFY(alone.isEnabled());
    QVERIFY(!alone.isVisible());
    alone.setEnabled(false);
    alone.setEnabled(true);
    alone.setCursor(Qt::ClosedHandCursor);
    alone.showCursor(true);
    QMouseEvent event(QEvent::MouseButtonPress, QPoint(5, 5), QPoint(5, 5), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!alone.eventFilter(nullptr, &event));
    alone.widgetMousePressEvent(&event);
    alone.setClickDetectInterval(1, UINT_MAX);
    alone.widgetMouseReleaseEvent(&event);
    QCOMPARE(alone.take(), Log());
    QCOMPARE(alone.cursor().shape(), Qt::ClosedHandCursor);
    QCOMPARE(Panner(nullptr).cursor().shape(), Qt::ArrowCursor);
}

void tst_QwtPannerBase::cursorFallsBack()
{
    ground->setCursor(Qt::WaitCursor);
    QCOMPARE(panner->cursor().shape(), Qt::WaitCursor);
    panner->setCursor(Qt::ClosedHandCursor);
    QCOMPARE(panner->cursor().shape(), Qt::ClosedHandCursor);
    panner->setCursor(Qt::OpenHandCursor);
    QCOMPARE(panner->cursor().shape(), Qt::OpenHandCursor);
    QCOMPARE(ground->cursor().shape(), Qt::WaitCursor);
}

void tst_QwtPannerBase::cursorIsShownWhilePressed()
{
    panner->setCursor(Qt::ClosedHandCursor);
    press(ground.get(), QPoint(50, 50));
    QCOMPARE(ground->cursor().shape(), Qt::ClosedHandCursor);
    move(ground.get(), QPoint(60, 50));
    QCOMPARE(ground->cursor().shape(), Qt::ClosedHandCursor);
    release(ground.get(), QPoint(-1, 50));
    QVERIFY(!ground->testAttribute(Qt::WA_SetCursor));
    QCOMPARE(ground->cursor().shape(), Qt::ArrowCursor);
}

void tst_QwtPannerBase::cursorOfParentReturns()
{
    panner->setCursor(Qt::ClosedHandCursor);
    ground->setCursor(Qt::WaitCursor);
    press(ground.get(), QPoint(50, 50));
    release(ground.get(), QPoint(50, 50));
    QCOMPARE(ground->cursor().shape(), Qt::WaitCursor);

    // What was saved is used once: a parent without a cursor gets none back.
    ground->unsetCursor();
    press(ground.get(), QPoint(50, 50));
    QCOMPARE(ground->cursor().shape(), Qt::ClosedHandCursor);
    release(ground.get(), QPoint(50, 50));
    QVERIFY(!ground->testAttribute(Qt::WA_SetCursor));
}

void tst_QwtPannerBase::noCursorLeavesParentAlone()
{
    press(ground.get(), QPoint(50, 50));
    QVERIFY(!ground->testAttribute(Qt::WA_SetCursor));
    // A cursor that comes in the middle has nothing to restore.
    panner->setCursor(Qt::ClosedHandCursor);
    ground->setCursor(Qt::WaitCursor);
    release(ground.get(), QPoint(50, 50));
    QCOMPARE(ground->cursor().shape(), Qt::WaitCursor);
}

void tst_QwtPannerBase::showCursorTwiceKeepsTheSavedOne()
{
    panner->setCursor(Qt::ClosedHandCursor);
    ground->setCursor(Qt::WaitCursor);
    panner->showCursor(true);
    panner->showCursor(true);
    panner->showCursor(false);
    QCOMPARE(ground->cursor().shape(), Qt::WaitCursor);
    panner->showCursor(false);
    QCOMPARE(ground->cursor().shape(), Qt::WaitCursor);
}

void tst_QwtPannerBase::newCursorWaitsForNextPress()
{
    panner->setCursor(Qt::ClosedHandCursor);
    press(ground.get(), QPoint(50, 50));
    panner->setCursor(Qt::OpenHandCursor);
    QCOMPARE(ground->cursor().shape(), Qt::ClosedHandCursor);
    release(ground.get(), QPoint(50, 50));
    press(ground.get(), QPoint(50, 50));
    QCOMPARE(ground->cursor().shape(), Qt::OpenHandCursor);
}

void tst_QwtPannerBase::abortKeyEndsCursorOnly_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("ends");
    QTest::newRow("abort key") << int(Qt::Key_F1) << Qt::KeyboardModifiers(Qt::ControlModifier)
                               << true;
    QTest::newRow("other key") << int(Qt::Key_Escape) << Qt::KeyboardModifiers(Qt::ControlModifier)
                               << false;
    QTest::newRow("no modifier") << int(Qt::Key_F1) << Qt::KeyboardModifiers() << false;
    QTest::newRow("one more") << int(Qt::Key_F1)
                              << Qt::KeyboardModifiers(Qt::ControlModifier | Qt::AltModifier)
                              << false;
}

void tst_QwtPannerBase::abortKeyEndsCursorOnly()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(bool, ends);
    panner->setAbortKey(Qt::Key_F1, Qt::ControlModifier);
    panner->setCursor(Qt::ClosedHandCursor);
    press(ground.get(), QPoint(50, 50));
    pressKey(ground.get(), key, modifiers);
    QCOMPARE(ground->cursor().shape() != Qt::ClosedHandCursor, ends);
    move(ground.get(), QPoint(60, 50));
    QCOMPARE(panner->take(), Log {QStringLiteral("moved 10 0")});
}

QTEST_MAIN(tst_QwtPannerBase)
#include "tst_qwtpannerbase.moc"
