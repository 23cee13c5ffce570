// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemqwtplottracker.h"

#include "zemplot.h"

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

void ZEMQwtPlotTracker::move(const QPoint &pos)
{
    const auto found = d->curvePointGetter->getCurvePoint(invTransform(pos));
    if (found.valid != d->lastValid) {
        d->lastValid = found.valid;
        curvePointValidChanged(found.valid);
    }
    if (found.valid) {
        curvePointMoved(found);
    }
}

void ZEMQwtPlotTracker::widgetKeyPressEvent(QKeyEvent *) { }

void ZEMQwtPlotTracker::widgetKeyReleaseEvent(QKeyEvent *) { }
