// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef TOWNS_H
#define TOWNS_H

#include <QStringList>

/** Towns of the Netherlands and Belgium, by the alphabet. */
QStringList townNames();

#endif
