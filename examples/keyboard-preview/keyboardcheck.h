// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDCHECK_H
#define KEYBOARDCHECK_H

#include "finding.h"

#include <QSize>
#include <QString>
#include <QVector>

/** What is wrong with a keyboard file. */
struct KeyboardReport
{
    /** Why the file cannot be read, "FILE: reason" or "FILE:LINE: reason"; empty if it can. */
    QString problem;
    QVector<Finding> findings; ///< by line
};

/** Whether a key of @p size, in pixels, is smaller than a finger. */
bool isTooSmall(const QSize &size);

/** Looks for all that the author of @p fileName should know, on a page of @p size pixels. */
KeyboardReport checkKeyboard(const QString &fileName, const QSize &size);

#endif
