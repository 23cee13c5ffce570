// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dayhistogram.h"

#include <cmath>
#include <qwt_plot.h>
#include <qwt_text.h>

namespace {

constexpr int hoursPerDay = 24;
constexpr double sameInstant = 1.0 / 3600.0; // hours

/** The hours of the library, but for the last one in view. */
class HourScaleDraw : public ZEMSmartDayHistogram::xDayScaleDraw
{
public:
    QwtText label(double value) const override
    {
        const bool isLast = std::fabs(value - scaleDiv().upperBound()) < sameInstant;
        const bool isMidnight = std::lround(value) % hoursPerDay == 0;
        return isLast && isMidnight ? QwtText(QStringLiteral("%1:00").arg(hoursPerDay))
                                    : xDayScaleDraw::label(value);
    }
};

} // namespace

void DayHistogram::initAxisRefine()
{
    ZEMSmartDayHistogram::initAxisRefine();
    const QwtScaleDraw *plain = plot->axisScaleDraw(QwtPlot::xBottom);
    auto *draw = new HourScaleDraw;
    for (const auto type :
         {QwtScaleDiv::MinorTick, QwtScaleDiv::MediumTick, QwtScaleDiv::MajorTick}) {
        draw->setTickLength(type, plain->tickLength(type));
    }
    plot->setAxisScaleDraw(QwtPlot::xBottom, draw);
}
