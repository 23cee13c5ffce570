// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGEICONS_H
#define PAGEICONS_H

#include <QIcon>
#include <QPixmap>

/** Pictures of the pages and of the buttons in their headers. */
namespace PageIcons {

/** For header tiles, 32 by 32 pixels. */
QIcon menu();
QIcon back();
QPixmap bell();

/** For the grid of pages, 52 by 52 pixels. */
QPixmap charts();
QPixmap devices();
QPixmap analysis();
QPixmap months();
QPixmap goals();
QPixmap settings();

} // namespace PageIcons

#endif
