// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "plotstyle.h"
#include "sampledata.h"
#include "stage.h"

#include <QColor>
#include <ZEMPlot>
#include <ZEMPlotTouchGuard>
#include <ZEMPlotZoomerAdvanced>
#include <ZEMQwtPlotCurvePointGetter>
#include <qwt_plot_curve.h>

void Pages::zemplot(Stage &stage)
{
    // The styler must live as long as a plot uses it.
    static PlotStyle style;
    auto *plot = new ZEMPlot(&style);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, 1440.0, 360.0); // minutes of a day
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 3000.0); // W
    plot->init();
    // The plot leaves this, since pickers may still hold it.
    QObject::connect(plot, &QObject::destroyed,
                     [getter = plot->getCurvePointGetter()] { delete getter; });

    auto *used = new QwtPlotCurve(QStringLiteral("Verbruik"));
    used->setSamples(SampleData::powerByMinute());
    plot->addCurve(used, true); // what is shown now is what the zoomer returns to
    const auto addSun = [plot] {
        auto *sun = new QwtPlotCurve(QStringLiteral("Productie"));
        sun->setSamples(SampleData::sunByMinute());
        plot->addCurve(sun, false);
        plot->replot();
    };
    addSun();
    new ZEMPlotTouchGuard(plot, QSizeF(10.0, 50.0)); // at least 10 minutes by 50 W

    stage.fill(plot);
    stage.addButton(QStringLiteral("removeCurve()"), [=] {
        if (plot->getNumCurves() > 1) {
            QwtPlotCurve *last = plot->getCurves().last();
            plot->removeCurve(last);
            delete last; // it is the caller's now
        }
    });
    stage.addButton(QStringLiteral("addCurve()"), addSun);
    stage.addButton(QStringLiteral("setBackgroundColor(SlateBlue)"),
                    [=] { plot->setBackgroundColor(QColor(70, 107, 119)); });
    stage.addButton(QStringLiteral("setBackgroundGraphic(path)"), [=] {
        plot->setBackgroundGraphic(QStringLiteral(":/zem/graphics/main/active_overview_bg.png"));
        plot->replot();
    });
    stage.addButton(QStringLiteral("restyle()"), [=] { plot->restyle(); });
    stage.addButton(QStringLiteral("getZoomer()->zoom(0)"), [=] { plot->getZoomer()->zoom(0); });
}
