// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SHARPNESS_H
#define SHARPNESS_H

#include <QImage>
#include <QRect>
#include <QSize>
#include <QVector>
#include <QtGlobal>

class QWidget;

/** What widgets look like on screens of more pixels. */
namespace Sharpness {

/**
 * What @p widget and its children paint on a screen of @p ratio, whatever its own is, on black. No
 * event is handled meanwhile.
 */
QImage rendered(QWidget *widget, qreal ratio);

/** @p image in @p size pixels, smooth. */
QImage resized(const QImage &image, const QSize &size);

/**
 * How much of @p other is at another place than in @p one, an image of the same size: by how many
 * shades its pixels are beyond all that the pixel and its eight neighbours have in @p one, in the
 * mean of the worst tile. The edges of letters and pictures, which lie a little otherwise on each
 * screen, count for nothing.
 */
double displacement(const QImage &one, const QImage &other);

/**
 * The tiles of @p plain in which @p sharp, an image of the same with twice as many pixels each way,
 * shows no more than @p plain drawn larger. Tiles without round or slanted edges are left out,
 * since they look alike in both.
 */
QVector<QRect> blurredTiles(const QImage &plain, const QImage &sharp);

/** The tiles of @p plain that blurredTiles() looks at. */
QVector<QRect> detailedTiles(const QImage &plain);

} // namespace Sharpness

#endif
