// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SHARPICON_P_H
#define SHARPICON_P_H

#include <QIcon>

/**
 * @p icon as it is to be painted: in the size that its pictures of ratio 1 have, and on a sharp
 * screen with its pictures for such a screen, or those that the library has for its own. An icon of
 * Qt takes pictures for sharp screens for larger ones, and uses them where the host allows to.
 *
 * An icon without pictures, one that is drawn by an engine of its own, is painted as it is.
 */
QIcon sharpIcon(const QIcon &icon);

#endif
