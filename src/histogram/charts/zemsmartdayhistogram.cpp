// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemsmartdayhistogram.h"

#include "fastscaledraw_p.h"
#include "headlines_p.h"
#include "periodaxes_p.h"

ZEMSmartDayHistogram::xDayScaleDraw::xDayScaleDraw() = default;

ZEMSmartDayHistogram::xDayScaleDraw::~xDayScaleDraw() = default;

ZEMSmartDayHistogram::ZEMSmartDayHistogram(QWidget *parent) : ZEMSmartHistogram(parent) { }

ZEMSmartDayHistogram::~ZEMSmartDayHistogram() = default;

void ZEMSmartDayHistogram::updateTitle(QwtInterval interval)
{
    const Headlines::Range day = Headlines::rangeOfHours(dataChangedTimestamp, interval);
    const QDate start = day.start.date();
    const QDate end = day.end.date();
    const QString to = Headlines::text(day.end, QStringLiteral("ddd d MMMM"));

    if (start.day() == end.day()) {
        titleText = Headlines::text(day.start, QStringLiteral("ddd d MMMM"));
    } else {
        const bool oneMonth = start.month() == end.month();
        const QString from = Headlines::text(
            day.start, oneMonth ? QStringLiteral("ddd d") : QStringLiteral("ddd d MMM"));
        titleText = QStringLiteral("%1 %2 %3").arg(from, tr("t/m"), to);
    }
    Q_EMIT changed(this);
}

void ZEMSmartDayHistogram::initAxisRefine()
{
    using namespace PeriodAxes;
    ZEMSmartHistogram::initAxisRefine();
    setValueAxisTitle(plot, yAxisText);

    auto *draw = new FastScaleDraw<xDayScaleDraw>;
    setShortTicks(draw, allTicks);
    setXAxis(plot, draw, nullptr, dayInHours);
}
