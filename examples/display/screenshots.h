// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SCREENSHOTS_H
#define SCREENSHOTS_H

#include <QString>

class DisplayWindow;

/**
 * Writes each page and each chart of the shown @p display as a PNG to @p directory, which is made
 * if need be. Returns an empty text, or what went wrong.
 */
QString writeScreenshots(const QString &directory, DisplayWindow *display);

#endif
