// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMScaleEngine>
#include <ZEMStyle>
#include <ZEMWeekScaleDraw>
#include <qwt_plot.h>
#include <qwt_plot_histogram.h>

void Pages::zemscaleengine(Stage &stage)
{
    auto *plot = new QwtPlot;
    plot->setCanvasBackground(QColor(40, 56, 68));
    auto *bars = new QwtPlotHistogram;
    bars->setBrush(ZEMStyle(nullptr).color(ZEMStyle::Amber));
    const double days[] = {8.1, 7.4, 9.6, 8.8, 7.9, 11.2, 12.5}; // kWh
    QVector<QwtIntervalSample> samples;
    for (const double day : days) {
        const double slot = samples.size();
        samples.append(QwtIntervalSample(day, slot + 0.15, slot + 0.85));
    }
    bars->setSamples(samples);
    bars->attach(plot);

    // The labels stand in the middle of the slots, under their bars.
    const auto scale = [plot](double offset) {
        plot->setAxisScaleEngine(QwtPlot::xBottom, new ZEMScaleEngine(offset));
        plot->setAxisScaleDraw(QwtPlot::xBottom, new ZEMWeekScaleDraw(offset));
        plot->setAxisScale(QwtPlot::xBottom, 0.0, 7.0, 1.0);
        plot->replot();
    };
    scale(0.5);
    stage.fill(plot);
    for (const double offset : {0.5, 0.25, 0.0}) {
        stage.addButton(QStringLiteral("ZEMScaleEngine(%1)").arg(offset), [=] { scale(offset); });
    }
}
