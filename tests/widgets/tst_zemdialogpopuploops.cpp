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

/** What the popup asks and tells; what its loop does is tested with the loop. */
class tst_ZEMDialogPopupLoops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { watchdog = std::make_unique<Watchdog>(); }
    void cleanup() { watchdog.reset(); }

    void execTellsTheAnswer_data();
    void execTellsTheAnswer();
    void execShowsAModalDialogWithBothButtons();
    void everyExecBeginsAnew();
    void infoCanBeAcknowledgedOnly();
    void infoWithoutButtonsIsEndedByAResetOnly();
    void resetBeforeInfoIsLost();
    void infoIsASlot();
    void infoEnablesTheAcceptButtonAgain();
    void buttonsWithoutALoopHide();
    void deletedDialogEndsInfo_data();
    void deletedDialogEndsInfo();
    void deletedDialogEndsInfoWithinExec();
    void quitOfTheHostEndsInfo();

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

void tst_ZEMDialogPopupLoops::execShowsAModalDialogWithBothButtons()
{
    checkExecShowsAModalDialog<ZEMDialogPopup>({"btnAccepted", "btnRejected"});
}

void tst_ZEMDialogPopupLoops::everyExecBeginsAnew()
{
    Page page;
    ZEMDialogPopup dialog(&page);
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

void tst_ZEMDialogPopupLoops::resetBeforeInfoIsLost()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    dialog.reset();
    bool waited = false;
    inTheLoop([&] {
        waited = dialog.isVisible();
        dialog.reset();
    });
    dialog.info(true);
    QVERIFY(waited);
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

void tst_ZEMDialogPopupLoops::deletedDialogEndsInfo_data()
{
    QTest::addColumn<bool>("later");
    QTest::newRow("at once") << false;
    QTest::newRow("later") << true;
}

void tst_ZEMDialogPopupLoops::deletedDialogEndsInfo()
{
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
    dialog->info(true);
    QVERIFY(dialog.isNull());
}

void tst_ZEMDialogPopupLoops::deletedDialogEndsInfoWithinExec()
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

void tst_ZEMDialogPopupLoops::quitOfTheHostEndsInfo()
{
    Page page;
    ZEMDialogPopup dialog(&page);
    inTheLoop([&] {
        inTheLoop([] { QCoreApplication::exit(3); });
        dialog.info(true);
    });
    QCOMPARE(QApplication::exec(), 3);
    QVERIFY(buttonOf(dialog, "btnRejected")->isEnabled());

    // The loop is gone, so a late touch or reset does no harm.
    dialog.reset();
    QVERIFY(dialog.isHidden());
}

QTEST_MAIN(tst_ZEMDialogPopupLoops)
#include "tst_zemdialogpopuploops.moc"
