// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemsmartweekhistogram.h"

#include "fastscaledraw_p.h"
#include "headlines_p.h"
#include "periodaxes_p.h"
#include "zemscaleengine.h"

ZEMSmartWeekHistogram::xWeekScaleDraw::xWeekScaleDraw(double shift) : ZEMWeekScaleDraw(shift) { }

ZEMSmartWeekHistogram::xWeekScaleDraw::~xWeekScaleDraw() = default;

ZEMSmartWeekHistogram::ZEMSmartWeekHistogram(QWidget *parent) : ZEMSmartHistogram(parent) { }

ZEMSmartWeekHistogram::~ZEMSmartWeekHistogram() = default;

void ZEMSmartWeekHistogram::updateTitle(QwtInterval interval)
{
    const Headlines::Range week = Headlines::rangeOfDays(dataChangedTimestamp, interval);
    titleText = QStringLiteral("%1 %2 %3")
                    .arg(Headlines::weekStart(week), tr("t/m"), Headlines::weekEnd(week));
    Q_EMIT changed(this);
}

void ZEMSmartWeekHistogram::initAxisRefine()
{
    using namespace PeriodAxes;
    ZEMSmartHistogram::initAxisRefine();
    setValueAxisTitle(plot, yAxisText);

    auto *draw = new FastScaleDraw<xWeekScaleDraw>(middleOfSlot);
    setShortTicks(draw, separatorsOnly);
    setXAxis(plot, draw, new ZEMScaleEngine(middleOfSlot), weekInDays);
}
