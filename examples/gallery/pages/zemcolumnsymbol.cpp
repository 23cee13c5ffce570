// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QPalette>
#include <ZEMColumnSymbol>
#include <ZEMStyle>
#include <qwt_plot.h>
#include <qwt_plot_histogram.h>

static void addColumns(QwtPlot *plot, double place, ZEMColumnSymbol *symbol,
                       ZEMStyle::ZEMColor color)
{
    QPalette palette(symbol->palette());
    palette.setBrush(QPalette::Window, ZEMStyle(nullptr).color(color));
    symbol->setPalette(palette);
    auto *histogram = new QwtPlotHistogram;
    histogram->setStyle(QwtPlotHistogram::Columns);
    histogram->setSymbol(symbol); // which the histogram owns
    histogram->setSamples({QwtIntervalSample(3.0, place, place + 0.8),
                           QwtIntervalSample(1.8, place + 1.0, place + 1.3)});
    histogram->attach(plot);
}

void Pages::zemcolumnsymbol(Stage &stage)
{
    const QString icons = QStringLiteral(":/zem/graphics/gwe/icons/icon_%1_15x20.png");
    auto *plot = new QwtPlot;
    plot->setMinimumSize(200, 150); // its own leaves room for a label at each tick
    plot->setCanvasBackground(QColor(40, 56, 68));
    plot->setAxisScale(QwtPlot::yLeft, 0.0, 4.0);

    // The icon stands in columns that are wider than it.
    auto *electricity = new ZEMColumnSymbol(QwtColumnSymbol::UserStyle);
    electricity->setIcon(icons.arg(QStringLiteral("el")));
    addColumns(plot, 0.0, electricity, ZEMStyle::SlateBlue);
    auto *plain = new ZEMColumnSymbol(QwtColumnSymbol::UserStyle);
    addColumns(plot, 1.6, plain, ZEMStyle::Amber);
    auto *box = new ZEMColumnSymbol(QwtColumnSymbol::Box);
    box->setFrameStyle(QwtColumnSymbol::Raised);
    box->setLineWidth(3);
    addColumns(plot, 3.2, box, ZEMStyle::SkyBlue);

    stage.fill(plot);
    const auto show = [=](const QString &name) {
        electricity->setIcon(name.isEmpty() ? QString() : icons.arg(name));
        plot->replot();
    };
    stage.addButton(QStringLiteral("setIcon(a drop)"), [=] { show(QStringLiteral("wa")); });
    stage.addButton(QStringLiteral("setIcon(a flame)"), [=] { show(QStringLiteral("fi")); });
    stage.addButton(QStringLiteral("setIcon(QString())"), [=] { show(QString()); });
}
