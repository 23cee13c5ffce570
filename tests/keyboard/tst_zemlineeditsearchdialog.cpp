// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "inputdialogtest.h"

#include <ZEMButton>
#include <ZEMLineEditSearchDialog>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

using namespace InputDialogTest;
using FormTest::strings;
using Dialog = ZEMLineEditSearchDialog;

/** What only this one of the input dialogs has: the search, and the report of every edit. */
class tst_ZEMLineEditSearchDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void searchButton();
    void textThatIsSetIsNoEdit();
    void searchCount_data();
    void searchCount();
    void resultsInOrder();
    void enterIsNoEdit();
    void editsAreReportedOneByOne();

private:
    Keyboards keyboards;
    ZEMVirtualKeyboard *keyboard = nullptr;
    std::unique_ptr<Dialog> dialog;
    QLineEdit *field = nullptr;
};

void tst_ZEMLineEditSearchDialog::init()
{
    keyboard = keyboards.make();
    dialog = std::make_unique<Dialog>(keyboard);
    field = part<QLineEdit>(*dialog, "lineEdit");
}

void tst_ZEMLineEditSearchDialog::cleanup()
{
    dialog.reset();
}

void tst_ZEMLineEditSearchDialog::searchButton()
{
    const auto *search = part<ZEMButton>(*dialog, "btnSearch");
    QVERIFY(search->icon().isNull());
    QVERIFY(search->text().isEmpty());
    QCOMPARE(search->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(search->font().pointSize(), 16);
    QCOMPARE(search->getBackground().toImage(),
             picture(":/zem/graphics/main/buttons/selector_btn.png"));
    QCOMPARE(search->size(), QSize(71, 50));
}

void tst_ZEMLineEditSearchDialog::textThatIsSetIsNoEdit()
{
    const QSignalSpy edited(dialog.get(), &Dialog::sigTextEdited);
    dialog->setText(QStringLiteral("zon"));
    QCOMPARE(dialog->text(), QStringLiteral("zon"));
    QCOMPARE(edited.count(), 0);
}

void tst_ZEMLineEditSearchDialog::searchCount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("none found") << 0 << QStringLiteral("0");
    QTest::newRow("some") << 42 << QStringLiteral("42");
    QTest::newRow("without group separators") << 1234567 << QStringLiteral("1234567");
    QTest::newRow("unknown") << -1 << QString();
    QTest::newRow("least") << std::numeric_limits<int>::min() << QString();
}

void tst_ZEMLineEditSearchDialog::searchCount()
{
    QFETCH(int, count);
    dialog->setSearchCount(7);
    dialog->setSearchCount(count);
    QTEST(part<ZEMButton>(*dialog, "btnSearch")->text(), "text");
}

void tst_ZEMLineEditSearchDialog::resultsInOrder()
{
    ZEMKeyboardInputHandler handler;
    Results order;
    order.listen(dialog.get());
    order.note(dialog.get(), &Dialog::sigSearch, "search");
    order.note(dialog.get(), &Dialog::sigTextEdited, "edited");
    order.listen(&handler, "handler");
    dialog->show();
    const auto touchAll = [&] {
        for (const char *name : {"btnOK", "btnCancel", "btnSearch"}) {
            part<ZEMButton>(*dialog, name)->click();
        }
        type(keyboard, "a");
    };
    touchAll();
    QCOMPARE(order.take(), strings({"select", "cancel", "search", "edited"}));
    dialog->setActiveInputHandler(&handler);
    touchAll();
    QCOMPARE(order.take(),
             strings({"handler select", "select", "handler cancel", "cancel", "handler search",
                      "search", "handler edited", "edited"}));
    {
        ZEMKeyboardInputHandler passing;
        dialog->setActiveInputHandler(&passing);
    }
    touchAll();
    QCOMPARE(order.take(), strings({"select", "cancel", "search", "edited"}));
    QVERIFY(dialog->isVisible());
}

void tst_ZEMLineEditSearchDialog::enterIsNoEdit()
{
    QSignalSpy select(dialog.get(), &Dialog::sigSelect);
    QSignalSpy edited(dialog.get(), &Dialog::sigTextEdited);
    dialog->show();
    type(keyboard, "ENTER");
    QCOMPARE(select.count(), 1);
    QCOMPARE(edited.count(), 0);
}

void tst_ZEMLineEditSearchDialog::editsAreReportedOneByOne()
{
    ZEMKeyboardInputHandler handler;
    QSignalSpy edited(&handler, &ZEMKeyboardInputHandler::sigTextEdited);
    dialog->setActiveInputHandler(&handler);
    dialog->show();
    const int a = indexOf(*keyboard, "a");
    KeyboardTest::call(keyboard, "sendKey", a);
    KeyboardTest::call(keyboard, "sendKey", a);
    QCOMPARE(edited.count(), 0); // the events are still on their way
    QCoreApplication::sendPostedEvents(field);
    QCOMPARE(edited.count(), 2);
    QCOMPARE(edited.at(0).first().toString(), QStringLiteral("a"));
    QCOMPARE(edited.at(1).first().toString(), QStringLiteral("aa"));
}

QTEST_MAIN(tst_ZEMLineEditSearchDialog)
#include "tst_zemlineeditsearchdialog.moc"
