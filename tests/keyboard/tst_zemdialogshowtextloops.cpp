// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/dialogtest.h"

#include <ZEMButton>
#include <ZEMDialogShowText>

#include <QLabel>
#include <QPointer>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStringList>
#include <QTest>
#include <QTextBrowser>

#include <memory>

using DialogTest::buttonOf;
using DialogTest::checkExecShowsAModalDialog;
using DialogTest::inTheLoop;
using DialogTest::Page;
using DialogTest::touch;
using DialogTest::Watchdog;
using FormTest::part;
using FormTest::strings;

namespace {

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

/** How the text is shown and answered; what the loop does is tested with the loop. */
class tst_ZEMDialogShowTextLoops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { watchdog = std::make_unique<Watchdog>(); }
    void cleanup() { watchdog.reset(); }

    void acceptButtonEndsExec();
    void editButtonEndsExecAndTells();
    void resetAfterATouchLeavesTheAnswer();
    void execShowsAModalDialog();
    void execShowsTheStartOfTheText();
    void textThatFitsHasNoPages();
    void pagesAreTurned();
    void buttonsWithoutALoopHide();
    void looksStayForTheNextUse();
    void dialogMayBeDeletedByThePencil();

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

void tst_ZEMDialogShowTextLoops::execShowsAModalDialog()
{
    checkExecShowsAModalDialog<ZEMDialogShowText>({"btnAccepted"});
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
        // However the checks end; a timer might end the dialog while they go on.
        const auto end = qScopeGuard([&] { dialog.reset(); });
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
    QVERIFY(!dialog.exec());
    QVERIFY(done);
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
    QVERIFY(dialog.exec());
    inTheLoop([&] {
        look();
        dialog.reset();
    });
    QVERIFY(!dialog.exec());
    QCOMPARE(rounds, 2);
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

QTEST_MAIN(tst_ZEMDialogShowTextLoops)
#include "tst_zemdialogshowtextloops.moc"
