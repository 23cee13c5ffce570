// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGTEST_H
#define DIALOGTEST_H

#include "keyboardtest.h"

#include <ZEMKeyboardInputHandler>

#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

/** What the tests of the dialogs with a keyboard share. */
namespace DialogTest {

/** A keyboard with the keys "a" and "ENTER", to be given to a dialog. */
inline ZEMVirtualKeyboard *newKeyboard(KeyboardTest::FlatFactory *factory)
{
    const KeyboardTest::Files files;
    auto *keyboard = new ZEMVirtualKeyboard;
    keyboard->setFactory(factory);
    const bool loaded = keyboard->load(files.write(KeyboardTest::keyboardFile(
        "<row><key value='a'/><key value='ENTER'/><key value='CAPS'/></row>")));
    return loaded ? keyboard : nullptr;
}

/** Touches the key @p index of @p keyboard and delivers what it sends. */
inline void type(ZEMVirtualKeyboard *keyboard, int index)
{
    KeyboardTest::call(keyboard, "buttonPressed", index);
    KeyboardTest::call(keyboard, "buttonReleased", index);
    QCoreApplication::processEvents();
}

/** Keeps the mouse events that a field gets, in words. */
class MouseLog : public QObject
{
public:
    explicit MouseLog(QObject *field) { field->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress
            || event->type() == QEvent::MouseButtonRelease) {
            const auto *mouse = static_cast<QMouseEvent *>(event);
            events.append(QStringLiteral("%1 %2,%3 %4 %5 %6")
                              .arg(event->type() == QEvent::MouseButtonPress
                                       ? QStringLiteral("press")
                                       : QStringLiteral("release"))
                              .arg(mouse->pos().x())
                              .arg(mouse->pos().y())
                              .arg(mouse->button())
                              .arg(static_cast<int>(mouse->buttons()))
                              .arg(static_cast<int>(mouse->modifiers())));
        }
        return false;
    }

    QStringList events;
};

/** The words of MouseLog for the one press that a dialog posts to @p field. */
inline QStringList tapAtTheEnd(const QWidget *field)
{
    return {QStringLiteral("press %1,%2 1 1 0").arg(field->width() - 1).arg(field->height() - 1)};
}

/** Keeps the order in which a dialog, its handler and the host are told. */
class Order
{
public:
    template <typename Sender, typename Signal>
    void note(Sender *sender, Signal signal, const char *words)
    {
        QObject::connect(sender, signal,
                         [this, words] { told.append(QString::fromLatin1(words)); });
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

/** The margins that the style gives to a layout on a widget that is no window. */
inline QMargins childMargins()
{
    QWidget window;
    auto *child = new QWidget(&window);
    return QVBoxLayout(child).contentsMargins();
}

/** Whether @p field has the look of the fields of all input dialogs. */
inline void checkField(const QLineEdit *field, Qt::Alignment alignment)
{
    QVERIFY(field);
    QVERIFY(!field->hasFrame());
    QCOMPARE(field->font().pointSize(), 16);
    QCOMPARE(field->alignment(), alignment);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        QCOMPARE(field->palette().color(group, QPalette::Base), QColor(255, 255, 255, 0));
    }
    QCOMPARE(field->palette().color(QPalette::Disabled, QPalette::Base), QColor(240, 240, 240));
}

} // namespace DialogTest

#endif
