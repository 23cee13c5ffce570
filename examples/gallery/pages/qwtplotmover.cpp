// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QwtPlotMover>
#include <ZEMStyle>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_histogram.h>

void Pages::qwtplotmover(Stage &stage)
{
    const QVector<double> hours =
        SampleData::last(SampleData::consumptionByHour(), 10 * SampleData::hoursOfDay);
    auto *plot = new QwtPlot;
    plot->setMinimumSize(200, 150); // its own leaves room for a label at each tick
    plot->setCanvasBackground(QColor(40, 56, 68));
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 2.0);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, SampleData::hoursOfDay, 6.0);
    auto *bars = new QwtPlotHistogram;
    bars->setBrush(ZEMStyle(nullptr).color(ZEMStyle::SkyBlue));
    QVector<QwtIntervalSample> samples;
    const int first = SampleData::hoursOfDay - int(hours.size()); // the newest day is 0 to 24
    for (int i = 0; i < hours.size(); ++i) {
        samples.append(QwtIntervalSample(hours.at(i), first + i + 0.1, first + i + 0.9));
    }
    bars->setSamples(samples);
    bars->attach(plot);

    auto *mover = new QwtPlotMover(qobject_cast<QwtPlotCanvas *>(plot->canvas()));
    mover->setAxisEnabled(QwtPlot::yLeft, false);
    mover->setAxisPeriod(QwtPlot::xBottom, SampleData::hoursOfDay);
    mover->setAxisValidInterval(QwtPlot::xBottom, QwtInterval(first, SampleData::hoursOfDay));

    stage.fill(plot);
    stage.addButton(QStringLiteral("moveAxisPrevPeriod()"),
                    [=] { mover->moveAxisPrevPeriod(QwtPlot::xBottom); });
    stage.addButton(QStringLiteral("moveAxisNextPeriod()"),
                    [=] { mover->moveAxisNextPeriod(QwtPlot::xBottom); });
    stage.addButton(QStringLiteral("moveAxisFirstPeriod()"),
                    [=] { mover->moveAxisFirstPeriod(QwtPlot::xBottom); });
    stage.addButton(QStringLiteral("setAxisEnabled(yLeft, true)"),
                    [=] { mover->setAxisEnabled(QwtPlot::yLeft, true); });
    stage.addButton(QStringLiteral("setAxisEnabled(yLeft, false)"),
                    [=] { mover->setAxisEnabled(QwtPlot::yLeft, false); });
}
