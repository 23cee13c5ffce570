// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtpickerdrawadvanced.h"

#include "zoomgesture_p.h"

#include <qwt_painter.h>
#include <qwt_picker.h>

class ZEMQwtPickerDrawAdvanced::Private
{
public:
    void drawTicks(QPainter *painter, const QRect &band) const
    {
        if (direction == ZoomGesture::AlongY) {
            drawLines(painter, ZoomGesture::ticksAlongY(band, origin, margin));
        } else if (direction == ZoomGesture::AlongX) {
            drawLines(painter, ZoomGesture::ticksAlongX(band, origin, margin));
        }
    }

    int margin = 0;
    int direction = ZoomGesture::AlongY;
    QPoint origin;

private:
    static void drawLines(QPainter *painter, const ZoomGesture::LinePair &lines)
    {
        for (const QLineF &line : lines) {
            QwtPainter::drawLine(painter, line);
        }
    }
};

ZEMQwtPickerDrawAdvanced::ZEMQwtPickerDrawAdvanced(int margin, QwtPicker *picker)
    : ZEMQwtPickerDraw(picker), d(std::make_unique<Private>())
{
    d->margin = margin;
}

ZEMQwtPickerDrawAdvanced::~ZEMQwtPickerDrawAdvanced() = default;

void ZEMQwtPickerDrawAdvanced::setMargin(int margin)
{
    d->margin = margin;
}

void ZEMQwtPickerDrawAdvanced::setOrigin(const QPoint &origin)
{
    d->origin = origin;
}

void ZEMQwtPickerDrawAdvanced::setDirection(int direction)
{
    d->direction = direction;
}

void ZEMQwtPickerDrawAdvanced::drawRubberBand(QPainter *painter) const
{
    ZEMQwtPickerDraw::drawRubberBand(painter);
    // The zoomer sets direction and origin while it answers this question.
    const QPolygon points = picker() ? picker()->selection() : QPolygon();
    if (points.size() == 2 && isZoomQuadrant(points.at(0), points.at(1))) {
        d->drawTicks(painter, ZoomGesture::rectBetween(points.at(0), points.at(1)));
    }
}
