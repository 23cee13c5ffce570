// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDOUTLINE_H
#define KEYBOARDOUTLINE_H

#include "finding.h"

#include <QString>
#include <QVector>

/**
 * Which line of a keyboard file does what. The keyboard itself does not tell; it passes over what
 * it cannot use in silence.
 */
struct KeyboardOutline
{
    struct Page
    {
        int line;
        int id; ///< where the page is inserted among those before it in the file
        QVector<int> keyLines;
    };
    struct Space
    {
        int line;
        QString key;
        int keysBefore; ///< how many keys of the file come before it
    };

    QString problem; ///< why the file cannot be read; empty if it can
    int problemLine = 0; ///< 0 if the problem is not one of a line

    int rootLine = 1;
    bool alternatives = true; ///< whether keys that are held offer alternatives
    QVector<Page> pages; ///< those that the keyboard takes, in the order of the file
    QVector<Space> spaces;
    QVector<Finding> findings; ///< what the keyboard ignores

    /** The places in @c pages of the first page that the keyboard has, the second, and so on. */
    QVector<int> pageOrder() const;
};

KeyboardOutline readOutline(const QString &fileName);

#endif
