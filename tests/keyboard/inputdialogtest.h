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
#include <QPixmap>
#include <QStackedWidget>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QWidget>

/** What the tests of the dialogs with a keyboard share. */
namespace InputDialogTest {

using FormTest::part;

/** Makes keyboards of one row: a, b, DELETE, SPACE, ENTER and CAPS. */
class Keyboards
{
public:
    ZEMVirtualKeyboard *make()
    {
        auto *keyboard = new ZEMVirtualKeyboard;
        keyboard->setFactory(&factory);
        const QByteArray row = "<row><key value=\"a\"/><key value=\"b\"/><key value=\"DELETE\"/>"
                               "<key value=\"SPACE\"/><key value=\"ENTER\"/>"
                               "<key value=\"CAPS\"/></row>";
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

/** The place of a key among the keys of @p keyboard, which its slots are called with. */
inline int indexOf(const ZEMVirtualKeyboard &keyboard, const char *name)
{
    const auto *pages = keyboard.findChild<QStackedWidget *>();
    return pages->findChildren<ZEMVirtualKey *>().indexOf(keyOf(*pages, name));
}

/** A touch on a key of @p keyboard, which may be hidden, and the arrival of what it sends. */
inline void type(ZEMVirtualKeyboard *keyboard, const char *name)
{
    const int index = indexOf(*keyboard, name);
    KeyboardTest::call(keyboard, "buttonPressed", index);
    KeyboardTest::call(keyboard, "buttonReleased", index);
    QCoreApplication::processEvents();
}

/** After which a dialog that was shown selects its text once more, in milliseconds. */
constexpr int secondSelection = 500;

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
        isReady = QTest::qWaitForWindowActive(&page, ZemTest::hangs);
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
    template <typename Sender, typename Signal>
    void note(Sender *sender, Signal signal, const QByteArray &words)
    {
        connect(sender, signal, this, [this, words] { told.append(QString::fromLatin1(words)); });
    }

    template <typename Dialog>
    void listen(Dialog *dialog)
    {
        note(dialog, &Dialog::sigSelect, "select");
        note(dialog, &Dialog::sigCancel, "cancel");
    }
    void listen(ZEMKeyboardInputHandler *handler, const char *name)
    {
        const QByteArray prefix = QByteArray(name) + ' ';
        note(handler, &ZEMKeyboardInputHandler::sigSelect, prefix + "select");
        note(handler, &ZEMKeyboardInputHandler::sigCancel, prefix + "cancel");
        note(handler, &ZEMKeyboardInputHandler::sigSearch, prefix + "search");
        note(handler, &ZEMKeyboardInputHandler::sigTextEdited, prefix + "edited");
    }

    QStringList take()
    {
        const QStringList taken = told;
        told.clear();
        return taken;
    }

private:
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

/** The picture of this resource. */
inline QImage picture(const char *path)
{
    return QPixmap(QLatin1String(path)).toImage();
}

} // namespace InputDialogTest

#endif
