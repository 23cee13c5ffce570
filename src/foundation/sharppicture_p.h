// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SHARPPICTURE_P_H
#define SHARPPICTURE_P_H

#include <QPixmap>
#include <QSize>

#include <functional>

class QPainter;
class QRectF;

/** The device pixel ratio of what @p painter paints on, be it a screen or a picture of a widget. */
qreal ratioOf(const QPainter &painter);

/** Draws @p picture into @p place, with smooth edges where its pixels are not those of the screen.
 */
void drawPicture(QPainter &painter, const QRectF &place, const QPixmap &picture);

/**
 * A picture that a widget keeps. It has the size of the one that was given, and on a sharp screen
 * shows the one that was made for such a screen, if that is known: that of a picture of the
 * library, however it was read, or one that teach() was told of. Which one it is, is decided at
 * each paint.
 */
class SharpPicture
{
public:
    using Maker = std::function<QPixmap(qreal ratio)>;

    SharpPicture() = default;
    /** Implicit, since it is what a QPixmap is for those that draw it. */
    SharpPicture(const QPixmap &picture) : given(picture) { } // NOLINT(google-explicit-constructor)

    /** Says how a picture like @p plain, of ratio 1, is made for other ratios. */
    static void teach(const QPixmap &plain, const Maker &maker);

    bool isNull() const { return given.isNull(); }
    /** The picture that was given. */
    const QPixmap &plain() const { return given; }
    /** The size on the screen. */
    QSize size() const;

    /** The picture to be shown where the ratio is @p ratio. */
    QPixmap forRatio(qreal ratio) const;
    void draw(QPainter &painter, const QRectF &place) const;

private:
    QPixmap given;
    mutable QPixmap sharp; ///< for keptRatio
    mutable qreal keptRatio = 1.0;
};

#endif
