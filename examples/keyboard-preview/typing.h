// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef TYPING_H
#define TYPING_H

#include <QChar>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

class ShownKeyboard;

/** What a finger can do on a keyboard, starting at its first page in small letters. */
struct Typing
{
    QSet<QChar> characters; ///< all that can be typed
    QSet<int> pages; ///< all that can be opened
    QSet<int> traps; ///< those among them from which no way leads back to the first page

    /** A key that looks or types otherwise once the caps state has gone round. */
    struct Change
    {
        int page;
        int key;
        QString before;
        QString after;
    };
    QVector<Change> changes;
};

/** Tries @p keyboard, which ends on its first page. @p alternatives tells whether it offers any. */
Typing tryTyping(ShownKeyboard *keyboard, bool alternatives);

#endif
