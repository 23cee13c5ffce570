// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardscene.h"

#include <KeyboardFactoryDefault>
#include <ZEMLineEditDialog>

#include <QTest>

#include <memory>

using InputDialogTest::keyOf;
using KeyboardScene::goOn;
using KeyboardScene::keyboardScene;
using KeyboardScene::openPanel;
using KeyboardScene::ScenePtr;
using KeyboardScene::shownDialog;
using KeyboardScene::tap;
using KeyboardTest::call;

/** What goes before the keyboard or the dialog that uses it. */
class tst_KeyboardOutlives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factoryGoesFirst_data();
    void factoryGoesFirst();
    void copiesOfAFactoryLiveForThemselves();
    void laterFactoryOutlivesAnEarlierOne();
    void othersGoFirst_data();
    void othersGoFirst();
};

void tst_KeyboardOutlives::factoryGoesFirst_data()
{
    QTest::addColumn<bool>("isDefault");
    QTest::newRow("of the host") << false;
    QTest::newRow("default") << true;
}

/** A keyboard that was built by hand types on, and can be given another factory. */
void tst_KeyboardOutlives::factoryGoesFirst()
{
    QFETCH(bool, isDefault);
    const ScenePtr scene = keyboardScene();
    ZEMVirtualKeyboard *keyboard = scene->keyboard;
    if (isDefault) {
        auto factory = std::make_unique<KeyboardFactoryDefault>(QString(), QString());
        keyboard->setFactory(factory.get());
    } else {
        auto factory = std::make_unique<KeyboardTest::FlatFactory>();
        keyboard->setFactory(factory.get());
    }
    keyboard->setPopupParent(scene->page);
    tap(scene->page, keyOf(*keyboard, "a"));
    tap(scene->page, openPanel(scene));
    QCOMPARE(scene->target->takeText(), QStringLiteral("ax"));
    goOn(scene);
    keyboard->hide();
    keyboard->show();
    call(keyboard, "slotUpdateLastPressedButton");

    const QString file = scene->keyboards.files.write(KeyboardTest::keyboardFile("<row/>"));
    QVERIFY(!keyboard->load(file));
    QVERIFY(!keyboard->createButton(QStringLiteral("b")));
    keyboard->setFactory(&scene->keyboards.factory);
    QVERIFY(keyboard->load(file));
}

void tst_KeyboardOutlives::copiesOfAFactoryLiveForThemselves()
{
    const ScenePtr scene = keyboardScene();
    KeyboardTest::FlatFactory second;
    {
        const KeyboardTest::FlatFactory first;
        KeyboardTest::FlatFactory copy(first);
        scene->keyboard->setFactory(&copy);
        copy = first;
        second = copy;
        copy.looks.clear();
        scene->keyboard->resize(scene->keyboard->size() + QSize(1, 1));
        QVERIFY(!copy.looks.isEmpty()); // in use, whatever was assigned
        second.looks.clear();
    }
    scene->keyboard->resize(scene->keyboard->size() + QSize(1, 1));
    QVERIFY(second.looks.isEmpty());
    scene->keyboard->setFactory(&second);
    scene->keyboard->resize(scene->keyboard->size() + QSize(1, 1));
    QVERIFY(!second.looks.isEmpty());
}

void tst_KeyboardOutlives::laterFactoryOutlivesAnEarlierOne()
{
    const ScenePtr scene = keyboardScene();
    auto earlier = std::make_unique<KeyboardTest::FlatFactory>();
    scene->keyboard->setFactory(earlier.get());
    KeyboardTest::FlatFactory later;
    scene->keyboard->setFactory(&later);
    earlier.reset();
    later.looks.clear();
    scene->keyboard->resize(scene->keyboard->size() + QSize(1, 1));
    QVERIFY(!later.looks.isEmpty());
}

void tst_KeyboardOutlives::othersGoFirst_data()
{
    QTest::addColumn<QByteArray>("what");
    for (const char *what : {"handler", "keyboard", "ASCII keyboard", "both keyboards"}) {
        QTest::newRow(what) << QByteArray(what);
    }
}

void tst_KeyboardOutlives::othersGoFirst()
{
    QFETCH(QByteArray, what);
    const ScenePtr scene = shownDialog<ZEMLineEditDialog>();
    auto *dialog = qobject_cast<ZEMLineEditDialog *>(scene->dialog);
    const QPointer<ZEMVirtualKeyboard> ascii(scene->keyboards.make());
    dialog->setAsciiKeyboard(ascii);
    auto handler = std::make_unique<ZEMKeyboardInputHandler>();
    dialog->setActiveInputHandler(handler.get());
    if (what == "handler") {
        handler.reset();
    } else {
        delete (what == "ASCII keyboard" ? nullptr : scene->keyboard.data());
        delete (what == "keyboard" ? nullptr : ascii.data());
    }

    int answers = 0;
    connect(dialog, &ZEMLineEditDialog::sigSelect, dialog, [&] { ++answers; });
    for (const bool isAscii : {true, false}) {
        dialog->setAsciiInputMode(isAscii);
        dialog->hide();
        dialog->show();
        scene->settle();
        tap(scene->page, scene->get<QWidget>("btnOK"));
        goOn(scene);
    }
    QCOMPARE(answers, 2);
    dialog->setAsciiKeyboard(scene->keyboards.make());
    dialog->setAsciiInputMode(true);
    QVERIFY(dialog->isVisible());
}

QTEST_MAIN(tst_KeyboardOutlives)
#include "tst_keyboardoutlives.moc"
