// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SHOWNKEYBOARD_H
#define SHOWNKEYBOARD_H

#include <KeyboardFactoryDefault>
#include <ZEMVirtualKeyboard>
#include <ZEMVirtualKeyboardFactoryIntf>

#include <QList>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QVector>
#include <QWidget>

class QStackedWidget;
class ZEMVirtualKey;

/**
 * A keyboard in the dialog that it is for, on a page of a size of one's choice and not on the
 * screen. keyboard_numpad.xml is shown in the keypad for numbers, all others in the dialog for a
 * line of text.
 */
class ShownKeyboard
{
public:
    using PopupStyle = ZEMVirtualKeyboardFactoryIntf::KeyboardPopupStyle;
    using Caps = ZEMVirtualKeyboard::t_caps;

    ShownKeyboard(const QString &fileName, PopupStyle style, const QSize &size);
    ~ShownKeyboard();

    /** Whether the file could be loaded; if not, there are no pages. */
    bool isLoaded() const { return loaded; }

    int pageCount() const;
    /** The keys of a page in the order of the file. */
    QList<ZEMVirtualKey *> keys(int page) const;
    /** Whether there is a caps key on any page. */
    bool hasCaps() const;

    /** Opens a page in a caps state, which stays CapsOff without a caps key. */
    void open(int page, Caps caps);

    /** Holds @p key until its alternatives appear, and leaves them open until the next open(). */
    void hold(ZEMVirtualKey *key);

    /** The size that the dialog needs at least. */
    QSize neededSize() const;

    QPixmap picture();

private:
    Q_DISABLE_COPY(ShownKeyboard)

    ZEMVirtualKey *capsKey() const;
    QWidget *makeDialog(bool isKeypad);

    KeyboardFactoryDefault factory {QString(), QString()}; // the keyboard keeps a pointer to it
    QWidget host;
    ZEMVirtualKeyboard *keyboard;
    QStackedWidget *stack = nullptr;
    QWidget *dialog = nullptr;
    int capsState = ZEMVirtualKeyboard::CapsOff;
    bool loaded = false;
};

#endif
