// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDSCENE_H
#define KEYBOARDSCENE_H

#include "inputdialogtest.h"
#include "lifetime.h"
#include "zemtest.h"

#include <QPointer>
#include <QTimer>

#include <memory>

/** Keyboards and their dialogs on a page that a test may delete, with all that is on it. */
namespace KeyboardScene {

using InputDialogTest::Keyboards;
using InputDialogTest::keyOf;

/** Touches the middle of @p widget, whatever is there when the finger is lifted. */
inline void tap(const QPointer<QWidget> &page, const QWidget *widget)
{
    const QPoint place = widget->mapTo(page, widget->rect().center());
    ZemTest::press(page, place);
    if (page) {
        ZemTest::release(page, place);
    }
}

/** A page with a keyboard or a dialog on it, and what these need. */
struct Scene
{
    Scene() : page(Lifetime::shownPage()) { page->resize(900, 600); }
    ~Scene() { delete page; }
    Q_DISABLE_COPY(Scene)

    /** Waits until the layouts have found the places of all parts. */
    void settle() const { QCoreApplication::processEvents(); }

    template <typename Part>
    Part *get(const char *name) const
    {
        return FormTest::part<Part>(*page, name);
    }

    Keyboards keyboards;
    QPointer<QWidget> page;
    QPointer<QWidget> dialog;
    QPointer<ZEMVirtualKeyboard> keyboard;
    KeyboardTest::Target *target = nullptr; ///< of a keyboard without a dialog
};

using ScenePtr = std::shared_ptr<Scene>;

inline QTimer *holdTimerOf(const ZEMVirtualKeyboard *keyboard)
{
    return keyboard->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
}

/** A keyboard without a dialog, with a page key and a key with alternatives. */
inline ScenePtr keyboardScene()
{
    auto scene = std::make_shared<Scene>();
    auto *keyboard = new ZEMVirtualKeyboard(scene->page);
    keyboard->setFactory(&scene->keyboards.factory);
    const QByteArray row = "<row><key value='a' alternate='xyz'/><key value='DELETE'/>"
                           "<key value='SPACE'/><key value='ENTER'/><key value='CAPS'/>"
                           "<key value='123' layout='0'/></row>";
    if (!keyboard->load(scene->keyboards.files.write(KeyboardTest::keyboardFile(row)))) {
        qFatal("cannot load a test keyboard");
    }
    scene->target = new KeyboardTest::Target(scene->page);
    keyboard->setFocusWidget(scene->target);
    keyboard->setPopupParent(scene->page);
    keyboard->move(30, 200);
    keyboard->resize(keyboard->sizeHint());
    keyboard->show();
    scene->keyboard = keyboard;
    holdTimerOf(keyboard)->setInterval(KeyboardTest::longHold);
    scene->settle();
    return scene;
}

template <typename Dialog>
ScenePtr hiddenDialog()
{
    auto scene = std::make_shared<Scene>();
    scene->keyboard = scene->keyboards.make();
    scene->dialog = new Dialog(scene->keyboard, scene->page);
    scene->dialog->resize(scene->page->size());
    return scene;
}

template <typename Dialog>
ScenePtr shownDialog()
{
    ScenePtr scene = hiddenDialog<Dialog>();
    scene->dialog->show();
    scene->settle();
    return scene;
}

inline void holdOn(const ScenePtr &scene)
{
    QTimer *timer = holdTimerOf(scene->keyboard);
    if (!timer->isActive()) {
        qFatal("no hold is timed");
    }
    timer->setInterval(1);
    if (!QTest::qWaitFor([timer] { return !timer->isActive(); }, ZemTest::hangs)) {
        qFatal("a hold does not end");
    }
    timer->setInterval(KeyboardTest::longHold);
}

/** Holds the key "a", and returns the first key of its panel. */
inline ZEMVirtualKey *openPanel(const ScenePtr &scene)
{
    const ZEMVirtualKey *held = keyOf(*scene->keyboard, "a");
    const QPoint place = held->mapTo(scene->page, held->rect().center());
    ZemTest::press(scene->page, place);
    holdOn(scene);
    ZemTest::release(scene->page, place);
    for (ZEMVirtualKey *key : scene->page->findChildren<ZEMVirtualKey *>()) {
        if (key->name().isNull() && key->isVisible() && key->text() == QLatin1String("x")) {
            return key;
        }
    }
    qFatal("no panel");
}

/** What is left of the keyboard goes on: it changes all keys, and their looks. */
inline void goOn(const ScenePtr &scene)
{
    QCoreApplication::processEvents();
    if (scene->keyboard) {
        scene->keyboard->switchButtonCaps(ZEMVirtualKeyboard::CapsLock);
        scene->keyboard->resize(scene->keyboard->size() + QSize(10, 10));
    }
    QCoreApplication::processEvents();
}

} // namespace KeyboardScene

#endif
