// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QUICKPATHS_P_H
#define QUICKPATHS_P_H

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QVariant>

#include <qwt_global.h>

#include <algorithm>
#include <array>

/**
 * Whether the charts may take the quick ways of measuring, laying out and painting. They show the
 * same pixels without them. quickpaths.md tells what these ways mirror, and why.
 *
 * They repeat what Qwt does inside, so they are open with those versions of Qwt alone with which
 * they were compared; with any other the charts go Qwt's own ways.
 */
namespace QuickPaths {

/** Versions with which tst_quickpaths and tst_chartwalks have passed. */
constexpr std::array<int, 1> triedQwtVersions {0x060104};

/** A property of the application that holds the version to be assumed, for tests. */
constexpr char qwtVersionProperty[] = "_zem_qwtVersion";

inline bool wereTriedWith(int qwtVersion)
{
    return std::find(triedQwtVersions.begin(), triedQwtVersions.end(), qwtVersion)
        != triedQwtVersions.end();
}

/** The version of the headers: the library of Qwt does not tell its own. */
inline int qwtVersion()
{
    static const QByteArray name(qwtVersionProperty);
    const QCoreApplication *application = QCoreApplication::instance();
    // property() alone, which goes through all properties first, costs more than to fill a column.
    const bool isAssumed = application && application->dynamicPropertyNames().contains(name);
    return isAssumed ? application->property(name).toInt() : QWT_VERSION;
}

inline bool areOpen()
{
    return wereTriedWith(qwtVersion());
}

} // namespace QuickPaths

#endif
