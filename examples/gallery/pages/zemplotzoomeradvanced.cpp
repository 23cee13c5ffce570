// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "plotstyle.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMPlot>
#include <ZEMPlotZoomerAdvanced>
#include <ZEMQwtPickerDrawAdvanced>
#include <memory>
#include <qwt_plot_curve.h>

void Pages::zemplotzoomeradvanced(Stage &stage)
{
    // A drag along an axis zooms that axis alone; ticks show how far it may stray.
    ZEMPlot *plot = makeDayPlot();
    auto *sun = new QwtPlotCurve(QStringLiteral("Productie"));
    sun->setSamples(SampleData::sunByMinute());
    plot->addCurve(sun, true);
    ZEMPlotZoomerAdvanced *zoomer = plot->getZoomer();
    zoomer->setMargin(50); // pixels

    // What the zoomer makes for itself can be made by hand, with another pen.
    auto band = std::make_shared<ZEMQwtPickerDrawAdvanced>(50, zoomer);
    QObject::connect(plot, &QObject::destroyed, [band] {});

    stage.fill(plot);
    const auto margin = [=](int pixels) {
        zoomer->setMargin(pixels);
        band->setMargin(pixels);
    };
    stage.addButton(QStringLiteral("setMargin(20)"), [=] { margin(20); });
    stage.addButton(QStringLiteral("setMargin(80)"), [=] { margin(80); });
    stage.addButton(QStringLiteral("setMargin(0): free"), [=] { margin(0); });
    stage.addButton(QStringLiteral("zoom(QRectF) to the noon"),
                    [=] { zoomer->zoom(QRectF(600.0, 1000.0, 240.0, 1500.0)); });
    stage.addButton(QStringLiteral("zoom(0)"), [=] { zoomer->zoom(0); });
    stage.addButton(QStringLiteral("setPickerDraw(band)"),
                    [=] { zoomer->setPickerDraw(band.get()); });
}
