// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SIZEHASH_P_H
#define SIZEHASH_P_H

#include <QSize>

/** Lets a QSize be the key of a QHash. In the global namespace, where QHash finds it. */
inline uint qHash(const QSize &size)
{
    return static_cast<uint>(size.width() ^ size.height());
}

#endif
