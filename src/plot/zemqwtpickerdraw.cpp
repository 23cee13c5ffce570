// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtpickerdraw.h"

#include "zoomgesture_p.h"

#include <QPointer>

#include <qwt_painter.h>
#include <qwt_picker.h>

class ZEMQwtPickerDraw::Private
{
public:
    QPointer<QwtPicker> picker;
};

ZEMQwtPickerDraw::ZEMQwtPickerDraw(QwtPicker *picker) : d(std::make_unique<Private>())
{
    d->picker = picker;
}

ZEMQwtPickerDraw::~ZEMQwtPickerDraw() = default;

void ZEMQwtPickerDraw::drawTracker(QPainter *painter) const
{
    if (trackerText && d->picker) {
        d->picker->drawTracker(painter);
    }
}

void ZEMQwtPickerDraw::drawRubberBand(QPainter *painter) const
{
    const QPolygon points = d->picker ? d->picker->selection() : QPolygon();
    if (points.size() != 2) {
        return;
    }
    const QRect rect = ZoomGesture::rectBetween(points.at(0), points.at(1));
    QwtPainter::drawRect(painter, ZoomGesture::band(rect));
    if (!isZoomQuadrant(points.at(0), points.at(1))) {
        for (const QLineF &line : ZoomGesture::cross(rect)) {
            QwtPainter::drawLine(painter, line);
        }
    }
}

bool ZEMQwtPickerDraw::trackerTextEnabled() const
{
    return trackerText;
}

bool ZEMQwtPickerDraw::isZoomQuadrant(QPoint start, QPoint end) const
{
    return ZoomGesture::isZoom(start, end);
}

QwtPicker *ZEMQwtPickerDraw::picker() const
{
    return d->picker;
}
