// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/dialogtest.h"
#include "anydialog.h"
#include "keyboardscene.h"
#include "lifetime.h"

#include <ZEMButton>
#include <ZEMDialogShowText>

#include <QTextBrowser>

#include <memory>

using InputDialogTest::keyOf;
using InputDialogTest::withClass;
using KeyboardScene::goOn;
using KeyboardScene::hiddenDialog;
using KeyboardScene::holdOn;
using KeyboardScene::keyboardScene;
using KeyboardScene::openPanel;
using KeyboardScene::Scene;
using KeyboardScene::ScenePtr;
using KeyboardScene::shownDialog;
using KeyboardScene::tap;
using Lifetime::End;
using Lifetime::Stage;

namespace {

using Ends = QVector<End>;

Ends allEnds()
{
    return {End::Delete, End::DeleteLater, End::DeletePage};
}

/** Where a plain widget of Qt would not survive either, as the headers tell. */
Ends onlyLater()
{
    return {End::DeleteLater};
}

/** A part of another widget, which must not be deleted alone. */
Ends onlyWithAll()
{
    return {End::DeletePage};
}

/** One signal, and one way in which it comes about. */
struct Row
{
    QByteArray className;
    QByteArray signal;
    QByteArray trigger;
    Ends ends;
    std::function<Stage()> stage;
};

/** @p act and what follows it; the keyboard is that of @p scene. */
Stage stageOf(const ScenePtr &scene, QObject *object, const std::function<void()> &act)
{
    return {scene->page, object, [scene, act] {
                act();
                goOn(scene);
            }};
}

/** A touch on @p part of the page, in which @p object emits. */
Stage touchOf(const ScenePtr &scene, QObject *object, const QWidget *part)
{
    return stageOf(scene, object, [scene, part] { tap(scene->page, part); });
}

/** The signals of the key @p name, and of the keyboard if it tells of this key. */
void addKeyRows(QVector<Row> &rows, const char *name)
{
    for (const char *signal : {"pressed()", "released()", "clicked()", "clicked(bool)"}) {
        rows.append({"ZEMVirtualKey", signal, name, allEnds(), [name] {
                         const ScenePtr scene = keyboardScene();
                         ZEMVirtualKey *key = keyOf(*scene->keyboard, name);
                         return touchOf(scene, key, key);
                     }});
        rows.append({"ZEMVirtualKey", signal, QByteArray(name) + " of a keyboard that goes",
                     onlyWithAll(), [name] {
                         const ScenePtr scene = keyboardScene();
                         ZEMVirtualKey *key = keyOf(*scene->keyboard, name);
                         Stage stage = touchOf(scene, key, key);
                         stage.page = scene->keyboard;
                         return stage;
                     }});
    }
}

void addKeyboardRows(QVector<Row> &rows)
{
    for (const char *name : {"a", "DELETE", "SPACE", "ENTER", "CAPS", "123"}) {
        addKeyRows(rows, name);
    }
    for (const char *signal : {"pressed()", "released()", "clicked()"}) {
        rows.append({"ZEMVirtualKey", signal, "alternative", allEnds(), [] {
                         const ScenePtr scene = keyboardScene();
                         ZEMVirtualKey *key = openPanel(scene);
                         return touchOf(scene, key, key);
                     }});
    }
    rows.append({"ZEMVirtualKey", "toggled(bool)", "a", onlyLater(), [] {
                     const ScenePtr scene = keyboardScene();
                     ZEMVirtualKey *key = keyOf(*scene->keyboard, "a");
                     key->setCheckable(true);
                     return touchOf(scene, key, key);
                 }});
    rows.append({"ZEMVirtualKeyboard", "sigKey_enter()", "Enter key", allEnds(), [] {
                     const ScenePtr scene = keyboardScene();
                     return touchOf(scene, scene->keyboard, keyOf(*scene->keyboard, "ENTER"));
                 }});
    rows.append({"ZEMVirtualKeyboard", "sigKey_enter()", "Enter key, one capital", allEnds(), [] {
                     const ScenePtr scene = keyboardScene();
                     tap(scene->page, keyOf(*scene->keyboard, "CAPS"));
                     return touchOf(scene, scene->keyboard, keyOf(*scene->keyboard, "ENTER"));
                 }});
    rows.append({"ZEMVirtualKeyboard", "sigKey_enter()", "Enter key of two files", allEnds(), [] {
                     const ScenePtr scene = keyboardScene();
                     const QByteArray second = KeyboardTest::keyboardFile("<row/>");
                     scene->keyboard->load(scene->keyboards.files.write(second));
                     ZEMVirtualKey *enter = keyOf(*scene->keyboard, "ENTER");
                     return stageOf(scene, scene->keyboard, [enter] { Q_EMIT enter->released(); });
                 }});
}

template <typename Dialog>
QByteArray nameOf()
{
    return Dialog::staticMetaObject.className();
}

/** What every dialog with a keyboard tells, and its button @p button. */
template <typename Dialog>
Row buttonRow(const char *signal, const char *button)
{
    return {nameOf<Dialog>(), signal, button, allEnds(), [button] {
                const ScenePtr scene = shownDialog<Dialog>();
                return touchOf(scene, scene->dialog, scene->get<QWidget>(button));
            }};
}

template <typename Dialog>
Row enterRow()
{
    return {nameOf<Dialog>(), "sigSelect()", "Enter key", allEnds(), [] {
                const ScenePtr scene = shownDialog<Dialog>();
                return touchOf(scene, scene->dialog, keyOf(*scene->keyboard, "ENTER"));
            }};
}

/** The host hears of the button @p button before or behind the dialog, and ends the dialog. */
template <typename Dialog>
Row partRow(const char *signal, const char *button)
{
    return {"ZEMButton", signal, nameOf<Dialog>() + ' ' + button, onlyWithAll(), [button] {
                const ScenePtr scene = shownDialog<Dialog>();
                auto *part = scene->get<QWidget>(button);
                part->setEnabled(true);
                return touchOf(scene, part, part);
            }};
}

template <typename Dialog>
void addDialogRows(QVector<Row> &rows)
{
    rows.append({nameOf<Dialog>(), "sigShown()", "show", onlyLater(), [] {
                     const ScenePtr scene = hiddenDialog<Dialog>();
                     return stageOf(scene, scene->dialog, [scene] { scene->dialog->show(); });
                 }});
    rows.append(buttonRow<Dialog>("sigSelect()", "btnOK"));
    rows.append(buttonRow<Dialog>("sigCancel()", "btnCancel"));
    for (const char *signal : {"pressed()", "released()", "clicked()"}) {
        rows.append(partRow<Dialog>(signal, "btnOK"));
        rows.append(partRow<Dialog>(signal, "btnCancel"));
    }
    for (const char *key : {"a", "DELETE", "SPACE", "ENTER", "CAPS"}) {
        rows.append(
            {"ZEMVirtualKey", "released()", nameOf<Dialog>() + ' ' + key, onlyWithAll(), [key] {
                 const ScenePtr scene = shownDialog<Dialog>();
                 ZEMVirtualKey *part = keyOf(*scene->keyboard, key);
                 return touchOf(scene, part, part);
             }});
    }
}

/** The handler of a dialog; it goes with the page. */
template <typename Dialog>
Row handlerRow(const char *signal, const char *button, const Ends &ends = allEnds())
{
    const QByteArray trigger = nameOf<Dialog>() + ' ' + button;
    return {"ZEMKeyboardInputHandler", signal, trigger, ends, [button] {
                const ScenePtr scene = shownDialog<Dialog>();
                auto *handler = new ZEMKeyboardInputHandler(scene->page);
                qobject_cast<Dialog *>(scene->dialog)->setActiveInputHandler(handler);
                const bool isKey = !scene->dialog->findChild<ZEMButton *>(QLatin1String(button));
                return touchOf(scene, handler,
                               isKey ? keyOf(*scene->keyboard, button)
                                     : scene->get<QWidget>(button));
            }};
}

void addSpecialDialogRows(QVector<Row> &rows)
{
    using Search = ZEMLineEditSearchDialog;
    rows.append(enterRow<ZEMLineEditDialog>());
    rows.append(enterRow<Search>());
    rows.append(enterRow<ZEMPasswordDialog>());
    rows.append({"ZEMLineEditDialog", "sigSelect()", "Enter key for ASCII", allEnds(), [] {
                     const ScenePtr scene = shownDialog<ZEMLineEditDialog>();
                     auto *dialog = qobject_cast<ZEMLineEditDialog *>(scene->dialog);
                     ZEMVirtualKeyboard *ascii = scene->keyboards.make();
                     dialog->setAsciiKeyboard(ascii);
                     dialog->setAsciiInputMode(true);
                     scene->settle();
                     return touchOf(scene, dialog, keyOf(*ascii, "ENTER"));
                 }});
    rows.append(buttonRow<Search>("sigSearch()", "btnSearch"));
    rows.append({"ZEMLineEditSearchDialog", "sigTextEdited(QString)", "key", onlyLater(), [] {
                     const ScenePtr scene = shownDialog<Search>();
                     return touchOf(scene, scene->dialog, keyOf(*scene->keyboard, "a"));
                 }});
    rows.append(partRow<Search>("clicked()", "btnSearch"));
    rows.append(partRow<ZEMPasswordDialog>("clicked()", "btnShowPassword"));
    rows.append(partRow<ZEMMultiLineDialog>("clicked()", "btnUp"));
    rows.append(partRow<ZEMMultiLineDialog>("clicked()", "btnDown"));

    rows.append(handlerRow<ZEMNumericKeypad>("sigSelect()", "btnOK"));
    rows.append(handlerRow<ZEMLineEditDialog>("sigSelect()", "ENTER"));
    rows.append(handlerRow<Search>("sigSelect()", "ENTER"));
    rows.append(handlerRow<ZEMPasswordDialog>("sigSelect()", "ENTER"));
    rows.append(handlerRow<ZEMMultiLineDialog>("sigSelect()", "btnOK"));
    rows.append(handlerRow<ZEMNumericKeypad>("sigCancel()", "btnCancel"));
    rows.append(handlerRow<ZEMLineEditDialog>("sigCancel()", "btnCancel"));
    rows.append(handlerRow<Search>("sigSearch()", "btnSearch"));
    // The page would take the field along, in the middle of its signal.
    rows.append(handlerRow<Search>("sigTextEdited(QString)", "a", {End::Delete, End::DeleteLater}));
}

/** A text that is shown, in its loop, while the button @p button is touched. */
Stage readerStage(const char *button, bool dialogEnds)
{
    const auto scene = std::make_shared<Scene>();
    auto *dialog = new ZEMDialogShowText(scene->page);
    dialog->setBtnEditVisible(true);
    dialog->setText(QStringLiteral("regel<br>").repeated(60));
    scene->dialog = dialog;
    auto *part = scene->get<QWidget>(button);
    QObject *object = dialogEnds ? static_cast<QObject *>(dialog) : part;
    return stageOf(scene, object, [scene, dialog, part] {
        DialogTest::inTheLoop([scene, part] {
            scene->settle();
            part->setEnabled(true);
            tap(scene->page, part);
            if (auto *open = qobject_cast<ZEMDialogShowText *>(scene->dialog)) {
                open->reset(); // the buttons that turn pages do not close it
            }
        });
        dialog->exec();
    });
}

void addReaderRows(QVector<Row> &rows)
{
    rows.append({"ZEMDialogShowText", "sigBtnEditClicked()", "btnEdit", allEnds(),
                 [] { return readerStage("btnEdit", true); }});
    for (const char *button : {"btnEdit", "btnAccepted", "btnPgUp", "btnPgDown"}) {
        for (const char *signal : {"pressed()", "released()", "clicked()"}) {
            rows.append({"ZEMButton", signal, QByteArray("ZEMDialogShowText ") + button,
                         onlyWithAll(), [button] { return readerStage(button, false); }});
        }
    }
}

const QVector<Row> &allRows()
{
    static const QVector<Row> all = [] {
        QVector<Row> rows;
        addKeyboardRows(rows);
        addDialogRows<ZEMNumericKeypad>(rows);
        addDialogRows<ZEMLineEditDialog>(rows);
        addDialogRows<ZEMLineEditSearchDialog>(rows);
        addDialogRows<ZEMPasswordDialog>(rows);
        addDialogRows<ZEMMultiLineDialog>(rows);
        addSpecialDialogRows(rows);
        addReaderRows(rows);
        return rows;
    }();
    return all;
}

/** The signals of the class @p metaObject, as of its base @p base, that no row hears. */
QStringList unheard(const QMetaObject &metaObject, const QMetaObject &base)
{
    QSet<QByteArray> heard;
    for (const Row &row : allRows()) {
        if (row.className == metaObject.className()) {
            heard.insert(row.signal);
        }
    }
    return Lifetime::unheardSignals(metaObject, base, heard);
}

} // namespace

/** Keyboards, keys, dialogs and handlers that end while they tell something. */
class tst_KeyboardLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { watchdog = std::make_unique<DialogTest::Watchdog>(); }
    void cleanup() { watchdog.reset(); }

    void endsInASignal_data();
    void endsInASignal();
    void everySignalHasARow();
    void theNextDialogIsShownInTheSlot();
    void keyboardGoesBeforeItHearsOfAKey();
    void endsDuringAHold_data();
    void endsDuringAHold();
    void loopOfADialogThatGoes_data();
    void loopOfADialogThatGoes();

private:
    std::unique_ptr<DialogTest::Watchdog> watchdog;
};

void tst_KeyboardLifetime::endsInASignal_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("end");
    for (int i = 0; i < allRows().size(); ++i) {
        const Row &row = allRows().at(i);
        for (const End end : row.ends) {
            QTest::addRow("%s %s, %s, %s", row.className.constData(), row.signal.constData(),
                          row.trigger.constData(), Lifetime::nameOf(end))
                << i << static_cast<int>(end);
        }
    }
}

void tst_KeyboardLifetime::endsInASignal()
{
    QFETCH(int, row);
    QFETCH(int, end);
    const Row &tried = allRows().at(row);
    QCOMPARE(Lifetime::endIn(tried.stage(), tried.signal, static_cast<End>(end)), QString());
}

void tst_KeyboardLifetime::everySignalHasARow()
{
    const QMetaObject &page = ZEMPageBackground::staticMetaObject;
    const QStringList none;
    QCOMPARE(unheard(ZEMVirtualKey::staticMetaObject, QWidget::staticMetaObject), none);
    QCOMPARE(unheard(ZEMVirtualKeyboard::staticMetaObject, QWidget::staticMetaObject), none);
    QCOMPARE(unheard(ZEMKeyboardInputHandler::staticMetaObject, QObject::staticMetaObject), none);
    QCOMPARE(unheard(ZEMDialogShowText::staticMetaObject, page), none);
    for (const char *name : InputDialogTest::names) {
        withClass(name, [&](auto *dialog) {
            QCOMPARE(unheard(std::remove_pointer_t<decltype(dialog)>::staticMetaObject, page),
                     none);
        });
    }
}

/** A chain of questions: the answer to one ends its dialog and shows the next. */
void tst_KeyboardLifetime::theNextDialogIsShownInTheSlot()
{
    const ScenePtr scene = shownDialog<ZEMLineEditDialog>();
    int answers = 0;
    std::function<void(ZEMLineEditDialog *)> ask = [&](ZEMLineEditDialog *dialog) {
        connect(dialog, &ZEMLineEditDialog::sigSelect, scene->page, [&, dialog] {
            ++answers;
            delete dialog;
            scene->keyboard = scene->keyboards.make();
            auto *next = new ZEMLineEditDialog(scene->keyboard, scene->page);
            next->resize(scene->page->size());
            next->show();
            ask(next);
        });
    };
    ask(qobject_cast<ZEMLineEditDialog *>(scene->dialog));
    for (int i = 1; i <= 5; ++i) {
        scene->settle();
        tap(scene->page, keyOf(*scene->keyboard, "ENTER"));
        QCOMPARE(answers, i);
    }
}

void tst_KeyboardLifetime::keyboardGoesBeforeItHearsOfAKey()
{
    const ScenePtr scene = keyboardScene();
    KeyboardTest::FlatFactory factory;
    QPointer<ZEMVirtualKeyboard> keyboard(new ZEMVirtualKeyboard(scene->page));
    factory.withKey = [&](ZEMVirtualKey *key) {
        connect(key, &ZEMVirtualKey::released, scene->page, [&] { delete keyboard; });
    };
    keyboard->setFactory(&factory);
    const QByteArray file = KeyboardTest::keyboardFile("<row><key value='ENTER'/></row>");
    QVERIFY(keyboard->load(scene->keyboards.files.write(file)));
    keyboard->setFocusWidget(scene->page);
    keyboard->resize(keyboard->sizeHint());
    keyboard->show();
    scene->settle();
    tap(scene->page, keyOf(*keyboard, "ENTER"));
    QVERIFY(!keyboard);
}

void tst_KeyboardLifetime::endsDuringAHold_data()
{
    QTest::addColumn<bool>("isPanelOpen");
    QTest::addColumn<QByteArray>("what");
    for (const char *what : {"keyboard", "key", "page", "panel"}) {
        QTest::addRow("%s, pressed", what) << false << QByteArray(what);
        QTest::addRow("%s, panel open", what) << true << QByteArray(what);
    }
}

void tst_KeyboardLifetime::endsDuringAHold()
{
    QFETCH(bool, isPanelOpen);
    QFETCH(QByteArray, what);
    const ScenePtr scene = keyboardScene();
    ZEMVirtualKey *key = keyOf(*scene->keyboard, "a");
    const QPoint place = key->mapTo(scene->page, key->rect().center());
    ZEMVirtualKey *alternative = isPanelOpen ? openPanel(scene) : nullptr;
    ZemTest::press(scene->page, place);
    if (what == "keyboard") {
        delete scene->keyboard;
    } else if (what == "key") {
        delete key;
    } else if (what == "page") {
        delete scene->page;
    } else if (alternative) {
        delete alternative->parentWidget();
    }
    if (scene->keyboard) {
        holdOn(scene);
    }
    if (scene->page) {
        ZemTest::release(scene->page, place);
    }
    goOn(scene);
    QCOMPARE(!scene->keyboard, what == "keyboard" || what == "page");
}

void tst_KeyboardLifetime::loopOfADialogThatGoes_data()
{
    QTest::addColumn<int>("end");
    for (const End end : allEnds()) {
        QTest::newRow(Lifetime::nameOf(end)) << static_cast<int>(end);
    }
}

void tst_KeyboardLifetime::loopOfADialogThatGoes()
{
    QFETCH(int, end);
    const QPointer<QWidget> page(Lifetime::shownPage());
    QWidget *dialog = new ZEMDialogShowText(page);
    const QPointer<QWidget> open(dialog);
    DialogTest::inTheLoop([=] {
        if (end == static_cast<int>(End::DeleteLater)) {
            dialog->deleteLater();
        } else {
            delete (end == static_cast<int>(End::Delete) ? dialog : page.data());
        }
    });
    QVERIFY(!qobject_cast<ZEMDialogShowText *>(dialog)->exec());
    QVERIFY(!open);
    delete page;
}

QTEST_MAIN(tst_KeyboardLifetime)
#include "tst_keyboardlifetime.moc"
