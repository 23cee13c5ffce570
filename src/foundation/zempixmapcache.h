// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPIXMAPCACHE_H
#define ZEMPIXMAPCACHE_H

#include "zemkit_export.h"

#include <QObject>
#include <QString>

class QPixmap;

/**
 * Loads pictures through Qt's global QPixmapCache, so that many widgets with the same picture share
 * one copy and read the file once. A service for hosts.
 * @code
 * #include <QLabel>
 * #include <ZEMPixmapCache>
 *
 * QLabel house;
 * QPixmap picture;
 * ZEMPixmapCache::load(picture, QStringLiteral(":/zem/graphics/icons/icons_14.png"),
 *                      house.devicePixelRatioF());
 * house.setPixmap(picture);
 * house.show();
 * @endcode
 */
class ZEM_EXPORT ZEMPixmapCache : public QObject
{
    Q_OBJECT

public:
    explicit ZEMPixmapCache(QObject *parent = nullptr);
    ~ZEMPixmapCache() override;

    /**
     * Takes the picture of @p path from the cache, or reads it and puts it there; the path is the
     * key. A picture that cannot be read leaves @p pixmap null and is offered to the cache all the
     * same. Returns whether the picture was found or the cache took it, which says nothing of
     * whether it could be read.
     */
    static bool load(QPixmap &pixmap, const QString &path);

    /**
     * As above, with the picture that was made for a screen whose device pixel ratio is @p ratio:
     * one beside @p path with "@2x" before its last dot, or a higher number, and that ratio of its
     * own. Each of them has an entry of its own in the cache. Where there is none, and for a ratio
     * of 1 or less, it is that of @p path. For Qt's widgets; those of the library do it themselves.
     */
    static bool load(QPixmap &pixmap, const QString &path, qreal ratio);

    /** Sets the limit of the global cache in kilobytes, for the host's own pictures too. */
    static void setCacheLimit(int limit);
};

#endif
