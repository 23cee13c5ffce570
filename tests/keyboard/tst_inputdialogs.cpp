// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "anydialog.h"

#include <ZEMButton>
#include <ZEMTextLabel>

#include <QApplication>
#include <QPointer>
#include <QTest>

#include <memory>
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

const QString number = QStringLiteral("123");

/** A row for each dialog: its name, and behind it @p end, which a comma begins; isLine or not. */
void rows(const char *end = "")
{
    for (const char *name : names) {
        QTest::newRow(QByteArray(name) + end) << (qstrcmp(name, "ZEMMultiLineDialog") != 0);
    }
}

void dialogs()
{
    QTest::addColumn<bool>("isLine");
    rows();
}

} // namespace

/** How the five dialogs behave: what they have in common, and where they differ. */
class tst_InputDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data();
    void operations();
    void titleAndText_data() { dialogs(); }
    void titleAndText();
    void confirmAndCancel_data() { dialogs(); }
    void confirmAndCancel();
    void enterKey_data();
    void enterKey();
    void handlerThatWasSetLastIsTold_data() { dialogs(); }
    void handlerThatWasSetLastIsTold();
    void deletedHandlerIsForgotten_data();
    void deletedHandlerIsForgotten();
    void keysReachTheField_data() { dialogs(); }
    void keysReachTheField();
    void typingReplacesWhatIsSelected_data() { dialogs(); }
    void typingReplacesWhatIsSelected();
    void focusOfTheButtons_data() { dialogs(); }
    void focusOfTheButtons();
    void showTakesTheFocus_data() { dialogs(); }
    void showTakesTheFocus();
    void showSelectsTwice_data() { dialogs(); }
    void showSelectsTwice();
    void showWithoutAutoSelect_data() { dialogs(); }
    void showWithoutAutoSelect();
    void hideSoonAfterShow_data() { dialogs(); }
    void hideSoonAfterShow();
    void dialogMayBeDeletedFromItsSignals_data();
    void dialogMayBeDeletedFromItsSignals();
    void deletedOnEnterKeyOrButton_data() { dialogs(); }
    void deletedOnEnterKeyOrButton();
};

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
    const AnyDialog stage;
    QCOMPARE(
        withClass(nameInRow(),
                  [](auto *none) { return operationsOf<std::remove_pointer_t<decltype(none)>>(); }),
        operations);
    // What is seen of it: the parts that only one of the dialogs has.
    const auto has = [&](const char *name) {
        return part<ZEMButton>(*stage.dialog, name) != nullptr;
    };
    QCOMPARE(has("btnSearch"), operations.contains(QStringLiteral("setSearchCount")));
    QCOMPARE(has("btnShowPassword"), operations.contains(QStringLiteral("slotHidePassword")));
    QCOMPARE(has("btnUp"), operations.isEmpty());
    QCOMPARE(has("btnDown"), operations.isEmpty());
}

void tst_InputDialogs::titleAndText()
{
    const AnyDialog any;
    any.kind.setTitle(any.dialog, QStringLiteral("Opmerking"));
    QCOMPARE(part<ZEMTextLabel>(*any.dialog, "lblTitle")->text(), QStringLiteral("Opmerking"));
    for (const QString &text : {QStringLiteral("<b>zonnig</b>"), number, QString()}) {
        any.kind.setText(any.dialog, text);
        QCOMPARE(any.kind.text(any.dialog), text);
        QCOMPARE(any.line() ? any.line()->text() : any.text()->toPlainText(), text);
    }
}

void tst_InputDialogs::confirmAndCancel()
{
    AnyStage stage;
    QVERIFY(stage.isReady);
    Results results;
    stage.kind.listen(stage.dialog, &results);
    stage.kind.setText(stage.dialog, number);
    stage.show();
    touch(*stage.dialog, "btnOK");
    touch(*stage.dialog, "btnCancel");
    QCOMPARE(results.take(), strings({"select", "cancel"}));

    // The same dialog serves one caller after the other, and each of them more than once.
    for (const char *caller : {"first", "second"}) {
        ZEMKeyboardInputHandler handler;
        results.listen(&handler, caller);
        stage.kind.setHandler(stage.dialog, &handler);
        const QString who = QLatin1String(caller);
        for (int round = 0; round < 2; ++round) {
            touch(*stage.dialog, "btnCancel");
            touch(*stage.dialog, "btnOK");
            QCOMPARE(results.take(),
                     QStringList({who + QStringLiteral(" cancel"), QStringLiteral("cancel"),
                                  who + QStringLiteral(" select"), QStringLiteral("select")}));
        }
        // To close it is the host's business.
        QVERIFY(stage.dialog->isVisible());
        QCOMPARE(stage.kind.text(stage.dialog), number);
    }
    touch(*stage.dialog, "btnOK"); // the second caller is gone
    touch(*stage.dialog, "btnCancel");
    QCOMPARE(results.take(), strings({"select", "cancel"}));
    QVERIFY(stage.dialog->isVisible());
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
    const bool reportsEdits = nameInRow() == "ZEMLineEditSearchDialog";
    AnyStage stage;
    QVERIFY(stage.isReady);
    ZEMKeyboardInputHandler handler;
    stage.kind.setHandler(stage.dialog, &handler);
    Results results;
    stage.kind.listen(stage.dialog, &results);
    results.listen(&handler, "handler");
    stage.show();
    touchKeys(*stage.dialog, {"a"});
    QTest::qWait(1);
    QCOMPARE(results.take(), reportsEdits ? strings({"handler edited"}) : QStringList());
    touchKeys(*stage.dialog, {"ENTER"});
    QTest::qWait(1);
    QCOMPARE(results.take(), confirms ? strings({"handler select", "select"}) : QStringList());
    QCOMPARE(stage.kind.text(stage.dialog),
             stage.line() ? QStringLiteral("a") : QStringLiteral("a\n"));
    QVERIFY(stage.dialog->isVisible());

    stage.kind.setHandler(stage.dialog, nullptr);
    touchKeys(*stage.dialog, {"ENTER"});
    QTest::qWait(1);
    QCOMPARE(results.take(), confirms ? strings({"select"}) : QStringList());
}

void tst_InputDialogs::handlerThatWasSetLastIsTold()
{
    const AnyDialog any;
    auto first = std::make_unique<ZEMKeyboardInputHandler>();
    ZEMKeyboardInputHandler second;
    Results results;
    results.listen(first.get(), "first");
    results.listen(&second, "second");
    any.kind.setHandler(any.dialog, first.get());
    any.kind.setHandler(any.dialog, &second);
    auto *ok = part<ZEMButton>(*any.dialog, "btnOK");
    part<ZEMButton>(*any.dialog, "btnCancel")->click();
    ok->click();
    QCOMPARE(results.take(), strings({"second cancel", "second select"}));

    any.kind.setHandler(any.dialog, first.get());
    first.reset(); // a stray handler is no longer told
    ok->click();
    any.kind.setHandler(any.dialog, nullptr);
    ok->click();
    QCOMPARE(results.take(), QStringList());
}

void tst_InputDialogs::deletedHandlerIsForgotten_data()
{
    QTest::addColumn<bool>("isLine");
    rows(", btnOK");
    rows(", btnCancel");
}

void tst_InputDialogs::deletedHandlerIsForgotten()
{
    const AnyDialog any;
    Results results;
    any.kind.listen(any.dialog, &results);
    auto *handler = new ZEMKeyboardInputHandler;
    any.kind.setHandler(any.dialog, handler);
    const bool bySelect = caseInRow() == "btnOK";
    connect(handler,
            bySelect ? &ZEMKeyboardInputHandler::sigSelect : &ZEMKeyboardInputHandler::sigCancel,
            &any.page, [handler] { delete handler; });
    const QPointer<ZEMKeyboardInputHandler> watched(handler);
    auto *ending = part<ZEMButton>(*any.dialog, bySelect ? "btnOK" : "btnCancel");
    ending->click();
    QVERIFY(watched.isNull());
    ending->click();
    part<ZEMButton>(*any.dialog, bySelect ? "btnCancel" : "btnOK")->click();
    QCOMPARE(results.take(),
             bySelect ? strings({"select", "select", "cancel"})
                      : strings({"cancel", "cancel", "select"}));
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

void tst_InputDialogs::typingReplacesWhatIsSelected()
{
    QFETCH(bool, isLine);
    const AnyStage stage;
    QVERIFY(stage.isReady);
    stage.kind.setText(stage.dialog, number);
    stage.show();
    QCOMPARE(stage.selectedText(), isLine ? number : QString());
    touchKeys(*stage.dialog, {"a", "a"});
    QTest::qWait(1);
    QCOMPARE(stage.kind.text(stage.dialog), QStringLiteral("aa") + (isLine ? QString() : number));
}

void tst_InputDialogs::focusOfTheButtons()
{
    QFETCH(bool, isLine);
    const AnyDialog stage;
    for (const char *name : {"btnOK", "btnCancel"}) {
        QCOMPARE(part<ZEMButton>(*stage.dialog, name)->focusPolicy() != Qt::NoFocus, isLine);
    }
}

void tst_InputDialogs::showTakesTheFocus()
{
    const AnyStage stage;
    QVERIFY(stage.isReady);
    QWidget *field = stage.field();
    const MouseLog log(field);
    int shown = 0;
    stage.kind.setText(stage.dialog, number);
    stage.kind.when(stage.dialog, Told::Shown, [&] {
        ++shown;
        QCOMPARE(QApplication::focusWidget(), field);
        QCOMPARE(stage.dialog->focusWidget(), field);
        QCOMPARE(stage.selectedText(), QString());
        QCOMPARE(log.events.size(), shown - 1); // posted, not sent
    });
    stage.dialog->show();
    QCOMPARE(shown, 1);
    QVERIFY(log.events.isEmpty());
    QCoreApplication::sendPostedEvents(field, QEvent::MouseButtonPress);
    QCOMPARE(log.events, tapOnLastPixel(field));

    stage.dialog->hide();
    stage.deselect();
    stage.dialog->show();
    QCOMPARE(shown, 2);
    QTest::qWait(1);
    QCOMPARE(log.events, tapOnLastPixel(field) + tapOnLastPixel(field));
}

void tst_InputDialogs::showSelectsTwice()
{
    QFETCH(bool, isLine);
    const AnyStage stage;
    QVERIFY(stage.isReady);
    const MouseLog log(stage.field());
    const QString selected = isLine ? number : QString();
    stage.kind.setText(stage.dialog, number);
    stage.dialog->show();
    QCOMPARE(stage.selectedText(), QString());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(stage.selectedText(), selected);
    QVERIFY(!isLine || stage.line()->cursorPosition() == number.size());

    stage.deselect();
    QCOMPARE(stage.selectedText(), QString());
    QTRY_COMPARE(stage.selectedText(), selected);
    stage.deselect();
    QCOMPARE(log.events.size(), 1);

    // There is no third time, and none at all when it is switched off.
    stage.dialog->hide();
    stage.kind.setAutoSelect(stage.dialog, false);
    stage.show();
    QCOMPARE(stage.selectedText(), QString());
    QVERIFY(!isLine || stage.line()->cursorPosition() == number.size());
    QCOMPARE(log.events.size(), 2);
}

void tst_InputDialogs::showWithoutAutoSelect()
{
    QFETCH(bool, isLine);
    const AnyStage stage;
    QVERIFY(stage.isReady);
    const MouseLog log(stage.field());
    stage.kind.setAutoSelect(stage.dialog, false);
    stage.kind.setText(stage.dialog, number);
    if (isLine) {
        stage.line()->setCursorPosition(1);
    }
    stage.dialog->show();
    ZemTest::outlast(secondSelection);
    QCOMPARE(stage.selectedText(), QString());
    QVERIFY(!isLine || stage.line()->cursorPosition() == number.size());
    QCOMPARE(log.events, tapOnLastPixel(stage.field()));

    stage.kind.setAutoSelect(stage.dialog, true);
    stage.dialog->hide();
    stage.show();
    QCOMPARE(stage.selectedText(), isLine ? number : QString());
}

void tst_InputDialogs::hideSoonAfterShow()
{
    QFETCH(bool, isLine);
    const AnyStage stage;
    QVERIFY(stage.isReady);
    const QString selected = isLine ? number : QString();
    stage.kind.setText(stage.dialog, number);
    stage.dialog->show();
    stage.dialog->hide();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(stage.selectedText(), selected);
    stage.deselect();
    QTRY_COMPARE(stage.selectedText(), selected);

    stage.dialog->show();
    delete stage.dialog; // the second selection finds nothing
    ZemTest::outlast(secondSelection);
}

void tst_InputDialogs::dialogMayBeDeletedFromItsSignals_data()
{
    QTest::addColumn<bool>("isLine");
    for (const char *end :
         {", btnOK", ", btnCancel", ", btnOK by the handler", ", btnCancel by the handler"}) {
        rows(end);
    }
}

void tst_InputDialogs::dialogMayBeDeletedFromItsSignals()
{
    const QList<QByteArray> words = caseInRow().split(' ');
    const AnyStage stage;
    QVERIFY(stage.isReady);
    const QPointer<ZEMPageBackground> dialog = stage.dialog;
    ZEMKeyboardInputHandler handler;
    const auto end = [dialog] { delete dialog; };
    if (words.size() > 1) {
        stage.kind.setHandler(dialog, &handler);
        connect(&handler, &ZEMKeyboardInputHandler::sigSelect, this, end);
        connect(&handler, &ZEMKeyboardInputHandler::sigCancel, this, end);
    } else {
        stage.kind.when(dialog, Told::Select, end);
        stage.kind.when(dialog, Told::Cancel, end);
    }
    stage.show();
    touch(*dialog, words.constFirst().constData());
    QVERIFY(dialog.isNull());
}

void tst_InputDialogs::deletedOnEnterKeyOrButton()
{
    for (const bool byKey : {true, false}) {
        AnyStage stage;
        QVERIFY(stage.isReady);
        stage.kind.when(stage.dialog, Told::Select, [dialog = stage.dialog] { delete dialog; });
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
