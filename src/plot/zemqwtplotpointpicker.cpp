// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtplotpointpicker.h"

#include "pickerevents_p.h"
#include "zemplot.h"
#include "zemtrackerpickermachine.h"

#include <QPointer>

#include <qwt_plot_curve.h>

#include <utility>

class ZEMQwtPlotPointPicker::Private
{
public:
    /** A curve whose z changes is detached too, but is in the list again when it is attached. */
    void handleAttached(const QwtPlotItem *item, bool on)
    {
        if (!on && item == currentPoint.curve) {
            pointBefore = currentPoint;
            currentPoint = {};
        } else if (on && item == pointBefore.curve) {
            take(plot->getIndexOfCurve(pointBefore.curve) >= 0 ? pointBefore : currentPoint);
        }
    }

    void take(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point)
    {
        currentPoint = point;
        pointBefore = {};
    }

    QString name;
    QPointer<ZEMPlot> plot;
    ZEMQwtPlotCurvePointGetter *curvePointGetter = nullptr;
    ZEMQwtPlotCurvePointGetter::PlotCurvePoint currentPoint;
    ZEMQwtPlotCurvePointGetter::PlotCurvePoint pointBefore; // its curve was detached
};

ZEMQwtPlotPointPicker::ZEMQwtPlotPointPicker(QString name, ZEMPlot *plot,
                                             QwtEventPattern::MousePatternCode pattern)
    : QwtPlotPicker(plot->canvas()), d(std::make_unique<Private>())
{
    d->name = std::move(name);
    d->plot = plot;
    d->curvePointGetter = plot->getCurvePointGetter();
    setTrackerMode(QwtPicker::AlwaysOff);
    setRubberBand(QwtPicker::NoRubberBand);
    setStateMachine(new ZEMTrackerPickerMachine(pattern));
    // The base's signal and the slot here share their name, so that only strings tell them apart.
    connect(this, SIGNAL(selected(QPointF)), this, SLOT(selected(QPointF)));
    connect(plot, &QwtPlot::itemAttached, this,
            [this](QwtPlotItem *item, bool on) { d->handleAttached(item, on); });
}

ZEMQwtPlotPointPicker::~ZEMQwtPlotPointPicker() = default;

bool ZEMQwtPlotPointPicker::eventFilter(QObject *watched, QEvent *event)
{
    return PickerEvents::filtered<QwtPlotPicker>(this, watched, event);
}

void ZEMQwtPlotPointPicker::pickNextPlotPoint()
{
    updateCurrentPoint(d->curvePointGetter->getNextCurvePoint(d->currentPoint));
}

void ZEMQwtPlotPointPicker::pickPrevPlotPoint()
{
    updateCurrentPoint(d->curvePointGetter->getPrevCurvePoint(d->currentPoint));
}

void ZEMQwtPlotPointPicker::pickNextCurve()
{
    updateCurrentPoint(d->curvePointGetter->getNextCurveForPoint(d->currentPoint));
}

void ZEMQwtPlotPointPicker::pickPrevCurve()
{
    updateCurrentPoint(d->curvePointGetter->getPrevCurveForPoint(d->currentPoint));
}

ZEMQwtPlotCurvePointGetter::PlotCurvePoint ZEMQwtPlotPointPicker::getPickedPlotPoint() const
{
    return d->currentPoint;
}

void ZEMQwtPlotPointPicker::clearPickedPlotPoint()
{
    d->take({});
}

void ZEMQwtPlotPointPicker::selected(const QPointF &pos)
{
    updateCurrentPoint(d->curvePointGetter->getCurvePoint(pos));
}

void ZEMQwtPlotPointPicker::updateCurrentPoint(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point)
{
    if (point.valid) {
        d->take(point);
        Q_EMIT selectedPlotPoint(point);
    }
}

void ZEMQwtPlotPointPicker::widgetKeyPressEvent(QKeyEvent *) { }

void ZEMQwtPlotPointPicker::widgetKeyReleaseEvent(QKeyEvent *) { }
