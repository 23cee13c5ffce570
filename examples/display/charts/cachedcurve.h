// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CACHEDCURVE_H
#define CACHEDCURVE_H

#include <QPainter>
#include <QPixmap>
#include <array>
#include <cmath>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>

/**
 * A curve, @p Base, that keeps the picture of itself. So a marker that is moved over a long series
 * costs no more than over a short one: the plot is drawn anew, and the curve is not. It is drawn
 * when its data, its look, an axis or the size of the canvas has changed.
 */
template <class Base>
class CachedCurve : public Base
{
public:
    using Base::Base;

    void drawSeries(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap,
                    const QRectF &canvasRect, int from, int to) const override
    {
        // A printer, or whoever scales, wants lines and no picture.
        if (painter->transform().type() > QTransform::TxTranslate) {
            Base::drawSeries(painter, xMap, yMap, canvasRect, from, to);
            return;
        }
        const double ratio = painter->device()->devicePixelRatioF();
        const Look look {numbersOf(xMap, yMap),  canvasRect, this->pen(), this->brush(),
                         painter->renderHints(), ratio};
        if (picture.isNull() || !(look == pictured)) {
            picture = QPixmap(int(std::ceil(canvasRect.width() * ratio)),
                              int(std::ceil(canvasRect.height() * ratio)));
            picture.setDevicePixelRatio(ratio);
            picture.fill(Qt::transparent);
            QPainter picturePainter(&picture);
            picturePainter.setRenderHints(painter->renderHints());
            picturePainter.translate(-canvasRect.topLeft());
            Base::drawSeries(&picturePainter, xMap, yMap, canvasRect, from, to);
            pictured = look;
        }
        painter->drawPixmap(canvasRect.topLeft(), picture);
    }

protected:
    void dataChanged() override
    {
        picture = QPixmap();
        Base::dataChanged();
    }

private:
    using MapNumbers = std::array<double, 8>;

    /** All that the picture depends on but the samples. */
    struct Look
    {
        MapNumbers maps {};
        QRectF canvasRect;
        QPen pen;
        QBrush brush;
        QPainter::RenderHints hints;
        double ratio = 1.0;

        bool operator==(const Look &other) const
        {
            return maps == other.maps && canvasRect == other.canvasRect && pen == other.pen
                && brush == other.brush && hints == other.hints && ratio == other.ratio;
        }
    };

    static MapNumbers numbersOf(const QwtScaleMap &xMap, const QwtScaleMap &yMap)
    {
        return {xMap.s1(), xMap.s2(), xMap.p1(), xMap.p2(),
                yMap.s1(), yMap.s2(), yMap.p1(), yMap.p2()};
    }

    mutable QPixmap picture;
    mutable Look pictured;
};

#endif
