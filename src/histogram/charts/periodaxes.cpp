// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "periodaxes_p.h"

#include "quietaxes_p.h"

#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

namespace PeriodAxes {

void setShortTicks(QwtScaleDraw *draw, const TickLengths &lengths)
{
    draw->enableComponent(QwtAbstractScaleDraw::Backbone, false);
    draw->enableComponent(QwtAbstractScaleDraw::Labels, true);
    draw->enableComponent(QwtAbstractScaleDraw::Ticks, true);
    draw->setTickLength(QwtScaleDiv::MajorTick, lengths.major);
    draw->setTickLength(QwtScaleDiv::MediumTick, lengths.medium);
    draw->setTickLength(QwtScaleDiv::MinorTick, lengths.minor);
    draw->setLabelAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
}

void setXAxis(QwtPlot *plot, QwtScaleDraw *draw, QwtScaleEngine *engine, const Scale &scale)
{
    const QuietScale quiet(plot, draw);
    plot->setAxisScaleDraw(QwtPlot::xBottom, draw);
    if (engine) {
        plot->setAxisScaleEngine(QwtPlot::xBottom, engine);
    }
    plot->setAxisMaxMajor(QwtPlot::xBottom, scale.maxMajor);
    plot->setAxisMaxMinor(QwtPlot::xBottom, scale.maxMinor);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, scale.max, scale.step);
}

void setValueAxis(QwtPlot *plot, QwtScaleDraw *draw)
{
    const QuietScale quiet(plot, draw);
    plot->setAxisScaleDraw(QwtPlot::yLeft, draw);
    plot->setAxisAutoScale(QwtPlot::yLeft, false);
    plot->setAxisScale(QwtPlot::yLeft, 0.0, highestAtFirst, 0.0);
}

void setValueAxisTitle(QwtPlot *plot, const QString &text)
{
    QwtScaleWidget *scale = plot->axisWidget(QwtPlot::yLeft);
    QwtText title(text, QwtText::AutoText);
    title.setRenderFlags(Qt::AlignRight);
    title.setFont(scale->font());
    const QuietScale quiet(plot, scale->scaleDraw());
    scale->setTitle(title);
}

} // namespace PeriodAxes
