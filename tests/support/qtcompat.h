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

/** One of two texts, where Qt itself writes another since Qt 6. */
constexpr const char *words(const char *ofQt5, const char * /*ofQt6*/)
{
    return ofQt5;
}

#else

inline QStringList fontFamilies()
{
    return QFontDatabase::families();
}

constexpr const char *words(const char * /*ofQt5*/, const char *ofQt6)
{
    return ofQt6;
}

#endif

} // namespace QtCompat

#endif
