// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// qwt_plot_layout.h makes flags from 0, which Qt lists among what it will drop.
#undef QT_DISABLE_DEPRECATED_BEFORE

#include "histogramlayout_p.h"

#include <qwt_dyngrid_layout.h>
#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_layout.h>

namespace HistogramLayout {

void setCanvasMargins(QwtPlot *plot, int right)
{
    plot->plotLayout()->setCanvasMargin(-1, -1);
    plot->plotLayout()->setCanvasMargin(right, QwtPlot::yRight);
}

void arrangeLegend(QwtLegend *legend)
{
    if (auto *layout = qobject_cast<QwtDynGridLayout *>(legend->contentsWidget()->layout())) {
        layout->setSpacing(12);
        layout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
}

} // namespace HistogramLayout
