// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemsmartmonthhistogram.h"

#include "fastscaledraw_p.h"
#include "headlines_p.h"
#include "periodaxes_p.h"
#include "zemscaleengine.h"

#include <QPointer>

#include <qwt_plot.h>

ZEMSmartMonthHistogram::xMonthScaleDraw::xMonthScaleDraw(double shift)
    : ZEMMonthScaleDraw(shift) { }

ZEMSmartMonthHistogram::xMonthScaleDraw::~xMonthScaleDraw() = default;

ZEMSmartMonthHistogram::ZEMSmartMonthHistogram(QWidget *parent) : ZEMSmartHistogram(parent) { }

ZEMSmartMonthHistogram::~ZEMSmartMonthHistogram() = default;

void ZEMSmartMonthHistogram::updateTitle(QwtInterval interval)
{
    // A host may have given the axis labels of its own.
    if (auto *dates = dynamic_cast<ZEMMonthScaleDraw *>(plot->axisScaleDraw(QwtPlot::xBottom))) {
        dates->setStartTimestamp(dataChangedTimestamp);
    }

    const Headlines::Range range = Headlines::rangeOfWeeks(dataChangedTimestamp, interval);
    const QString start = Headlines::text(range.start, QStringLiteral("MMMM"));
    const QString end = Headlines::text(range.end, QStringLiteral("MMMM"));
    switch (Headlines::monthsOf(range)) {
    case Headlines::Months::One:
        titleText = start;
        break;
    case Headlines::Months::Two:
        titleText = QStringLiteral("%1 / %2").arg(start, end);
        break;
    case Headlines::Months::Several:
        titleText = QStringLiteral("%1 %2 %3").arg(start, tr("t/m"), end);
        break;
    }
    const QPointer<ZEMHistogram> self = this;
    Q_EMIT changed(this);

    if (self && getChild()) {
        getChild()->updateTitle(interval);
    }
}

void ZEMSmartMonthHistogram::initAxisRefine()
{
    using namespace PeriodAxes;
    auto *dates = new FastScaleDraw<xMonthScaleDraw>(middleOfSlot);
    setShortTicks(dates, separatorsOnly);
    setXAxis(plot, dates, new ZEMScaleEngine(middleOfSlot), monthInWeeks);
    setValueAxis(plot, new FastScaleDraw<ZEMMonthKWhScaleDraw>(unusedValue));
    setValueAxisTitle(plot, yAxisText);
}
