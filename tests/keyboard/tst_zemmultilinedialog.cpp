// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "inputdialogtest.h"

#include <ZEMButton>
#include <ZEMMultiLineDialog>
#include <ZEMTextLabel>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>

using namespace InputDialogTest;
using FormTest::strings;

namespace {

using MultiLineStage = Stage<ZEMMultiLineDialog>;

constexpr QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive,
                                           QPalette::Disabled};
const QString fewLines = QStringLiteral("een\ntwee");

QString manyLines()
{
    QStringList lines;
    for (int i = 1; i <= 40; ++i) {
        lines.append(QString::number(i));
    }
    return lines.join(QLatin1Char('\n'));
}

/** "up", "down", both or none: the buttons that move the text and can be used. */
QStringList usable(const ZEMMultiLineDialog &dialog)
{
    QStringList names;
    if (part<ZEMButton>(dialog, "btnUp")->isEnabled()) {
        names.append(QStringLiteral("up"));
    }
    if (part<ZEMButton>(dialog, "btnDown")->isEnabled()) {
        names.append(QStringLiteral("down"));
    }
    return names;
}

QScrollBar *barOf(const ZEMMultiLineDialog &dialog)
{
    return part<QTextEdit>(dialog, "textEdit")->verticalScrollBar();
}

} // namespace

/** What only this one of the input dialogs has: many lines, and buttons that scroll. */
class tst_ZEMMultiLineDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formOfTheTitle();
    void formOfTheField();
    void formOfTheScrollButtons_data();
    void formOfTheScrollButtons();
    void formOfTheKeyboardPlace_data();
    void formOfTheKeyboardPlace();
    void textOfLines();
    void keysTypeLines();
    void touchesLeaveTheFocus();
    void showPutsTheCursorWhereItWas();
    void showChecksTheButtonsBeforeItTells();
    void typingPastTheFieldTurnsOnTheUpButton();
    void changesAreCheckedLater();
    void cursorMovesAreChecked();
    void buttonsMoveByASingleStep();
    void dialogMayBeDeletedBeforeTheCheck();
};

void tst_ZEMMultiLineDialog::formOfTheTitle()
{
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    const auto *title = part<ZEMTextLabel>(dialog, "lblTitle");
    QCOMPARE(title->sizePolicy(), FormTest::policy(QSizePolicy::Expanding, QSizePolicy::Preferred));
}

void tst_ZEMMultiLineDialog::formOfTheField()
{
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    const auto *field = part<QTextEdit>(dialog, "textEdit");
    QCOMPARE(field->sizePolicy(), FormTest::policy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    QCOMPARE(field->minimumSize(), QSize(0, 158));
    QVERIFY(!field->acceptDrops());
    QVERIFY(!field->isReadOnly());
    QCOMPARE(field->frameShape(), QFrame::NoFrame);
    QCOMPARE(field->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(field->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(field->styleSheet(),
             QStringLiteral("border: 2px solid; border-radius: 10px;\n"
                            "border-color: #8f8f91;\n"
                            "background-color: rgba(0, 0, 0, 255);"));
    for (const QPalette::ColorGroup group : groups) {
        for (const auto role : {QPalette::Button, QPalette::Base, QPalette::Window}) {
            QCOMPARE(field->palette().color(group, role), QColor(0, 0, 0, 255));
        }
    }
}

void tst_ZEMMultiLineDialog::formOfTheScrollButtons_data()
{
    QTest::addColumn<QByteArray>("icon");
    const QByteArray actions = ":/tango/graphics/tango/actions/";
    QTest::newRow("btnUp") << actions + "go-up-icon.png";
    QTest::newRow("btnDown") << actions + "go-down-icon.png";
}

void tst_ZEMMultiLineDialog::formOfTheScrollButtons()
{
    QFETCH(QByteArray, icon);
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    auto *button = part<ZEMButton>(dialog, QTest::currentDataTag());
    QVERIFY(button);
    QVERIFY(!button->isEnabled()); // there is nothing to scroll yet
    button->setEnabled(true);
    const QImage iconPicture = picture(icon.constData());
    QVERIFY(!iconPicture.isNull());
    QCOMPARE(button->icon().pixmap(iconPicture.size()).toImage(), iconPicture);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->getBackground().toImage(),
             picture(":/zem/graphics/main/buttons/btn_square_small.png"));
    QCOMPARE(button->getBackgroundOff().toImage(),
             picture(":/zem/graphics/main/buttons/btn_square_small_disabled.png"));
    QVERIFY(!button->isCheckable());
}

void tst_ZEMMultiLineDialog::formOfTheKeyboardPlace_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QColor>("color");
    const QColor green(0, 255, 127);
    const QColor yellow(85, 255, 0);
    QTest::newRow("WindowText") << QPalette::WindowText << QColor(85, 85, 0);
    QTest::newRow("Button") << QPalette::Button << green;
    QTest::newRow("BrightText") << QPalette::BrightText << green;
    QTest::newRow("Base") << QPalette::Base << green;
    QTest::newRow("Window") << QPalette::Window << green;
    QTest::newRow("Light") << QPalette::Light << QColor(127, 255, 191);
    QTest::newRow("AlternateBase") << QPalette::AlternateBase << QColor(127, 255, 191);
    QTest::newRow("Midlight") << QPalette::Midlight << QColor(63, 255, 159);
    QTest::newRow("Dark") << QPalette::Dark << QColor(0, 127, 63);
    QTest::newRow("Mid") << QPalette::Mid << QColor(0, 170, 84);
    QTest::newRow("Text") << QPalette::Text << QColor(0, 255, 0);
    QTest::newRow("ButtonText") << QPalette::ButtonText << QColor(0, 255, 0);
    QTest::newRow("Shadow") << QPalette::Shadow << QColor(170, 170, 255);
    QTest::newRow("Highlight") << QPalette::Highlight << QColor(170, 85, 255);
    QTest::newRow("HighlightedText") << QPalette::HighlightedText << QColor(85, 170, 0);
    QTest::newRow("ToolTipBase") << QPalette::ToolTipBase << yellow;
    QTest::newRow("ToolTipText") << QPalette::ToolTipText << yellow;
}

void tst_ZEMMultiLineDialog::formOfTheKeyboardPlace()
{
    QFETCH(QPalette::ColorRole, role);
    QFETCH(QColor, color);
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    const auto *place = part<QWidget>(dialog, "widget");
    QCOMPARE(place->sizePolicy(), FormTest::policy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    for (const QPalette::ColorGroup group : groups) {
        QCOMPARE(place->palette().color(group, role), color);
    }
}

void tst_ZEMMultiLineDialog::textOfLines()
{
    Keyboards keyboards;
    ZEMMultiLineDialog dialog(keyboards.make());
    dialog.setText(fewLines);
    QCOMPARE(part<QTextEdit>(dialog, "textEdit")->toPlainText(), fewLines);
    QCOMPARE(dialog.text(), fewLines);
}

void tst_ZEMMultiLineDialog::keysTypeLines()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    ZEMKeyboardInputHandler handler;
    stage.dialog->setActiveInputHandler(&handler);
    Results results;
    results.listen(stage.dialog);
    results.listen(&handler, "handler");
    stage.dialog->show();
    QCoreApplication::processEvents();
    touchKeys(*stage.dialog, {"a", "ENTER", "b", "SPACE", "b", "DELETE", "a", "ENTER", "ENTER"});
    QCoreApplication::processEvents();
    QCOMPARE(stage.dialog->text(), QStringLiteral("a\nb a\n\n"));
    QCOMPARE(results.take(), QStringList());
}

void tst_ZEMMultiLineDialog::touchesLeaveTheFocus()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->show();
    QCoreApplication::processEvents();
    for (const char *name : {"btnOK", "btnCancel"}) {
        touch(*stage.dialog, name);
        QCOMPARE(QApplication::focusWidget(), stage.get<QTextEdit>("textEdit"));
    }
}

void tst_ZEMMultiLineDialog::showPutsTheCursorWhereItWas()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    auto *field = stage.get<QTextEdit>("textEdit");
    stage.dialog->setText(fewLines);
    stage.dialog->show();
    QTest::qWait(600); // longer than a late selection would take
    QVERIFY(!field->textCursor().hasSelection());
    QCOMPARE(field->textCursor().position(), 0);

    field->moveCursor(QTextCursor::End);
    stage.dialog->hide();
    stage.dialog->show();
    QTest::qWait(1);
    QCOMPARE(field->textCursor().position(), fewLines.size());
}

void tst_ZEMMultiLineDialog::showChecksTheButtonsBeforeItTells()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(manyLines());
    QCoreApplication::processEvents();
    // Wrong on purpose, as they may be while the dialog is hidden.
    stage.get<ZEMButton>("btnUp")->setEnabled(true);
    stage.get<ZEMButton>("btnDown")->setEnabled(false);
    QStringList whenTold;
    connect(stage.dialog, &ZEMMultiLineDialog::sigShown, stage.dialog,
            [&] { whenTold = usable(*stage.dialog); });
    stage.dialog->show();
    QCOMPARE(whenTold, strings({"down"}));
}

void tst_ZEMMultiLineDialog::typingPastTheFieldTurnsOnTheUpButton()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->show();
    QCoreApplication::processEvents();
    QCOMPARE(usable(*stage.dialog), QStringList());
    for (int i = 0; i < 12; ++i) {
        touchKeys(*stage.dialog, {"a", "ENTER"});
    }
    QTRY_VERIFY(usable(*stage.dialog).contains(QStringLiteral("up")));
    QVERIFY(barOf(*stage.dialog)->value() > 0);
    for (int i = 0; i < 24; ++i) {
        touchKeys(*stage.dialog, {"DELETE"});
    }
    QTRY_COMPARE(usable(*stage.dialog), QStringList());
    QVERIFY(stage.dialog->text().isEmpty());

    // The same lines at once: the buttons follow only with the next turn of the event loop.
    auto *field = stage.get<QTextEdit>("textEdit");
    for (int i = 0; i < 12; ++i) {
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier, QStringLiteral("\r\r"));
        QCoreApplication::sendEvent(field, &enter);
    }
    QVERIFY(barOf(*stage.dialog)->value() > 0);
    QCOMPARE(usable(*stage.dialog), QStringList());
    QCoreApplication::processEvents();
    QVERIFY(usable(*stage.dialog).contains(QStringLiteral("up")));
}

void tst_ZEMMultiLineDialog::changesAreCheckedLater()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->show();
    QCoreApplication::processEvents();
    stage.dialog->setText(manyLines());
    QCOMPARE(usable(*stage.dialog), QStringList());
    QTRY_COMPARE(usable(*stage.dialog), strings({"down"}));
    stage.dialog->setText(fewLines);
    QCOMPARE(usable(*stage.dialog), strings({"down"}));
    QTRY_COMPARE(usable(*stage.dialog), QStringList());

    // Text that is added behind a cursor that stays.
    auto *field = stage.get<QTextEdit>("textEdit");
    QTextCursor elsewhere(field->document());
    elsewhere.movePosition(QTextCursor::End);
    elsewhere.insertText(manyLines());
    QCOMPARE(field->textCursor().position(), 0);
    QTRY_COMPARE(usable(*stage.dialog), strings({"down"}));
}

void tst_ZEMMultiLineDialog::cursorMovesAreChecked()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(manyLines());
    stage.dialog->show();
    QCoreApplication::processEvents();
    auto *field = stage.get<QTextEdit>("textEdit");
    field->moveCursor(QTextCursor::End);
    QVERIFY(barOf(*stage.dialog)->value() > 0);
    QCOMPARE(usable(*stage.dialog), strings({"down"}));
    QCoreApplication::processEvents();
    QVERIFY(usable(*stage.dialog).contains(QStringLiteral("up")));
}

void tst_ZEMMultiLineDialog::buttonsMoveByASingleStep()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->setText(manyLines());
    stage.dialog->show();
    QCoreApplication::processEvents();
    QScrollBar *bar = barOf(*stage.dialog);
    const int step = bar->singleStep();
    QVERIFY(step > 0 && step < bar->pageStep());
    QVERIFY(bar->maximum() > 3 * step);

    touch(*stage.dialog, "btnUp"); // at its end already
    QCOMPARE(bar->value(), 0);
    touch(*stage.dialog, "btnDown");
    QCOMPARE(bar->value(), step);
    QCOMPARE(usable(*stage.dialog), strings({"up", "down"}));
    touch(*stage.dialog, "btnDown");
    QCOMPARE(bar->value(), 2 * step);
    touch(*stage.dialog, "btnUp");
    touch(*stage.dialog, "btnUp");
    QCOMPARE(bar->value(), 0);
    QCOMPARE(usable(*stage.dialog), strings({"down"}));

    bar->setValue(bar->maximum() - 1);
    touch(*stage.dialog, "btnDown");
    QCOMPARE(bar->value(), bar->maximum());
    QCOMPARE(usable(*stage.dialog), strings({"up"}));
    touch(*stage.dialog, "btnUp");
    QCOMPARE(bar->value(), bar->maximum() - step);
    QCOMPARE(usable(*stage.dialog), strings({"up", "down"}));
    QCOMPARE(QApplication::focusWidget(), stage.get<QTextEdit>("textEdit"));
}

void tst_ZEMMultiLineDialog::dialogMayBeDeletedBeforeTheCheck()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    stage.dialog->show();
    stage.dialog->setText(manyLines());
    touchKeys(*stage.dialog, {"a"});
    delete stage.dialog;
    QTest::qWait(1);
}

QTEST_MAIN(tst_ZEMMultiLineDialog)
#include "tst_zemmultilinedialog.moc"
