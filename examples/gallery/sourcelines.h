// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SOURCELINES_H
#define SOURCELINES_H

#include <QString>
#include <QStringList>

/**
 * @p text on pages of at most @p rows lines of at most @p columns characters. A longer line is
 * broken, and what is over begins one step further in. The lines of the licence at its start are
 * left out, and the empty ones after them.
 */
QStringList pagesOfSource(const QString &text, int columns, int rows);

#endif
