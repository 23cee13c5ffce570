// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PICTURESIZE_P_H
#define PICTURESIZE_P_H

#include <QPixmap>
#include <QSize>

/** The size of a picture, which has more pixels when it is made for a sharp screen. */
inline QSize pictureSize(const QPixmap &picture)
{
    return picture.size() / picture.devicePixelRatio();
}

#endif
