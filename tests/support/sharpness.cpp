// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sharpness.h"

#include <QPixmap>
#include <QWidget>

namespace {

constexpr int tileSide = 16; // pixels
constexpr int clearStep = 24; // shades between neighbours that are on both sides of an edge
constexpr int leastDetail = 6; // pixels of a tile that are between two others in shade
constexpr double seenDifference = 4.0; // shades, in the mean of these pixels

QVector<QRect> tilesOf(const QImage &image)
{
    QVector<QRect> tiles;
    for (int y = 0; y < image.height(); y += tileSide) {
        for (int x = 0; x < image.width(); x += tileSide) {
            tiles.append(QRect(x, y, tileSide, tileSide) & image.rect());
        }
    }
    return tiles;
}

/** One byte for each pixel, which is much quicker to compare. */
QImage shadesOf(const QImage &image)
{
    return image.convertToFormat(QImage::Format_Grayscale8);
}

int shadeAt(const QImage &shades, int x, int y)
{
    return shades.constScanLine(y)[x];
}

/**
 * Whether @p pixel is on a smooth edge that is neither level nor upright: clearly between its two
 * neighbours across the edge in shade, and of another shade than one of those along it.
 */
bool isOnARoundEdge(const QImage &shades, const QPoint &pixel)
{
    const auto shade = [&](int dx, int dy) {
        return shadeAt(shades, pixel.x() + dx, pixel.y() + dy);
    };
    const int here = shade(0, 0);
    const auto isBetween = [&](int before, int behind) {
        return qMin(before, behind) + clearStep <= here && here + clearStep <= qMax(before, behind);
    };
    const auto changes = [&](int before, int behind) {
        return qMax(qAbs(before - here), qAbs(behind - here)) >= clearStep;
    };
    const int left = shade(-1, 0);
    const int right = shade(1, 0);
    const int above = shade(0, -1);
    const int below = shade(0, 1);
    return (isBetween(left, right) && changes(above, below))
        || (isBetween(above, below) && changes(left, right));
}

QVector<QPoint> detailsOf(const QImage &image, const QRect &tile)
{
    QVector<QPoint> details;
    const QRect inner = tile & image.rect().adjusted(1, 1, -1, -1);
    for (int y = inner.top(); y <= inner.bottom(); ++y) {
        for (int x = inner.left(); x <= inner.right(); ++x) {
            if (isOnARoundEdge(image, {x, y})) {
                details.append({x, y});
            }
        }
    }
    return details.size() < leastDetail ? QVector<QPoint>() : details;
}

/** The mean difference of two sharp images in the four pixels of each of @p details. */
double differenceAt(const QVector<QPoint> &details, const QImage &one, const QImage &other)
{
    int sum = 0;
    for (const QPoint &detail : details) {
        for (const QPoint &pixel : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
            const QPoint place = 2 * detail + pixel;
            sum += qAbs(shadeAt(one, place.x(), place.y()) - shadeAt(other, place.x(), place.y()));
        }
    }
    return sum / (4.0 * details.size());
}

/** By how much @p shade is beyond those of @p pixel and its neighbours. */
int shadesBeyond(const QImage &shades, const QPoint &pixel, int shade)
{
    int least = 255;
    int most = 0;
    const QRect around = QRect(pixel - QPoint(1, 1), QSize(3, 3)) & shades.rect();
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (int x = around.left(); x <= around.right(); ++x) {
            const int here = shadeAt(shades, x, y);
            least = qMin(least, here);
            most = qMax(most, here);
        }
    }
    return qMax(0, qMax(least - shade, shade - most));
}

} // namespace

namespace Sharpness {

QImage rendered(QWidget *widget, qreal ratio)
{
    QPixmap picture(widget->size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::black);
    widget->render(&picture);
    QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1.0);
    return image;
}

QImage resized(const QImage &image, const QSize &size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

double displacement(const QImage &one, const QImage &other)
{
    const QImage shades = shadesOf(one);
    const QImage others = shadesOf(other);
    double worst = 0.0;
    for (const QRect &tile : tilesOf(one)) {
        double sum = 0.0;
        for (int y = tile.top(); y <= tile.bottom(); ++y) {
            for (int x = tile.left(); x <= tile.right(); ++x) {
                sum += shadesBeyond(shades, {x, y}, shadeAt(others, x, y));
            }
        }
        worst = qMax(worst, sum / (tile.width() * tile.height()));
    }
    return worst;
}

QVector<QRect> blurredTiles(const QImage &plain, const QImage &sharp)
{
    const QImage shades = shadesOf(plain);
    const QImage sharpShades = shadesOf(sharp);
    const QImage smooth = shadesOf(resized(plain, sharp.size()));
    const QImage coarse = shadesOf(plain.scaled(sharp.size()));
    QVector<QRect> blurred;
    for (const QRect &tile : tilesOf(plain)) {
        const QVector<QPoint> details = detailsOf(shades, tile);
        if (!details.isEmpty()
            && (differenceAt(details, sharpShades, smooth) < seenDifference
                || differenceAt(details, sharpShades, coarse) < seenDifference)) {
            blurred.append(tile);
        }
    }
    return blurred;
}

QVector<QRect> detailedTiles(const QImage &plain)
{
    const QImage shades = shadesOf(plain);
    QVector<QRect> detailed;
    for (const QRect &tile : tilesOf(plain)) {
        if (!detailsOf(shades, tile).isEmpty()) {
            detailed.append(tile);
        }
    }
    return detailed;
}

} // namespace Sharpness
