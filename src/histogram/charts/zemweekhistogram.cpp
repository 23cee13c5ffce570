// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemweekhistogram.h"

#include "fastscaledraw_p.h"
#include "headlines_p.h"
#include "periodaxes_p.h"
#include "zemscaledraw.h"
#include "zemscaleengine.h"

ZEMWeekHistogram::ZEMWeekHistogram(QWidget *parent) : ZEMHistogram(parent) { }

ZEMWeekHistogram::~ZEMWeekHistogram() = default;

void ZEMWeekHistogram::updateTitle(QwtInterval interval)
{
    const Headlines::Range week = Headlines::rangeOfDays(dataChangedTimestamp, interval);
    titleText = QStringLiteral("%1 - %2 %3 %4")
                    .arg(tr("weekoverzicht"), Headlines::weekStart(week), tr("t/m"),
                         Headlines::weekEnd(week));
    Q_EMIT changed(this);
}

void ZEMWeekHistogram::initAxisRefine()
{
    using namespace PeriodAxes;
    setXAxis(plot, new FastScaleDraw<ZEMWeekScaleDraw>(middleOfSlot),
             new ZEMScaleEngine(middleOfSlot), weekInDays);
    setValueAxis(plot, new FastScaleDraw<ZEMKWhScaleDraw>(unusedValue));
    setValueAxisTitle(plot, yAxisText);
}
