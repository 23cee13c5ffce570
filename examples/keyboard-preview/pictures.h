// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PICTURES_H
#define PICTURES_H

#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

/** What a keyboard looks like in one state. */
struct Picture
{
    QString name; ///< for a file
    QPixmap pixmap;
};

/** A name for each of @p files, no two of which are the same: that of the file without its end. */
QStringList pictureNames(const QStringList &files);

/**
 * The keyboard @p fileName on a page of @p size pixels: each page in each caps state, and an open
 * panel of alternatives over and under its key. Their names begin with @p name. Takes a second or
 * two, as a key has to be held.
 */
QVector<Picture> drawPictures(const QString &fileName, const QString &name, const QSize &size);

/** Returns an empty text, or what went wrong. The directory is made if need be. */
QString writePictures(const QVector<Picture> &pictures, const QString &directory);

#endif
