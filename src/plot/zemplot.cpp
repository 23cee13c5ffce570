// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemplot.h"

#include "objectname_p.h"
#include "sharpground_p.h"
#include "zemplotstyler.h"
#include "zemplotzoomeradvanced.h"
#include "zemqwtplotcurvepointgetter.h"

#include <QBrush>
#include <QPalette>
#include <QPointer>
#include <QScopedValueRollback>

#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_panner.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <algorithm>

namespace {

/** A grid that leaves null in its place when a program deletes it. */
class Grid : public QwtPlotGrid
{
public:
    explicit Grid(QwtPlotGrid *&placeOfGrid) : place(placeOfGrid) { }
    ~Grid() override { place = nullptr; }

private:
    QwtPlotGrid *&place;
};

} // namespace

class ZEMPlot::Private
{
public:
    void handleDetached(const QwtPlotItem *item)
    {
        detached = Detached();
        if (item != curveBeingRemoved) {
            // What is being deleted is a plain item by now, and its address may be used again.
            if (item->rtti() != QwtPlotItem::Rtti_PlotItem) {
                detached = {item, item->z(), curves};
            }
            curves.erase(std::remove(curves.begin(), curves.end(), item), curves.end());
        }
    }

    /** Qwt detaches an item whose z changes too, and attaches it at once, with the new z. */
    void handleAttached(const QwtPlotItem *item)
    {
        if (item == detached.item && item->z() != detached.z) {
            curves = detached.curvesBefore;
        }
        detached = Detached();
    }

    /** What was detached last, unless it cannot come back. */
    struct Detached
    {
        const QwtPlotItem *item = nullptr;
        double z = 0.0;
        QList<QwtPlotCurve *> curvesBefore;
    };

    // A program that gives the plot another canvas deletes the old one and both of these with it.
    QPointer<QwtPlotPanner> panner;
    QPointer<ZEMPlotZoomerAdvanced> zoomer;
    ZEMPlotStyler *styler = nullptr;
    QwtPlotGrid *grid = nullptr;
    ZEMQwtPlotCurvePointGetter *curvePointGetter = nullptr;
    QList<QwtPlotCurve *> curves;
    const QwtPlotItem *curveBeingRemoved = nullptr;
    Detached detached;
    QObject listener; // the last member: it hears of items only as long as the others live
};

ZEMPlot::ZEMPlot(ZEMPlotStyler *styler, QWidget *parent)
    : QwtPlot(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->panner = new QwtPlotPanner(canvas());
    d->zoomer = new ZEMPlotZoomerAdvanced(qobject_cast<QwtPlotCanvas *>(canvas()), true);
    d->styler = styler;
    d->grid = new Grid(d->grid);
    d->curvePointGetter = new ZEMQwtPlotCurvePointGetter(this);
    connect(this, &QwtPlot::itemAttached, &d->listener, [this](QwtPlotItem *item, bool on) {
        if (on) {
            d->handleAttached(item);
        } else {
            d->handleDetached(item);
        }
    });
}

ZEMPlot::~ZEMPlot()
{
    delete d->grid;
    delete d->panner;
    delete d->zoomer;
}

void ZEMPlot::init()
{
    if (d->grid) {
        d->grid->attach(this);
    }
    restyle();
    if (d->panner) {
        d->panner->setMouseButton(Qt::RightButton, Qt::NoModifier);
        for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
            // Those that the zoomer brings back.
            d->panner->setAxisEnabled(axis, axis == QwtPlot::yLeft || axis == QwtPlot::xBottom);
        }
    }
}

void ZEMPlot::restyle()
{
    d->styler->stylePlot(this);
    if (d->grid) {
        d->styler->styleGrid(d->grid);
    }
    for (int i = 0; i < d->curves.size(); ++i) {
        d->styler->styleCurve(d->curves.at(i), i);
    }
    replot();
}

ZEMPlotStyler *ZEMPlot::getStyler()
{
    return d->styler;
}

void ZEMPlot::setStyler(ZEMPlotStyler *styler)
{
    d->styler = styler;
    restyle();
}

ZEMPlotZoomerAdvanced *ZEMPlot::getZoomer()
{
    return d->zoomer;
}

QwtPlotPanner *ZEMPlot::getPanner()
{
    return d->panner;
}

ZEMQwtPlotCurvePointGetter *ZEMPlot::getCurvePointGetter()
{
    return d->curvePointGetter;
}

const QList<QwtPlotCurve *> &ZEMPlot::getCurves() const
{
    return d->curves;
}

int ZEMPlot::getNumCurves() const
{
    return d->curves.size();
}

int ZEMPlot::getIndexOfCurve(QwtPlotCurve *curve) const
{
    return d->curves.indexOf(curve);
}

void ZEMPlot::setBackgroundColor(QColor color)
{
    setAutoFillBackground(true);
    setAutoReplot(true);
    setCanvasBackground(QBrush(color, Qt::SolidPattern));
}

void ZEMPlot::setFrontColor(QColor color)
{
    setPalette(QPalette(color));
}

void ZEMPlot::setBackgroundGraphic(const QPixmap &pixmap)
{
    setCanvasBackground(QBrush(pixmap));
    SharpGround::watch(canvas());
    auto *const plotCanvas = qobject_cast<QwtPlotCanvas *>(canvas());
    if (plotCanvas) {
        plotCanvas->setFrameStyle(0);
    }
    setAttribute(Qt::WA_TranslucentBackground, true);
    if (plotCanvas) {
        // Either of them would paint a ground under the transparent parts of the picture.
        plotCanvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
        plotCanvas->setPaintAttribute(QwtPlotCanvas::Opaque, false);
        plotCanvas->setAttribute(Qt::WA_OpaquePaintEvent, false);
    }
}

void ZEMPlot::setBackgroundGraphic(const QString &path)
{
    setBackgroundGraphic(QPixmap(path));
}

void ZEMPlot::setFontForScale(int axis, const QFont &font)
{
    QwtScaleWidget *const scale = axisWidget(axis);
    if (!scale) {
        return;
    }
    // The widths of the labels are those of the present scale only after this.
    updateAxes();
    scale->setFont(font);
    if (axis == QwtPlot::xBottom) {
        const int widestLabel = scale->scaleDraw()->maxLabelWidth(scale->font());
        scale->setMinBorderDist(0, (widestLabel + 1) / 2);
    }
    scale->setMargin(0);
}

void ZEMPlot::setFontForScale(int axis, const QString &family, int pointSize)
{
    QFont font;
    font.setFamily(family);
    font.setPointSize(pointSize);
    setFontForScale(axis, font);
}

void ZEMPlot::addCurve(QwtPlotCurve *curve, bool updateZoomBase)
{
    d->styler->styleCurve(curve, getNumCurves());
    d->detached = Private::Detached(); // one that was detached before is new
    curve->attach(this);
    d->curves.append(curve);
    if (updateZoomBase && d->zoomer) {
        d->zoomer->setZoomBase(true);
    }
}

void ZEMPlot::removeCurve(QwtPlotCurve *curve)
{
    // Of a curve that is listed twice one place goes, not all that detaching would take.
    const QScopedValueRollback<const QwtPlotItem *> removal(d->curveBeingRemoved, curve);
    curve->detach();
    d->curves.removeOne(curve);
    replot();
}

void ZEMPlot::addMarker(QwtPlotMarker *marker)
{
    d->styler->styleMarker(marker);
    marker->attach(this);
}

void ZEMPlot::removeMarker(QwtPlotMarker *marker)
{
    marker->detach();
    replot();
}
