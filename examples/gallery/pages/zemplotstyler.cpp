// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QFont>
#include <QPalette>
#include <ZEMPlot>
#include <ZEMPlotStyler>
#include <ZEMQwtPlotCurvePointGetter>
#include <ZEMQwtPlotMarker>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_scale_widget.h>

namespace {

/** Four colours make the looks of a plot. */
class TwoToneStyler final : public ZEMPlotStyler
{
public:
    TwoToneStyler(const QColor &theGround, const QColor &theText, const QColor &theFirst,
                  const QColor &theSecond)
        : ground(theGround), text(theText), first(theFirst), second(theSecond)
    {
    }

    void stylePlot(ZEMPlot *plot) override
    {
        plot->setBackgroundColor(ground);
        QPalette around = plot->palette();
        around.setColor(QPalette::Window, ground);
        around.setColor(QPalette::WindowText, text);
        around.setColor(QPalette::Text, text);
        plot->setPalette(around);
        plot->setFontForScale(QwtPlot::xBottom, QFont(QStringLiteral("Cabin"), 9));
        plot->setFontForScale(QwtPlot::yLeft, QFont(QStringLiteral("Cabin"), 9));
    }
    void styleGrid(QwtPlotGrid *grid) override { grid->setMajorPen(text, 0.0, Qt::DotLine); }
    void styleCurve(QwtPlotCurve *curve, int index) override
    {
        curve->setPen(index == 0 ? first : second, 1.5);
    }
    void styleMarker(QwtPlotMarker *marker) override { marker->setLinePen(text); }

private:
    const QColor ground, text, first, second;
};

} // namespace

void Pages::zemplotstyler(Stage &stage)
{
    // Stylers are kept alive as long as a plot uses them.
    static TwoToneStyler night(Qt::black, Qt::lightGray, Qt::yellow, Qt::green);
    static TwoToneStyler day(Qt::white, Qt::darkGray, Qt::darkBlue, Qt::darkGreen);

    auto *plot = new ZEMPlot(&night);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, 1440.0, 360.0); // minutes of a day
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 3000.0); // W
    plot->init();
    QObject::connect(plot, &QObject::destroyed,
                     [getter = plot->getCurvePointGetter()] { delete getter; });
    for (const QVector<QPointF> &points :
         {SampleData::powerByMinute(), SampleData::sunByMinute()}) {
        auto *curve = new QwtPlotCurve;
        curve->setSamples(points);
        plot->addCurve(curve, true);
    }
    auto *noon = new QwtPlotMarker;
    noon->setLineStyle(QwtPlotMarker::VLine);
    noon->setXValue(720.0);
    plot->addMarker(noon);
    plot->replot();

    stage.fill(plot);
    stage.addButton(QStringLiteral("setStyler(day)"), [=] { plot->setStyler(&day); });
    stage.addButton(QStringLiteral("setStyler(night)"), [=] { plot->setStyler(&night); });
}
