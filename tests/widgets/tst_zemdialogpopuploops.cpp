// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dialogtest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMDialogPopup>

#include <QApplication>
#include <QPointer>
#include <QStringList>
#include <QTest>

#include <memory>

using namespace DialogTest;

class tst_ZEMDialogPopupLoops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { watchdog = std::make_unique<Watchdog>(); }
    void cleanup() { watchdog.reset(); }

    void execTellsTheAnswer_data();
    void execTellsTheAnswer();
    void execIsEndedByAReset();
    void execShowsAModalDialogWithBothButtons();
    void everyExecBeginsAnew();
    void infoCanBeAcknowledgedOnly();
    void infoWithoutButtonsIsEndedByAResetOnly();
    void infoIsASlot();
    void infoEnablesTheAcceptButtonAgain();
    void displayLivesOnMeanwhile();
    void hidingDoesNotEndTheLoop();
    void buttonsWithoutALoopHide();
    void resetWithoutALoopHides();
    void resetOfOneDialogLeavesTheOther();
    void outerDialogEndsAfterTheInner();
    void nestedCallsOfOneDialogEndTheInnerOnly();
    void deletedDialogEndsItsLoop_data();
    void deletedDialogEndsItsLoop();
    void deletedPageEndsTheLoopOfItsDialog();
    void deletedDialogEndsAllOfItsLoops();
    void quitOfTheHostEndsTheLoop();

private:
    std::unique_ptr<Watchdog> watchdog;
};

void tst_ZEMDialogPopupLoops::execTellsTheAnswer_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("answer");
    QTest::newRow("accepted") << QByteArray("btnAccepted") << true;
    QTest::newRow("rejected") << QByteArray("btnRejected") << false;
}

void tst_ZEMDialogPopupLoops::execTellsTheAnswer()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, answer);
    Page page;
    QVERIFY(page.isReady);
    ZEMDialogPopup dialog(&page);
    inTheLoop([&] {
        QVERIFY(dialog.isVisible());
        touch(dialog, button.constData());
    });
    QCOMPARE(dialog.exec(), answer);
    QVERIFY(!dialog.isVisible());
    QVERIFY(dialog.isHidden());
}

void tst_ZEMDialogPopupLoops::execIsEndedByAReset()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    QTimer timer;
    connect(&timer, &QTimer::timeout, &dialog, &ZEMDialogPopup::reset);
    timer.start(10);
    QVERIFY(!dialog.exec());
    QVERIFY(dialog.isHidden());
    timer.stop();

    // From a slot of the host, which is told by another widget.
    ZEMButton other(&page);
    connect(&other, &ZEMButton::clicked, &dialog, &ZEMDialogPopup::reset);
    inTheLoop([&] { other.click(); });
    QVERIFY(!dialog.exec());
    QVERIFY(dialog.isHidden());
}

void tst_ZEMDialogPopupLoops::execShowsAModalDialogWithBothButtons()
{
    for (const bool child : {true, false}) {
        Page page;
        ZEMDialogPopup dialog(child ? &page : nullptr);
        buttonOf(dialog, "btnAccepted")->setEnabled(false);
        buttonOf(dialog, "btnRejected")->setEnabled(false);
        bool done = false;
        inTheLoop([&] {
            QVERIFY(dialog.isVisible());
            QVERIFY(dialog.isModal());
            QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
            QVERIFY(buttonOf(dialog, "btnAccepted")->isEnabled());
            QVERIFY(buttonOf(dialog, "btnRejected")->isEnabled());
            done = true;
            dialog.reset();
        });
        QVERIFY(!dialog.exec());
        QVERIFY(done);
    }
}

void tst_ZEMDialogPopupLoops::everyExecBeginsAnew()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    QVERIFY(dialog.exec());
    inTheLoop([&] { dialog.reset(); });
    QVERIFY(!dialog.exec());
    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    QVERIFY(dialog.exec());
    inTheLoop([&] { touch(dialog, "btnRejected"); });
    QVERIFY(!dialog.exec());
    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    dialog.info();
    inTheLoop([&] { dialog.reset(); });
    QVERIFY(!dialog.exec());
}

void tst_ZEMDialogPopupLoops::infoCanBeAcknowledgedOnly()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    bool rejectDidNothing = false;
    inTheLoop([&] {
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.isModal());
        QVERIFY(buttonOf(dialog, "btnAccepted")->isEnabled());
        QVERIFY(!buttonOf(dialog, "btnRejected")->isEnabled());
        touch(dialog, "btnRejected");
        rejectDidNothing = dialog.isVisible();
        touch(dialog, "btnAccepted");
    });
    dialog.info();
    QVERIFY(rejectDidNothing);
    QVERIFY(dialog.isHidden());
    QVERIFY(buttonOf(dialog, "btnAccepted")->isEnabled());
    QVERIFY(buttonOf(dialog, "btnRejected")->isEnabled());
}

void tst_ZEMDialogPopupLoops::infoWithoutButtonsIsEndedByAResetOnly()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    bool touchesDidNothing = false;
    inTheLoop([&] {
        QVERIFY(!buttonOf(dialog, "btnAccepted")->isEnabled());
        QVERIFY(!buttonOf(dialog, "btnRejected")->isEnabled());
        touch(dialog, "btnAccepted");
        touch(dialog, "btnRejected");
        touchesDidNothing = dialog.isVisible();
        QTimer::singleShot(20, &dialog, &ZEMDialogPopup::reset);
    });
    dialog.info(true);
    QVERIFY(touchesDidNothing);
    QVERIFY(dialog.isHidden());
    QVERIFY(!buttonOf(dialog, "btnAccepted")->isEnabled());
    QVERIFY(buttonOf(dialog, "btnRejected")->isEnabled());

    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    QVERIFY(dialog.exec());
    QVERIFY(buttonOf(dialog, "btnAccepted")->isEnabled());
}

void tst_ZEMDialogPopupLoops::infoIsASlot()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    bool enabled = false;
    inTheLoop([&] {
        enabled = buttonOf(dialog, "btnAccepted")->isEnabled();
        dialog.reset();
    });
    QVERIFY(QMetaObject::invokeMethod(&dialog, "info"));
    QVERIFY(enabled);
    inTheLoop([&] {
        enabled = buttonOf(dialog, "btnAccepted")->isEnabled();
        dialog.reset();
    });
    QVERIFY(QMetaObject::invokeMethod(&dialog, "info", Q_ARG(bool, true)));
    QVERIFY(!enabled);
}

void tst_ZEMDialogPopupLoops::infoEnablesTheAcceptButtonAgain()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    inTheLoop([&] { dialog.reset(); });
    dialog.info(true);
    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    dialog.info(false); // would not return if the button were still disabled
    QVERIFY(buttonOf(dialog, "btnAccepted")->isEnabled());
}

void tst_ZEMDialogPopupLoops::displayLivesOnMeanwhile()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, &dialog, [&] {
        if (++ticks == 5) {
            dialog.reset();
        }
    });
    timer.start(1);
    QVERIFY(!dialog.exec());
    QCOMPARE(ticks, 5);
}

void tst_ZEMDialogPopupLoops::hidingDoesNotEndTheLoop()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    bool stillRunning = false;
    inTheLoop([&] {
        dialog.hide();
        QTimer::singleShot(20, &dialog, [&] {
            stillRunning = true;
            dialog.reset();
        });
    });
    QVERIFY(!dialog.exec());
    QVERIFY(stillRunning);
}

void tst_ZEMDialogPopupLoops::buttonsWithoutALoopHide()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    for (const char *name : {"btnAccepted", "btnRejected"}) {
        dialog.show();
        QTest::qWait(1); // the layout finds its places
        touch(dialog, name);
        QVERIFY(dialog.isHidden());
    }
    // An old answer is none to a new question.
    inTheLoop([&] { dialog.reset(); });
    QVERIFY(!dialog.exec());
}

void tst_ZEMDialogPopupLoops::resetWithoutALoopHides()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    dialog.reset();
    QVERIFY(!dialog.isVisible());
    dialog.show();
    dialog.reset();
    QVERIFY(dialog.isHidden());
    dialog.reset();
    QVERIFY(dialog.isHidden());

    // A loop that has ended is not touched again, and a later one is not ended by an old reset.
    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    QVERIFY(dialog.exec());
    dialog.reset();
    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    QVERIFY(dialog.exec());
}

void tst_ZEMDialogPopupLoops::resetOfOneDialogLeavesTheOther()
{
    Page page;
    ZEMDialogPopup first(&page);
    ZEMDialogPopup second(&page);
    bool stillRunning = false;
    inTheLoop([&] {
        second.reset();
        QTimer::singleShot(10, &first, [&] {
            stillRunning = first.isVisible();
            touch(first, "btnAccepted");
        });
    });
    QVERIFY(first.exec());
    QVERIFY(stillRunning);
}

void tst_ZEMDialogPopupLoops::outerDialogEndsAfterTheInner()
{
    Page page;
    ZEMDialogPopup outer(&page);
    ZEMDialogPopup inner(&page);
    QStringList order;
    inTheLoop([&] {
        inTheLoop([&] {
            outer.reset(); // its loop waits for the inner one
            order.append(QStringLiteral("outer reset"));
            QTimer::singleShot(10, &inner, [&] { touch(inner, "btnAccepted"); });
        });
        order.append(inner.exec() ? QStringLiteral("inner accepted") : QStringLiteral("inner"));
    });
    order.append(outer.exec() ? QStringLiteral("outer accepted") : QStringLiteral("outer"));
    QCOMPARE(order,
             QStringList({QStringLiteral("outer reset"), QStringLiteral("inner accepted"),
                          QStringLiteral("outer")}));
}

void tst_ZEMDialogPopupLoops::nestedCallsOfOneDialogEndTheInnerOnly()
{
    Page page;
    auto *dialog = new ZEMDialogPopup(&page);
    QStringList order;
    inTheLoop([&] {
        inTheLoop([&] { touch(*dialog, "btnAccepted"); });
        order.append(dialog->exec() ? QStringLiteral("inner accepted") : QStringLiteral("inner"));
        dialog->reset(); // finds no loop any more
        QTimer::singleShot(20, &page, [&] {
            order.append(QStringLiteral("outer still runs"));
            delete dialog;
        });
    });
    order.append(dialog->exec() ? QStringLiteral("outer accepted") : QStringLiteral("outer"));
    QCOMPARE(order,
             QStringList({QStringLiteral("inner accepted"), QStringLiteral("outer still runs"),
                          QStringLiteral("outer")}));
}

void tst_ZEMDialogPopupLoops::deletedDialogEndsItsLoop_data()
{
    QTest::addColumn<bool>("info");
    QTest::addColumn<bool>("later");
    QTest::newRow("exec") << false << false;
    QTest::newRow("exec, later") << false << true;
    QTest::newRow("info") << true << false;
    QTest::newRow("info, later") << true << true;
}

void tst_ZEMDialogPopupLoops::deletedDialogEndsItsLoop()
{
    QFETCH(bool, info);
    QFETCH(bool, later);
    Page page;
    const QPointer<ZEMDialogPopup> dialog = new ZEMDialogPopup(&page);
    inTheLoop([&] {
        if (later) {
            dialog->deleteLater();
        } else {
            delete dialog;
        }
    });
    bool answer = false;
    if (info) {
        dialog->info(true);
    } else {
        answer = dialog->exec();
    }
    QVERIFY(!answer);
    QVERIFY(dialog.isNull());
}

void tst_ZEMDialogPopupLoops::deletedPageEndsTheLoopOfItsDialog()
{
    auto *page = new Page;
    const QPointer<ZEMDialogPopup> dialog = new ZEMDialogPopup(page);
    inTheLoop([&] { delete page; });
    QVERIFY(!dialog->exec());
    QVERIFY(dialog.isNull());
}

void tst_ZEMDialogPopupLoops::deletedDialogEndsAllOfItsLoops()
{
    Page page;
    auto *dialog = new ZEMDialogPopup(&page);
    QStringList order;
    inTheLoop([&] {
        inTheLoop([&] { delete dialog; });
        dialog->info(true);
        order.append(QStringLiteral("inner"));
    });
    order.append(dialog->exec() ? QStringLiteral("outer accepted") : QStringLiteral("outer"));
    QCOMPARE(order, QStringList({QStringLiteral("inner"), QStringLiteral("outer")}));
}

void tst_ZEMDialogPopupLoops::quitOfTheHostEndsTheLoop()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    bool answer = true;
    bool returned = false;
    inTheLoop([&] {
        inTheLoop([] { QCoreApplication::quit(); });
        answer = dialog.exec();
        returned = true;
    });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(returned);
    QVERIFY(!answer);

    inTheLoop([&] {
        inTheLoop([] { QCoreApplication::exit(3); });
        dialog.info(true);
    });
    QCOMPARE(QApplication::exec(), 3);
    QVERIFY(buttonOf(dialog, "btnRejected")->isEnabled());

    // The loops are gone, so a late touch or reset does no harm.
    dialog.reset();
    QVERIFY(dialog.isHidden());
}

QTEST_MAIN(tst_ZEMDialogPopupLoops)
#include "tst_zemdialogpopuploops.moc"
