// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "plotstyle.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMPlot>
#include <ZEMQwtPlotMarker>
#include <qwt_plot_curve.h>

void Pages::zemqwtplotmarker(Stage &stage)
{
    ZEMPlot *plot = makeDayPlot();
    auto *sun = new QwtPlotCurve;
    sun->setSamples(SampleData::sunByMinute());
    plot->addCurve(sun, true);

    auto *marker = new ZEMQwtPlotMarker;
    marker->setLineStyle(QwtPlotMarker::Cross);
    marker->setDecimalPlacesForY(0);
    marker->setValue(SampleData::sunByMinute().at(600)); // 10:00
    plot->addMarker(marker);
    plot->replot();

    stage.fill(plot);
    for (const int minute : {480, 600, 900}) {
        stage.addButton(QStringLiteral("setValue(minute %1)").arg(minute), [=] {
            marker->setValue(SampleData::sunByMinute().at(minute));
            plot->replot();
        });
    }
    for (const int places : {0, 2}) {
        stage.addButton(QStringLiteral("setDecimalPlacesForY(%1)").arg(places), [=] {
            marker->setDecimalPlacesForY(places);
            plot->replot();
        });
    }
    stage.addButton(QStringLiteral("setDecimalPlacesForX(1)"), [=] {
        marker->setDecimalPlacesForX(1);
        plot->replot();
    });
}
