// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "inputdialogtest.h"

#include <ZEMButton>
#include <ZEMPasswordDialog>

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

using namespace InputDialogTest;
using FormTest::strings;

namespace {

using PasswordStage = Stage<ZEMPasswordDialog>;

const QString secret = QStringLiteral("geheim");

} // namespace

/** What only this one of the input dialogs has: a text that can be hidden. */
class tst_ZEMPasswordDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formOfTheToggle();
    void toggleIsTranslated();
    void textIsInClear();
    void keysTypeIntoTheHiddenField();
    void slotMasksAndChecks_data();
    void slotMasksAndChecks();
    void slotLeavesOrTakesTheFocus();
    void slotIsConnectedWithOneArgument();
    void touchOnTheToggleSwitchesTheMask();
    void touchOnTheToggleEndsTheSelection();
    void textOutlivesTheUse();
};

void tst_ZEMPasswordDialog::formOfTheToggle()
{
    Keyboards keyboards;
    const ZEMPasswordDialog dialog(keyboards.make());
    const auto *toggle = part<ZEMButton>(dialog, "btnShowPassword");
    QCOMPARE(toggle->sizePolicy(), FormTest::policy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(toggle->minimumSize(), QSize(100, 50));
    QCOMPARE(toggle->maximumSize(), QSize(100, 50));
    QCOMPARE(toggle->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(toggle->font().pointSize(), 14);
    QVERIFY(toggle->isCheckable());
    QVERIFY(!toggle->isChecked());
    QCOMPARE(toggle->text(), QStringLiteral("Show"));
    QVERIFY(toggle->icon().isNull());
    QCOMPARE(toggle->getBackground().toImage(),
             picture(":/zem/graphics/main/buttons/btn_rect_xs_small.png"));
    QCOMPARE(toggle->getBackgroundOff().toImage(),
             picture(":/zem/graphics/main/buttons/btn_rect_xs_small_disabled.png"));
}

void tst_ZEMPasswordDialog::toggleIsTranslated()
{
    const WidgetTest::ContextTranslator translator;
    Keyboards keyboards;
    const ZEMPasswordDialog dialog(keyboards.make());
    QCOMPARE(part<ZEMButton>(dialog, "btnShowPassword")->text(),
             QStringLiteral("ZEMPasswordDialog/Show"));
}

void tst_ZEMPasswordDialog::textIsInClear()
{
    Keyboards keyboards;
    ZEMPasswordDialog dialog(keyboards.make());
    dialog.setText(secret);
    dialog.slotHidePassword(true);
    QCOMPARE(dialog.text(), secret); // whatever is shown
    QVERIFY(part<QLineEdit>(dialog, "lineEdit")->displayText() != secret);
}

void tst_ZEMPasswordDialog::keysTypeIntoTheHiddenField()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(QStringLiteral("x"));
    stage.dialog->setAutoSelect(false);
    stage.dialog->show();
    QCoreApplication::processEvents();
    stage.dialog->slotHidePassword(true);
    QCoreApplication::processEvents();
    touchKeys(*stage.dialog, {"a", "b", "SPACE", "a", "DELETE", "b"});
    QTRY_COMPARE(stage.dialog->text(), QStringLiteral("xab b"));
}

void tst_ZEMPasswordDialog::slotMasksAndChecks_data()
{
    QTest::addColumn<bool>("hide");
    QTest::addColumn<bool>("before");
    QTest::newRow("hide") << true << false;
    QTest::newRow("hide again") << true << true;
    QTest::newRow("show") << false << true;
    QTest::newRow("show again") << false << false;
}

void tst_ZEMPasswordDialog::slotMasksAndChecks()
{
    QFETCH(bool, hide);
    QFETCH(bool, before);
    Keyboards keyboards;
    ZEMPasswordDialog dialog(keyboards.make());
    dialog.slotHidePassword(before, false);
    const auto *toggle = part<ZEMButton>(dialog, "btnShowPassword");
    const QSignalSpy toggled(toggle, &QAbstractButton::toggled);
    dialog.slotHidePassword(hide, false);
    QCOMPARE(toggle->isChecked(), hide);
    QCOMPARE(toggled.count(), 0);
    QVERIFY(!toggle->signalsBlocked());
    QCOMPARE(part<QLineEdit>(dialog, "lineEdit")->echoMode(),
             hide ? QLineEdit::Password : QLineEdit::Normal);
}

void tst_ZEMPasswordDialog::slotLeavesOrTakesTheFocus()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setAutoSelect(false);
    stage.dialog->show();
    QCoreApplication::processEvents();
    auto *field = stage.get<QLineEdit>("lineEdit");
    auto *other = stage.get<ZEMButton>("btnCancel");
    MouseLog log(field);

    other->setFocus();
    stage.dialog->slotHidePassword(true, false);
    QTest::qWait(1);
    QCOMPARE(QApplication::focusWidget(), other);
    QVERIFY(log.events.isEmpty());

    stage.dialog->slotHidePassword(true);
    QCOMPARE(QApplication::focusWidget(), field);
    QTest::qWait(1);
    QCOMPARE(log.events, tapOnLastPixel(field));

    other->setFocus();
    stage.dialog->slotHidePassword(false, true);
    QCOMPARE(QApplication::focusWidget(), field);
    QTest::qWait(1);
    QCOMPARE(log.events, tapOnLastPixel(field) + tapOnLastPixel(field));
}

void tst_ZEMPasswordDialog::slotIsConnectedWithOneArgument()
{
    Keyboards keyboards;
    ZEMPasswordDialog dialog(keyboards.make());
    auto *toggle = part<ZEMButton>(dialog, "btnShowPassword");
    // The connection is there already, so a unique one cannot be made again.
    QVERIFY(!connect(toggle, SIGNAL(toggled(bool)), &dialog, SLOT(slotHidePassword(bool)),
                     Qt::UniqueConnection));
}

void tst_ZEMPasswordDialog::touchOnTheToggleSwitchesTheMask()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(secret);
    stage.dialog->setAutoSelect(false);
    stage.dialog->show();
    QCoreApplication::processEvents();
    auto *field = stage.get<QLineEdit>("lineEdit");
    const auto *toggle = stage.get<ZEMButton>("btnShowPassword");
    const QSignalSpy toggled(toggle, &QAbstractButton::toggled);
    for (const bool hidden : {true, false, true}) {
        stage.get<ZEMButton>("btnCancel")->setFocus();
        touch(*stage.dialog, "btnShowPassword");
        QCOMPARE(toggle->isChecked(), hidden);
        QCOMPARE(field->echoMode(), hidden ? QLineEdit::Password : QLineEdit::Normal);
        QCOMPARE(QApplication::focusWidget(), field);
        QTest::qWait(1);
        QCOMPARE(stage.dialog->text(), secret);
    }
    QCOMPARE(toggled.count(), 3);
}

void tst_ZEMPasswordDialog::touchOnTheToggleEndsTheSelection()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(secret);
    stage.dialog->setAutoSelect(false);
    stage.dialog->show();
    QTest::qWait(1);
    auto *field = stage.get<QLineEdit>("lineEdit");
    field->setSelection(0, 3);
    QVERIFY(field->hasSelectedText());
    touch(*stage.dialog, "btnShowPassword");
    QTest::qWait(1);
    QVERIFY(!field->hasSelectedText());
    QCOMPARE(field->cursorPosition(), secret.size());
}

void tst_ZEMPasswordDialog::textOutlivesTheUse()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(secret);
    stage.dialog->slotHidePassword(true);
    stage.dialog->show();
    stage.get<ZEMButton>("btnOK")->click();
    stage.dialog->hide();
    stage.dialog->show();
    QCOMPARE(stage.dialog->text(), secret);
    QCOMPARE(stage.get<QLineEdit>("lineEdit")->echoMode(), QLineEdit::Password);
    stage.dialog->setText(QString());
    QVERIFY(stage.dialog->text().isEmpty());
}

QTEST_MAIN(tst_ZEMPasswordDialog)
#include "tst_zempassworddialog.moc"
