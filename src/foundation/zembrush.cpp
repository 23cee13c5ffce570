// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zembrush.h"

#include <QBitmap>
#include <QPixmapCache>

namespace {

QPixmap stripes()
{
    constexpr uchar rows[] = {0x00, 0xFF, 0x00, 0xFF, 0x00, 0xFF, 0x00, 0xFF};
    return QBitmap::fromData(QSize(8, 8), rows, QImage::Format_MonoLSB);
}

} // namespace

QBrush ZEMBrush::getBrush(const QColor &color)
{
    const QString key = QStringLiteral("zem-brush");
    QPixmap pattern;
    if (!QPixmapCache::find(key, &pattern)) {
        pattern = stripes();
        QPixmapCache::insert(key, pattern);
    }
    return {color, pattern};
}
