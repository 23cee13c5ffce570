// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../dashboard/messagelog.h"
#include "../widgets/formtest.h"
#include "../widgets/widgettest.h"
#include "dialogtest.h"

#include <ZEMButton>
#include <ZEMLineEditDialog>
#include <ZEMPixmap>
#include <ZEMTextLabel>

#include <QSignalSpy>

using namespace DialogTest;
using namespace FormTest;
using namespace KeyboardTest;
using Dialog = ZEMLineEditDialog;

namespace {

const char wide[] = "spacer 40x20 Expanding Minimum";
const char flank[] = "spacer 40x20 Preferred Minimum";

QImage picture(const QIcon &icon)
{
    return icon.pixmap(512).toImage();
}

QImage file(const char *name)
{
    return QPixmap(QLatin1String(name)).toImage();
}

} // namespace

class tst_ZEMLineEditDialog : public QObject
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
    void setters();
    void showingSelectsTwice();
    void showingWithoutSelection();
    void resultsInOrder();
    void enterConfirms();
    void asciiModeWithoutAKeyboard();
    void asciiKeyboardIsPlaced();
    void oneKeyboardIsSeen();
    void switchStartsAfresh();
    void secondAsciiKeyboard();
    void keyboardsMayGo();

private:
    FlatFactory factory;
    ZEMVirtualKeyboard *keyboard = nullptr;
    std::unique_ptr<Dialog> dialog;
    QLineEdit *field = nullptr;
};

void tst_ZEMLineEditDialog::init()
{
    keyboard = newKeyboard(&factory);
    dialog = std::make_unique<Dialog>(keyboard);
    field = part<QLineEdit>(*dialog, "lineEdit");
}

void tst_ZEMLineEditDialog::cleanup()
{
    dialog.reset();
}

void tst_ZEMLineEditDialog::newDialog()
{
    QCOMPARE(dialog->objectName(), QStringLiteral("ZEMLineEditDialog"));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(dialog->size(), QSize(800, 480));
    QCOMPARE(dialog->getBackgroundColor(), QColor(0, 0, 0, 255));
    QVERIFY(dialog->text().isEmpty());
    QVERIFY(part<ZEMTextLabel>(*dialog, "lblTitle")->text().isEmpty());
    QWidget host;
    const Dialog child(newKeyboard(&factory), &host);
    QCOMPARE(child.parentWidget(), &host);
    {
        const WidgetTest::ContextTranslator translator;
        const Dialog translated(newKeyboard(&factory));
        QCOMPARE(translated.windowTitle(), QStringLiteral("ZEMLineEditDialog/Form"));
    }
}

void tst_ZEMLineEditDialog::form()
{
    QCOMPARE(dialog->layout()->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(dialog->layout()->contentsMargins(), QMargins(10, 0, 10, 0));
    QCOMPARE(
        items(dialog->layout()),
        strings({"0,0: spacer 50x20 Preferred Minimum", "0,1: ZEMPageBackground zemPageBackground",
                 "0,2: spacer 50x20 Preferred Minimum"}));
    const auto *page = part<ZEMPageBackground>(*dialog, "zemPageBackground");
    QCOMPARE(page->minimumSize(), QSize(0, 0));
    QCOMPARE(page->getBackgroundColor(), QColor(0, 0, 0, 255));
    const auto *column = part<QVBoxLayout>(*dialog, "verticalLayout");
    QCOMPARE(page->layout(), column);
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(),
             QMargins(0, childMargins().top(), 0, childMargins().bottom()));
    QCOMPARE(items(column),
             strings({"QHBoxLayout horizontalLayout_2", "spacer 20x40 Minimum Preferred",
                      "QHBoxLayout horizontalLayout", "QHBoxLayout horizontalLayout_3"}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_2")),
             strings({wide, "QVBoxLayout verticalLayout_2", wide}));
    QCOMPARE(items(part<QLayout>(*dialog, "verticalLayout_2")),
             strings({"ZEMTextLabel lblTitle", "ZEMPixmap zemPixmap"}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout")),
             strings({flank, "QWidget widget", flank}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_3")),
             strings({wide, "ZEMButton btnCancel", "ZEMButton btnOK", wide}));
    QCOMPARE(part<QHBoxLayout>(*dialog, "horizontalLayout_3")->spacing(), 24);
}

void tst_ZEMLineEditDialog::declaresItsOwn()
{
    QCOMPARE(ownMethods(Dialog::staticMetaObject),
             strings({"signal sigShown()", "signal sigSelect()", "signal sigCancel()",
                      "private slotInputHandlerSelect()", "private slotInputHandlerCancel()"}));
}

void tst_ZEMLineEditDialog::formPieces()
{
    const auto *title = part<ZEMTextLabel>(*dialog, "lblTitle");
    QCOMPARE(title->font().pointSize(), 18);
    QCOMPARE(title->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    checkField(field, Qt::AlignLeft | Qt::AlignVCenter);
    const auto *pixmap = part<ZEMPixmap>(*dialog, "zemPixmap");
    QCOMPARE(pixmap->getPixmap().toImage(),
             file(":/zem/graphics/main/buttons/doel_instellingen_btn_act.png"));
    QCOMPARE(pixmap->size(), QSize(492, 50));
    QCOMPARE(items(pixmap->layout()), strings({"0,0: QLineEdit lineEdit"}));
    QCOMPARE(pixmap->layout()->objectName(), QStringLiteral("gridLayout"));

    const QImage background = file(":/zem/graphics/main/buttons/btn_rect_xs_small.png");
    const auto *ok = part<ZEMButton>(*dialog, "btnOK");
    QCOMPARE(picture(ok->icon()),
             picture(QIcon(QStringLiteral(":/zem/graphics/icons/green-ok-icon_small.png"))));
    QCOMPARE(ok->getBackground().toImage(), background);
    QCOMPARE(ok->size(), QSize(100, 50));
    const auto *cancel = part<ZEMButton>(*dialog, "btnCancel");
    QCOMPARE(
        picture(cancel->icon()),
        picture(QIcon(QStringLiteral(":/tango/graphics/tango/actions/process-stop-icon.png"))));
    QCOMPARE(cancel->getBackground().toImage(), background);
}

void tst_ZEMLineEditDialog::keyboardIsPlaced()
{
    const auto *place = part<QWidget>(*dialog, "widget");
    QCOMPARE(keyboard->parentWidget(), place);
    const auto *grid = qobject_cast<QGridLayout *>(place->layout());
    QVERIFY(grid);
    QCOMPARE(grid->count(), 1);
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), keyboard);
    QCOMPARE(factory.preview->parentWidget(), place);
    QCOMPARE(factory.background->parentWidget(), place);
}

void tst_ZEMLineEditDialog::showingSelectsTwice()
{
    dialog->setText(QStringLiteral("word"));
    field->setCursorPosition(0);
    const MouseLog mouse(field);
    int shown = 0;
    connect(dialog.get(), &Dialog::sigShown, this, [&] {
        ++shown;
        QVERIFY(!field->hasSelectedText());
        QCOMPARE(dialog->focusWidget(), field);
        QVERIFY(mouse.events.isEmpty());
    });
    dialog->show();
    QCOMPARE(shown, 1);
    QTRY_COMPARE(field->selectedText(), QStringLiteral("word"));
    QCOMPARE(mouse.events, tapAtTheEnd(field));
    QCOMPARE(field->cursorPosition(), 4);
    field->deselect();
    QTest::qWait(300);
    QVERIFY(!field->hasSelectedText());
    QTRY_COMPARE_WITH_TIMEOUT(field->selectedText(), QStringLiteral("word"), 400);
}

void tst_ZEMLineEditDialog::showingWithoutSelection()
{
    dialog->setAutoSelect(false);
    dialog->setText(QStringLiteral("word"));
    field->setCursorPosition(0);
    const MouseLog mouse(field);
    dialog->show();
    QTest::qWait(650);
    QVERIFY(!field->hasSelectedText());
    QCOMPARE(field->cursorPosition(), 4);
    QCOMPARE(mouse.events, tapAtTheEnd(field));
}

void tst_ZEMLineEditDialog::setters()
{
    dialog->setTitle(QStringLiteral("Naam"));
    QCOMPARE(part<ZEMTextLabel>(*dialog, "lblTitle")->text(), QStringLiteral("Naam"));
    dialog->setText(QStringLiteral("zonnig"));
    QCOMPARE(field->text(), QStringLiteral("zonnig"));
    QCOMPARE(dialog->getStringLengthLimit(), 32767);
    dialog->setStringLengthLimit(3);
    QCOMPARE(dialog->getStringLengthLimit(), 3);
    QCOMPARE(dialog->text(), QStringLiteral("zon"));
}

void tst_ZEMLineEditDialog::resultsInOrder()
{
    ZEMKeyboardInputHandler handler;
    Order order;
    order.note(dialog.get(), &Dialog::sigSelect, "select");
    order.note(dialog.get(), &Dialog::sigCancel, "cancel");
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
    cancel->click();
    QCOMPARE(order.take(), strings({"handler select", "select", "handler cancel", "cancel"}));
    {
        ZEMKeyboardInputHandler passing;
        dialog->setActiveInputHandler(&passing);
    }
    ok->click();
    QCOMPARE(order.take(), strings({"select"}));
    QVERIFY(dialog->isVisible());
}

void tst_ZEMLineEditDialog::enterConfirms()
{
    QSignalSpy select(dialog.get(), &Dialog::sigSelect);
    dialog->show();
    type(keyboard, 0);
    QCOMPARE(select.count(), 0);
    QCOMPARE(dialog->text(), QStringLiteral("a"));
    type(keyboard, 1);
    QCOMPARE(select.count(), 1);
    QCOMPARE(dialog->text(), QStringLiteral("a"));
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
    FlatFactory other;
    ZEMVirtualKeyboard *ascii = newKeyboard(&other);
    dialog->show();
    dialog->setAsciiKeyboard(ascii);
    const auto *place = part<QWidget>(*dialog, "widget");
    const auto *grid = qobject_cast<QGridLayout *>(place->layout());
    QCOMPARE(ascii->parentWidget(), place);
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), ascii);
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(), keyboard);
    QCOMPARE(other.preview->parentWidget(), place);
    QVERIFY(!ascii->isVisible());
    QVERIFY(keyboard->isVisible());

    QSignalSpy select(dialog.get(), &Dialog::sigSelect);
    type(ascii, 0);
    QCOMPARE(dialog->text(), QStringLiteral("a"));
    type(ascii, 1);
    QCOMPARE(select.count(), 1);
}

void tst_ZEMLineEditDialog::oneKeyboardIsSeen()
{
    FlatFactory other;
    ZEMVirtualKeyboard *ascii = newKeyboard(&other);
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
    FlatFactory other;
    dialog->setAsciiKeyboard(newKeyboard(&other));
    dialog->show();
    field->clear();
    type(keyboard, 2);
    type(keyboard, 2);
    dialog->setAsciiInputMode(true);
    dialog->setAsciiInputMode(false);
    type(keyboard, 0);
    QCOMPARE(dialog->text(), QStringLiteral("a"));
}

void tst_ZEMLineEditDialog::secondAsciiKeyboard()
{
    FlatFactory firstFactory;
    FlatFactory secondFactory;
    ZEMVirtualKeyboard *first = newKeyboard(&firstFactory);
    ZEMVirtualKeyboard *second = newKeyboard(&secondFactory);
    QSignalSpy select(dialog.get(), &Dialog::sigSelect);
    dialog->setAsciiKeyboard(first);
    dialog->setAsciiKeyboard(second);
    const auto *grid = qobject_cast<QGridLayout *>(part<QWidget>(*dialog, "widget")->layout());
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), second);
    QCOMPARE(first->parentWidget(), second->parentWidget());
    type(first, 1);
    QCOMPARE(select.count(), 1);
    type(second, 1);
    QCOMPARE(select.count(), 2);
}

void tst_ZEMLineEditDialog::keyboardsMayGo()
{
    FlatFactory other;
    ZEMVirtualKeyboard *ascii = newKeyboard(&other);
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
