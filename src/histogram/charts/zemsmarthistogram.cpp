// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemsmarthistogram.h"

#include "fastscaledraw_p.h"
#include "histogramlayout_p.h"
#include "periodaxes_p.h"
#include "zemhistogramlegend.h"
#include "zemscaledraw.h"

#include <QVBoxLayout>
#include <qwt_plot.h>

namespace {

constexpr QSize spaceAboveLegend {40, 5}; // pixels

} // namespace

ZEMSmartHistogram::ZEMSmartHistogram(QWidget *parent) : ZEMHistogram(parent) { }

ZEMSmartHistogram::~ZEMSmartHistogram() = default;

void ZEMSmartHistogram::initAxisRefine()
{
    using namespace PeriodAxes;
    setValueAxis(plot, new FastScaleDraw<ZEMKWhScaleDraw>(unusedValue));
}

void ZEMSmartHistogram::setLookAndFeel()
{
    setPlotLookAndFeel();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(plot);
    if (getChild()) {
        layout->addWidget(getChild());
    }
    layout->addItem(new QSpacerItem(spaceAboveLegend.width(), spaceAboveLegend.height(),
                                    QSizePolicy::Minimum, QSizePolicy::Fixed));

    auto *legend = new ZEMHistogramLegend(nullptr);
    insertLegendExternal(plot, legend);
    legend->setMinimumHeight(HistogramLayout::legendHeight);
    HistogramLayout::arrangeLegend(legend);
    layout->addWidget(legend);
}
