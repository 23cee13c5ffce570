// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SCREENSHOTS_H
#define SCREENSHOTS_H

#include <QString>
#include <functional>

class DisplayWindow;

/** Is told the name of what is shown, as "charts-gas-week-before". */
using ScreenVisitor = std::function<void(const QString &)>;

/**
 * Opens, one after the other, each page, each chart and what lies over a page in the shown
 * @p display, and calls @p visitor for each.
 */
void visitScreens(DisplayWindow *display, const ScreenVisitor &visitor);

/**
 * Writes each page and each chart of the shown @p display as a PNG to @p directory, which is made
 * if need be. Returns an empty text, or what went wrong.
 */
QString writeScreenshots(const QString &directory, DisplayWindow *display);

#endif
