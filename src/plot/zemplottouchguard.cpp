// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemplottouchguard.h"

#include "zemplot.h"
#include "zemplotzoomeradvanced.h"
#include "zoomgesture_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QStack>

namespace {

constexpr double finestPart = 100000.0; // of the zoom base: the least size of QwtPlotZoomer

} // namespace

class ZEMPlotTouchGuard::Private
{
public:
    void handlePress(const QMouseEvent *event)
    {
        if (event->button() == Qt::LeftButton) {
            start = event->pos();
            isDrag = false;
        }
    }

    bool isTremble(const QMouseEvent *event)
    {
        const int way = (event->pos() - start).manhattanLength();
        isDrag = isDrag || way > QApplication::startDragDistance();
        return event->buttons().testFlag(Qt::LeftButton) && !isDrag;
    }

    void keepReadable()
    {
        QStack<QRectF> views = zoomer->zoomStack();
        int index = static_cast<int>(zoomer->zoomRectIndex());
        // Of a view that lies outside of the base nothing is left, which no scale can show.
        const QSizeF least = leastView.expandedTo(views.first().size() / finestPart);
        const QRectF view = ZoomGesture::keptInside(views.at(index), views.first(), least);
        if (index == 0 || view == views.at(index)) {
            return;
        }
        views[index] = view;
        if (view == views.at(index - 1)) {
            views.remove(index);
            --index;
        }
        // At its depth a zoomer refuses a stack of just that depth.
        const int depth = zoomer->maxStackDepth();
        zoomer->setMaxStackDepth(-1);
        // Who hears of it may delete the zoomer, and the guard with it.
        const QPointer<ZEMPlotZoomerAdvanced> corrected = zoomer;
        corrected->setZoomStack(views, index);
        if (corrected) {
            corrected->setMaxStackDepth(depth);
        }
    }

    QPointer<ZEMPlotZoomerAdvanced> zoomer;
    QSizeF leastView;
    QPoint start;
    bool isDrag = true; // a move that follows no press is no tremble
};

ZEMPlotTouchGuard::ZEMPlotTouchGuard(ZEMPlot *plot, const QSizeF &leastView)
    : QObject(plot->canvas()), d(std::make_unique<Private>())
{
    d->zoomer = plot->getZoomer();
    d->leastView = leastView;
    plot->canvas()->installEventFilter(this);
    if (d->zoomer) {
        connect(d->zoomer, &QwtPlotZoomer::zoomed, this, [this] { d->keepReadable(); });
    }
}

ZEMPlotTouchGuard::~ZEMPlotTouchGuard() = default;

QSizeF ZEMPlotTouchGuard::leastView() const
{
    return d->leastView;
}

void ZEMPlotTouchGuard::setLeastView(const QSizeF &size)
{
    d->leastView = size;
}

bool ZEMPlotTouchGuard::eventFilter(QObject *watched, QEvent *event)
{
    // The newest filter is asked first, and pickers are made and enabled at any time. Installed
    // while filters are being asked, one behind those that are gone would not hear of the event.
    const auto getAhead = [this, watched] { watched->installEventFilter(this); };
    switch (event->type()) {
    case QEvent::ChildAdded:
        QMetaObject::invokeMethod(this, getAhead, Qt::QueuedConnection);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        QMetaObject::invokeMethod(this, getAhead, Qt::QueuedConnection);
        d->handlePress(static_cast<const QMouseEvent *>(event));
        return false;
    case QEvent::MouseMove:
        return d->isTremble(static_cast<const QMouseEvent *>(event));
    default:
        return false;
    }
}
