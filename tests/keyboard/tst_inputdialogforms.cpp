// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "anydialog.h"
#include "ownmethods.h"

#include <ZEMButton>
#include <ZEMPixmap>
#include <ZEMTextLabel>

#include <QBoxLayout>
#include <QGridLayout>
#include <QPointer>
#include <QTest>

using namespace InputDialogTest;
using FormTest::strings;

Q_DECLARE_METATYPE(QMargins)

/** What the five dialogs look like when they are new. */
class tst_InputDialogForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDialog_data();
    void newDialog();
    void textsAreTranslated_data();
    void textsAreTranslated();
    void backdrop_data();
    void backdrop();
    void pages_data();
    void pages();
    void layouts_data();
    void layouts();
    void spacings_data();
    void spacings();
    void title_data();
    void title();
    void field_data();
    void field();
    void lookOfTheField_data();
    void lookOfTheField();
    void groundOfTheField_data();
    void groundOfTheField();
    void buttons_data();
    void buttons();
    void takesTheKeyboard_data();
    void takesTheKeyboard();
    void declaresItsOwn_data();
    void declaresItsOwn();
};

namespace {

const char wide[] = "spacer 40x20 Expanding/Minimum";
const char flank[] = "spacer 40x20 Preferred/Minimum";
const char page[] = "0,1: ZEMPageBackground zemPageBackground";
const char left[] = "0,0: spacer 50x20 Preferred/Minimum";
const char right[] = "0,2: spacer 50x20 Preferred/Minimum";
const char *const withLine[] = {"ZEMNumericKeypad", "ZEMLineEditDialog", "ZEMLineEditSearchDialog",
                                "ZEMPasswordDialog"};
const char *const withRowOfButtons[] = {"ZEMLineEditDialog", "ZEMLineEditSearchDialog",
                                        "ZEMPasswordDialog"};

/** A row for the items of the layout of this name in a dialog. */
void layoutRow(const char *dialog, const char *name, std::initializer_list<const char *> items)
{
    QTest::newRow(QByteArray(dialog) + ", " + name) << strings(items);
}

void layoutRowsOfTheKeypad()
{
    const char dialog[] = "ZEMNumericKeypad";
    layoutRow(dialog, "gridLayout_3", {"0,0: ZEMPageBackground zemPageBackground"});
    layoutRow(dialog, "verticalLayout_3",
              {"QHBoxLayout horizontalLayout_2", "QHBoxLayout horizontalLayout_21",
               "QHBoxLayout horizontalLayout_4", "spacer 20x40 Minimum/Expanding"});
    layoutRow(dialog, "horizontalLayout_2", {wide, "ZEMTextLabel lblTitle", wide});
    layoutRow(dialog, "horizontalLayout_21", {wide, "ZEMPixmap zemPixmap", wide});
    layoutRow(dialog, "horizontalLayout_4", {wide, "QHBoxLayout horizontalLayout_3", wide});
    layoutRow(dialog, "horizontalLayout_3",
              {"QHBoxLayout horizontalLayout", "QVBoxLayout verticalLayout"});
    layoutRow(dialog, "horizontalLayout", {flank, "QWidget widget", "spacer 40x20 Fixed/Minimum"});
    layoutRow(dialog, "verticalLayout",
              {"spacer 20x28 Minimum/Preferred", "ZEMButton btnOK", "spacer 20x8 Minimum/Fixed",
               "ZEMButton btnCancel", "spacer 20x40 Minimum/Preferred"});
}

/** The three dialogs that have the title and the field above the keyboard and the buttons below. */
void layoutRowsOfTheLines()
{
    for (const char *dialog : withRowOfButtons) {
        layoutRow(dialog, "gridLayout_2", {left, page, right});
        layoutRow(dialog, "horizontalLayout", {flank, "QWidget widget", flank});
        layoutRow(dialog, "horizontalLayout_3",
                  {wide, "ZEMButton btnCancel", "ZEMButton btnOK", wide});
    }
    const char gap[] = "spacer 20x40 Minimum/Preferred";
    const char keys[] = "QHBoxLayout horizontalLayout";
    const char ends[] = "QHBoxLayout horizontalLayout_3";
    const char line[] = "ZEMLineEditDialog";
    layoutRow(line, "verticalLayout", {"QHBoxLayout horizontalLayout_2", gap, keys, ends});
    layoutRow(line, "horizontalLayout_2", {wide, "QVBoxLayout verticalLayout_2", wide});
    layoutRow(line, "verticalLayout_2", {"ZEMTextLabel lblTitle", "ZEMPixmap zemPixmap"});
    const char search[] = "ZEMLineEditSearchDialog";
    layoutRow(search, "verticalLayout_3", {"QHBoxLayout horizontalLayout_4", gap, keys, ends});
    layoutRow(search, "horizontalLayout_4",
              {wide, "QVBoxLayout verticalLayout_2", "QVBoxLayout verticalLayout", wide});
    layoutRow(search, "verticalLayout_2", {"ZEMTextLabel lblTitle", "ZEMPixmap zemPixmap"});
    layoutRow(search, "verticalLayout", {"spacer 20x40 Minimum/Minimum", "ZEMButton btnSearch"});
    const char password[] = "ZEMPasswordDialog";
    layoutRow(password, "verticalLayout_2", {"QHBoxLayout horizontalLayout_4", gap, keys, ends});
    layoutRow(password, "horizontalLayout_4", {wide, "QVBoxLayout verticalLayout", wide});
    layoutRow(password, "verticalLayout",
              {"ZEMTextLabel lblTitle", "QHBoxLayout horizontalLayout_2"});
    layoutRow(password, "horizontalLayout_2", {"ZEMPixmap zemPixmap", "ZEMButton btnShowPassword"});
}

void layoutRowsOfTheMultiLineDialog()
{
    const char dialog[] = "ZEMMultiLineDialog";
    const char gap[] = "spacer 15x20 Preferred/Minimum";
    const char side[] = "spacer 20x40 Minimum/Preferred";
    const char between[] = "spacer 20x20 Minimum/Fixed";
    layoutRow(dialog, "gridLayout_2",
              {"0,0: spacer 15x20 Preferred/Minimum", page, "0,2: spacer 15x20 Preferred/Minimum"});
    layoutRow(dialog, "verticalLayout",
              {"QHBoxLayout horizontalLayout_2", "QHBoxLayout horizontalLayout"});
    layoutRow(dialog, "horizontalLayout_2",
              {gap, "QVBoxLayout verticalLayout_4", gap, "QVBoxLayout verticalLayout_2", gap,
               "QVBoxLayout verticalLayout_3", gap});
    layoutRow(dialog, "verticalLayout_4",
              {side, "ZEMButton btnUp", between, "ZEMButton btnDown", side});
    layoutRow(dialog, "verticalLayout_2", {"ZEMTextLabel lblTitle", "QTextEdit textEdit"});
    layoutRow(dialog, "verticalLayout_3",
              {side, "ZEMButton btnOK", between, "ZEMButton btnCancel", side});
    layoutRow(dialog, "horizontalLayout", {flank, "QWidget widget", flank});
}

} // namespace

void tst_InputDialogForms::newDialog_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("alpha");
    QTest::addColumn<QString>("title");
    QTest::newRow("ZEMNumericKeypad") << QSize(876, 594) << 150 << QString();
    QTest::newRow("ZEMLineEditDialog") << QSize(800, 480) << 255 << QString();
    QTest::newRow("ZEMLineEditSearchDialog") << QSize(892, 531) << 255 << QString();
    QTest::newRow("ZEMPasswordDialog") << QSize(724, 480) << 255 << QString();
    QTest::newRow("ZEMMultiLineDialog") << QSize(800, 480) << 255 << QStringLiteral("Select Farm");
}

void tst_InputDialogForms::newDialog()
{
    QFETCH(QSize, size);
    QFETCH(int, alpha);
    QFETCH(QString, title);
    const AnyDialog any;
    QCOMPARE(any.dialog->parentWidget(), &any.page);
    QCOMPARE(any.dialog->objectName(), QString::fromLatin1(nameInRow()));
    QCOMPARE(any.dialog->windowTitle(), QStringLiteral("Form"));
    QCOMPARE(any.dialog->size(), size);
    QCOMPARE(any.dialog->getBackgroundColor(), QColor(0, 0, 0, alpha));
    QVERIFY(any.dialog->getBackground().isNull());
    QVERIFY(any.kind.text(any.dialog).isEmpty());
    QCOMPARE(part<ZEMTextLabel>(*any.dialog, "lblTitle")->text(), title);

    // No press is on its way to a field that has not been asked for yet.
    const MouseLog log(any.field());
    QCoreApplication::sendPostedEvents();
    QVERIFY(log.events.isEmpty());
}

void tst_InputDialogForms::textsAreTranslated_data()
{
    newDialog_data();
}

void tst_InputDialogForms::textsAreTranslated()
{
    QFETCH(QString, title);
    const WidgetTest::ContextTranslator translator;
    const AnyDialog any;
    const QString context = QLatin1String(nameInRow()) + QLatin1Char('/');
    QCOMPARE(any.dialog->windowTitle(), context + QStringLiteral("Form"));
    QCOMPARE(part<ZEMTextLabel>(*any.dialog, "lblTitle")->text(),
             title.isEmpty() ? QString() : context + title);
}

void tst_InputDialogForms::backdrop_data()
{
    newDialog_data();
}

void tst_InputDialogForms::backdrop()
{
    QFETCH(int, alpha);
    const AnyDialog any;
    const QImage image = ZemTest::render(any.dialog, Qt::white);
    const int seen = image.pixelColor(2, 2).red();
    QVERIFY2(qAbs(seen - (255 - alpha)) <= 1, qPrintable(QString::number(seen)));
}

void tst_InputDialogForms::pages_data()
{
    QTest::addColumn<QString>("outer");
    QTest::addColumn<QMargins>("outerMargins");
    QTest::addColumn<QString>("inner");
    QTest::addColumn<QMargins>("innerMargins");
    QTest::addColumn<QColor>("color");
    const QMargins style = FormTest::styleMarginsOfAChild();
    const QMargins aboveAndBelow(0, style.top(), 0, style.bottom());
    const QMargins aside(10, 0, 10, 0);
    const QString grid = QStringLiteral("gridLayout_2");
    const QColor black(0, 0, 0, 255);
    QTest::newRow("ZEMNumericKeypad") << QStringLiteral("gridLayout_3") << QMargins(80, 40, 80, 40)
                                      << QStringLiteral("verticalLayout_3") << style << QColor();
    QTest::newRow("ZEMLineEditDialog")
        << grid << aside << QStringLiteral("verticalLayout") << aboveAndBelow << black;
    QTest::newRow("ZEMLineEditSearchDialog")
        << grid << aside << QStringLiteral("verticalLayout_3") << aboveAndBelow << black;
    QTest::newRow("ZEMPasswordDialog")
        << grid << aside << QStringLiteral("verticalLayout_2") << aboveAndBelow << black;
    QTest::newRow("ZEMMultiLineDialog")
        << grid << aside << QStringLiteral("verticalLayout") << QMargins(0, 0, 0, 0) << black;
}

void tst_InputDialogForms::pages()
{
    QFETCH(QString, outer);
    QFETCH(QMargins, outerMargins);
    QFETCH(QString, inner);
    QFETCH(QMargins, innerMargins);
    QFETCH(QColor, color);
    const AnyDialog any;
    const auto *grid = qobject_cast<QGridLayout *>(any.dialog->layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), outer);
    QCOMPARE(grid->contentsMargins(), outerMargins);
    const auto *ground = part<ZEMPageBackground>(*any.dialog, "zemPageBackground");
    QCOMPARE(ground->minimumSize(), QSize(0, 0));
    QCOMPARE(ground->getBackgroundColor(), color);
    const auto *column = qobject_cast<QVBoxLayout *>(ground->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), inner);
    QCOMPARE(column->contentsMargins(), innerMargins);
}

void tst_InputDialogForms::layouts_data()
{
    QTest::addColumn<QStringList>("items");
    layoutRowsOfTheKeypad();
    layoutRowsOfTheLines();
    layoutRowsOfTheMultiLineDialog();
    for (const char *dialog : withLine) {
        layoutRow(dialog, "gridLayout", {"0,0: QLineEdit lineEdit"});
    }
}

void tst_InputDialogForms::layouts()
{
    QFETCH(QStringList, items);
    const AnyDialog any;
    const auto *layout = part<QLayout>(*any.dialog, caseInRow().constData());
    QVERIFY(layout);
    QCOMPARE(FormTest::items(layout), items);
}

void tst_InputDialogForms::spacings_data()
{
    QTest::addColumn<int>("spacing");
    QTest::newRow("ZEMLineEditDialog, verticalLayout") << 0;
    QTest::newRow("ZEMLineEditSearchDialog, verticalLayout_3") << 0;
    QTest::newRow("ZEMPasswordDialog, verticalLayout_2") << 0;
    QTest::newRow("ZEMMultiLineDialog, verticalLayout") << 0;
    QTest::newRow("ZEMMultiLineDialog, verticalLayout_2") << 6;
    for (const char *name : withRowOfButtons) {
        QTest::newRow(QByteArray(name) + ", horizontalLayout_3") << 24;
    }
}

void tst_InputDialogForms::spacings()
{
    const AnyDialog any;
    QTEST(part<QBoxLayout>(*any.dialog, caseInRow().constData())->spacing(), "spacing");
}

void tst_InputDialogForms::title_data()
{
    newDialog_data();
}

void tst_InputDialogForms::title()
{
    const AnyDialog any;
    const auto *label = part<ZEMTextLabel>(*any.dialog, "lblTitle");
    QCOMPARE(label->font().pointSize(), 18);
    QCOMPARE(label->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_InputDialogForms::field_data()
{
    QTest::addColumn<QString>("field");
    for (const char *name : withLine) {
        QTest::newRow(name) << QStringLiteral("QLineEdit lineEdit");
    }
    QTest::newRow("ZEMMultiLineDialog") << QStringLiteral("QTextEdit textEdit");
}

void tst_InputDialogForms::field()
{
    QFETCH(QString, field);
    const AnyDialog any;
    QStringList fields;
    for (const QWidget *widget : any.dialog->findChildren<QWidget *>()) {
        if (qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QTextEdit *>(widget)) {
            fields.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
                          + widget->objectName());
        }
    }
    QCOMPARE(fields, QStringList(field));
    QCOMPARE(any.field()->font().pointSize(), 16);
}

void tst_InputDialogForms::lookOfTheField_data()
{
    QTest::addColumn<int>("alignment");
    for (const char *name : withRowOfButtons) {
        QTest::newRow(name) << int(Qt::AlignLeft | Qt::AlignVCenter);
    }
    QTest::newRow("ZEMNumericKeypad") << int(Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_InputDialogForms::lookOfTheField()
{
    QFETCH(int, alignment);
    const AnyDialog any;
    const QLineEdit *field = any.line();
    QVERIFY(!field->hasFrame());
    QCOMPARE(int(field->alignment()), alignment);
    QCOMPARE(field->echoMode(), QLineEdit::Normal);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        QCOMPARE(field->palette().color(group, QPalette::Base), QColor(255, 255, 255, 0));
    }
    QCOMPARE(field->palette().color(QPalette::Disabled, QPalette::Base), QColor(240, 240, 240));
}

void tst_InputDialogForms::groundOfTheField_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QSize>("size");
    const QByteArray folder = ":/zem/graphics/main/buttons/";
    QTest::newRow("ZEMNumericKeypad") << folder + "btn_rect_xs_wide.png" << QSize(233, 50);
    for (const char *name : withRowOfButtons) {
        QTest::newRow(name) << folder + "doel_instellingen_btn_act.png" << QSize(492, 50);
    }
}

void tst_InputDialogForms::groundOfTheField()
{
    QFETCH(QByteArray, file);
    QFETCH(QSize, size);
    const AnyDialog any;
    const auto *ground = part<ZEMPixmap>(*any.dialog, "zemPixmap");
    const QImage expected = picture(file.constData());
    QVERIFY(!expected.isNull());
    QCOMPARE(ground->getPixmap().toImage(), expected);
    QCOMPARE(ground->sizePolicy(), FormTest::policy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(ground->minimumSize(), size);
    QCOMPARE(ground->maximumSize(), size);
    QCOMPARE(ground->size(), size);
    QCOMPARE(ground->layout()->objectName(), QStringLiteral("gridLayout"));
}

void tst_InputDialogForms::buttons_data()
{
    QTest::addColumn<QByteArray>("icon");
    QTest::addColumn<QByteArray>("background");
    QTest::addColumn<QSize>("size");
    const auto rowsOf = [](const QByteArray &dialog, const char *background, const QSize &size) {
        const QByteArray file = QByteArray(":/zem/graphics/main/buttons/") + background;
        QTest::newRow(dialog + ", btnOK")
            << QByteArray(":/zem/graphics/icons/green-ok-icon_small.png") << file << size;
        QTest::newRow(dialog + ", btnCancel")
            << QByteArray(":/tango/graphics/tango/actions/process-stop-icon.png") << file << size;
    };
    for (const char *name : withRowOfButtons) {
        rowsOf(name, "btn_rect_xs_small.png", QSize(100, 50));
    }
    rowsOf("ZEMNumericKeypad", "btn_square_small_disabled.png", QSize(75, 75));
    rowsOf("ZEMMultiLineDialog", "btn_square_small.png", QSize(75, 75));
}

void tst_InputDialogForms::buttons()
{
    QFETCH(QByteArray, icon);
    QFETCH(QByteArray, background);
    const AnyDialog any;
    const auto *button = part<ZEMButton>(*any.dialog, caseInRow().constData());
    QVERIFY(button);
    const QImage expected = picture(icon.constData());
    QVERIFY(!expected.isNull());
    QCOMPARE(button->icon().pixmap(expected.size()).toImage(), expected);
    QVERIFY(!picture(background.constData()).isNull());
    QCOMPARE(button->getBackground().toImage(), picture(background.constData()));
    QVERIFY(button->getBackgroundOff().isNull());
    QVERIFY(!button->isCheckable());
    QTEST(button->size(), "size");
}

void tst_InputDialogForms::takesTheKeyboard_data()
{
    newDialog_data();
}

void tst_InputDialogForms::takesTheKeyboard()
{
    const AnyDialog any;
    const QPointer<ZEMVirtualKeyboard> keyboard = any.dialog->findChild<ZEMVirtualKeyboard *>();
    const auto *place = part<QWidget>(*any.dialog, "widget");
    QCOMPARE(keyboard->parentWidget(), place);
    QCOMPARE(place->layout()->count(), 1);
    QCOMPARE(placeInGrid(keyboard), QPoint(1, 1));
    QCOMPARE(any.keyboards.factory.preview->parentWidget(), place);
    QCOMPARE(any.keyboards.factory.background->parentWidget(), place);
    delete any.dialog;
    QVERIFY(keyboard.isNull());
}

void tst_InputDialogForms::declaresItsOwn_data()
{
    QTest::addColumn<QStringList>("others");
    QTest::newRow("ZEMNumericKeypad") << QStringList();
    QTest::newRow("ZEMLineEditDialog") << QStringList();
    QTest::newRow("ZEMLineEditSearchDialog") << strings(
        {"signal sigSearch()", "signal sigTextEdited(QString)", "private slotInputHandlerSearch()",
         "private slotInputHandlerTextEdited(QString)"});
    QTest::newRow("ZEMPasswordDialog")
        << strings({"public slotHidePassword(bool,bool)", "public slotHidePassword(bool)",
                    "private setFocusToLineedit()"});
    QTest::newRow("ZEMMultiLineDialog")
        << strings({"private checkScrollAvialibility()", "private pageUp()", "private pageDown()"});
}

void tst_InputDialogForms::declaresItsOwn()
{
    QFETCH(QStringList, others);
    const AnyDialog any;
    QStringList own = ZemTest::ownMethods(*any.dialog->metaObject());
    for (const char *method :
         {"signal sigShown()", "signal sigSelect()", "signal sigCancel()",
          "private slotInputHandlerSelect()", "private slotInputHandlerCancel()"}) {
        QCOMPARE(own.removeAll(QLatin1String(method)), 1);
    }
    QCOMPARE(own, others);
    QVERIFY(WidgetTest::ownProperties(*any.dialog->metaObject()).isEmpty());
}

QTEST_MAIN(tst_InputDialogForms)
#include "tst_inputdialogforms.moc"
