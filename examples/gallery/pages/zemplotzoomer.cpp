// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QPainter>
#include <ZEMPlotZoomer>
#include <ZEMQwtPickerDraw>
#include <ZEMStyle>
#include <memory>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>

namespace {

/** A rubber band of one's own: the selection is tinted. */
class TintedBand : public ZEMQwtPickerDraw
{
public:
    using ZEMQwtPickerDraw::ZEMQwtPickerDraw;

    void drawRubberBand(QPainter *painter) const override
    {
        const QPolygon points = picker() ? picker()->selection() : QPolygon();
        if (points.size() == 2) {
            const bool zooms = isZoomQuadrant(points.first(), points.last());
            painter->setBrush(
                ZEMStyle(nullptr).color(zooms ? ZEMStyle::LimeAlpha50 : ZEMStyle::AmberAlpha50));
            painter->drawRect(QRect(points.first(), points.last()).normalized());
        }
    }
};

} // namespace

void Pages::zemplotzoomer(Stage &stage)
{
    // Drag a rectangle to zoom, and to the upper left to go back.
    auto *plot = new QwtPlot;
    plot->setCanvasBackground(QColor(40, 56, 68));
    plot->setAxisScale(QwtPlot::xBottom, 0.0, 1440.0, 360.0); // minutes of a day
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 3000.0); // W
    auto *sun = new QwtPlotCurve;
    sun->setPen(ZEMStyle(nullptr).color(ZEMStyle::Lime), 1.5);
    sun->setSamples(SampleData::sunByMinute());
    sun->attach(plot);
    auto *zoomer = new ZEMPlotZoomer(qobject_cast<QwtPlotCanvas *>(plot->canvas()), true);
    zoomer->setRubberBandPen(QPen(Qt::white));

    // The zoomer deletes neither: both go with the plot, after it.
    auto tinted = std::make_shared<TintedBand>(zoomer);
    auto plain = std::make_shared<ZEMQwtPickerDraw>(zoomer);
    zoomer->setPickerDraw(tinted.get());
    QObject::connect(plot, &QObject::destroyed, [tinted, plain] {});

    stage.fill(plot);
    stage.addButton(QStringLiteral("zoom(QRectF) to the noon"),
                    [=] { zoomer->zoom(QRectF(600.0, 1000.0, 240.0, 1500.0)); });
    stage.addButton(QStringLiteral("zoom(0)"), [=] { zoomer->zoom(0); });
    stage.addButton(QStringLiteral("setPickerDraw(tinted)"),
                    [=] { zoomer->setPickerDraw(tinted.get()); });
    stage.addButton(QStringLiteral("setPickerDraw(plain)"),
                    [=] { zoomer->setPickerDraw(plain.get()); });
    stage.addButton(QStringLiteral("setMaxStackDepth(0)"), [=] { zoomer->setMaxStackDepth(0); });
    stage.addButton(QStringLiteral("setMaxStackDepth(-1)"), [=] { zoomer->setMaxStackDepth(-1); });
}
