// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMQwtPlotHistogram>
#include <ZEMStyle>
#include <qwt_plot.h>

void Pages::zemqwtplothistogram(Stage &stage)
{
    const QVector<double> hours =
        SampleData::last(SampleData::consumptionByHour(), SampleData::hoursOfDay);
    QVector<QPointF> samples;
    for (int hour = 0; hour < hours.size(); ++hour) {
        samples.append(QPointF(hour + 0.5, 1000.0 * hours.at(hour))); // W
    }
    auto *plot = new QwtPlot;
    plot->setMinimumSize(200, 150); // its own leaves room for a label at each tick
    plot->setCanvasBackground(QColor(40, 56, 68));
    plot->setAxisScale(QwtPlot::xBottom, 0.0, SampleData::hoursOfDay, 6.0);
    auto *bars = new ZEMQwtPlotHistogram;
    bars->setStyle(QwtPlotCurve::UserCurve); // bars; any style below is a plain curve
    bars->setPen(ZEMStyle(nullptr).color(ZEMStyle::Amber), 1.5);
    bars->setBrush(ZEMStyle(nullptr).color(ZEMStyle::AmberAlpha50));
    bars->setSamples(samples);
    bars->attach(plot); // or ZEMPlot::addCurve()

    stage.fill(plot);
    for (const double length : {5.0, 60.0, 200.0}) {
        stage.addButton(QStringLiteral("setTailLength(%1)").arg(length), [=] {
            bars->setTailLength(length);
            plot->replot();
        });
    }
    const auto style = [=](int name) {
        bars->setStyle(QwtPlotCurve::CurveStyle(name));
        plot->replot();
    };
    stage.addButton(QStringLiteral("setStyle(Lines)"), [=] { style(QwtPlotCurve::Lines); });
    stage.addButton(QStringLiteral("setStyle(UserCurve)"), [=] { style(QwtPlotCurve::UserCurve); });
}
