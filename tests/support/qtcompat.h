// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QTCOMPAT_H
#define QTCOMPAT_H

#include <QFontDatabase>
#include <QStringList>

/** Where the versions of Qt from 5.15 on differ. */
namespace QtCompat {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/** Qt 6 makes an object of that class deprecated. */
inline QStringList fontFamilies()
{
    return QFontDatabase().families();
}

#else

inline QStringList fontFamilies()
{
    return QFontDatabase::families();
}

#endif

} // namespace QtCompat

#endif
