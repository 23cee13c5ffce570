// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGELOOK_H
#define PAGELOOK_H

#include <QFont>
#include <QPixmap>

/** What all pages of the display have in common. */
namespace PageLook {

/** The dark ground of a page, 640 by 480 pixels. */
QPixmap background();

/** The font of page titles. */
QFont titleFont();
/** The font of everything else. */
QFont textFont(int pointSize);

} // namespace PageLook

#endif
