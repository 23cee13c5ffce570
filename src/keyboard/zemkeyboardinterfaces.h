// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMKEYBOARDINTERFACES_H
#define ZEMKEYBOARDINTERFACES_H

#include "zemkit_export.h"

#include <QString>

#include <memory>

class QWidget;
class ZEMVirtualKey;
class ZEMVirtualKeyboard;

ZEM_BEGIN_INTERFACES // no destructors, as told below

/**
 * What a host asks for its keyboards, so that it need not know where their files lie and what their
 * keys look like. KeyboardFactoryDefault is the library's implementation.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMLineEditDialog>
 *
 * const auto editName = [](ZEMVirtualKeyboardFactoryIntf &keyboards, QWidget *page) {
 *     using Intf = ZEMVirtualKeyboardFactoryIntf;
 *     return new ZEMLineEditDialog(keyboards.createKeyboard(Intf::PopupAbove), page);
 * };
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * editName(keyboards, new QWidget);
 * @endcode
 *
 * Every call makes a new keyboard, which has no parent and belongs to the caller. The interface
 * declares no destructor: delete an object as what it is, never through this class.
 */
class ZEM_EXPORT ZEMVirtualKeyboardFactoryIntf
{
public:
    /** Where the preview of a key and its alternative characters appear. */
    enum KeyboardPopupStyle {
        PopupAbove, ///< always above the key; the keyboard keeps a strip of 46 pixels free for it
        PopupFlip ///< below the key where they would rise above the keyboard; there is no strip
    };

    /** A full keyboard in the language of the factory. */
    virtual ZEMVirtualKeyboard *createKeyboard(KeyboardPopupStyle style) = 0;

    /** A keypad for numbers. */
    virtual ZEMVirtualKeyboard *createNumericKeypad() = 0;

    /**
     * A keyboard that has the characters of ASCII only, in whatever language, or null if there is
     * none. This implementation returns null.
     */
    virtual ZEMVirtualKeyboard *createAsciiKeyboard(KeyboardPopupStyle style);
};

/**
 * What a ZEMVirtualKeyboard asks while it is built and used: its keys, their looks and distances.
 * To be implemented by whoever wants other keys than those of KeyboardFactoryDefault.
 *
 * The widgets are made without a parent; the keyboard that asked takes them over. Keep a factory
 * until the last of its keyboards is gone: a keyboard notices when its factory goes first and types
 * on, but its keys keep the look that they have, and it loads no further file. The interface
 * declares no destructor: delete an object as what it is, never through this class.
 */
class ZEM_EXPORT ZEMVirtualKeyFactoryIntf
{
public:
    /**
     * A key for the character or word @p name, with its minimum size. The keyboard gives the key
     * its type, and widens it as its file tells.
     */
    virtual ZEMVirtualKey *createKey(const QString &name) = 0;

    /** A key of the panel of alternative characters. A keyboard asks for ten of them. */
    virtual ZEMVirtualKey *createAlternateKey() = 0;

    /** The preview of the touched character; null if there shall be none. */
    virtual ZEMVirtualKey *createPopupKey() = 0;

    /** What is seen behind the alternative characters. */
    virtual QWidget *createPopupKeysBackground() = 0;

    /**
     * Gives @p key the look of a key that is @p pressed or not, in the size that it has now. Called
     * for each press and release, and for every key when the keyboard is resized.
     */
    virtual void changeKeyStylesheet(ZEMVirtualKey *key, bool pressed) = 0;

    /** The distance of two keys of a row, in pixels. */
    virtual int hSpacing() const = 0;

    /** The distance of two rows, in pixels. */
    virtual int vSpacing() const = 0;

private:
    friend class ZEMVirtualKeyboard;

    /** Goes with the factory, whatever that is; a copy has a life of its own. */
    class Life
    {
    public:
        Life() = default;
        Life(const Life &) { }
        Life &operator=(Life) { return *this; }

        std::weak_ptr<const bool> watch() const { return mark; }

    private:
        std::shared_ptr<const bool> mark = std::make_shared<const bool>(true);
    };
    Life life;
};

ZEM_END_INTERFACES

#endif
