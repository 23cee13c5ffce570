// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemsmartmonthhistogram.h"

#include "headlines_p.h"
#include "periodaxes_p.h"
#include "zemscaledraw.h"
#include "zemscaleengine.h"

class ZEMSmartMonthHistogram::xMonthScaleDraw : public ZEMMonthScaleDraw
{
public:
    using ZEMMonthScaleDraw::ZEMMonthScaleDraw;
};

class ZEMSmartMonthHistogram::Private
{
public:
    xMonthScaleDraw *monthScaleDraw = nullptr;
};

ZEMSmartMonthHistogram::ZEMSmartMonthHistogram(QWidget *parent)
    : ZEMSmartHistogram(parent), d(new Private)
{
}

ZEMSmartMonthHistogram::~ZEMSmartMonthHistogram() = default;

void ZEMSmartMonthHistogram::updateTitle(QwtInterval interval)
{
    d->monthScaleDraw->setStartTimestamp(dataChangedTimestamp);

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
    Q_EMIT changed(this);

    if (getChild()) {
        getChild()->updateTitle(interval);
    }
}

void ZEMSmartMonthHistogram::initAxisRefine()
{
    using namespace PeriodAxes;
    d->monthScaleDraw = new xMonthScaleDraw(middleOfSlot);
    setShortTicks(d->monthScaleDraw, {0.0, 5.0, 0.0});
    setXAxis(plot, d->monthScaleDraw, new ZEMScaleEngine(middleOfSlot), {5.0, 1.0, 5, 2});
    setValueAxis(plot, new ZEMMonthKWhScaleDraw(999.0));
    setValueAxisTitle(plot, yAxisText);
}
