// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "inputdialogtest.h"

#include <ZEMButton>
#include <ZEMMultiLineDialog>
#include <ZEMTextLabel>

#include <QApplication>
#include <QGridLayout>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QVBoxLayout>

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

QImage picture(const char *path)
{
    return QPixmap(QLatin1String(path)).toImage();
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

class tst_ZEMMultiLineDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDialog();
    void formOfThePage();
    void formOfTheRows();
    void formOfTheTitle();
    void formOfTheField();
    void formOfTheButtons_data();
    void formOfTheButtons();
    void formOfTheKeyboardPlace_data();
    void formOfTheKeyboardPlace();
    void textsAreTranslated();
    void declaresItsSignalsAndSlots();
    void takesTheKeyboard();
    void titleAndPlainText();
    void keysTypeLines();
    void tellsTheResult_data();
    void tellsTheResult();
    void tellsTheHandlerThatWasSetLast();
    void deletedHandlerIsForgotten();
    void showTakesTheFocusAndSelectsNothing();
    void showChecksTheButtonsBeforeItTells();
    void typingPastTheFieldTurnsOnTheUpButton();
    void changesAreCheckedLater();
    void cursorMovesAreChecked();
    void buttonsMoveByASingleStep();
    void dialogMayBeDeletedFromItsSignals_data();
    void dialogMayBeDeletedFromItsSignals();
    void dialogMayBeDeletedBeforeTheCheck();
};

void tst_ZEMMultiLineDialog::newDialog()
{
    Keyboards keyboards;
    QWidget host;
    ZEMMultiLineDialog dialog(keyboards.make(), &host);
    QCOMPARE(dialog.parentWidget(), &host);
    QCOMPARE(dialog.objectName(), QStringLiteral("ZEMMultiLineDialog"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(dialog.size(), QSize(800, 480));
    QCOMPARE(dialog.getBackgroundColor(), QColor(0, 0, 0, 255));
    QVERIFY(dialog.getBackground().isNull());
    QVERIFY(dialog.text().isEmpty());
    QCOMPARE(usable(dialog), QStringList());
}

void tst_ZEMMultiLineDialog::formOfThePage()
{
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    const auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(grid->contentsMargins(), QMargins(10, 0, 10, 0));
    QCOMPARE(
        FormTest::items(grid),
        strings({"0,0: spacer 15x20 Preferred Minimum", "0,1: ZEMPageBackground zemPageBackground",
                 "0,2: spacer 15x20 Preferred Minimum"}));
    const auto *page = part<ZEMPageBackground>(dialog, "zemPageBackground");
    QCOMPARE(page->minimumSize(), QSize(0, 0));
    QCOMPARE(page->getBackgroundColor(), QColor(0, 0, 0, 255));
    const auto *column = qobject_cast<QVBoxLayout *>(page->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(FormTest::items(column),
             strings({"QHBoxLayout horizontalLayout_2", "QHBoxLayout horizontalLayout"}));
}

void tst_ZEMMultiLineDialog::formOfTheRows()
{
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    const auto itemsOf = [&](const char *name) {
        return FormTest::items(part<QLayout>(dialog, name));
    };
    const char *const gap = "spacer 15x20 Preferred Minimum";
    const char *const side = "spacer 20x40 Minimum Preferred";
    const char *const between = "spacer 20x20 Minimum Fixed";
    const char *const edge = "spacer 40x20 Preferred Minimum";
    QCOMPARE(itemsOf("horizontalLayout_2"),
             strings({gap, "QVBoxLayout verticalLayout_4", gap, "QVBoxLayout verticalLayout_2", gap,
                      "QVBoxLayout verticalLayout_3", gap}));
    QCOMPARE(itemsOf("verticalLayout_4"),
             strings({side, "ZEMButton btnUp", between, "ZEMButton btnDown", side}));
    QCOMPARE(itemsOf("verticalLayout_2"), strings({"ZEMTextLabel lblTitle", "QTextEdit textEdit"}));
    QCOMPARE(part<QLayout>(dialog, "verticalLayout_2")->spacing(), 6);
    QCOMPARE(itemsOf("verticalLayout_3"),
             strings({side, "ZEMButton btnOK", between, "ZEMButton btnCancel", side}));
    QCOMPARE(itemsOf("horizontalLayout"), strings({edge, "QWidget widget", edge}));
}

void tst_ZEMMultiLineDialog::formOfTheTitle()
{
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    const auto *title = part<ZEMTextLabel>(dialog, "lblTitle");
    QCOMPARE(title->text(), QStringLiteral("Select Farm"));
    QCOMPARE(title->sizePolicy(), FormTest::policy(QSizePolicy::Expanding, QSizePolicy::Preferred));
    QCOMPARE(title->font().pointSize(), 18);
    QCOMPARE(title->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_ZEMMultiLineDialog::formOfTheField()
{
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    const auto *field = part<QTextEdit>(dialog, "textEdit");
    QCOMPARE(field->sizePolicy(), FormTest::policy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    QCOMPARE(field->minimumSize(), QSize(0, 158));
    QCOMPARE(field->font().pointSize(), 16);
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

void tst_ZEMMultiLineDialog::formOfTheButtons_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<bool>("hasOff");
    const QString actions = QStringLiteral(":/tango/graphics/tango/actions/");
    QTest::newRow("btnUp") << actions + QStringLiteral("go-up-icon.png") << true;
    QTest::newRow("btnDown") << actions + QStringLiteral("go-down-icon.png") << true;
    QTest::newRow("btnOK") << QStringLiteral(":/zem/graphics/icons/green-ok-icon_small.png")
                           << false;
    QTest::newRow("btnCancel") << actions + QStringLiteral("process-stop-icon.png") << false;
}

void tst_ZEMMultiLineDialog::formOfTheButtons()
{
    QFETCH(QString, icon);
    QFETCH(bool, hasOff);
    Keyboards keyboards;
    ZEMMultiLineDialog dialog(keyboards.make());
    auto *button = part<ZEMButton>(dialog, QTest::currentDataTag());
    QVERIFY(button);
    button->setEnabled(true);
    const QImage iconPicture = picture(icon.toLatin1().constData());
    QVERIFY(!iconPicture.isNull());
    QCOMPARE(button->icon().pixmap(iconPicture.size()).toImage(), iconPicture);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->getBackground().toImage(),
             picture(":/zem/graphics/main/buttons/btn_square_small.png"));
    QCOMPARE(button->getBackgroundOff().toImage(),
             hasOff ? picture(":/zem/graphics/main/buttons/btn_square_small_disabled.png")
                    : QImage());
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

void tst_ZEMMultiLineDialog::textsAreTranslated()
{
    const WidgetTest::ContextTranslator translator;
    Keyboards keyboards;
    const ZEMMultiLineDialog dialog(keyboards.make());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("ZEMMultiLineDialog/Form"));
    QCOMPARE(part<ZEMTextLabel>(dialog, "lblTitle")->text(),
             QStringLiteral("ZEMMultiLineDialog/Select Farm"));
}

void tst_ZEMMultiLineDialog::declaresItsSignalsAndSlots()
{
    QCOMPARE(
        KeyboardTest::ownMethods(ZEMMultiLineDialog::staticMetaObject),
        strings({"signal sigShown()", "signal sigSelect()", "signal sigCancel()",
                 "private slotInputHandlerSelect()", "private slotInputHandlerCancel()",
                 "private checkScrollAvialibility()", "private pageUp()", "private pageDown()"}));
    QVERIFY(WidgetTest::ownProperties(ZEMMultiLineDialog::staticMetaObject).isEmpty());
}

void tst_ZEMMultiLineDialog::takesTheKeyboard()
{
    Keyboards keyboards;
    const QPointer<ZEMVirtualKeyboard> keyboard = keyboards.make();
    {
        const ZEMMultiLineDialog dialog(keyboard);
        const auto *place = part<QWidget>(dialog, "widget");
        QCOMPARE(keyboard->parentWidget(), place);
        QCOMPARE(placeInGrid(keyboard), QPoint(1, 1));
        QCOMPARE(keyboards.factory.preview->parentWidget(), place);
        QCOMPARE(keyboards.factory.background->parentWidget(), place);
    }
    QVERIFY(keyboard.isNull());
}

void tst_ZEMMultiLineDialog::titleAndPlainText()
{
    Keyboards keyboards;
    ZEMMultiLineDialog dialog(keyboards.make());
    dialog.setTitle(QStringLiteral("Opmerking"));
    QCOMPARE(part<ZEMTextLabel>(dialog, "lblTitle")->text(), QStringLiteral("Opmerking"));
    for (const QString &text : {fewLines, QStringLiteral("<b>geen</b> opmaak"), QString()}) {
        dialog.setText(text);
        QCOMPARE(part<QTextEdit>(dialog, "textEdit")->toPlainText(), text);
        QCOMPARE(dialog.text(), text);
    }
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

void tst_ZEMMultiLineDialog::tellsTheResult_data()
{
    QTest::addColumn<QStringList>("told");
    QTest::newRow("btnOK") << strings({"handler select", "select"});
    QTest::newRow("btnCancel") << strings({"handler cancel", "cancel"});
}

void tst_ZEMMultiLineDialog::tellsTheResult()
{
    QFETCH(QStringList, told);
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    ZEMKeyboardInputHandler handler;
    stage.dialog->setActiveInputHandler(&handler);
    Results results;
    results.listen(stage.dialog);
    results.listen(&handler, "handler");
    stage.dialog->setText(fewLines);
    stage.dialog->show();
    QCoreApplication::processEvents();
    touch(*stage.dialog, QTest::currentDataTag());
    QCOMPARE(results.take(), told);
    touch(*stage.dialog, QTest::currentDataTag());
    QCOMPARE(results.take(), told);
    QVERIFY(stage.dialog->isVisible());
    QCOMPARE(stage.dialog->text(), fewLines);
    QCOMPARE(QApplication::focusWidget(), stage.get<QTextEdit>("textEdit"));

    stage.dialog->setActiveInputHandler(nullptr);
    touch(*stage.dialog, QTest::currentDataTag());
    QCOMPARE(results.take(), told.mid(1));
}

void tst_ZEMMultiLineDialog::tellsTheHandlerThatWasSetLast()
{
    Keyboards keyboards;
    ZEMMultiLineDialog dialog(keyboards.make());
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

void tst_ZEMMultiLineDialog::deletedHandlerIsForgotten()
{
    Keyboards keyboards;
    ZEMMultiLineDialog dialog(keyboards.make());
    Results results;
    results.listen(&dialog);
    auto *handler = new ZEMKeyboardInputHandler;
    dialog.setActiveInputHandler(handler);
    connect(handler, &ZEMKeyboardInputHandler::sigCancel, &dialog, [handler] { delete handler; });
    part<ZEMButton>(dialog, "btnCancel")->click();
    part<ZEMButton>(dialog, "btnCancel")->click();
    part<ZEMButton>(dialog, "btnOK")->click();
    QCOMPARE(results.take(), strings({"cancel", "cancel", "select"}));
}

void tst_ZEMMultiLineDialog::showTakesTheFocusAndSelectsNothing()
{
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    auto *field = stage.get<QTextEdit>("textEdit");
    MouseLog log(field);
    bool focusIsThere = false;
    int shown = 0;
    connect(stage.dialog, &ZEMMultiLineDialog::sigShown, stage.dialog, [&] {
        ++shown;
        focusIsThere = QApplication::focusWidget() == field;
    });
    stage.dialog->setText(fewLines);
    stage.dialog->show();
    QCOMPARE(shown, 1);
    QVERIFY(focusIsThere);
    QVERIFY(log.events.isEmpty()); // posted, not sent
    QCoreApplication::sendPostedEvents(field, QEvent::MouseButtonPress);
    QCOMPARE(log.events, tapOnLastPixel(field));
    QTest::qWait(600); // no late selection either
    QVERIFY(!field->textCursor().hasSelection());
    QCOMPARE(field->textCursor().position(), 0);

    field->moveCursor(QTextCursor::End);
    stage.dialog->hide();
    stage.dialog->show();
    QCOMPARE(shown, 2);
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

void tst_ZEMMultiLineDialog::dialogMayBeDeletedFromItsSignals_data()
{
    QTest::addColumn<bool>("byHandler");
    QTest::newRow("btnOK") << false;
    QTest::newRow("btnCancel") << true;
}

void tst_ZEMMultiLineDialog::dialogMayBeDeletedFromItsSignals()
{
    QFETCH(bool, byHandler);
    MultiLineStage stage;
    QVERIFY(stage.isReady);
    const QPointer<ZEMMultiLineDialog> dialog = stage.dialog;
    ZEMKeyboardInputHandler handler;
    const auto end = [dialog] { delete dialog; };
    if (byHandler) {
        dialog->setActiveInputHandler(&handler);
        connect(&handler, &ZEMKeyboardInputHandler::sigCancel, this, end);
    } else {
        connect(dialog, &ZEMMultiLineDialog::sigSelect, this, end);
    }
    dialog->show();
    QCoreApplication::processEvents();
    touch(*dialog, QTest::currentDataTag());
    QVERIFY(dialog.isNull());
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
