// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sharpicon_p.h"

#include "sharppicture_p.h"

#include <QByteArray>
#include <QCache>
#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <QIconEngine>
#include <QPainter>
#include <QRegularExpression>
#include <QVector>
#include <QtMath>

namespace {

constexpr int mostIcons = 256; // that are kept
constexpr qreal sharpest = 9.0; // ratio of pictures that Qt knows by their names

/** One of the pictures that an icon was given. */
struct Picture
{
    QPixmap pixels;
    QString path; ///< empty for one that was not read from a file
    quint32 mode = 0;
    quint32 state = 0;

    void addTo(QIcon &icon, QPixmap picture) const
    {
        picture.setDevicePixelRatio(1.0);
        icon.addPixmap(picture, QIcon::Mode(mode), QIcon::State(state));
    }
};

/** All pictures of @p icon; none for an icon that is drawn otherwise. */
QVector<Picture> picturesOf(const QIcon &icon)
{
    // An icon gives its pictures away without their ratio. Only a stream has the names of their
    // files, in a format that Qt describes.
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << icon;
    QDataStream in(bytes);
    QString engine;
    qint32 count = 0;
    in >> engine >> count;
    if (engine != QLatin1String("QPixmapIconEngine")) {
        return {};
    }
    QVector<Picture> pictures;
    for (int i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        Picture picture;
        QSize size;
        in >> picture.pixels >> picture.path >> size >> picture.mode >> picture.state;
        if (!picture.path.isEmpty()) {
            picture.pixels = QPixmap(picture.path);
        }
        pictures.append(picture);
    }
    return pictures;
}

/** How many sizes @p icon has pictures of, for whatever it has most of them. */
int sizesOf(const QIcon &icon)
{
    int most = 0;
    for (const auto mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
        for (const auto state : {QIcon::Off, QIcon::On}) {
            most = qMax(most, int(icon.availableSizes(mode, state).size()));
        }
    }
    return most;
}

/** @p icon without the pictures that are for sharp screens by the names of their files. */
QIcon plainIcon(const QIcon &icon)
{
    static const QRegularExpression ending(QStringLiteral("@[2-9]x\\.[^./]*$"));
    QIcon plain;
    bool isWhole = true;
    for (const Picture &picture : picturesOf(icon)) {
        if (picture.path.contains(ending)) {
            isWhole = false;
        } else {
            picture.addTo(plain, picture.pixels);
        }
    }
    return isWhole || plain.isNull() ? icon : plain;
}

/** An icon of all pictures, each as large as it has pixels. */
QIcon sharpestIcon(const QIcon &icon)
{
    QIcon all;
    for (const Picture &picture : picturesOf(icon)) {
        const QPixmap sharp = SharpPicture(picture.pixels).forRatio(sharpest);
        picture.addTo(all, picture.pixels);
        if (sharp.size() != picture.pixels.size()) {
            picture.addTo(all, sharp);
        }
    }
    return all.isNull() ? icon : all;
}

class SharpIconEngine : public QIconEngine
{
public:
    explicit SharpIconEngine(const QIcon &icon)
        : given(icon), plain(sizesOf(icon) > 1 ? plainIcon(icon) : icon)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = ratioOf(*painter);
        if (ratio <= 1.0) {
            plain.paint(painter, rect, Qt::AlignCenter, mode, state);
            return;
        }
        if (sharp.isNull()) {
            sharp = sharpestIcon(given);
        }
        drawPicture(*painter, rect, sharp.pixmap(rect.size() * qCeil(ratio), mode, state));
    }

    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QSize actual = plain.actualSize(size, mode, state);
        // On a sharp screen Qt may answer with the size of a picture that is larger.
        if (actual != actual.boundedTo(size)) {
            actual.scale(size, Qt::KeepAspectRatio);
        }
        return actual;
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return plain.pixmap(size, mode, state);
    }

    QIconEngine *clone() const override { return new SharpIconEngine(given); }

private:
    const QIcon given;
    const QIcon plain;
    QIcon sharp; ///< made when it is needed
};

/** The icons that were asked for last, by the key of what was given. */
QCache<qint64, QIcon> &cache()
{
    static QCache<qint64, QIcon> *const icons = [] {
        // No picture outlives the application.
        qAddPostRoutine([] { cache().clear(); });
        return new QCache<qint64, QIcon>(mostIcons);
    }();
    return *icons;
}

} // namespace

QIcon sharpIcon(const QIcon &icon)
{
    if (const QIcon *const known = cache().object(icon.cacheKey())) {
        return *known;
    }
    // An icon without pictures draws itself for the device that it is given.
    QIcon made = sizesOf(icon) > 0 ? QIcon(new SharpIconEngine(icon)) : icon;
    cache().insert(icon.cacheKey(), new QIcon(made));
    return made;
}
