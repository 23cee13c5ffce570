// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "capswalk_p.h"
#include "holdmachine_p.h"

#include <QTest>

class tst_HoldMachine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newMachine();
    void runs_data();
    void runs();
    void lastPressedOutlivesTheHold();
    void capsKeyLeadsThroughAllStates();
    void sentKeyEndsSingleCapsOnly();
};

void tst_HoldMachine::newMachine()
{
    HoldMachine hold;
    QCOMPARE(hold.lastPressed(), 0);
    QVERIFY(!hold.runOut(true));
}

void tst_HoldMachine::runs_data()
{
    // The touches before the time is over: a capital letter for a press of a key with alternatives,
    // a small one for one without, ^ for a release, - for the keyboard hidden, ! for a timeout.
    QTest::addColumn<QByteArray>("touches");
    QTest::addColumn<bool>("opens");
    QTest::newRow("held") << QByteArray("A") << true;
    QTest::newRow("nothing to offer") << QByteArray("a") << false;
    QTest::newRow("released") << QByteArray("A^") << false;
    QTest::newRow("pressed again") << QByteArray("A^A") << true;
    QTest::newRow("hidden") << QByteArray("A-") << false;
    QTest::newRow("hidden, pressed again") << QByteArray("A-A") << true;
    QTest::newRow("two held") << QByteArray("AB") << true;
    QTest::newRow("two held, the second has nothing") << QByteArray("Ab") << true;
    QTest::newRow("two held, the first has nothing") << QByteArray("aB") << true;
    QTest::newRow("two held, one released") << QByteArray("AB^") << false;
    QTest::newRow("opened before") << QByteArray("A!") << false;
    QTest::newRow("opened before, another pressed") << QByteArray("A!b") << false;
}

void tst_HoldMachine::runs()
{
    QFETCH(QByteArray, touches);
    HoldMachine hold;
    HoldMachine hidden;
    for (const char touch : touches) {
        for (HoldMachine *machine : {&hold, &hidden}) {
            if (touch == '^') {
                machine->release();
            } else if (touch == '-') {
                machine->hide();
            } else if (touch == '!') {
                QVERIFY(machine->runOut(true));
            } else {
                const bool offers = touch < 'a';
                QCOMPARE(machine->press(touch, offers), offers);
                QCOMPARE(machine->lastPressed(), int(touch));
            }
        }
    }
    QVERIFY(!hidden.runOut(false));
    QVERIFY(!hidden.runOut(true)); // the time is over only once
    QTEST(hold.runOut(true), "opens");
}

void tst_HoldMachine::lastPressedOutlivesTheHold()
{
    HoldMachine hold;
    hold.press(7, true);
    hold.release();
    QCOMPARE(hold.lastPressed(), 7);
    hold.hide();
    QCOMPARE(hold.lastPressed(), 7);
    hold.press(3, false);
    hold.runOut(true);
    QCOMPARE(hold.lastPressed(), 3);
}

void tst_HoldMachine::capsKeyLeadsThroughAllStates()
{
    using Keyboard = ZEMVirtualKeyboard;
    QCOMPARE(int(Keyboard::CapsOff), 0);
    QCOMPARE(int(Keyboard::CapsSingle), 1);
    QCOMPARE(int(Keyboard::CapsLock), 2);
    QCOMPARE(CapsWalk::afterCapsKey(Keyboard::CapsOff), Keyboard::CapsSingle);
    QCOMPARE(CapsWalk::afterCapsKey(Keyboard::CapsSingle), Keyboard::CapsLock);
    QCOMPARE(CapsWalk::afterCapsKey(Keyboard::CapsLock), Keyboard::CapsOff);
}

void tst_HoldMachine::sentKeyEndsSingleCapsOnly()
{
    using Keyboard = ZEMVirtualKeyboard;
    QCOMPARE(CapsWalk::afterSentKey(Keyboard::CapsOff), Keyboard::CapsOff);
    QCOMPARE(CapsWalk::afterSentKey(Keyboard::CapsSingle), Keyboard::CapsOff);
    QCOMPARE(CapsWalk::afterSentKey(Keyboard::CapsLock), Keyboard::CapsLock);
}

QTEST_APPLESS_MAIN(tst_HoldMachine)
#include "tst_holdmachine.moc"
