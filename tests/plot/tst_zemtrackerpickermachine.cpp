// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMTrackerPickerMachine>

#include <QMouseEvent>
#include <QRandomGenerator>
#include <QTest>

#include <qwt_event_pattern.h>

using Command = QwtPickerMachine::Command;
using Commands = QList<Command>;

namespace {

const Commands tap = {QwtPickerMachine::Begin, QwtPickerMachine::Append, QwtPickerMachine::End};
const Commands movement = {QwtPickerMachine::Move};

/** The machine, and events for it. Its button is the left one. */
class Bench
{
public:
    explicit Bench(unsigned int mousePattern = QwtEventPattern::MouseSelect1)
        : machine(mousePattern)
    {
    }

    Commands press(Qt::MouseButton button = Qt::LeftButton)
    {
        return mouse(QEvent::MouseButtonPress, button);
    }
    Commands release(Qt::MouseButton button = Qt::LeftButton)
    {
        return mouse(QEvent::MouseButtonRelease, button);
    }
    Commands move() { return mouse(QEvent::MouseMove, Qt::NoButton); }
    Commands doubleClick() { return mouse(QEvent::MouseButtonDblClick, Qt::LeftButton); }
    Commands plain(QEvent::Type type)
    {
        const QEvent event(type);
        return machine.transition(pattern, &event);
    }

    ZEMTrackerPickerMachine machine;
    QwtEventPattern pattern;

private:
    Commands mouse(QEvent::Type type, Qt::MouseButton button)
    {
        const QMouseEvent event(type, QPointF(10, 10), QPointF(10, 10), button, button,
                                Qt::NoModifier);
        return machine.transition(pattern, &event);
    }
};

} // namespace

class tst_ZEMTrackerPickerMachine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectsPoints();
    void tapSelectsAtTheRelease();
    void tapAfterEnteringSelects();
    void dragSelectsNothing();
    void firstMoveAfterLeavingDoesNotCount();
    void enteringAgainCountsAsMove();
    void releaseBeforeAnyPressSelectsNothing();
    void otherButtonDoesNotStartATap();
    void otherButtonDoesNotEndATap();
    void secondReleaseSelectsAgain();
    void stateFollowsThePointer();
    void resetReturnsToTheStart();
    void otherEventsAreIgnored_data();
    void otherEventsAreIgnored();
    void patternOtherThanTheFirst();
    void patternThatDoesNotExistNeverMatches();
    void randomEventsFollowModel();
};

void tst_ZEMTrackerPickerMachine::selectsPoints()
{
    const Bench bench;
    QCOMPARE(bench.machine.selectionType(), QwtPickerMachine::PointSelection);
    QCOMPARE(bench.machine.state(), 0);
}

void tst_ZEMTrackerPickerMachine::tapSelectsAtTheRelease()
{
    Bench bench;
    QCOMPARE(bench.press(), Commands());
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::tapAfterEnteringSelects()
{
    Bench bench;
    QCOMPARE(bench.plain(QEvent::Enter), Commands());
    QCOMPARE(bench.move(), movement);
    QCOMPARE(bench.press(), Commands());
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::dragSelectsNothing()
{
    Bench bench;
    bench.press();
    QCOMPARE(bench.move(), Commands());
    QCOMPARE(bench.move(), movement);
    QCOMPARE(bench.release(), Commands());
}

void tst_ZEMTrackerPickerMachine::firstMoveAfterLeavingDoesNotCount()
{
    Bench bench;
    bench.move();
    QCOMPARE(bench.plain(QEvent::Leave), Commands());
    bench.press();
    QCOMPARE(bench.move(), Commands());
    QCOMPARE(bench.machine.state(), 1);
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::enteringAgainCountsAsMove()
{
    Bench bench;
    bench.plain(QEvent::Enter);
    bench.press();
    QCOMPARE(bench.plain(QEvent::Enter), movement);
    QCOMPARE(bench.release(), Commands());
}

void tst_ZEMTrackerPickerMachine::releaseBeforeAnyPressSelectsNothing()
{
    Bench bench;
    QCOMPARE(bench.release(), Commands());
    bench.move();
    QCOMPARE(bench.release(), Commands());
}

void tst_ZEMTrackerPickerMachine::otherButtonDoesNotStartATap()
{
    Bench bench;
    bench.move();
    bench.press();
    bench.move();
    // Still moved, as the right button does not begin anew.
    QCOMPARE(bench.press(Qt::RightButton), Commands());
    QCOMPARE(bench.release(), Commands());

    bench.press();
    QCOMPARE(bench.press(Qt::RightButton), Commands());
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::otherButtonDoesNotEndATap()
{
    Bench bench;
    bench.press();
    QCOMPARE(bench.release(Qt::RightButton), Commands());
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::secondReleaseSelectsAgain()
{
    Bench bench;
    bench.press();
    QCOMPARE(bench.release(), tap);
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::stateFollowsThePointer()
{
    Bench bench;
    bench.press();
    QCOMPARE(bench.machine.state(), 0);
    bench.plain(QEvent::Enter);
    QCOMPARE(bench.machine.state(), 1);
    bench.move();
    QCOMPARE(bench.machine.state(), 1);
    bench.plain(QEvent::Leave);
    QCOMPARE(bench.machine.state(), 0);
}

void tst_ZEMTrackerPickerMachine::resetReturnsToTheStart()
{
    Bench bench;
    bench.move();
    bench.machine.reset();
    bench.press();
    QCOMPARE(bench.move(), Commands());
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::otherEventsAreIgnored_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick);
    QTest::newRow("wheel") << int(QEvent::Wheel);
    QTest::newRow("key") << int(QEvent::KeyPress);
    QTest::newRow("paint") << int(QEvent::Paint);
}

void tst_ZEMTrackerPickerMachine::otherEventsAreIgnored()
{
    QFETCH(int, type);
    Bench bench;
    bench.press();
    QCOMPARE(type == QEvent::MouseButtonDblClick ? bench.doubleClick()
                                                 : bench.plain(QEvent::Type(type)),
             Commands());
    QCOMPARE(bench.machine.state(), 0);
    QCOMPARE(bench.release(), tap);
}

void tst_ZEMTrackerPickerMachine::patternOtherThanTheFirst()
{
    Bench bench(QwtEventPattern::MouseSelect2);
    bench.press();
    QCOMPARE(bench.release(), Commands());
    bench.press(Qt::RightButton);
    QCOMPARE(bench.release(), Commands());
    QCOMPARE(bench.release(Qt::RightButton), tap);
}

void tst_ZEMTrackerPickerMachine::patternThatDoesNotExistNeverMatches()
{
    for (const unsigned int none :
         {static_cast<unsigned int>(QwtEventPattern::MousePatternCount), 4000000000u}) {
        Bench bench(none);
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::NoButton}) {
            QCOMPARE(bench.press(button), Commands());
            QCOMPARE(bench.release(button), Commands());
        }
    }
}

void tst_ZEMTrackerPickerMachine::randomEventsFollowModel()
{
    enum Kind { Press, PressOther, Release, ReleaseOther, Move, Enter, Leave, Other, KindCount };
    QRandomGenerator random(75);
    for (int round = 0; round < 500; ++round) {
        Bench bench;
        bool hasMoved = true;
        bool isInside = false;
        for (int step = 0; step < 60; ++step) {
            Commands expected;
            Commands found;
            switch (random.bounded(int(KindCount))) {
            case Press:
                hasMoved = false;
                found = bench.press();
                break;
            case PressOther:
                found = bench.press(Qt::MiddleButton);
                break;
            case Release:
                expected = hasMoved ? Commands() : tap;
                found = bench.release();
                break;
            case ReleaseOther:
                found = bench.release(Qt::MiddleButton);
                break;
            case Move:
            case Enter:
                expected = isInside ? movement : Commands();
                hasMoved = hasMoved || isInside;
                isInside = true;
                found = random.bounded(2) == 0 ? bench.move() : bench.plain(QEvent::Enter);
                break;
            case Leave:
                isInside = false;
                found = bench.plain(QEvent::Leave);
                break;
            default:
                found = bench.plain(QEvent::ToolTip);
                break;
            }
            QCOMPARE(found, expected);
            QCOMPARE(bench.machine.state(), isInside ? 1 : 0);
        }
    }
}

QTEST_MAIN(tst_ZEMTrackerPickerMachine)
#include "tst_zemtrackerpickermachine.moc"
