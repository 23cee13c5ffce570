// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../dashboard/messagelog.h"
#include "inputdialogtest.h"

#include <ZEMLineEditDialog>

#include <QGridLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace InputDialogTest;
using FormTest::strings;

/** What only this one of the input dialogs has: a limit, and a second keyboard. */
class tst_ZEMLineEditDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void stringLengthLimit();
    void asciiModeWithoutAKeyboard();
    void asciiKeyboardIsPlaced();
    void oneKeyboardIsSeen();
    void switchStartsAfresh();
    void secondAsciiKeyboard();
    void keyboardsMayGo();

private:
    Keyboards keyboards;
    ZEMVirtualKeyboard *keyboard = nullptr;
    std::unique_ptr<ZEMLineEditDialog> dialog;
    QLineEdit *field = nullptr;
};

void tst_ZEMLineEditDialog::init()
{
    keyboard = keyboards.make();
    dialog = std::make_unique<ZEMLineEditDialog>(keyboard);
    field = part<QLineEdit>(*dialog, "lineEdit");
}

void tst_ZEMLineEditDialog::cleanup()
{
    dialog.reset();
}

void tst_ZEMLineEditDialog::stringLengthLimit()
{
    dialog->setText(QStringLiteral("zonnig"));
    QCOMPARE(dialog->getStringLengthLimit(), 32767);
    dialog->setStringLengthLimit(3);
    QCOMPARE(dialog->getStringLengthLimit(), 3);
    QCOMPARE(dialog->text(), QStringLiteral("zon"));
}

void tst_ZEMLineEditDialog::asciiModeWithoutAKeyboard()
{
    dialog->show();
    dialog->setAsciiKeyboard(nullptr);
    for (const bool ascii : {true, false}) {
        MessageLog log;
        dialog->setAsciiInputMode(ascii);
        QCOMPARE(log.take(), strings({"setAsciiInputMode called, without a ascii keyboard set"}));
        QVERIFY(keyboard->isVisible());
    }
}

void tst_ZEMLineEditDialog::asciiKeyboardIsPlaced()
{
    Keyboards other;
    ZEMVirtualKeyboard *ascii = other.make();
    dialog->show();
    dialog->setAsciiKeyboard(ascii);
    const auto *place = part<QWidget>(*dialog, "widget");
    const auto *grid = qobject_cast<QGridLayout *>(place->layout());
    QCOMPARE(ascii->parentWidget(), place);
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), ascii);
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), keyboard);
    QCOMPARE(other.factory.preview->parentWidget(), place);
    QVERIFY(!ascii->isVisible());
    QVERIFY(keyboard->isVisible());

    QSignalSpy select(dialog.get(), &ZEMLineEditDialog::sigSelect);
    type(ascii, "a");
    QCOMPARE(dialog->text(), QStringLiteral("a"));
    type(ascii, "ENTER");
    QCOMPARE(select.count(), 1);
}

void tst_ZEMLineEditDialog::oneKeyboardIsSeen()
{
    Keyboards other;
    ZEMVirtualKeyboard *ascii = other.make();
    dialog->setAsciiKeyboard(ascii);
    dialog->show();
    for (const bool mode : {true, true, false, true, false, false}) {
        dialog->setAsciiInputMode(mode);
        QCOMPARE(ascii->isVisible(), mode);
        QCOMPARE(keyboard->isVisible(), !mode);
    }
}

void tst_ZEMLineEditDialog::switchStartsAfresh()
{
    Keyboards other;
    dialog->setAsciiKeyboard(other.make());
    dialog->show();
    field->clear();
    type(keyboard, "CAPS");
    type(keyboard, "CAPS");
    dialog->setAsciiInputMode(true);
    dialog->setAsciiInputMode(false);
    type(keyboard, "a");
    QCOMPARE(dialog->text(), QStringLiteral("a"));
}

void tst_ZEMLineEditDialog::secondAsciiKeyboard()
{
    Keyboards firstKeyboards;
    Keyboards secondKeyboards;
    ZEMVirtualKeyboard *first = firstKeyboards.make();
    ZEMVirtualKeyboard *second = secondKeyboards.make();
    QSignalSpy select(dialog.get(), &ZEMLineEditDialog::sigSelect);
    dialog->setAsciiKeyboard(first);
    dialog->setAsciiKeyboard(second);
    const auto *grid = qobject_cast<QGridLayout *>(part<QWidget>(*dialog, "widget")->layout());
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), second);
    QCOMPARE(first->parentWidget(), second->parentWidget());
    type(first, "ENTER");
    QCOMPARE(select.count(), 1);
    type(second, "ENTER");
    QCOMPARE(select.count(), 2);
}

void tst_ZEMLineEditDialog::keyboardsMayGo()
{
    Keyboards other;
    ZEMVirtualKeyboard *ascii = other.make();
    dialog->setAsciiKeyboard(ascii);
    dialog->show();
    delete keyboard;
    dialog->setAsciiInputMode(true);
    QVERIFY(ascii->isVisible());
    delete ascii;
    MessageLog log;
    dialog->setAsciiInputMode(false);
    QCOMPARE(log.take().size(), 1);
    QVERIFY(part<QWidget>(*dialog, "widget")->findChildren<QWidget *>().isEmpty());
}

QTEST_MAIN(tst_ZEMLineEditDialog)
#include "tst_zemlineeditdialog.moc"
