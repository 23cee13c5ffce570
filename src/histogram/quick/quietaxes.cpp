// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "quietaxes_p.h"

#include "axisborders_p.h"
#include "quickpaths_p.h"

#include <QChildEvent>

#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

namespace {

bool mayBeQuiet(const QwtPlot &plot)
{
    return QuickPaths::areOpen() && !plot.testAttribute(Qt::WA_WState_Polished);
}

} // namespace

QuietScale::QuietScale(const QwtPlot *plot, QwtScaleDraw *quietDraw)
    : draw(mayBeQuiet(*plot) && quietDraw->hasComponent(QwtAbstractScaleDraw::Labels) ? quietDraw
                                                                                      : nullptr)
{
    if (draw) {
        draw->enableComponent(QwtAbstractScaleDraw::Labels, false);
    }
}

QuietScale::~QuietScale()
{
    if (draw) {
        draw->enableComponent(QwtAbstractScaleDraw::Labels, true);
    }
}

QuietAxes::QuietAxes(QwtPlot *quietPlot) : plot(quietPlot)
{
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        scales[axis].emplace(plot, plot->axisScaleDraw(axis));
    }
}

QuietAxes::~QuietAxes()
{
    for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
        scales[axis].reset();
        if (plot->axisEnabled(axis)) {
            AxisBorders::settle(plot->axisWidget(axis));
        }
    }
}

QuietBirth::QuietBirth(QObject *plotParent) : parentOfPlot(plotParent)
{
    if (QuickPaths::areOpen()) {
        parentOfPlot->installEventFilter(this);
    }
}

QuietBirth::~QuietBirth()
{
    for (QwtScaleDraw *draw : draws) {
        draw->enableComponent(QwtAbstractScaleDraw::Labels, true);
    }
}

bool QuietBirth::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded) {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (watched == parentOfPlot) {
            child->installEventFilter(this);
        } else {
            // The child is still being made. QwtPlot names its axes before it sets anything else.
            connect(child, &QObject::objectNameChanged, this, [this, child] { quieten(child); });
        }
    }
    return false;
}

void QuietBirth::quieten(QObject *child)
{
    if (auto *scale = qobject_cast<QwtScaleWidget *>(child)) {
        scale->scaleDraw()->enableComponent(QwtAbstractScaleDraw::Labels, false);
        draws.append(scale->scaleDraw());
    }
}
