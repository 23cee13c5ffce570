// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "plotstyle.h"
#include "sampledata.h"
#include "stage.h"

#include <ZEMPlot>
#include <ZEMPlotTouchGuard>
#include <ZEMPlotZoomerAdvanced>
#include <qwt_plot_curve.h>

void Pages::zemplottouchguard(Stage &stage)
{
    ZEMPlot *plot = makeDayPlot();
    auto *used = new QwtPlotCurve(QStringLiteral("Verbruik"));
    used->setSamples(SampleData::powerByMinute());
    plot->addCurve(used, true);

    // However small the rectangle that is dragged: two hours by 500 W are seen at least.
    auto *guard = new ZEMPlotTouchGuard(plot, QSizeF(120.0, 500.0));

    stage.fill(plot);
    stage.addButton(QStringLiteral("zoom to ten minutes"),
                    [=] { plot->getZoomer()->zoom(QRectF(1080.0, 0.0, 10.0, 100.0)); });
    stage.addButton(QStringLiteral("zoom back"), [=] { plot->getZoomer()->zoom(0); });
    stage.addButton(QStringLiteral("setLeastView(10 min, 20 W)"),
                    [=] { guard->setLeastView(QSizeF(10.0, 20.0)); });
    stage.addButton(QStringLiteral("setLeastView(120 min, 500 W)"),
                    [=] { guard->setLeastView(QSizeF(120.0, 500.0)); });
}
