// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "plotstyle.h"
#include "sampledata.h"
#include "stage.h"

#include <QTimer>
#include <ZEMPlot>
#include <ZEMQwtPlotPointPicker>
#include <ZEMTrackerPickerMachine>
#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

void Pages::zemqwtplotpointpicker(Stage &stage)
{
    ZEMPlot *plot = makeDayPlot();
    for (const QVector<QPointF> &points :
         {SampleData::powerByMinute(), SampleData::sunByMinute()}) {
        auto *curve = new QwtPlotCurve;
        curve->setSamples(points);
        plot->addCurve(curve, true);
    }
    auto *mark = new QwtPlotMarker;
    mark->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, Qt::white, QPen(Qt::black), QSize(11, 11)));
    mark->setLineStyle(QwtPlotMarker::VLine);
    mark->setLabelAlignment(Qt::AlignTop | Qt::AlignRight);
    plot->addMarker(mark);

    auto *picker =
        new ZEMQwtPlotPointPicker(QStringLiteral("power"), plot, QwtEventPattern::MouseSelect1);
    // It has such a machine already: a tap picks, while a drag is left to the zoomer.
    picker->setStateMachine(new ZEMTrackerPickerMachine(QwtEventPattern::MouseSelect1));
    QObject::connect(picker, &ZEMQwtPlotPointPicker::selectedPlotPoint, plot,
                     [=](const auto &picked) {
                         mark->setValue(picked.point);
                         QwtText text(QStringLiteral("%1 W").arg(picked.point.y()));
                         text.setColor(Qt::white);
                         mark->setLabel(text);
                         plot->replot();
                     });
    stage.fill(plot);
    // What a tap at 13:00 does, once the plot is laid out.
    QTimer::singleShot(100, picker, [=] { picker->selected(SampleData::sunByMinute().at(780)); });
    stage.addButton(QStringLiteral("pickNextPlotPoint()"), [=] { picker->pickNextPlotPoint(); });
    stage.addButton(QStringLiteral("pickPrevPlotPoint()"), [=] { picker->pickPrevPlotPoint(); });
    stage.addButton(QStringLiteral("pickNextCurve()"), [=] { picker->pickNextCurve(); });
    stage.addButton(QStringLiteral("pickPrevCurve()"), [=] { picker->pickPrevCurve(); });
    stage.addButton(QStringLiteral("clearPickedPlotPoint()"),
                    [=] { picker->clearPickedPlotPoint(); });
}
