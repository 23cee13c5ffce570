// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MISSINGFONTS_H
#define MISSINGFONTS_H

#include <QStringList>

/** A line for each font of the display that is not installed. Needs the application. */
QStringList missingFonts();

#endif
