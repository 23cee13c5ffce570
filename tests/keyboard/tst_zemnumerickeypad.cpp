// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/formtest.h"
#include "../widgets/widgettest.h"
#include "dialogtest.h"

#include <ZEMButton>
#include <ZEMNumericKeypad>
#include <ZEMPixmap>
#include <ZEMTextLabel>

#include <QIntValidator>
#include <QSignalSpy>

using namespace DialogTest;
using namespace FormTest;
using namespace KeyboardTest;

class tst_ZEMNumericKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void newDialog();
    void form();
    void formPieces();
    void declaresItsOwn();
    void keyboardIsPlaced();
    void popupsStandOnTheDialog();
    void setters();
    void showingSelectsTwice();
    void showingWithoutSelection();
    void hiddenBeforeTheSecondSelection();
    void resultsInOrder();
    void enterDoesNotConfirm();
    void typesIntoTheField();
    void handlerIsReplaced();
    void resetForgetsAll();

private:
    FlatFactory factory;
    ZEMVirtualKeyboard *keyboard = nullptr;
    std::unique_ptr<ZEMNumericKeypad> dialog;
    QLineEdit *field = nullptr;
};

void tst_ZEMNumericKeypad::init()
{
    keyboard = newKeyboard(&factory);
    dialog = std::make_unique<ZEMNumericKeypad>(keyboard);
    field = part<QLineEdit>(*dialog, "lineEdit");
}

void tst_ZEMNumericKeypad::cleanup()
{
    dialog.reset();
}

void tst_ZEMNumericKeypad::newDialog()
{
    QCOMPARE(dialog->objectName(), QStringLiteral("ZEMNumericKeypad"));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(dialog->size(), QSize(876, 594));
    QCOMPARE(dialog->getBackgroundColor(), QColor(0, 0, 0, 150));
    QVERIFY(dialog->value().isEmpty());
    QVERIFY(part<ZEMTextLabel>(*dialog, "lblTitle")->text().isEmpty());
    QCOMPARE(field->echoMode(), QLineEdit::Normal);
    QWidget host;
    const ZEMNumericKeypad child(newKeyboard(&factory), &host);
    QCOMPARE(child.parentWidget(), &host);
    {
        const WidgetTest::ContextTranslator translator;
        const ZEMNumericKeypad translated(newKeyboard(&factory));
        QCOMPARE(translated.windowTitle(), QStringLiteral("ZEMNumericKeypad/Form"));
    }
}

void tst_ZEMNumericKeypad::form()
{
    QCOMPARE(dialog->layout()->objectName(), QStringLiteral("gridLayout_3"));
    QCOMPARE(dialog->layout()->contentsMargins(), QMargins(80, 40, 80, 40));
    QCOMPARE(items(dialog->layout()), strings({"0,0: ZEMPageBackground zemPageBackground"}));
    const auto *page = part<ZEMPageBackground>(*dialog, "zemPageBackground");
    QCOMPARE(page->minimumSize(), QSize(0, 0));
    QCOMPARE(page->layout()->objectName(), QStringLiteral("verticalLayout_3"));
    QCOMPARE(items(page->layout()),
             strings({"QHBoxLayout horizontalLayout_2", "QHBoxLayout horizontalLayout_21",
                      "QHBoxLayout horizontalLayout_4", "spacer 20x40 Minimum Expanding"}));
    const char *spacer = "spacer 40x20 Expanding Minimum";
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_2")),
             strings({spacer, "ZEMTextLabel lblTitle", spacer}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_21")),
             strings({spacer, "ZEMPixmap zemPixmap", spacer}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_4")),
             strings({spacer, "QHBoxLayout horizontalLayout_3", spacer}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_3")),
             strings({"QHBoxLayout horizontalLayout", "QVBoxLayout verticalLayout"}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout")),
             strings({"spacer 40x20 Preferred Minimum", "QWidget widget",
                      "spacer 40x20 Fixed Minimum"}));
    QCOMPARE(
        items(part<QLayout>(*dialog, "verticalLayout")),
        strings({"spacer 20x28 Minimum Preferred", "ZEMButton btnOK", "spacer 20x8 Minimum Fixed",
                 "ZEMButton btnCancel", "spacer 20x40 Minimum Preferred"}));
    QCOMPARE(items(part<QLayout>(*dialog, "gridLayout")), strings({"0,0: QLineEdit lineEdit"}));
    QCOMPARE(part<QLayout>(*dialog, "gridLayout")->parentWidget()->objectName(),
             QStringLiteral("zemPixmap"));
}

void tst_ZEMNumericKeypad::formPieces()
{
    const auto *title = part<ZEMTextLabel>(*dialog, "lblTitle");
    QCOMPARE(title->font().pointSize(), 18);
    QCOMPARE(title->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    checkField(field, Qt::AlignHCenter | Qt::AlignVCenter);
    const QString folder = QStringLiteral(":/zem/graphics/main/buttons/");
    QCOMPARE(part<ZEMPixmap>(*dialog, "zemPixmap")->getPixmap().toImage(),
             QPixmap(folder + QStringLiteral("btn_rect_xs_wide.png")).toImage());
    QCOMPARE(part<ZEMPixmap>(*dialog, "zemPixmap")->size(), QSize(233, 50));
    const QImage background =
        QPixmap(folder + QStringLiteral("btn_square_small_disabled.png")).toImage();
    QVERIFY(!background.isNull());
    const auto picture = [](const QIcon &icon) { return icon.pixmap(512).toImage(); };
    const auto file = [&](const char *name) { return picture(QIcon(QLatin1String(name))); };
    const auto *ok = part<ZEMButton>(*dialog, "btnOK");
    QCOMPARE(picture(ok->icon()), file(":/zem/graphics/icons/green-ok-icon_small.png"));
    QCOMPARE(ok->getBackground().toImage(), background);
    const auto *cancel = part<ZEMButton>(*dialog, "btnCancel");
    QCOMPARE(picture(cancel->icon()), file(":/tango/graphics/tango/actions/process-stop-icon.png"));
    QCOMPARE(cancel->getBackground().toImage(), background);
}

void tst_ZEMNumericKeypad::declaresItsOwn()
{
    QCOMPARE(ownMethods(ZEMNumericKeypad::staticMetaObject),
             strings({"signal sigShown()", "signal sigSelect()", "signal sigCancel()",
                      "private slotInputHandlerSelect()", "private slotInputHandlerCancel()"}));
}

void tst_ZEMNumericKeypad::keyboardIsPlaced()
{
    const auto *place = part<QWidget>(*dialog, "widget");
    QCOMPARE(keyboard->parentWidget(), place);
    const auto *grid = qobject_cast<QGridLayout *>(place->layout());
    QVERIFY(grid);
    QCOMPARE(grid->count(), 1);
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), keyboard);
}

void tst_ZEMNumericKeypad::popupsStandOnTheDialog()
{
    const auto *place = part<QWidget>(*dialog, "widget");
    QCOMPARE(factory.preview->parentWidget(), place);
    QCOMPARE(factory.background->parentWidget(), place);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    call(keyboard, "buttonPressed", 0);
    QVERIFY(factory.preview->isVisible());
    const auto *key = keyboard->findChild<QStackedWidget *>()->findChild<ZEMVirtualKey *>();
    QCOMPARE(factory.preview->mapTo(dialog.get(), QPoint(-5, 45)),
             key->mapTo(dialog.get(), QPoint()));
}

void tst_ZEMNumericKeypad::setters()
{
    dialog->setTitle(QStringLiteral("Tarief"));
    QCOMPARE(part<ZEMTextLabel>(*dialog, "lblTitle")->text(), QStringLiteral("Tarief"));
    dialog->setValue(QStringLiteral("12345"));
    QCOMPARE(field->text(), QStringLiteral("12345"));
    QCOMPARE(dialog->value(), QStringLiteral("12345"));
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

void tst_ZEMNumericKeypad::showingSelectsTwice()
{
    dialog->setValue(QStringLiteral("42"));
    field->setCursorPosition(0);
    const MouseLog mouse(field);
    QSignalSpy shown(dialog.get(), &ZEMNumericKeypad::sigShown);
    QVector<bool> selected;
    connect(dialog.get(), &ZEMNumericKeypad::sigShown, this, [&] {
        selected.append(field->hasSelectedText());
        QCOMPARE(dialog->focusWidget(), field);
        QVERIFY(mouse.events.isEmpty());
    });
    dialog->show();
    QCOMPARE(shown.count(), 1);
    QCOMPARE(selected, QVector<bool>({false}));
    QTRY_COMPARE(field->selectedText(), QStringLiteral("42"));
    QCOMPARE(mouse.events, tapAtTheEnd(field));
    QCOMPARE(field->cursorPosition(), 2);
    field->deselect();
    QTest::qWait(300);
    QVERIFY(!field->hasSelectedText());
    QTRY_COMPARE_WITH_TIMEOUT(field->selectedText(), QStringLiteral("42"), 400);
    field->deselect();
    QTest::qWait(600);
    QVERIFY(!field->hasSelectedText());
    QCOMPARE(mouse.events.size(), 1);
}

void tst_ZEMNumericKeypad::showingWithoutSelection()
{
    dialog->setAutoSelectInput(false);
    dialog->setValue(QStringLiteral("42"));
    field->setCursorPosition(0);
    const MouseLog mouse(field);
    dialog->show();
    QTest::qWait(650);
    QVERIFY(!field->hasSelectedText());
    QCOMPARE(field->cursorPosition(), 2);
    QCOMPARE(mouse.events, tapAtTheEnd(field));
}

void tst_ZEMNumericKeypad::hiddenBeforeTheSecondSelection()
{
    dialog->setValue(QStringLiteral("42"));
    dialog->show();
    QCoreApplication::processEvents();
    dialog->hide();
    field->deselect();
    QTRY_COMPARE_WITH_TIMEOUT(field->selectedText(), QStringLiteral("42"), 800);
    dialog->show();
    dialog.reset(); // and gone within the time
    QTest::qWait(600);
}

void tst_ZEMNumericKeypad::resultsInOrder()
{
    ZEMKeyboardInputHandler handler;
    Order order;
    order.note(dialog.get(), &ZEMNumericKeypad::sigSelect, "select");
    order.note(dialog.get(), &ZEMNumericKeypad::sigCancel, "cancel");
    order.note(&handler, &ZEMKeyboardInputHandler::sigSelect, "handler select");
    order.note(&handler, &ZEMKeyboardInputHandler::sigCancel, "handler cancel");
    auto *ok = part<ZEMButton>(*dialog, "btnOK");
    auto *cancel = part<ZEMButton>(*dialog, "btnCancel");
    dialog->show();

    ok->click();
    cancel->click();
    QCOMPARE(order.take(), strings({"select", "cancel"}));
    dialog->setActiveInputHandler(&handler);
    ok->click();
    QCOMPARE(order.take(), strings({"handler select", "select"}));
    cancel->click();
    QCOMPARE(order.take(), strings({"handler cancel", "cancel"}));
    ok->click(); // the handler stays installed
    QCOMPARE(order.take(), strings({"handler select", "select"}));
    QVERIFY(dialog->isVisible());
}

void tst_ZEMNumericKeypad::enterDoesNotConfirm()
{
    QSignalSpy select(dialog.get(), &ZEMNumericKeypad::sigSelect);
    dialog->show();
    type(keyboard, 1);
    QCOMPARE(select.count(), 0);
}

void tst_ZEMNumericKeypad::typesIntoTheField()
{
    dialog->setValue(QStringLiteral("9"));
    dialog->show();
    QTRY_COMPARE(field->selectedText(), QStringLiteral("9"));
    type(keyboard, 0);
    type(keyboard, 0);
    QCOMPARE(dialog->value(), QStringLiteral("aa"));
}

void tst_ZEMNumericKeypad::handlerIsReplaced()
{
    auto first = std::make_unique<ZEMKeyboardInputHandler>();
    ZEMKeyboardInputHandler second;
    QSignalSpy firstSpy(first.get(), &ZEMKeyboardInputHandler::sigSelect);
    QSignalSpy secondSpy(&second, &ZEMKeyboardInputHandler::sigSelect);
    auto *ok = part<ZEMButton>(*dialog, "btnOK");
    dialog->setActiveInputHandler(first.get());
    dialog->setActiveInputHandler(&second);
    ok->click();
    QCOMPARE(firstSpy.count(), 0);
    QCOMPARE(secondSpy.count(), 1);
    dialog->setActiveInputHandler(first.get());
    first.reset(); // a stray handler is no longer told
    ok->click();
    dialog->setActiveInputHandler(nullptr);
    ok->click();
    QCOMPARE(secondSpy.count(), 1);
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
