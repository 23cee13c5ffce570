// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "capswalk_p.h"

#include <QTest>

class tst_CapsWalk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void capsKeyLeadsThroughAllStates();
    void sentKeyEndsSingleCapsOnly();
};

void tst_CapsWalk::capsKeyLeadsThroughAllStates()
{
    using Keyboard = ZEMVirtualKeyboard;
    QCOMPARE(int(Keyboard::CapsOff), 0);
    QCOMPARE(int(Keyboard::CapsSingle), 1);
    QCOMPARE(int(Keyboard::CapsLock), 2);
    QCOMPARE(CapsWalk::afterCapsKey(Keyboard::CapsOff), Keyboard::CapsSingle);
    QCOMPARE(CapsWalk::afterCapsKey(Keyboard::CapsSingle), Keyboard::CapsLock);
    QCOMPARE(CapsWalk::afterCapsKey(Keyboard::CapsLock), Keyboard::CapsOff);
}

void tst_CapsWalk::sentKeyEndsSingleCapsOnly()
{
    using Keyboard = ZEMVirtualKeyboard;
    QCOMPARE(CapsWalk::afterSentKey(Keyboard::CapsOff), Keyboard::CapsOff);
    QCOMPARE(CapsWalk::afterSentKey(Keyboard::CapsSingle), Keyboard::CapsOff);
    QCOMPARE(CapsWalk::afterSentKey(Keyboard::CapsLock), Keyboard::CapsLock);
}

QTEST_APPLESS_MAIN(tst_CapsWalk)
#include "tst_capswalk.moc"
