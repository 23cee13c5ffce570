// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemplotzoomer.h"

#include "pickerevents_p.h"
#include "zemqwtpickerdraw.h"
#include "zoomgesture_p.h"

#include <QPointer>
#include <QtDebug>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

class ZEMPlotZoomer::Private
{
public:
    explicit Private(ZEMPlotZoomer *zoomer) : ownDraw(zoomer), pickerDraw(&ownDraw) { }

    ZEMQwtPickerDraw ownDraw;
    ZEMQwtPickerDraw *pickerDraw;
    bool isAtLimit = false; // the drag has begun where only the way back is open
};

ZEMPlotZoomer::ZEMPlotZoomer(QwtPlotCanvas *canvas, bool doReplot)
    : QwtPlotZoomer(QwtPlot::xBottom, QwtPlot::yLeft, canvas, doReplot),
      d(std::make_unique<Private>(this))
{
    setTrackerMode(QwtPicker::AlwaysOff);
    setRubberBand(QwtPicker::UserRubberBand);
}

ZEMPlotZoomer::~ZEMPlotZoomer() = default;

bool ZEMPlotZoomer::eventFilter(QObject *watched, QEvent *event)
{
    return PickerEvents::filtered<QwtPlotZoomer>(this, watched, event);
}

void ZEMPlotZoomer::setPickerDraw(ZEMQwtPickerDraw *draw)
{
    if (!draw) {
        qDebug("Error: NULL pickerDraw provided");
        return;
    }
    d->pickerDraw = draw;
}

void ZEMPlotZoomer::drawRubberBand(QPainter *painter) const
{
    if (rubberBand() >= QwtPicker::UserRubberBand) {
        d->pickerDraw->drawRubberBand(painter);
    } else {
        QwtPlotZoomer::drawRubberBand(painter);
    }
}

void ZEMPlotZoomer::drawTracker(QPainter *painter) const
{
    if (rubberBand() >= QwtPicker::UserRubberBand) {
        d->pickerDraw->drawTracker(painter);
    } else {
        QwtPlotZoomer::drawTracker(painter);
    }
}

void ZEMPlotZoomer::zoom(const QRectF &rect)
{
    QwtPlotZoomer::zoom(rect);
}

void ZEMPlotZoomer::zoom(int up)
{
    // Since 6.2 Qwt does nothing where the view stays the same one; what was panned is to come
    // back.
    const QPointer<QObject> self(this);
    bool isTold = false;
    const auto listening =
        connect(this, &QwtPlotZoomer::zoomed, this, [&isTold] { isTold = true; });
    QwtPlotZoomer::zoom(up);
    if (!self) {
        return;
    }
    disconnect(listening);
    if (!isTold) {
        rescale();
        Q_EMIT zoomed(zoomRect());
    }
}

void ZEMPlotZoomer::begin()
{
    if (isActive()) {
        return;
    }
    QwtPlotZoomer::begin();
    // It refuses at the least size and at the depth, from where a drag must still lead back. With
    // a depth of 0 there is no zooming at all.
    d->isAtLimit = !isActive() && maxStackDepth() != 0;
    if (d->isAtLimit) {
        QwtPicker::begin(); // NOLINT(bugprone-parent-virtual-call)
    }
}

bool ZEMPlotZoomer::end(bool ok)
{
    const QPolygon dragged = selection();
    const bool isReset = dragged.size() >= 2 && !isZoomQuadrant(dragged.at(0), dragged.at(1));
    const bool counts = ok && (isReset || !d->isAtLimit);
    // Who hears of the selection in there may delete the zoomer, or take the canvas from its plot.
    const QPointer<QObject> self(this);
    if (!QwtPlotPicker::end(counts) || !self || !plot()) {
        return false;
    }
    const QPolygon points = selection();
    if (points.size() < 2) {
        return false;
    }
    if (!isZoomQuadrant(points.at(0), points.at(1))) {
        zoom(0);
        return true;
    }
    const QRectF rect = invTransform(QRect(points.first(), points.last())).normalized();
    const QSizeF least = minZoomSize();
    zoom(least.isValid() ? ZoomGesture::widened(rect, least) : rect);
    return true;
}

bool ZEMPlotZoomer::accept(QPolygon &points) const
{
    return points.size() >= 2 && ZoomGesture::hasExtent(points.first(), points.last());
}

void ZEMPlotZoomer::widgetMouseReleaseEvent(QMouseEvent *event)
{
    // Past QwtPlotZoomer, which would zoom out on other buttons: they may belong to a panner.
    QwtPicker::widgetMouseReleaseEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void ZEMPlotZoomer::widgetKeyPressEvent(QKeyEvent *) { }

void ZEMPlotZoomer::widgetKeyReleaseEvent(QKeyEvent *) { }

bool ZEMPlotZoomer::isZoomQuadrant(QPoint start, QPoint end) const
{
    return ZoomGesture::isZoom(start, end);
}
