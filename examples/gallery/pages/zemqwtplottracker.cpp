// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "plotstyle.h"
#include "sampledata.h"
#include "stage.h"

#include <QTimer>
#include <ZEMLabel>
#include <ZEMPlot>
#include <ZEMQwtPlotTracker>
#include <qwt_plot_curve.h>

namespace {

/** Tells in a bubble what lies under the finger. */
class ValueTracker : public ZEMQwtPlotTracker
{
public:
    ValueTracker(ZEMPlot *plot, ZEMLabel *label) : ZEMQwtPlotTracker(plot), bubble(label) { }

    /** As if the pointer had come to the minute @p minute at @p watt. */
    void visit(double minute, double watt) { move(transform(QPointF(minute, watt))); }

protected:
    void curvePointValidChanged(bool valid) override { bubble->setVisible(valid); }
    void curvePointMoved(ZEMQwtPlotCurvePointGetter::PlotCurvePoint point) override
    {
        bubble->setText(QStringLiteral("%1 W").arg(point.point.y()));
        bubble->move(transform(point.point) + QPoint(8, -30));
    }

private:
    ZEMLabel *const bubble;
};

} // namespace

void Pages::zemqwtplottracker(Stage &stage)
{
    ZEMPlot *plot = makeDayPlot();
    auto *sun = new QwtPlotCurve;
    sun->setSamples(SampleData::sunByMinute());
    plot->addCurve(sun, true);
    auto *bubble = new ZEMLabel(plot->canvas());
    bubble->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    bubble->hide();
    auto *tracker = new ValueTracker(plot, bubble);

    stage.fill(plot);
    // The place is known once the plot is laid out.
    QTimer::singleShot(100, tracker,
                       [=] { tracker->visit(600.0, SampleData::sunByMinute().at(600).y()); });
    for (const double minute : {480.0, 600.0, 900.0}) {
        const double watt = SampleData::sunByMinute().at(int(minute)).y();
        stage.addButton(QStringLiteral("to minute %1").arg(minute),
                        [=] { tracker->visit(minute, watt); });
    }
}
