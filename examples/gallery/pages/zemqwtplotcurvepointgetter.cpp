// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "plotstyle.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMPlot>
#include <ZEMQwtPlotCurvePointGetter>
#include <memory>
#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>
#include <qwt_symbol.h>
#include <qwt_text.h>

void Pages::zemqwtplotcurvepointgetter(Stage &stage)
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
    mark->setLabelAlignment(Qt::AlignTop | Qt::AlignRight);
    plot->addMarker(mark);

    ZEMQwtPlotCurvePointGetter *getter = plot->getCurvePointGetter();
    using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;
    auto now = std::make_shared<Point>();
    const auto show = [=](const Point &point) {
        if (!point.valid) {
            return; // no curve is near
        }
        *now = point;
        mark->setValue(point.point);
        QwtText text(QStringLiteral("%1 W").arg(point.point.y()));
        text.setColor(Qt::white);
        mark->setLabel(text);
        plot->replot();
    };
    show(getter->getCurvePoint(1, 780)); // of the second curve, at 13:00

    stage.fill(plot);
    stage.addButton(QStringLiteral("getNextCurvePoint()"),
                    [=] { show(getter->getNextCurvePoint(*now)); });
    stage.addButton(QStringLiteral("getPrevCurvePoint()"),
                    [=] { show(getter->getPrevCurvePoint(*now)); });
    stage.addButton(QStringLiteral("getNextCurveForPoint()"),
                    [=] { show(getter->getNextCurveForPoint(*now)); });
    stage.addButton(QStringLiteral("getPrevCurveForPoint()"),
                    [=] { show(getter->getPrevCurveForPoint(*now)); });
    stage.addButton(QStringLiteral("getCurvePoint({600, 300})"),
                    [=] { show(getter->getCurvePoint(QPointF(600.0, 300.0))); });
    stage.addButton(QStringLiteral("getCurvePoint(0, 1080)"),
                    [=] { show(getter->getCurvePoint(0, 1080)); });
}
