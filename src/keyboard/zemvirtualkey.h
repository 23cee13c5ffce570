// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMVIRTUALKEY_H
#define ZEMVIRTUALKEY_H

#include "zembutton.h"

#include <QChar>
#include <QString>

#include <memory>

/**
 * One key of an on-screen keyboard: a picture button that knows what it stands for.
 *
 * A host rarely makes keys; a ZEMVirtualKeyboard asks its factory for them while it loads its file.
 * @code
 * #include <ZEMVirtualKey>
 *
 * auto *key = new ZEMVirtualKey(QStringLiteral("e")); // as a factory's createKey() makes it
 * key->setFocusPolicy(Qt::NoFocus);
 * key->setAlternateKeys(QString::fromUtf8("éè"));
 * @endcode
 *
 * Three things are kept apart: name(), by which the keyboard file knows the key and which never
 * changes; text(), which is shown; and key(), the one character that is sent. None of the setters
 * but those that change the text repaints the key.
 */
class ZEM_EXPORT ZEMVirtualKey : public ZEMButton
{
    Q_OBJECT

public:
    enum Type {
        Character, ///< sends key()
        Caps, ///< goes on to the next caps state
        Delete, ///< sends Backspace
        Enter, ///< sends Enter
        Space, ///< sends a blank
        Layout ///< opens the page layoutId() of the keyboard
    };

    /** A key without name and text, whose key() is QChar(0). */
    explicit ZEMVirtualKey(QWidget *parent = nullptr);
    /** A key that shows @p name and sends its first character, QChar(0) if @p name is empty. */
    explicit ZEMVirtualKey(const QString &name, QWidget *parent = nullptr);
    ~ZEMVirtualKey() override;

    /** The name that the key was made with; null if it was made without. */
    const QString &name() const;

    /** What the key does when it is touched. Default: Character, whatever the name. */
    Type type() const;
    void setType(Type type);

    /** The character that is sent. */
    const QChar &key() const;
    void setKey(const QChar &key);

    /**
     * Sets the characters that are offered when the key is held, one for each QChar. A keyboard
     * offers the first ten.
     */
    void setAlternateKeys(const QString &alternates);
    /** Whether setAlternateKeys() was ever called, be it with an empty string. */
    bool hasAlternateKeys() const;
    /** The characters that are offered when the key is held; null by default. */
    const QString &alternateKeys() const;

    /** The page of the keyboard that a Layout key opens, counted from 0; -1 by default. */
    int layoutId() const;
    /** Sets the page. A negative @p id is ignored. */
    void setLayoutId(int id);

    /**
     * Puts text, character and alternatives into upper case. Each alternative remains one
     * character, for which every "SS" among them becomes a sharp s, and a sharp s stays as it is.
     */
    void toUpper();
    /**
     * As toUpper(), but a key of type Caps changes only the first character of its text, which is
     * how it shows that the next character alone will be a capital.
     */
    void toUpperSingle();
    /** Puts text, character and alternatives into lower case. */
    void toLower();

private:
    Q_DISABLE_COPY(ZEMVirtualKey)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
