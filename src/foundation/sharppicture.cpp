// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sharppicture_p.h"

#include "picturesize_p.h"
#include "sharpfile_p.h"
#include "zempixmapcache.h"

#include <QDirIterator>
#include <QImage>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QVector>

#include <algorithm>

namespace {

struct Taught
{
    QImage plain;
    SharpPicture::Maker maker;
};

QVector<Taught> &taught()
{
    static QVector<Taught> all;
    return all;
}

QImage comparable(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

int placeAmongTaught(const QPixmap &plain)
{
    const auto isOfItsSize = [&](const Taught &each) { return each.plain.size() == plain.size(); };
    const QVector<Taught> &all = taught();
    auto found = std::find_if(all.begin(), all.end(), isOfItsSize);
    const QImage image = found == all.end() ? QImage() : comparable(plain);
    while (found != all.end() && found->plain != image) {
        found = std::find_if(found + 1, all.end(), isOfItsSize);
    }
    return found == all.end() ? -1 : int(found - all.begin());
}

QPixmap taughtPicture(const QPixmap &plain, qreal ratio)
{
    const int place = placeAmongTaught(plain);
    if (place < 0) {
        return {};
    }
    const QString key = QStringLiteral("zem-sharp-%1-%2").arg(place).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = taught().at(place).maker(ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

struct OwnPicture
{
    QSize size;
    QString path;
};

QVector<OwnPicture> listOwnPictures()
{
    QVector<OwnPicture> all;
    const QString ending = QStringLiteral("@2x.png");
    for (const char *const folder : {":/zem/graphics", ":/tango/graphics"}) {
        QDirIterator sharp(QLatin1String(folder), {QLatin1Char('*') + ending}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (sharp.hasNext()) {
            QString path = sharp.next();
            path.replace(ending, QStringLiteral(".png"));
            all.append({QImageReader(path).size(), path});
        }
    }
    return all;
}

/** A picture tells nothing of where it was read, so it is known by what it shows. */
QPixmap ownPicture(const QPixmap &plain, qreal ratio)
{
    static const QVector<OwnPicture> all = listOwnPictures();
    for (const OwnPicture &own : all) {
        if (own.size == plain.size() && comparable(QPixmap(own.path)) == comparable(plain)) {
            QPixmap sharp;
            ZEMPixmapCache::load(sharp, own.path, ratio);
            return sharp;
        }
    }
    return {};
}

} // namespace

qreal ratioOf(const QPainter &painter)
{
    // The device of the painter would be the widget, also while that is painted on a picture.
    const QPaintEngine *const engine = painter.paintEngine();
    const QPaintDevice *const device = engine ? engine->paintDevice() : nullptr;
    return device ? device->devicePixelRatioF() : 1.0;
}

void drawPicture(QPainter &painter, const QRectF &place, const QPixmap &picture)
{
    const qreal ratio = ratioOf(painter);
    const bool isPlain = ratio == 1.0 && picture.devicePixelRatio() == 1.0;
    const bool wasSmooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    const bool isSmooth = wasSmooth || (!isPlain && place.size() * ratio != QSizeF(picture.size()));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, isSmooth);
    painter.drawPixmap(place, picture, QRectF());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
}

void SharpPicture::teach(const QPixmap &plain, const Maker &maker)
{
    if (placeAmongTaught(plain) < 0) {
        taught().append({comparable(plain), maker});
    }
}

QSize SharpPicture::size() const
{
    return pictureSize(given);
}

QPixmap SharpPicture::forRatio(qreal ratio) const
{
    if (ratio <= 1.0 || given.isNull() || given.devicePixelRatio() != 1.0) {
        return given;
    }
    if (keptRatio != ratio) {
        sharp = taughtPicture(given, ratio);
        if (sharp.isNull()) {
            sharp = ownPicture(given, ratio);
        }
        keptRatio = ratio;
    }
    return sharp.isNull() ? given : sharp;
}

void SharpPicture::draw(QPainter &painter, const QRectF &place) const
{
    drawPicture(painter, place, forRatio(ratioOf(painter)));
}
