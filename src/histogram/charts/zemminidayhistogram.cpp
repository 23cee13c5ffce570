// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemminidayhistogram.h"

#include "histogramlayout_p.h"
#include "qwtcompat_p.h"
#include "qwtplotmover.h"
#include "zemstyle.h"

#include <QBrush>
#include <QPalette>
#include <QVBoxLayout>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_widget.h>

namespace {

constexpr double hoursPerDay = 24.0;
constexpr double hoursPerTick = 12.0;
constexpr double initialValueLimit = 10.0;
constexpr double lengthOfTicks = 4.0; // pixels
constexpr int tickWidth = 2; // pixels
constexpr int tickBorder = tickWidth / 2; // pixels that the ticks at the ends stand out
constexpr int tickMargin = 2; // pixels between canvas and ticks

} // namespace

ZEMMiniDayHistogram::xDayScaleDraw::xDayScaleDraw()
{
    enableComponent(QwtAbstractScaleDraw::Backbone, false);
    enableComponent(QwtAbstractScaleDraw::Labels, false);
    enableComponent(QwtAbstractScaleDraw::Ticks, true);
    setTickLength(QwtScaleDiv::MajorTick, lengthOfTicks);
    setTickLength(QwtScaleDiv::MinorTick, lengthOfTicks);
    setTickLength(QwtScaleDiv::MediumTick, 0.0);
    QwtCompat::setPenWidth(this, tickWidth);
    setSpacing(0.0);
}

ZEMMiniDayHistogram::xDayScaleDraw::~xDayScaleDraw() = default;

ZEMMiniDayHistogram::yDayScaleDraw::yDayScaleDraw()
{
    enableComponent(QwtAbstractScaleDraw::Backbone, false);
    enableComponent(QwtAbstractScaleDraw::Labels, false);
    enableComponent(QwtAbstractScaleDraw::Ticks, false);
    setSpacing(0.0);
}

ZEMMiniDayHistogram::yDayScaleDraw::~yDayScaleDraw() = default;

ZEMMiniDayHistogram::ZEMMiniDayHistogram(QWidget *parent) : ZEMHistogram(parent) { }

ZEMMiniDayHistogram::~ZEMMiniDayHistogram() = default;

void ZEMMiniDayHistogram::updateTitle(QwtInterval) { }

void ZEMMiniDayHistogram::initAxis()
{
    plot->setAxisScaleDraw(QwtPlot::xBottom, new xDayScaleDraw);
    plot->setAxisMaxMajor(QwtPlot::xBottom, 2);
    plot->setAxisMaxMinor(QwtPlot::xBottom, 1);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, hoursPerDay, hoursPerTick);

    plot->setAxisScaleDraw(QwtPlot::yLeft, new yDayScaleDraw);
    plot->setAxisAutoScale(QwtPlot::yLeft, false);
    plot->setAxisScale(QwtPlot::yLeft, 0.0, initialValueLimit, 0.0);

    plot->updateAxes();
    plot->axisWidget(QwtPlot::xBottom)->setMinBorderDist(tickBorder, tickBorder);
    plot->axisWidget(QwtPlot::xBottom)->setMargin(tickMargin);
    plot->axisWidget(QwtPlot::yLeft)->setMargin(0);
}

void ZEMMiniDayHistogram::initAxisRefine() { }

void ZEMMiniDayHistogram::setLookAndFeel()
{
    const QBrush half(ZEMStyle(nullptr).color(ZEMStyle::WhiteAlpha50), Qt::SolidPattern);
    QPalette palette = plot->palette();
    palette.setBrush(QPalette::All, QPalette::Text, half);
    palette.setBrush(QPalette::All, QPalette::WindowText, half);
    palette.setBrush(QPalette::All, QPalette::Button, QBrush(QColor(0, 0, 0, 0), Qt::SolidPattern));
    plot->setPalette(palette);
    plot->setAttribute(Qt::WA_TranslucentBackground, true);

    auto *canvas = qobject_cast<QwtPlotCanvas *>(plot->canvas());
    canvas->setFrameStyle(0);
    canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    canvas->setPaintAttribute(QwtPlotCanvas::Opaque, false);
    canvas->setAttribute(Qt::WA_OpaquePaintEvent, false);

    mover = new QwtPlotMover(canvas);
    mover->setEnabled(false);
    connect(mover, SIGNAL(axisChanged(int)), this, SLOT(axisChanged(int)));

    HistogramLayout::setCanvasMargins(plot, 0);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(plot);
}
