// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "inputdialogtest.h"

#include <ZEMButton>
#include <ZEMLineEditDialog>
#include <ZEMLineEditSearchDialog>
#include <ZEMMultiLineDialog>
#include <ZEMNumericKeypad>
#include <ZEMPasswordDialog>

#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTextEdit>

#include <functional>
#include <type_traits>

using namespace InputDialogTest;
using FormTest::strings;

namespace {

#define ZEM_OFFERS(operation)                                                                      \
    template <typename T, typename = void>                                                         \
    struct Offers_##operation : std::false_type                                                    \
    {                                                                                              \
    };                                                                                             \
    template <typename T>                                                                          \
    struct Offers_##operation<T, std::void_t<decltype(&T::operation)>> : std::true_type            \
    {                                                                                              \
    };

ZEM_OFFERS(reset)
ZEM_OFFERS(setAsciiInputMode)
ZEM_OFFERS(setAsciiKeyboard)
ZEM_OFFERS(setAutoSelect)
ZEM_OFFERS(setAutoSelectInput)
ZEM_OFFERS(setMaxLength)
ZEM_OFFERS(setPasswordEntry)
ZEM_OFFERS(setSearchCount)
ZEM_OFFERS(setStringLengthLimit)
ZEM_OFFERS(setValidator)
ZEM_OFFERS(sigSearch)
ZEM_OFFERS(sigTextEdited)
ZEM_OFFERS(slotHidePassword)

/** The operations that not all of the dialogs have, by name. */
template <typename Dialog>
QStringList operationsOf()
{
    const QVector<QPair<bool, const char *>> offers = {
        {Offers_reset<Dialog>::value, "reset"},
        {Offers_setAsciiInputMode<Dialog>::value, "setAsciiInputMode"},
        {Offers_setAsciiKeyboard<Dialog>::value, "setAsciiKeyboard"},
        {Offers_setAutoSelect<Dialog>::value, "setAutoSelect"},
        {Offers_setAutoSelectInput<Dialog>::value, "setAutoSelectInput"},
        {Offers_setMaxLength<Dialog>::value, "setMaxLength"},
        {Offers_setPasswordEntry<Dialog>::value, "setPasswordEntry"},
        {Offers_setSearchCount<Dialog>::value, "setSearchCount"},
        {Offers_setStringLengthLimit<Dialog>::value, "setStringLengthLimit"},
        {Offers_setValidator<Dialog>::value, "setValidator"},
        {Offers_sigSearch<Dialog>::value, "sigSearch"},
        {Offers_sigTextEdited<Dialog>::value, "sigTextEdited"},
        {Offers_slotHidePassword<Dialog>::value, "slotHidePassword"}};
    QStringList names;
    for (const auto &offer : offers) {
        if (offer.first) {
            names.append(QLatin1String(offer.second));
        }
    }
    return names;
}

void setAutoSelect(ZEMNumericKeypad *dialog, bool select)
{
    dialog->setAutoSelectInput(select);
}
template <typename Dialog>
void setAutoSelect(Dialog *dialog, bool select)
{
    dialog->setAutoSelect(select);
}
void setAutoSelect(ZEMMultiLineDialog *, bool) { }

void setText(ZEMNumericKeypad *dialog, const QString &text)
{
    dialog->setValue(text);
}
template <typename Dialog>
void setText(Dialog *dialog, const QString &text)
{
    dialog->setText(text);
}

QString textOf(const ZEMNumericKeypad *dialog)
{
    return dialog->value();
}
template <typename Dialog>
QString textOf(const Dialog *dialog)
{
    return dialog->text();
}

/** One of the dialogs, as if they had a class in common. */
struct Kind
{
    std::function<ZEMPageBackground *(ZEMVirtualKeyboard *, QWidget *)> make;
    std::function<void(ZEMPageBackground *, Results *)> listen;
    std::function<void(ZEMPageBackground *, ZEMKeyboardInputHandler *)> setHandler;
    std::function<void(ZEMPageBackground *, bool)> setAutoSelect;
    std::function<void(ZEMPageBackground *, const QString &)> setText;
    std::function<QString(ZEMPageBackground *)> text;
    std::function<void(ZEMPageBackground *)> deleteOnSelect;
    QStringList operations;
};

template <typename Dialog>
Kind kind()
{
    const auto cast = [](ZEMPageBackground *dialog) { return qobject_cast<Dialog *>(dialog); };
    return {
        [](ZEMVirtualKeyboard *keyboard, QWidget *page) { return new Dialog(keyboard, page); },
        [cast](ZEMPageBackground *dialog, Results *results) { results->listen(cast(dialog)); },
        [cast](ZEMPageBackground *dialog, ZEMKeyboardInputHandler *handler) {
            cast(dialog)->setActiveInputHandler(handler);
        },
        [cast](ZEMPageBackground *dialog, bool select) { ::setAutoSelect(cast(dialog), select); },
        [cast](ZEMPageBackground *dialog, const QString &text) { ::setText(cast(dialog), text); },
        [cast](ZEMPageBackground *dialog) { return textOf(cast(dialog)); },
        [cast](ZEMPageBackground *dialog) {
            QObject::connect(cast(dialog), &Dialog::sigSelect, dialog->parentWidget(),
                             [dialog] { delete dialog; });
        },
        operationsOf<Dialog>()};
}

Kind kindOf(const QByteArray &name)
{
    if (name == "ZEMNumericKeypad") {
        return kind<ZEMNumericKeypad>();
    }
    if (name == "ZEMLineEditDialog") {
        return kind<ZEMLineEditDialog>();
    }
    if (name == "ZEMLineEditSearchDialog") {
        return kind<ZEMLineEditSearchDialog>();
    }
    if (name == "ZEMPasswordDialog") {
        return kind<ZEMPasswordDialog>();
    }
    return kind<ZEMMultiLineDialog>();
}

constexpr const char *names[] = {"ZEMNumericKeypad", "ZEMLineEditDialog", "ZEMLineEditSearchDialog",
                                 "ZEMPasswordDialog", "ZEMMultiLineDialog"};

/** The dialog of the present row on a page that is shown. */
class AnyStage
{
public:
    AnyStage() : kind(kindOf(QTest::currentDataTag()))
    {
        page.resize(900, 600);
        page.show();
        page.activateWindow();
        isReady = QTest::qWaitForWindowActive(&page);
        dialog = kind.make(keyboards.make(), &page);
    }

    void show() const
    {
        dialog->show();
        QTest::qWait(1);
    }

    QString selectedText() const
    {
        const auto *line = part<QLineEdit>(*dialog, "lineEdit");
        return line ? line->selectedText()
                    : part<QTextEdit>(*dialog, "textEdit")->textCursor().selectedText();
    }

    Keyboards keyboards;
    QWidget page;
    Kind kind;
    QPointer<ZEMPageBackground> dialog;
    bool isReady = false;
};

constexpr int afterBothSelections = 700; // ms
const QString number = QStringLiteral("123");

} // namespace

/** What the five dialogs have in common, and where they differ. */
class tst_InputDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void field_data();
    void field();
    void enterKey_data();
    void enterKey();
    void selectionOnShow_data();
    void selectionOnShow();
    void operations_data();
    void operations();
    void backdrop_data();
    void backdrop();
    void confirmAndCancel_data();
    void confirmAndCancel();
    void keysReachTheField_data();
    void keysReachTheField();
    void focusOfTheButtons_data();
    void focusOfTheButtons();
    void deletedOnEnterKeyOrButton_data();
    void deletedOnEnterKeyOrButton();

private:
    static void rows()
    {
        QTest::addColumn<QString>("unused");
        for (const char *name : names) {
            QTest::newRow(name) << QString();
        }
    }
};

void tst_InputDialogs::field_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("alignment");
    const QString line = QStringLiteral("QLineEdit lineEdit");
    const int left = Qt::AlignLeft | Qt::AlignVCenter;
    QTest::newRow("ZEMNumericKeypad") << line << int(Qt::AlignHCenter | Qt::AlignVCenter);
    QTest::newRow("ZEMLineEditDialog") << line << left;
    QTest::newRow("ZEMLineEditSearchDialog") << line << left;
    QTest::newRow("ZEMPasswordDialog") << line << left;
    QTest::newRow("ZEMMultiLineDialog") << QStringLiteral("QTextEdit textEdit") << 0;
}

void tst_InputDialogs::field()
{
    QFETCH(QString, field);
    QFETCH(int, alignment);
    const AnyStage stage;
    QStringList fields;
    for (const QWidget *widget : stage.dialog->findChildren<QWidget *>()) {
        const auto *line = qobject_cast<const QLineEdit *>(widget);
        if (line || qobject_cast<const QTextEdit *>(widget)) {
            fields.append(QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
                          + widget->objectName());
        }
        if (line) {
            QCOMPARE(int(line->alignment()), alignment);
        }
    }
    QCOMPARE(fields, QStringList(field));
}

void tst_InputDialogs::enterKey_data()
{
    QTest::addColumn<bool>("confirms");
    QTest::newRow("ZEMNumericKeypad") << false;
    QTest::newRow("ZEMLineEditDialog") << true;
    QTest::newRow("ZEMLineEditSearchDialog") << true;
    QTest::newRow("ZEMPasswordDialog") << true;
    QTest::newRow("ZEMMultiLineDialog") << false;
}

void tst_InputDialogs::enterKey()
{
    QFETCH(bool, confirms);
    AnyStage stage;
    QVERIFY(stage.isReady);
    ZEMKeyboardInputHandler handler;
    stage.kind.setHandler(stage.dialog, &handler);
    Results results;
    stage.kind.listen(stage.dialog, &results);
    results.listen(&handler, "handler");
    stage.show();
    touchKeys(*stage.dialog, {"ENTER"});
    QTest::qWait(1);
    QCOMPARE(results.take(), confirms ? strings({"handler select", "select"}) : QStringList());
    const bool isText = part<QTextEdit>(*stage.dialog, "textEdit");
    QCOMPARE(stage.kind.text(stage.dialog), isText ? QStringLiteral("\n") : QString());
}

void tst_InputDialogs::selectionOnShow_data()
{
    QTest::addColumn<bool>("selects");
    QTest::newRow("ZEMNumericKeypad") << true;
    QTest::newRow("ZEMLineEditDialog") << true;
    QTest::newRow("ZEMLineEditSearchDialog") << true;
    QTest::newRow("ZEMPasswordDialog") << true;
    QTest::newRow("ZEMMultiLineDialog") << false;
}

void tst_InputDialogs::selectionOnShow()
{
    QFETCH(bool, selects);
    const AnyStage stage;
    QVERIFY(stage.isReady);
    stage.kind.setText(stage.dialog, number);
    const QString selected = selects ? number : QString();
    stage.show();
    QCOMPARE(stage.selectedText(), selected);
    QTest::qWait(afterBothSelections);
    QCOMPARE(stage.selectedText(), selected);

    stage.dialog->hide();
    stage.kind.setAutoSelect(stage.dialog, false);
    stage.show();
    QTest::qWait(afterBothSelections);
    QCOMPARE(stage.selectedText(), QString());
    const auto *line = part<QLineEdit>(*stage.dialog, "lineEdit");
    QVERIFY(!line || line->cursorPosition() == number.size());
}

void tst_InputDialogs::operations_data()
{
    QTest::addColumn<QStringList>("operations");
    QTest::newRow("ZEMNumericKeypad") << strings(
        {"reset", "setAutoSelectInput", "setMaxLength", "setPasswordEntry", "setValidator"});
    QTest::newRow("ZEMLineEditDialog") << strings(
        {"setAsciiInputMode", "setAsciiKeyboard", "setAutoSelect", "setStringLengthLimit"});
    QTest::newRow("ZEMLineEditSearchDialog")
        << strings({"setAutoSelect", "setSearchCount", "sigSearch", "sigTextEdited"});
    QTest::newRow("ZEMPasswordDialog") << strings({"setAutoSelect", "slotHidePassword"});
    QTest::newRow("ZEMMultiLineDialog") << QStringList();
}

void tst_InputDialogs::operations()
{
    QFETCH(QStringList, operations);
    const AnyStage stage;
    QCOMPARE(stage.kind.operations, operations);
    // What is seen of it: the parts that only one of the dialogs has.
    const auto has = [&](const char *name) {
        return part<ZEMButton>(*stage.dialog, name) != nullptr;
    };
    QCOMPARE(has("btnSearch"), operations.contains(QStringLiteral("setSearchCount")));
    QCOMPARE(has("btnShowPassword"), operations.contains(QStringLiteral("slotHidePassword")));
    QCOMPARE(has("btnUp"), operations.isEmpty());
    QCOMPARE(has("btnDown"), operations.isEmpty());
}

void tst_InputDialogs::backdrop_data()
{
    QTest::addColumn<int>("alpha");
    QTest::addColumn<QSize>("size");
    QTest::newRow("ZEMNumericKeypad") << 150 << QSize(876, 594);
    QTest::newRow("ZEMLineEditDialog") << 255 << QSize(800, 480);
    QTest::newRow("ZEMLineEditSearchDialog") << 255 << QSize(892, 531);
    QTest::newRow("ZEMPasswordDialog") << 255 << QSize(724, 480);
    QTest::newRow("ZEMMultiLineDialog") << 255 << QSize(800, 480);
}

void tst_InputDialogs::backdrop()
{
    QFETCH(int, alpha);
    QFETCH(QSize, size);
    const AnyStage stage;
    QCOMPARE(stage.dialog->size(), size);
    QCOMPARE(stage.dialog->getBackgroundColor(), QColor(0, 0, 0, alpha));
    const QImage image = ZemTest::render(stage.dialog, Qt::white);
    const int seen = image.pixelColor(2, 2).red();
    QVERIFY2(qAbs(seen - (255 - alpha)) <= 1, qPrintable(QString::number(seen)));
}

void tst_InputDialogs::confirmAndCancel_data()
{
    rows();
}

void tst_InputDialogs::confirmAndCancel()
{
    AnyStage stage;
    QVERIFY(stage.isReady);
    Results results;
    stage.kind.listen(stage.dialog, &results);
    stage.show();
    touch(*stage.dialog, "btnOK");
    touch(*stage.dialog, "btnCancel");
    QCOMPARE(results.take(), strings({"select", "cancel"}));

    // The same dialog serves one caller after the other.
    for (const char *caller : {"first", "second"}) {
        ZEMKeyboardInputHandler handler;
        results.listen(&handler, caller);
        stage.kind.setHandler(stage.dialog, &handler);
        touch(*stage.dialog, "btnCancel");
        touch(*stage.dialog, "btnOK");
        const QString who = QLatin1String(caller);
        QCOMPARE(results.take(),
                 QStringList({who + QStringLiteral(" cancel"), QStringLiteral("cancel"),
                              who + QStringLiteral(" select"), QStringLiteral("select")}));
        QVERIFY(stage.dialog->isVisible());
    }
    touch(*stage.dialog, "btnOK"); // the second caller is gone
    QCOMPARE(results.take(), strings({"select"}));
}

void tst_InputDialogs::keysReachTheField_data()
{
    rows();
}

void tst_InputDialogs::keysReachTheField()
{
    const AnyStage stage;
    QVERIFY(stage.isReady);
    stage.show();
    touchKeys(*stage.dialog, {"a", "SPACE", "b", "b", "DELETE"});
    QTest::qWait(1);
    QCOMPARE(stage.kind.text(stage.dialog), QStringLiteral("a b"));
}

void tst_InputDialogs::focusOfTheButtons_data()
{
    QTest::addColumn<bool>("takesFocus");
    for (const char *name : names) {
        QTest::newRow(name) << (qstrcmp(name, "ZEMMultiLineDialog") != 0);
    }
}

void tst_InputDialogs::focusOfTheButtons()
{
    QFETCH(bool, takesFocus);
    const AnyStage stage;
    for (const char *name : {"btnOK", "btnCancel"}) {
        QCOMPARE(part<ZEMButton>(*stage.dialog, name)->focusPolicy() != Qt::NoFocus, takesFocus);
    }
}

void tst_InputDialogs::deletedOnEnterKeyOrButton_data()
{
    rows();
}

void tst_InputDialogs::deletedOnEnterKeyOrButton()
{
    for (const bool byKey : {true, false}) {
        AnyStage stage;
        QVERIFY(stage.isReady);
        stage.kind.deleteOnSelect(stage.dialog);
        stage.show();
        if (byKey) {
            touchKeys(*stage.dialog, {"ENTER"});
            QTest::qWait(1);
        }
        if (stage.dialog) {
            touch(*stage.dialog, "btnOK");
        }
        QVERIFY(stage.dialog.isNull());
        QTest::qWait(1);
    }
}

QTEST_MAIN(tst_InputDialogs)
#include "tst_inputdialogs.moc"
