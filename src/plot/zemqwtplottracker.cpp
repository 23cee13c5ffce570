// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtplottracker.h"

#include "pickerevents_p.h"
#include "zemplot.h"

#include <QPointer>
#include <QWidget>

#include <qwt_picker_machine.h>

class ZEMQwtPlotTracker::Private
{
public:
    bool lastValid = false;
    ZEMQwtPlotCurvePointGetter *curvePointGetter = nullptr;
};

ZEMQwtPlotTracker::ZEMQwtPlotTracker(ZEMPlot *plot)
    : QwtPlotPicker(plot->canvas()), d(std::make_unique<Private>())
{
    d->curvePointGetter = plot->getCurvePointGetter();
    setTrackerMode(QwtPicker::AlwaysOff);
    setRubberBand(QwtPicker::NoRubberBand);
    setStateMachine(new QwtPickerTrackerMachine);
    canvas()->setAttribute(Qt::WA_MouseTracking, true);
}

ZEMQwtPlotTracker::~ZEMQwtPlotTracker() = default;

bool ZEMQwtPlotTracker::eventFilter(QObject *watched, QEvent *event)
{
    return PickerEvents::filtered<QwtPlotPicker>(this, watched, event);
}

void ZEMQwtPlotTracker::move(const QPoint &pos)
{
    const QPointer<QObject> self(this);
    const auto found = d->curvePointGetter->getCurvePoint(invTransform(pos));
    if (found.valid != d->lastValid) {
        d->lastValid = found.valid;
        curvePointValidChanged(found.valid);
    }
    // Who hears of it may have deleted the tracker or the curve.
    if (self && found.valid && d->curvePointGetter->getCurveIndex(found) >= 0) {
        curvePointMoved(found);
    }
}

void ZEMQwtPlotTracker::widgetKeyPressEvent(QKeyEvent *) { }

void ZEMQwtPlotTracker::widgetKeyReleaseEvent(QKeyEvent *) { }
