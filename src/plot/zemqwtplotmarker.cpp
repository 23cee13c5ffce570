// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtplotmarker.h"

#include "markertexts_p.h"

#include <QPainter>

#include <qwt_text.h>

namespace {

constexpr double gap = 2.0; // pixels between a text and the edge or line that it stands at

} // namespace

class ZEMQwtPlotMarker::Private
{
public:
    int decimalPlacesForX = 0;
    int decimalPlacesForY = 2;
};

ZEMQwtPlotMarker::ZEMQwtPlotMarker() : d(std::make_unique<Private>()) { }

ZEMQwtPlotMarker::~ZEMQwtPlotMarker() = default;

void ZEMQwtPlotMarker::setDecimalPlacesForX(int places)
{
    d->decimalPlacesForX = places;
}

void ZEMQwtPlotMarker::setDecimalPlacesForY(int places)
{
    d->decimalPlacesForY = places;
}

void ZEMQwtPlotMarker::drawLabel(QPainter *painter, const QRectF &canvasRect,
                                 const QPointF &pos) const
{
    const QwtText xText(MarkerTexts::xText(xValue(), d->decimalPlacesForX), QwtText::AutoText);
    const QwtText yText(MarkerTexts::yText(yValue(), d->decimalPlacesForY), QwtText::AutoText);

    const QSizeF ySize = yText.textSize(painter->font());
    painter->translate(gap, pos.y());
    yText.draw(painter, QRectF(QPointF(), ySize));

    // On from there: the first translation stays in force.
    const QSizeF xSize = xText.textSize(painter->font());
    painter->translate(pos.x(),
                       canvasRect.y() + canvasRect.height() - xSize.height() - gap - pos.y());
    xText.draw(painter, QRectF(QPointF(), xSize));
}
