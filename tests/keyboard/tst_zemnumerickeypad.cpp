// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "inputdialogtest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMNumericKeypad>
#include <ZEMTextLabel>

#include <QIntValidator>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace InputDialogTest;

/** What only this one of the input dialogs has: the kinds of values that it takes, and reset(). */
class tst_ZEMNumericKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void popupsStandOnTheDialog();
    void settersOfTheField();
    void resetForgetsAll();

private:
    Keyboards keyboards;
    ZEMVirtualKeyboard *keyboard = nullptr;
    std::unique_ptr<ZEMNumericKeypad> dialog;
    QLineEdit *field = nullptr;
};

void tst_ZEMNumericKeypad::init()
{
    keyboard = keyboards.make();
    dialog = std::make_unique<ZEMNumericKeypad>(keyboard);
    field = part<QLineEdit>(*dialog, "lineEdit");
}

void tst_ZEMNumericKeypad::cleanup()
{
    dialog.reset();
}

void tst_ZEMNumericKeypad::popupsStandOnTheDialog()
{
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get(), ZemTest::hangs));
    KeyboardTest::call(keyboard, "buttonPressed", indexOf(*keyboard, "a"));
    const ZEMVirtualKey *preview = keyboards.factory.preview;
    QVERIFY(preview->isVisible());
    const auto *key = keyboard->findChild<QStackedWidget *>()->findChild<ZEMVirtualKey *>();
    QCOMPARE(preview->mapTo(dialog.get(), QPoint(-5, 45)), key->mapTo(dialog.get(), QPoint()));
}

void tst_ZEMNumericKeypad::settersOfTheField()
{
    dialog->setValue(QStringLiteral("12345"));
    dialog->setPasswordEntry(true);
    QCOMPARE(field->echoMode(), QLineEdit::Password);
    QVERIFY(field->displayText() != QStringLiteral("12345"));
    QCOMPARE(dialog->value(), QStringLiteral("12345"));
    dialog->setPasswordEntry(false);
    QCOMPARE(field->echoMode(), QLineEdit::Normal);
    dialog->setMaxLength(3);
    QCOMPARE(field->maxLength(), 3);
    QCOMPARE(dialog->value(), QStringLiteral("123"));
    const QIntValidator validator(0, 9);
    dialog->setValidator(const_cast<QIntValidator *>(&validator));
    QCOMPARE(field->validator(), &validator);
    dialog->setValidator(nullptr);
    QVERIFY(!field->validator());
}

void tst_ZEMNumericKeypad::resetForgetsAll()
{
    ZEMKeyboardInputHandler handler;
    QSignalSpy select(&handler, &ZEMKeyboardInputHandler::sigSelect);
    QIntValidator validator(0, 99);
    dialog->setTitle(QStringLiteral("Title"));
    dialog->setValue(QStringLiteral("42"));
    dialog->setValidator(&validator);
    dialog->setMaxLength(2);
    dialog->setPasswordEntry(true);
    dialog->setAutoSelectInput(false);
    dialog->setActiveInputHandler(&handler);
    dialog->reset();

    QVERIFY(part<ZEMTextLabel>(*dialog, "lblTitle")->text().isEmpty());
    QVERIFY(dialog->value().isEmpty());
    QVERIFY(!field->validator());
    QCOMPARE(field->maxLength(), 32767);
    QCOMPARE(field->echoMode(), QLineEdit::Normal);
    part<ZEMButton>(*dialog, "btnOK")->click();
    QCOMPARE(select.count(), 0);
    dialog->setValue(QStringLiteral("7"));
    dialog->show();
    QTRY_COMPARE(field->selectedText(), QStringLiteral("7"));
}

QTEST_MAIN(tst_ZEMNumericKeypad)
#include "tst_zemnumerickeypad.moc"
