// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/formtest.h"
#include "../widgets/widgettest.h"
#include "dialogtest.h"

#include <ZEMButton>
#include <ZEMLineEditSearchDialog>
#include <ZEMPixmap>
#include <ZEMTextLabel>

#include <QSignalSpy>

#include <limits>

using namespace DialogTest;
using namespace FormTest;
using namespace KeyboardTest;
using Dialog = ZEMLineEditSearchDialog;

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

class tst_ZEMLineEditSearchDialog : public QObject
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
    void searchCount_data();
    void searchCount();
    void showingSelectsTwice();
    void showingWithoutSelection();
    void resultsInOrder();
    void enterConfirms();
    void editsAreReportedOneByOne();

private:
    FlatFactory factory;
    ZEMVirtualKeyboard *keyboard = nullptr;
    std::unique_ptr<Dialog> dialog;
    QLineEdit *field = nullptr;
};

void tst_ZEMLineEditSearchDialog::init()
{
    keyboard = newKeyboard(&factory);
    dialog = std::make_unique<Dialog>(keyboard);
    field = part<QLineEdit>(*dialog, "lineEdit");
}

void tst_ZEMLineEditSearchDialog::cleanup()
{
    dialog.reset();
}

void tst_ZEMLineEditSearchDialog::newDialog()
{
    QCOMPARE(dialog->objectName(), QStringLiteral("ZEMLineEditSearchDialog"));
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(dialog->size(), QSize(892, 531));
    QCOMPARE(dialog->getBackgroundColor(), QColor(0, 0, 0, 255));
    QVERIFY(dialog->text().isEmpty());
    QVERIFY(part<ZEMTextLabel>(*dialog, "lblTitle")->text().isEmpty());
    QWidget host;
    const Dialog child(newKeyboard(&factory), &host);
    QCOMPARE(child.parentWidget(), &host);
    {
        const WidgetTest::ContextTranslator translator;
        const Dialog translated(newKeyboard(&factory));
        QCOMPARE(translated.windowTitle(), QStringLiteral("ZEMLineEditSearchDialog/Form"));
    }
}

void tst_ZEMLineEditSearchDialog::form()
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
    const auto *column = part<QVBoxLayout>(*dialog, "verticalLayout_3");
    QCOMPARE(page->layout(), column);
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(),
             QMargins(0, childMargins().top(), 0, childMargins().bottom()));
    QCOMPARE(items(column),
             strings({"QHBoxLayout horizontalLayout_4", "spacer 20x40 Minimum Preferred",
                      "QHBoxLayout horizontalLayout", "QHBoxLayout horizontalLayout_3"}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_4")),
             strings({wide, "QVBoxLayout verticalLayout_2", "QVBoxLayout verticalLayout", wide}));
    QCOMPARE(items(part<QLayout>(*dialog, "verticalLayout_2")),
             strings({"ZEMTextLabel lblTitle", "ZEMPixmap zemPixmap"}));
    QCOMPARE(items(part<QLayout>(*dialog, "verticalLayout")),
             strings({"spacer 20x40 Minimum Minimum", "ZEMButton btnSearch"}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout")),
             strings({flank, "QWidget widget", flank}));
    QCOMPARE(items(part<QLayout>(*dialog, "horizontalLayout_3")),
             strings({wide, "ZEMButton btnCancel", "ZEMButton btnOK", wide}));
    QCOMPARE(part<QHBoxLayout>(*dialog, "horizontalLayout_3")->spacing(), 24);
}

void tst_ZEMLineEditSearchDialog::declaresItsOwn()
{
    QCOMPARE(ownMethods(Dialog::staticMetaObject),
             strings({"signal sigShown()", "signal sigSelect()", "signal sigCancel()",
                      "signal sigSearch()", "signal sigTextEdited(QString)",
                      "private slotInputHandlerSelect()", "private slotInputHandlerCancel()",
                      "private slotInputHandlerSearch()",
                      "private slotInputHandlerTextEdited(QString)"}));
}

void tst_ZEMLineEditSearchDialog::formPieces()
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
    const auto *search = part<ZEMButton>(*dialog, "btnSearch");
    QVERIFY(search->icon().isNull());
    QVERIFY(search->text().isEmpty());
    QCOMPARE(search->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(search->font().pointSize(), 16);
    QCOMPARE(search->getBackground().toImage(),
             file(":/zem/graphics/main/buttons/selector_btn.png"));
    QCOMPARE(search->size(), QSize(71, 50));
}

void tst_ZEMLineEditSearchDialog::keyboardIsPlaced()
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

void tst_ZEMLineEditSearchDialog::showingSelectsTwice()
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

void tst_ZEMLineEditSearchDialog::showingWithoutSelection()
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

void tst_ZEMLineEditSearchDialog::setters()
{
    QSignalSpy edited(dialog.get(), &Dialog::sigTextEdited);
    dialog->setTitle(QStringLiteral("Zoeken"));
    QCOMPARE(part<ZEMTextLabel>(*dialog, "lblTitle")->text(), QStringLiteral("Zoeken"));
    dialog->setText(QStringLiteral("zon"));
    QCOMPARE(field->text(), QStringLiteral("zon"));
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
    using Handler = ZEMKeyboardInputHandler;
    Handler handler;
    Order order;
    order.note(dialog.get(), &Dialog::sigSelect, "select");
    order.note(dialog.get(), &Dialog::sigCancel, "cancel");
    order.note(dialog.get(), &Dialog::sigSearch, "search");
    order.note(dialog.get(), &Dialog::sigTextEdited, "edited");
    order.note(&handler, &Handler::sigSelect, "handler select");
    order.note(&handler, &Handler::sigCancel, "handler cancel");
    order.note(&handler, &Handler::sigSearch, "handler search");
    order.note(&handler, &Handler::sigTextEdited, "handler edited");
    dialog->show();
    const auto touchAll = [&] {
        for (const char *name : {"btnOK", "btnCancel", "btnSearch"}) {
            part<ZEMButton>(*dialog, name)->click();
        }
        type(keyboard, 0);
    };
    touchAll();
    QCOMPARE(order.take(), strings({"select", "cancel", "search", "edited"}));
    dialog->setActiveInputHandler(&handler);
    touchAll();
    QCOMPARE(order.take(),
             strings({"handler select", "select", "handler cancel", "cancel", "handler search",
                      "search", "handler edited", "edited"}));
    {
        Handler passing;
        dialog->setActiveInputHandler(&passing);
    }
    touchAll();
    QCOMPARE(order.take(), strings({"select", "cancel", "search", "edited"}));
    QVERIFY(dialog->isVisible());
}

void tst_ZEMLineEditSearchDialog::enterConfirms()
{
    QSignalSpy select(dialog.get(), &Dialog::sigSelect);
    QSignalSpy edited(dialog.get(), &Dialog::sigTextEdited);
    dialog->show();
    type(keyboard, 1);
    QCOMPARE(select.count(), 1);
    QCOMPARE(edited.count(), 0);
}

void tst_ZEMLineEditSearchDialog::editsAreReportedOneByOne()
{
    ZEMKeyboardInputHandler handler;
    QSignalSpy edited(&handler, &ZEMKeyboardInputHandler::sigTextEdited);
    dialog->setActiveInputHandler(&handler);
    dialog->show();
    call(keyboard, "sendKey", 0);
    call(keyboard, "sendKey", 0);
    QCOMPARE(edited.count(), 0); // the events are still on their way
    QCoreApplication::sendPostedEvents(field);
    QCOMPARE(edited.count(), 2);
    QCOMPARE(edited.at(0).first().toString(), QStringLiteral("a"));
    QCOMPARE(edited.at(1).first().toString(), QStringLiteral("aa"));
}

QTEST_MAIN(tst_ZEMLineEditSearchDialog)
#include "tst_zemlineeditsearchdialog.moc"
