// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemplotzoomeradvanced.h"

#include "zemqwtpickerdrawadvanced.h"
#include "zoomgesture_p.h"

#include <qwt_plot_canvas.h>

namespace {

constexpr int defaultMargin = 50; // pixels

} // namespace

class ZEMPlotZoomerAdvanced::Private
{
public:
    int margin = defaultMargin;
    std::unique_ptr<ZEMQwtPickerDrawAdvanced> pickerDrawAdvanced;
};

ZEMPlotZoomerAdvanced::ZEMPlotZoomerAdvanced(int margin, QwtPlotCanvas *canvas, bool doReplot)
    : ZEMPlotZoomer(canvas, doReplot), d(std::make_unique<Private>())
{
    d->margin = margin;
    init();
}

ZEMPlotZoomerAdvanced::ZEMPlotZoomerAdvanced(QwtPlotCanvas *canvas, bool doReplot)
    : ZEMPlotZoomerAdvanced(defaultMargin, canvas, doReplot)
{
}

ZEMPlotZoomerAdvanced::~ZEMPlotZoomerAdvanced() = default;

void ZEMPlotZoomerAdvanced::init()
{
    d->pickerDrawAdvanced = std::make_unique<ZEMQwtPickerDrawAdvanced>(d->margin, this);
    setPickerDraw(d->pickerDrawAdvanced.get());
}

void ZEMPlotZoomerAdvanced::setMargin(int margin)
{
    d->margin = margin;
    d->pickerDrawAdvanced->setMargin(margin);
}

QPolygon ZEMPlotZoomerAdvanced::adjustedPoints(const QPolygon &points) const
{
    if (points.size() != 2 || !isZoomQuadrant(points.at(0), points.at(1))) {
        return points;
    }
    const ZoomGesture::Snap snap =
        ZoomGesture::snapped(points.at(0), points.at(1), d->margin, canvas()->size());
    d->pickerDrawAdvanced->setDirection(snap.direction);
    if (snap.direction != ZoomGesture::Free) {
        d->pickerDrawAdvanced->setOrigin(points.at(0));
    }
    return QVector<QPoint> {snap.first, snap.last};
}
