// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef INPUTDIALOGTEST_H
#define INPUTDIALOGTEST_H

#include "../widgets/formtest.h"
#include "keyboardtest.h"
#include "zemtest.h"

#include <ZEMKeyboardInputHandler>
#include <ZEMVirtualKey>
#include <ZEMVirtualKeyboard>

#include <QEvent>
#include <QMouseEvent>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWidget>

/** What the tests of the dialogs with a keyboard share. */
namespace InputDialogTest {

using FormTest::part;

/** Makes keyboards of one row: a, b, DELETE, SPACE and ENTER. */
class Keyboards
{
public:
    ZEMVirtualKeyboard *make()
    {
        auto *keyboard = new ZEMVirtualKeyboard;
        keyboard->setFactory(&factory);
        const QByteArray row = "<row><key value=\"a\"/><key value=\"b\"/><key value=\"DELETE\"/>"
                               "<key value=\"SPACE\"/><key value=\"ENTER\"/></row>";
        if (!keyboard->load(files.write(KeyboardTest::keyboardFile(row)))) {
            qFatal("cannot load a test keyboard");
        }
        return keyboard;
    }

    KeyboardTest::Files files;
    KeyboardTest::FlatFactory factory;
};

/** A touch on the middle of @p widget, through the window. */
inline void touch(QWidget *widget)
{
    ZemTest::press(widget, widget->rect().center());
    ZemTest::release(widget, widget->rect().center());
}

/** A touch on the part of this name. */
inline void touch(const QWidget &dialog, const char *name)
{
    touch(part<QWidget>(dialog, name));
}

inline ZEMVirtualKey *keyOf(const QWidget &dialog, const char *name)
{
    for (ZEMVirtualKey *key : dialog.findChildren<ZEMVirtualKey *>()) {
        if (key->name() == QLatin1String(name)) {
            return key;
        }
    }
    qFatal("no such key: %s", name);
}

/** Touches keys one after the other; what they send is still on its way. */
inline void touchKeys(const QWidget &dialog, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        touch(keyOf(dialog, name));
    }
}

/** A dialog on an active page of 640 by 480 pixels; hidden until show(). */
template <typename Dialog>
class Stage
{
public:
    Stage()
    {
        page.resize(640, 480);
        page.show();
        page.activateWindow();
        isReady = QTest::qWaitForWindowActive(&page);
        dialog = new Dialog(keyboards.make(), &page);
        dialog->resize(page.size());
    }

    template <typename T>
    T *get(const char *name) const
    {
        return part<T>(*dialog, name);
    }

    Keyboards keyboards;
    QWidget page;
    Dialog *dialog;
    bool isReady = false;
};

/** Keeps the mouse events that a widget gets, in words. */
class MouseLog : public QObject
{
public:
    explicit MouseLog(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool isPress = event->type() == QEvent::MouseButtonPress;
        if (isPress || event->type() == QEvent::MouseButtonRelease) {
            const auto *mouse = static_cast<QMouseEvent *>(event);
            events.append(QStringLiteral("%1 %2,%3 button %4 of %5 modifiers %6")
                              .arg(isPress ? QStringLiteral("press") : QStringLiteral("release"))
                              .arg(mouse->pos().x())
                              .arg(mouse->pos().y())
                              .arg(mouse->button())
                              .arg(int(mouse->buttons()))
                              .arg(int(mouse->modifiers())));
        }
        return false;
    }

    QStringList events;
};

/** The words of MouseLog for the tap with which a dialog puts the cursor to its place. */
inline QStringList tapOnLastPixel(const QWidget *widget)
{
    return {QStringLiteral("press %1,%2 button 1 of 1 modifiers 0")
                .arg(widget->width() - 1)
                .arg(widget->height() - 1)};
}

/** Keeps in one list what a dialog and its handler tell, in their order. */
class Results : public QObject
{
public:
    template <typename Dialog>
    void listen(Dialog *dialog)
    {
        connect(dialog, &Dialog::sigSelect, this, [this] { note("select"); });
        connect(dialog, &Dialog::sigCancel, this, [this] { note("cancel"); });
    }
    void listen(ZEMKeyboardInputHandler *handler, const char *name)
    {
        const QByteArray prefix = QByteArray(name) + ' ';
        connect(handler, &ZEMKeyboardInputHandler::sigSelect, this,
                [this, prefix] { note(prefix + "select"); });
        connect(handler, &ZEMKeyboardInputHandler::sigCancel, this,
                [this, prefix] { note(prefix + "cancel"); });
        connect(handler, &ZEMKeyboardInputHandler::sigSearch, this,
                [this, prefix] { note(prefix + "search"); });
        connect(handler, &ZEMKeyboardInputHandler::sigTextEdited, this,
                [this, prefix] { note(prefix + "edited"); });
    }

    QStringList take()
    {
        const QStringList taken = told;
        told.clear();
        return taken;
    }

private:
    void note(const QByteArray &what) { told.append(QString::fromLatin1(what)); }

    QStringList told;
};

/** The place of @p widget in the grid of its parent, as row and column. */
inline QPoint placeInGrid(QWidget *widget)
{
    const auto *grid = qobject_cast<QGridLayout *>(widget->parentWidget()->layout());
    int row = -1;
    int column = -1;
    int rows = 0;
    int columns = 0;
    if (grid) {
        grid->getItemPosition(grid->indexOf(widget), &row, &column, &rows, &columns);
    }
    return {row, column};
}

} // namespace InputDialogTest

#endif
