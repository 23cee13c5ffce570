// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QPixmapCache>
#include <ZEMPixmap>
#include <ZEMPixmapCache>

void Pages::zempixmapcache(Stage &stage)
{
    const QString icons = QStringLiteral(":/zem/graphics/icons/");
    const QStringList names {QStringLiteral("icons_03"),       QStringLiteral("icons_11"),
                             QStringLiteral("icons_14"),       QStringLiteral("green-ok-icon"),
                             QStringLiteral("red-close-icon"), QStringLiteral("star_icon")};
    for (const QString &name : names) {
        QPixmap picture;
        ZEMPixmapCache::load(picture, icons + name + QStringLiteral(".png"));
        auto *widget = new ZEMPixmap;
        widget->setPixmap(picture);
        stage.add(name, widget);
    }

    stage.addButton(QStringLiteral("setCacheLimit(10240)"),
                    [] { ZEMPixmapCache::setCacheLimit(10240); });
    stage.addButton(QStringLiteral("setCacheLimit(20480)"),
                    [] { ZEMPixmapCache::setCacheLimit(20480); });
}
