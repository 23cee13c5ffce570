// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempixmapcache.h"

#include "sharpfile_p.h"

#include <QPixmap>
#include <QPixmapCache>

ZEMPixmapCache::ZEMPixmapCache(QObject *parent) : QObject(parent) { }

ZEMPixmapCache::~ZEMPixmapCache() = default;

bool ZEMPixmapCache::load(QPixmap &pixmap, const QString &path)
{
    if (QPixmapCache::find(path, &pixmap)) {
        return true;
    }
    pixmap.load(path);
    return QPixmapCache::insert(path, pixmap);
}

bool ZEMPixmapCache::load(QPixmap &pixmap, const QString &path, qreal ratio)
{
    const SharpFile file = sharpFile(path, ratio);
    if (file.ratio == 1 || QPixmapCache::find(file.path, &pixmap)) {
        return load(pixmap, file.path);
    }
    pixmap.load(file.path);
    // Qt does so by itself, but not for a name with another dot in it.
    pixmap.setDevicePixelRatio(file.ratio);
    return QPixmapCache::insert(file.path, pixmap);
}

void ZEMPixmapCache::setCacheLimit(int limit)
{
    QPixmapCache::setCacheLimit(limit);
}
