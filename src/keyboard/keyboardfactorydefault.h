// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDFACTORYDEFAULT_H
#define KEYBOARDFACTORYDEFAULT_H

#include "zemkeyboardinterfaces.h"
#include "zemkit_export.h"

#include <QPixmap>
#include <QSize>
#include <QString>

#include <memory>

ZEM_BEGIN_INTERFACES // not to be deleted through a base, as told below

/**
 * Makes the keyboards of a host from XML files in one directory, with keys that are light grey
 * rounded rectangles of 50 by 50 pixels, and 10 pixels between them.
 *
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <ZEMNumericKeypad>
 *
 * auto *page = new QWidget;
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *keypad = new ZEMNumericKeypad(keyboards.createNumericKeypad(), page);
 * @endcode
 *
 * | Keyboard | File in the directory |
 * |---|---|
 * | createKeyboard() | keyboard_LANGUAGE.xml, or else keyboard_en.xml |
 * | createNumericKeypad() | keyboard_numpad.xml |
 * | createAsciiKeyboard() | keyboard_ascii.xml |
 *
 * ZEMVirtualKeyboard tells what is in such a file. The text of the keys is in the font "Cabin",
 * which is the host's; see ZEMStyle::setApplicationFonts().
 *
 * Make one factory and keep it until the last of its keyboards is gone, so that all of them share
 * the pictures of the keys. A picture is rendered once for each size and state, and kept, together
 * with the hidden button that it was taken from, which is never deleted.
 *
 * A host may derive from it to change the look. The class has no virtual destructor: delete an
 * object as what it is.
 */
class ZEM_EXPORT KeyboardFactoryDefault : public ZEMVirtualKeyboardFactoryIntf,
                                          public ZEMVirtualKeyFactoryIntf
{
public:
    /**
     * @param keyboardPath the directory of the files, without a slash at its end
     * @param language the part of the file name that stands for the language, such as "nl"
     */
    KeyboardFactoryDefault(const QString &keyboardPath, const QString &language);
    ~KeyboardFactoryDefault();

    /**
     * A keyboard in the language of the factory, never null. Its popups have 46 pixels of room over
     * the top row with PopupAbove, and none with PopupFlip. If the file of the language cannot be
     * read, the English one serves; if that cannot be read either, qFatal() ends the program.
     */
    ZEMVirtualKeyboard *createKeyboard(KeyboardPopupStyle style) override;

    /**
     * A keypad for numbers, never null, whose pages have no margins and whose popups are above the
     * keys. If its file cannot be read, qFatal() ends the program.
     */
    ZEMVirtualKeyboard *createNumericKeypad() override;

    /** A keyboard for ASCII text, as createKeyboard(); null if its file cannot be read. */
    ZEMVirtualKeyboard *createAsciiKeyboard(KeyboardPopupStyle style) override;

    /** A key of 50 by 50 pixels that takes no focus. The key "DELETE" is labelled "<-". */
    ZEMVirtualKey *createKey(const QString &name) override;
    /** A key of 40 by 40 pixels without a name. */
    ZEMVirtualKey *createAlternateKey() override;
    /** The same as createAlternateKey(), never null. */
    ZEMVirtualKey *createPopupKey() override;
    /** A label with a border and round corners. */
    QWidget *createPopupKeysBackground() override;

    /**
     * Sets the picture of getBackground() in the size of @p key, and paints the key at once. Its
     * present size becomes its minimum size.
     */
    void changeKeyStylesheet(ZEMVirtualKey *key, bool pressed) override;

    /** 10 pixels. */
    int hSpacing() const override;
    /** 10 pixels. */
    int vSpacing() const override;

    /** Gives @p key black text in 16 point "Cabin". Called for every key that is made. */
    virtual void styleButton(ZEMVirtualKey *key);

    /**
     * The picture of a key of @p size pixels that is @p pressed or not, transparent outside its
     * round corners. Each is rendered once, and once more for each other ratio of a screen that a
     * key with it is painted on. Null for a size that is empty or has a side of more than 32767
     * pixels.
     */
    virtual QPixmap getBackground(QSize size, bool pressed);

private:
    Q_DISABLE_COPY(KeyboardFactoryDefault)

    class Private;
    std::unique_ptr<Private> d;
};

ZEM_END_INTERFACES

#endif
