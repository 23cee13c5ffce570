// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DISPLAYSCALE_H
#define DISPLAYSCALE_H

#include <QSize>
#include <QString>
#include <optional>

/**
 * How large everything is drawn. The widgets of the library have sizes in pixels, so a larger
 * screen shows all of it larger, and what it has left over in one direction is for the layouts to
 * fill.
 */
namespace DisplayScale {

/** The least that the pages are laid out for: 640 by 480, or 480 by 800 on an upright screen. */
QSize leastSize(const QSize &screen);

/** "1024x600" as a size; empty if it is none, or one that is too small for the pages. */
std::optional<QSize> parseSize(const QString &text);

/** By how much everything is drawn larger on @p screen; below 1 if the screen is too small. */
double scaleFor(const QSize &screen);

/** The size of the pages on @p screen, in the pixels that layouts count in. */
QSize pageSizeOn(const QSize &screen);

/**
 * Lets Qt draw everything as @p screen wants it, whatever density the panel tells of. To be called
 * before there is an application.
 */
void prepare(const QSize &screen);

/** Whether the platform of that name, as in QT_QPA_PLATFORM, has no window manager. */
bool isWholeScreen(const QString &platform);

} // namespace DisplayScale

#endif
