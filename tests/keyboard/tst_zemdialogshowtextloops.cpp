// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/dialogtest.h"
#include "inputdialogtest.h"

#include <ZEMButton>
#include <ZEMDialogShowText>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QScrollBar>
#include <QStringList>
#include <QTest>
#include <QTextBrowser>

#include <memory>

using DialogTest::inTheLoop;
using DialogTest::Page;
using DialogTest::Watchdog;
using FormTest::part;
using FormTest::strings;
using InputDialogTest::touch;

namespace {

ZEMButton *buttonOf(const ZEMDialogShowText &dialog, const char *name)
{
    return part<ZEMButton>(dialog, name);
}

QScrollBar *barOf(const ZEMDialogShowText &dialog)
{
    return part<QTextBrowser>(dialog, "textBrowser")->verticalScrollBar();
}

QString longText()
{
    return QStringLiteral("regel<br>").repeated(60);
}

/** "up", "down", both or none: the buttons that turn the pages and can be used. */
QStringList usable(const ZEMDialogShowText &dialog)
{
    QStringList names;
    if (buttonOf(dialog, "btnPgUp")->isEnabled()) {
        names.append(QStringLiteral("up"));
    }
    if (buttonOf(dialog, "btnPgDown")->isEnabled()) {
        names.append(QStringLiteral("down"));
    }
    return names;
}

} // namespace

class tst_ZEMDialogShowTextLoops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { watchdog = std::make_unique<Watchdog>(); }
    void cleanup() { watchdog.reset(); }

    void acceptButtonEndsExec();
    void editButtonEndsExecAndTells();
    void resetEndsExec();
    void resetAfterATouchLeavesTheAnswer();
    void everyExecBeginsAnew();
    void execShowsAModalDialog();
    void execShowsTheStartOfTheText();
    void textThatFitsHasNoPages();
    void pagesAreTurned();
    void displayLivesOnMeanwhile();
    void hidingDoesNotEndTheLoop();
    void buttonsWithoutALoopHide();
    void resetWithoutALoopHides();
    void looksStayForTheNextUse();
    void outerDialogEndsAfterTheInner();
    void nestedCallsOfOneDialogEndTheInnerOnly();
    void deletedDialogEndsItsLoop_data();
    void deletedDialogEndsItsLoop();
    void deletedPageEndsTheLoopOfItsDialog();
    void deletedDialogEndsAllOfItsLoops();
    void dialogMayBeDeletedByThePencil();
    void quitOfTheHostEndsTheLoop();

private:
    std::unique_ptr<Watchdog> watchdog;
};

void tst_ZEMDialogShowTextLoops::acceptButtonEndsExec()
{
    Page page;
    QVERIFY(page.isReady);
    ZEMDialogShowText dialog(&page);
    int told = 0;
    connect(&dialog, &ZEMDialogShowText::sigBtnEditClicked, &dialog, [&] { ++told; });
    inTheLoop([&] {
        QVERIFY(dialog.isVisible());
        touch(dialog, "btnAccepted");
    });
    QVERIFY(dialog.exec());
    QVERIFY(dialog.isHidden());
    QCOMPARE(told, 0);
}

void tst_ZEMDialogShowTextLoops::editButtonEndsExecAndTells()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    dialog.setBtnEditVisible(true);
    QStringList order;
    connect(&dialog, &ZEMDialogShowText::sigBtnEditClicked, &dialog, [&] {
        order.append(dialog.isVisible() ? QStringLiteral("visible") : QStringLiteral("hidden"));
        dialog.reset(); // too late to withdraw it
    });
    inTheLoop([&] { touch(dialog, "btnEdit"); });
    order.append(dialog.exec() ? QStringLiteral("accepted") : QStringLiteral("withdrawn"));
    QCOMPARE(order, strings({"hidden", "accepted"}));
}

void tst_ZEMDialogShowTextLoops::resetEndsExec()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    QTimer timer;
    connect(&timer, &QTimer::timeout, &dialog, &ZEMDialogShowText::reset);
    timer.start(10);
    QVERIFY(!dialog.exec());
    QVERIFY(dialog.isHidden());
    timer.stop();

    // From a slot of the host, which is told by another widget.
    ZEMButton other(&page);
    connect(&other, &ZEMButton::clicked, &dialog, &ZEMDialogShowText::reset);
    inTheLoop([&] { other.click(); });
    QVERIFY(!dialog.exec());
    QVERIFY(dialog.isHidden());
}

void tst_ZEMDialogShowTextLoops::resetAfterATouchLeavesTheAnswer()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    inTheLoop([&] {
        touch(dialog, "btnAccepted");
        dialog.reset();
    });
    QVERIFY(dialog.exec());
}

void tst_ZEMDialogShowTextLoops::everyExecBeginsAnew()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    for (int round = 0; round < 2; ++round) {
        inTheLoop([&] { touch(dialog, "btnAccepted"); });
        QVERIFY(dialog.exec());
        inTheLoop([&] { dialog.reset(); });
        QVERIFY(!dialog.exec());
    }
}

void tst_ZEMDialogShowTextLoops::execShowsAModalDialog()
{
    for (const bool child : {true, false}) {
        Page page;
        ZEMDialogShowText dialog(child ? &page : nullptr);
        buttonOf(dialog, "btnAccepted")->setEnabled(false);
        bool done = false;
        inTheLoop([&] {
            QVERIFY(dialog.isVisible());
            QVERIFY(dialog.isModal());
            QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
            QVERIFY(buttonOf(dialog, "btnAccepted")->isEnabled());
            done = true;
            dialog.reset();
        });
        QVERIFY(!dialog.exec());
        QVERIFY(done);
    }
}

void tst_ZEMDialogShowTextLoops::execShowsTheStartOfTheText()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    dialog.setText(longText());
    int start = -1;
    QStringList pages;
    for (int round = 0; round < 2; ++round) {
        inTheLoop([&] {
            start = barOf(dialog)->value();
            pages = usable(dialog);
            barOf(dialog)->setValue(barOf(dialog)->maximum()); // for the next round
            dialog.updateButtons();
            dialog.reset();
        });
        QVERIFY(!dialog.exec());
        QCOMPARE(start, 0);
        QCOMPARE(pages, strings({"down"}));
        QVERIFY(barOf(dialog)->value() > 0);
    }
}

void tst_ZEMDialogShowTextLoops::textThatFitsHasNoPages()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    dialog.setText(QStringLiteral("kort"));
    QStringList pages = strings({"not asked"});
    inTheLoop([&] {
        pages = usable(dialog);
        dialog.reset();
    });
    QVERIFY(!dialog.exec());
    QCOMPARE(pages, QStringList());
}

void tst_ZEMDialogShowTextLoops::pagesAreTurned()
{
    Page page;
    QVERIFY(page.isReady);
    ZEMDialogShowText dialog(&page);
    dialog.setText(longText());
    bool done = false;
    inTheLoop([&] {
        const QScrollBar *bar = barOf(dialog);
        const int step = bar->pageStep();
        QVERIFY(bar->maximum() > 2 * step);
        touch(dialog, "btnPgUp"); // at its end already
        QCOMPARE(bar->value(), 0);
        touch(dialog, "btnPgDown");
        QCOMPARE(bar->value(), step);
        QCOMPARE(usable(dialog), strings({"up", "down"}));
        touch(dialog, "btnPgDown");
        QCOMPARE(bar->value(), 2 * step);
        int turns = 2;
        while (buttonOf(dialog, "btnPgDown")->isEnabled() && turns < 100) {
            touch(dialog, "btnPgDown");
            ++turns;
        }
        QCOMPARE(turns, (bar->maximum() + step - 1) / step);
        QCOMPARE(bar->value(), bar->maximum());
        QCOMPARE(usable(dialog), strings({"up"}));
        touch(dialog, "btnPgUp");
        QCOMPARE(bar->value(), bar->maximum() - step);
        QCOMPARE(usable(dialog), strings({"up", "down"}));
        while (buttonOf(dialog, "btnPgUp")->isEnabled() && turns > 0) {
            touch(dialog, "btnPgUp");
            --turns;
        }
        QCOMPARE(bar->value(), 0);
        QCOMPARE(usable(dialog), strings({"down"}));
        done = true;
    });
    QTimer::singleShot(500, &dialog, &ZEMDialogShowText::reset);
    QVERIFY(!dialog.exec());
    QVERIFY(done);
}

void tst_ZEMDialogShowTextLoops::displayLivesOnMeanwhile()
{
    Page page;
    ZEMDialogShowText dialog(&page);
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

void tst_ZEMDialogShowTextLoops::hidingDoesNotEndTheLoop()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    bool stillRunning = false;
    inTheLoop([&] {
        dialog.setVisible(false);
        QTimer::singleShot(20, &dialog, [&] {
            stillRunning = true;
            dialog.reset();
        });
    });
    QVERIFY(!dialog.exec());
    QVERIFY(stillRunning);
}

void tst_ZEMDialogShowTextLoops::buttonsWithoutALoopHide()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    dialog.setBtnEditVisible(true);
    int told = 0;
    connect(&dialog, &ZEMDialogShowText::sigBtnEditClicked, &dialog, [&] { ++told; });
    for (const char *name : {"btnAccepted", "btnEdit"}) {
        dialog.show();
        QTest::qWait(1); // the layout finds its places
        touch(dialog, name);
        QVERIFY(dialog.isHidden());
    }
    QCOMPARE(told, 1);
    // An old answer is none to a new question.
    inTheLoop([&] { dialog.reset(); });
    QVERIFY(!dialog.exec());
}

void tst_ZEMDialogShowTextLoops::resetWithoutALoopHides()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    dialog.reset();
    QVERIFY(!dialog.isVisible());
    dialog.show();
    dialog.reset();
    QVERIFY(dialog.isHidden());

    // A loop that has ended is not touched again, and a later one is not ended by an old reset.
    for (int round = 0; round < 2; ++round) {
        inTheLoop([&] { touch(dialog, "btnAccepted"); });
        QVERIFY(dialog.exec());
        dialog.reset();
    }
}

void tst_ZEMDialogShowTextLoops::looksStayForTheNextUse()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    dialog.setTitle(QStringLiteral("Bericht"));
    dialog.setText(QStringLiteral("tekst"));
    dialog.setTextFontSize(12);
    dialog.setBtnEditVisible(true);
    int rounds = 0;
    const auto look = [&] {
        QVERIFY(part<QLabel>(dialog, "lblTitle")->isVisible());
        QVERIFY(buttonOf(dialog, "btnEdit")->isVisible());
        const auto *browser = part<QTextBrowser>(dialog, "textBrowser");
        QCOMPARE(browser->font().pointSize(), 12);
        QCOMPARE(browser->toPlainText(), QStringLiteral("tekst"));
        ++rounds;
    };
    inTheLoop([&] {
        look();
        touch(dialog, "btnAccepted");
    });
    QTimer::singleShot(500, &dialog, &ZEMDialogShowText::reset);
    QVERIFY(dialog.exec());
    inTheLoop([&] {
        look();
        dialog.reset();
    });
    QVERIFY(!dialog.exec());
    QCOMPARE(rounds, 2);
}

void tst_ZEMDialogShowTextLoops::outerDialogEndsAfterTheInner()
{
    Page page;
    ZEMDialogShowText outer(&page);
    ZEMDialogShowText inner(&page);
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
    QCOMPARE(order, strings({"outer reset", "inner accepted", "outer"}));
}

void tst_ZEMDialogShowTextLoops::nestedCallsOfOneDialogEndTheInnerOnly()
{
    Page page;
    auto *dialog = new ZEMDialogShowText(&page);
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
    QCOMPARE(order, strings({"inner accepted", "outer still runs", "outer"}));
}

void tst_ZEMDialogShowTextLoops::deletedDialogEndsItsLoop_data()
{
    QTest::addColumn<bool>("later");
    QTest::newRow("at once") << false;
    QTest::newRow("later") << true;
}

void tst_ZEMDialogShowTextLoops::deletedDialogEndsItsLoop()
{
    QFETCH(bool, later);
    Page page;
    const QPointer<ZEMDialogShowText> dialog = new ZEMDialogShowText(&page);
    inTheLoop([&] {
        if (later) {
            dialog->deleteLater();
        } else {
            delete dialog;
        }
    });
    QVERIFY(!dialog->exec());
    QVERIFY(dialog.isNull());
}

void tst_ZEMDialogShowTextLoops::deletedPageEndsTheLoopOfItsDialog()
{
    auto *page = new Page;
    const QPointer<ZEMDialogShowText> dialog = new ZEMDialogShowText(page);
    inTheLoop([&] { delete page; });
    QVERIFY(!dialog->exec());
    QVERIFY(dialog.isNull());
}

void tst_ZEMDialogShowTextLoops::deletedDialogEndsAllOfItsLoops()
{
    Page page;
    auto *dialog = new ZEMDialogShowText(&page);
    QStringList order;
    inTheLoop([&] {
        inTheLoop([&] { delete dialog; });
        order.append(dialog->exec() ? QStringLiteral("inner accepted") : QStringLiteral("inner"));
    });
    order.append(dialog->exec() ? QStringLiteral("outer accepted") : QStringLiteral("outer"));
    QCOMPARE(order, strings({"inner", "outer"}));
}

void tst_ZEMDialogShowTextLoops::dialogMayBeDeletedByThePencil()
{
    Page page;
    const QPointer<ZEMDialogShowText> dialog = new ZEMDialogShowText(&page);
    dialog->setBtnEditVisible(true);
    connect(dialog, &ZEMDialogShowText::sigBtnEditClicked, &page, [dialog] { delete dialog; });
    inTheLoop([&] { touch(*dialog, "btnEdit"); });
    QVERIFY(!dialog->exec()); // the answer is gone with the dialog
    QVERIFY(dialog.isNull());
}

void tst_ZEMDialogShowTextLoops::quitOfTheHostEndsTheLoop()
{
    Page page;
    ZEMDialogShowText dialog(&page);
    bool answer = true;
    bool returned = false;
    inTheLoop([&] {
        inTheLoop([] { QCoreApplication::exit(3); });
        answer = dialog.exec();
        returned = true;
    });
    QCOMPARE(QApplication::exec(), 3);
    QVERIFY(returned);
    QVERIFY(!answer);

    // The loop is gone, so a late reset does no harm, and the dialog can be used again.
    dialog.reset();
    QVERIFY(dialog.isHidden());
    inTheLoop([&] { touch(dialog, "btnAccepted"); });
    QVERIFY(dialog.exec());
}

QTEST_MAIN(tst_ZEMDialogShowTextLoops)
#include "tst_zemdialogshowtextloops.moc"
