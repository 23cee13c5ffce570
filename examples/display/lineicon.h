// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LINEICON_H
#define LINEICON_H

#include <QIcon>
#include <QPainterPath>
#include <QPixmap>

/** The host's own pictures: white lines that go with the pictures of the library. */
namespace LineIcon {

constexpr int size = 26; // pixels

/**
 * Draws @p path, which lies in a square of 26 by 26, in white lines of 2, into a picture of 26 by
 * 26 pixels times @p scale, as sharp as the sharpest screen.
 */
QPixmap draw(const QPainterPath &path, double scale = 1.0);

/**
 * The same as an icon, which is drawn anew for each screen. Of a picture an icon does not know for
 * which screen it is: on one of ratio 1.5 it would be too large.
 */
QIcon icon(const QPainterPath &path, double scale = 1.0);

} // namespace LineIcon

#endif
