// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SHARPFILE_P_H
#define SHARPFILE_P_H

#include <QFile>
#include <QString>
#include <QtMath>

/** A file with a picture, and how many pixels it has for one on the screen, each way. */
struct SharpFile
{
    QString path;
    int ratio;
};

/**
 * The file of the picture @p path for a screen of @p ratio: that with the ending "@2x" or a higher
 * one up to "@9x", as many as the ratio has use for. Where there is none, @p path itself.
 */
inline SharpFile sharpFile(const QString &path, qreal ratio)
{
    constexpr int highest = 9;
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    for (int n = qMin(qCeil(ratio), highest); n > 1 && dot >= 0; --n) {
        QString file = path;
        file.insert(dot, QStringLiteral("@%1x").arg(n));
        if (QFile::exists(file)) {
            return {file, n};
        }
    }
    return {path, 1};
}

#endif
