// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keptpictures.h"

#include <QFile>
#include <QImage>
#include <QSysInfo>

QString KeptPictures::reasonToDiffer()
{
    if (QT_VERSION_MAJOR != 5) {
        return QStringLiteral("pictures are taken with Qt 5");
    }
    if (QSysInfo::productType() != QLatin1String("debian")
        || QSysInfo::productVersion() != QLatin1String("12")) {
        return QStringLiteral("pictures are taken on Debian 12");
    }
    if (QSysInfo::buildCpuArchitecture() != QLatin1String("x86_64")) {
        return QStringLiteral("pictures are taken on x86_64");
    }
    return QString();
}

QString KeptPictures::difference(const QImage &now, const QString &file)
{
    const QImage kept = QImage(file).convertToFormat(QImage::Format_RGB32);
    const QImage taken = now.convertToFormat(QImage::Format_RGB32);
    if (kept.isNull()) {
        return QStringLiteral("there is no %1").arg(file);
    }
    if (taken.size() != kept.size()) {
        return QStringLiteral("%1 is %2 by %3 pixels, and now %4 by %5")
            .arg(file)
            .arg(kept.width())
            .arg(kept.height())
            .arg(taken.width())
            .arg(taken.height());
    }
    int pixels = 0;
    for (int y = 0; y < kept.height(); ++y) {
        for (int x = 0; x < kept.width(); ++x) {
            pixels += kept.pixel(x, y) != taken.pixel(x, y) ? 1 : 0;
        }
    }
    return pixels == 0 ? QString()
                       : QStringLiteral("%1 pixels differ from %2").arg(pixels).arg(file);
}
