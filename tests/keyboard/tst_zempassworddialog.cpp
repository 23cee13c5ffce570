// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "inputdialogtest.h"

#include <ZEMButton>
#include <ZEMPasswordDialog>
#include <ZEMPixmap>
#include <ZEMTextLabel>

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace InputDialogTest;
using FormTest::strings;

namespace {

using PasswordStage = Stage<ZEMPasswordDialog>;

constexpr int secondSelection = 500; // ms
const QString secret = QStringLiteral("geheim");

QImage picture(const char *path)
{
    return QPixmap(QLatin1String(path)).toImage();
}

} // namespace

class tst_ZEMPasswordDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDialog();
    void formOfThePage();
    void formOfTheRows();
    void formOfTheField();
    void formOfTheToggle();
    void formOfTheButtons();
    void textsAreTranslated();
    void declaresItsSignalsAndSlots();
    void takesTheKeyboard();
    void titleAndText();
    void keysTypeIntoTheField();
    void tellsTheResult_data();
    void tellsTheResult();
    void tellsTheHandlerThatWasSetLast();
    void deletedHandlerIsForgotten();
    void showTakesTheFocus();
    void showSelectsTwice();
    void showWithoutAutoSelectPutsTheCursorAtTheEnd();
    void hideSoonAfterShow();
    void slotMasksAndChecks_data();
    void slotMasksAndChecks();
    void slotLeavesOrTakesTheFocus();
    void slotIsConnectedWithOneArgument();
    void touchOnTheToggleSwitchesTheMask();
    void touchOnTheToggleEndsTheSelection();
    void textOutlivesTheUse();
    void dialogMayBeDeletedFromItsSignals_data();
    void dialogMayBeDeletedFromItsSignals();
};

void tst_ZEMPasswordDialog::newDialog()
{
    Keyboards keyboards;
    QWidget host;
    ZEMPasswordDialog dialog(keyboards.make(), &host);
    QCOMPARE(dialog.parentWidget(), &host);
    QCOMPARE(dialog.objectName(), QStringLiteral("ZEMPasswordDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(dialog.size(), QSize(724, 480));
    QCOMPARE(dialog.getBackgroundColor(), QColor(0, 0, 0, 255));
    QVERIFY(dialog.getBackground().isNull());
    QVERIFY(dialog.text().isEmpty());
    QVERIFY(part<ZEMTextLabel>(dialog, "lblTitle")->text().isEmpty());
    QCOMPARE(part<QLineEdit>(dialog, "lineEdit")->echoMode(), QLineEdit::Normal);
    QVERIFY(!part<ZEMButton>(dialog, "btnShowPassword")->isChecked());

    // No press is on its way to a field that has not been asked for yet.
    MouseLog log(part<QLineEdit>(dialog, "lineEdit"));
    QCoreApplication::sendPostedEvents();
    QVERIFY(log.events.isEmpty());
}

void tst_ZEMPasswordDialog::formOfThePage()
{
    Keyboards keyboards;
    const ZEMPasswordDialog dialog(keyboards.make());
    const auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(grid->contentsMargins(), QMargins(10, 0, 10, 0));
    QCOMPARE(
        FormTest::items(grid),
        strings({"0,0: spacer 50x20 Preferred Minimum", "0,1: ZEMPageBackground zemPageBackground",
                 "0,2: spacer 50x20 Preferred Minimum"}));
    const auto *page = part<ZEMPageBackground>(dialog, "zemPageBackground");
    QCOMPARE(page->minimumSize(), QSize(0, 0));
    QCOMPARE(page->getBackgroundColor(), QColor(0, 0, 0, 255));
    const auto *column = qobject_cast<QVBoxLayout *>(page->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QStringLiteral("verticalLayout_2"));
    QCOMPARE(column->spacing(), 0);
    const QMargins style = FormTest::styleMarginsOfAChild();
    QCOMPARE(column->contentsMargins(), QMargins(0, style.top(), 0, style.bottom()));
    QCOMPARE(FormTest::items(column),
             strings({"QHBoxLayout horizontalLayout_4", "spacer 20x40 Minimum Preferred",
                      "QHBoxLayout horizontalLayout", "QHBoxLayout horizontalLayout_3"}));
}

void tst_ZEMPasswordDialog::formOfTheRows()
{
    Keyboards keyboards;
    const ZEMPasswordDialog dialog(keyboards.make());
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "horizontalLayout_4")),
             strings({"spacer 40x20 Expanding Minimum", "QVBoxLayout verticalLayout",
                      "spacer 40x20 Expanding Minimum"}));
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "verticalLayout")),
             strings({"ZEMTextLabel lblTitle", "QHBoxLayout horizontalLayout_2"}));
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "horizontalLayout_2")),
             strings({"ZEMPixmap zemPixmap", "ZEMButton btnShowPassword"}));
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "horizontalLayout")),
             strings({"spacer 40x20 Preferred Minimum", "QWidget widget",
                      "spacer 40x20 Preferred Minimum"}));
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "horizontalLayout_3")),
             strings({"spacer 40x20 Expanding Minimum", "ZEMButton btnCancel", "ZEMButton btnOK",
                      "spacer 40x20 Expanding Minimum"}));
    QCOMPARE(part<QHBoxLayout>(dialog, "horizontalLayout_3")->spacing(), 24);
    const auto *title = part<ZEMTextLabel>(dialog, "lblTitle");
    QCOMPARE(title->font().pointSize(), 18);
    QCOMPARE(title->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_ZEMPasswordDialog::formOfTheField()
{
    Keyboards keyboards;
    const ZEMPasswordDialog dialog(keyboards.make());
    const auto *ground = part<ZEMPixmap>(dialog, "zemPixmap");
    QCOMPARE(ground->sizePolicy(), FormTest::policy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(ground->minimumSize(), QSize(492, 50));
    QCOMPARE(ground->maximumSize(), QSize(492, 50));
    QCOMPARE(ground->getPixmap().toImage(),
             picture(":/zem/graphics/main/buttons/doel_instellingen_btn_act.png"));
    QCOMPARE(ground->layout()->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(FormTest::items(ground->layout()), strings({"0,0: QLineEdit lineEdit"}));
    const auto *field = part<QLineEdit>(dialog, "lineEdit");
    QVERIFY(!field->hasFrame());
    QCOMPARE(field->font().pointSize(), 16);
    QCOMPARE(field->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    const QPalette palette = field->palette();
    QCOMPARE(palette.color(QPalette::Active, QPalette::Base), QColor(255, 255, 255, 0));
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::Base), QColor(255, 255, 255, 0));
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::Base), QColor(240, 240, 240, 255));
}

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
    QCOMPARE(toggle->text(), QStringLiteral("Show"));
    QVERIFY(toggle->icon().isNull());
    QCOMPARE(toggle->getBackground().toImage(),
             picture(":/zem/graphics/main/buttons/btn_rect_xs_small.png"));
    QCOMPARE(toggle->getBackgroundOff().toImage(),
             picture(":/zem/graphics/main/buttons/btn_rect_xs_small_disabled.png"));
}

void tst_ZEMPasswordDialog::formOfTheButtons()
{
    Keyboards keyboards;
    const ZEMPasswordDialog dialog(keyboards.make());
    const QPair<const char *, const char *> buttons[] = {
        {"btnCancel", ":/tango/graphics/tango/actions/process-stop-icon.png"},
        {"btnOK", ":/zem/graphics/icons/green-ok-icon_small.png"}};
    for (const auto &entry : buttons) {
        const auto *button = part<ZEMButton>(dialog, entry.first);
        const QImage icon = picture(entry.second);
        QVERIFY(!icon.isNull());
        QCOMPARE(button->icon().pixmap(icon.size()).toImage(), icon);
        QCOMPARE(button->getBackground().toImage(),
                 picture(":/zem/graphics/main/buttons/btn_rect_xs_small.png"));
        QVERIFY(button->getBackgroundOff().isNull());
        QCOMPARE(button->size(), QSize(100, 50));
    }
}

void tst_ZEMPasswordDialog::textsAreTranslated()
{
    const WidgetTest::ContextTranslator translator;
    Keyboards keyboards;
    const ZEMPasswordDialog dialog(keyboards.make());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("ZEMPasswordDialog/Form"));
    QCOMPARE(part<ZEMButton>(dialog, "btnShowPassword")->text(),
             QStringLiteral("ZEMPasswordDialog/Show"));
}

void tst_ZEMPasswordDialog::declaresItsSignalsAndSlots()
{
    QCOMPARE(KeyboardTest::ownMethods(ZEMPasswordDialog::staticMetaObject),
             strings({"signal sigShown()", "signal sigSelect()", "signal sigCancel()",
                      "public slotHidePassword(bool,bool)", "public slotHidePassword(bool)",
                      "private slotInputHandlerSelect()", "private slotInputHandlerCancel()",
                      "private setFocusToLineedit()"}));
    QVERIFY(WidgetTest::ownProperties(ZEMPasswordDialog::staticMetaObject).isEmpty());
}

void tst_ZEMPasswordDialog::takesTheKeyboard()
{
    Keyboards keyboards;
    const QPointer<ZEMVirtualKeyboard> keyboard = keyboards.make();
    {
        const ZEMPasswordDialog dialog(keyboard);
        const auto *place = part<QWidget>(dialog, "widget");
        QCOMPARE(keyboard->parentWidget(), place);
        QCOMPARE(placeInGrid(keyboard), QPoint(1, 1));
        QCOMPARE(keyboards.factory.preview->parentWidget(), place);
        QCOMPARE(keyboards.factory.background->parentWidget(), place);
    }
    QVERIFY(keyboard.isNull());
}

void tst_ZEMPasswordDialog::titleAndText()
{
    Keyboards keyboards;
    ZEMPasswordDialog dialog(keyboards.make());
    dialog.setTitle(QStringLiteral("Wachtwoord"));
    QCOMPARE(part<ZEMTextLabel>(dialog, "lblTitle")->text(), QStringLiteral("Wachtwoord"));
    dialog.setText(secret);
    QCOMPARE(part<QLineEdit>(dialog, "lineEdit")->text(), secret);
    QCOMPARE(dialog.text(), secret);
    dialog.slotHidePassword(true);
    QCOMPARE(dialog.text(), secret); // in clear, whatever is shown
    QVERIFY(part<QLineEdit>(dialog, "lineEdit")->displayText() != secret);
}

void tst_ZEMPasswordDialog::keysTypeIntoTheField()
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

void tst_ZEMPasswordDialog::tellsTheResult_data()
{
    QTest::addColumn<QString>("touched");
    QTest::addColumn<QStringList>("told");
    const QStringList select = strings({"handler select", "select"});
    const QStringList cancel = strings({"handler cancel", "cancel"});
    QTest::newRow("ok button") << QStringLiteral("btnOK") << select;
    QTest::newRow("cancel button") << QStringLiteral("btnCancel") << cancel;
    QTest::newRow("enter key") << QString() << select;
}

void tst_ZEMPasswordDialog::tellsTheResult()
{
    QFETCH(QString, touched);
    QFETCH(QStringList, told);
    PasswordStage stage;
    QVERIFY(stage.isReady);
    ZEMKeyboardInputHandler handler;
    stage.dialog->setActiveInputHandler(&handler);
    Results results;
    results.listen(stage.dialog);
    results.listen(&handler, "handler");
    stage.dialog->setText(secret);
    stage.dialog->show();
    QCoreApplication::processEvents();
    if (touched.isEmpty()) {
        touchKeys(*stage.dialog, {"ENTER"});
    } else {
        touch(*stage.dialog, touched.toLatin1().constData());
    }
    QCoreApplication::processEvents();
    QCOMPARE(results.take(), told);
    QVERIFY(stage.dialog->isVisible()); // to close it is the host's business
    QCOMPARE(stage.dialog->text(), secret);

    // Again: the handler stays, and without one the dialog tells alone.
    stage.get<ZEMButton>("btnOK")->click();
    QCOMPARE(results.take(), strings({"handler select", "select"}));
    stage.dialog->setActiveInputHandler(nullptr);
    stage.get<ZEMButton>("btnOK")->click();
    stage.get<ZEMButton>("btnCancel")->click();
    QCOMPARE(results.take(), strings({"select", "cancel"}));
}

void tst_ZEMPasswordDialog::tellsTheHandlerThatWasSetLast()
{
    Keyboards keyboards;
    ZEMPasswordDialog dialog(keyboards.make());
    ZEMKeyboardInputHandler first;
    ZEMKeyboardInputHandler second;
    Results results;
    results.listen(&first, "first");
    results.listen(&second, "second");
    dialog.setActiveInputHandler(&first);
    dialog.setActiveInputHandler(&second);
    part<ZEMButton>(dialog, "btnCancel")->click();
    part<ZEMButton>(dialog, "btnOK")->click();
    QCOMPARE(results.take(), strings({"second cancel", "second select"}));
}

void tst_ZEMPasswordDialog::deletedHandlerIsForgotten()
{
    Keyboards keyboards;
    ZEMPasswordDialog dialog(keyboards.make());
    Results results;
    results.listen(&dialog);
    auto *handler = new ZEMKeyboardInputHandler;
    dialog.setActiveInputHandler(handler);
    connect(handler, &ZEMKeyboardInputHandler::sigSelect, &dialog, [handler] { delete handler; });
    part<ZEMButton>(dialog, "btnOK")->click();
    part<ZEMButton>(dialog, "btnOK")->click();
    part<ZEMButton>(dialog, "btnCancel")->click();
    QCOMPARE(results.take(), strings({"select", "select", "cancel"}));
}

void tst_ZEMPasswordDialog::showTakesTheFocus()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    auto *field = stage.get<QLineEdit>("lineEdit");
    MouseLog log(field);
    bool focusIsThere = false;
    int shown = 0;
    connect(stage.dialog, &ZEMPasswordDialog::sigShown, stage.dialog, [&] {
        ++shown;
        focusIsThere = QApplication::focusWidget() == field;
    });
    stage.dialog->show();
    QCOMPARE(shown, 1);
    QVERIFY(focusIsThere);
    QVERIFY(log.events.isEmpty()); // posted, not sent
    QCoreApplication::sendPostedEvents(field, QEvent::MouseButtonPress);
    QCOMPARE(log.events, tapOnLastPixel(field));
    stage.dialog->hide();
    stage.dialog->show();
    QCOMPARE(shown, 2);
    QTest::qWait(1);
    QCOMPARE(log.events, tapOnLastPixel(field) + tapOnLastPixel(field));
}

void tst_ZEMPasswordDialog::showSelectsTwice()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    auto *field = stage.get<QLineEdit>("lineEdit");
    stage.dialog->setText(secret);
    stage.dialog->show();
    QVERIFY(!field->hasSelectedText());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(field->selectedText(), secret);

    field->deselect();
    QTest::qWait(secondSelection / 2);
    QVERIFY(!field->hasSelectedText());
    QTRY_COMPARE_WITH_TIMEOUT(field->selectedText(), secret, 2 * secondSelection);
    field->deselect();
    QTest::qWait(secondSelection + secondSelection / 2);
    QVERIFY(!field->hasSelectedText());
}

void tst_ZEMPasswordDialog::showWithoutAutoSelectPutsTheCursorAtTheEnd()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    auto *field = stage.get<QLineEdit>("lineEdit");
    stage.dialog->setAutoSelect(false);
    stage.dialog->setText(secret);
    field->setCursorPosition(2);
    stage.dialog->show();
    QTest::qWait(secondSelection + secondSelection / 2);
    QVERIFY(!field->hasSelectedText());
    QCOMPARE(field->cursorPosition(), secret.size());

    stage.dialog->setAutoSelect(true);
    stage.dialog->hide();
    stage.dialog->show();
    QTRY_COMPARE(field->selectedText(), secret);
}

void tst_ZEMPasswordDialog::hideSoonAfterShow()
{
    PasswordStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(secret);
    stage.dialog->show();
    stage.dialog->hide();
    QTest::qWait(secondSelection + secondSelection / 5);
    QCOMPARE(stage.get<QLineEdit>("lineEdit")->selectedText(), secret);

    stage.dialog->show();
    delete stage.dialog; // the second selection finds nothing
    QTest::qWait(secondSelection + secondSelection / 5);
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

void tst_ZEMPasswordDialog::dialogMayBeDeletedFromItsSignals_data()
{
    QTest::addColumn<QString>("touched");
    QTest::addColumn<bool>("byHandler");
    QTest::newRow("select") << QStringLiteral("btnOK") << false;
    QTest::newRow("cancel") << QStringLiteral("btnCancel") << false;
    QTest::newRow("select, told by the handler") << QStringLiteral("btnOK") << true;
    QTest::newRow("cancel, told by the handler") << QStringLiteral("btnCancel") << true;
}

void tst_ZEMPasswordDialog::dialogMayBeDeletedFromItsSignals()
{
    QFETCH(QString, touched);
    QFETCH(bool, byHandler);
    PasswordStage stage;
    QVERIFY(stage.isReady);
    const QPointer<ZEMPasswordDialog> dialog = stage.dialog;
    ZEMKeyboardInputHandler handler;
    const auto end = [dialog] { delete dialog; };
    if (byHandler) {
        dialog->setActiveInputHandler(&handler);
        connect(&handler, &ZEMKeyboardInputHandler::sigSelect, this, end);
        connect(&handler, &ZEMKeyboardInputHandler::sigCancel, this, end);
    } else {
        connect(dialog, &ZEMPasswordDialog::sigSelect, this, end);
        connect(dialog, &ZEMPasswordDialog::sigCancel, this, end);
    }
    dialog->show();
    QCoreApplication::processEvents();
    touch(*dialog, touched.toLatin1().constData());
    QVERIFY(dialog.isNull());
    QTest::qWait(secondSelection + secondSelection / 5);
}

QTEST_MAIN(tst_ZEMPasswordDialog)
#include "tst_zempassworddialog.moc"
