// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempixmapcache.h"

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

void ZEMPixmapCache::setCacheLimit(int limit)
{
    QPixmapCache::setCacheLimit(limit);
}
