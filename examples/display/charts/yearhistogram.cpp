// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "yearhistogram.h"

#include "period.h"

#include <QLocale>
#include <ZEMScaleEngine>
#include <cmath>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

namespace {

constexpr int monthsPerYear = 12;
constexpr double middleOfSlot = 0.5;

/** The year of a slot, counted from the one at x = 0. */
int yearOf(double slot)
{
    return int(std::floor(slot / monthsPerYear));
}

/** Labels each month with its short name and parts it from the next by a small tick. */
class MonthScaleDraw : public QwtScaleDraw
{
public:
    MonthScaleDraw()
    {
        enableComponent(Backbone, false);
        setTickLength(QwtScaleDiv::MajorTick, 0.0);
        setTickLength(QwtScaleDiv::MediumTick, 5.0);
        setTickLength(QwtScaleDiv::MinorTick, 0.0);
        setSpacing(15.0);
    }

    QwtText label(double value) const override
    {
        const int slot = int(std::floor(value));
        const int month = slot - yearOf(slot) * monthsPerYear + 1;
        // The names of a year have no room for a full stop.
        return QwtText(
            QLocale().standaloneMonthName(month, QLocale::ShortFormat).remove(QLatin1Char('.')));
    }
};

} // namespace

YearHistogram::YearHistogram(QWidget *parent) : ZEMSmartHistogram(parent) { }

void YearHistogram::updateTitle(QwtInterval interval)
{
    const int year = dataChangedTimestamp.date().year();
    const int first = year + yearOf(interval.minValue());
    const int last = year + yearOf(interval.maxValue() - 1.0);
    titleText =
        first == last ? QString::number(first) : QStringLiteral("%1 / %2").arg(first).arg(last);
    Q_EMIT changed(this);
}

void YearHistogram::initAxisRefine()
{
    ZEMSmartHistogram::initAxisRefine();

    QwtText title(yAxisText);
    title.setRenderFlags(Qt::AlignRight);
    title.setFont(plot->axisWidget(QwtPlot::yLeft)->font());
    plot->axisWidget(QwtPlot::yLeft)->setTitle(title);

    plot->setAxisScaleDraw(QwtPlot::xBottom, new MonthScaleDraw);
    plot->setAxisScaleEngine(QwtPlot::xBottom, new ZEMScaleEngine(middleOfSlot));
    plot->setAxisMaxMajor(QwtPlot::xBottom, monthsPerYear);
    plot->setAxisMaxMinor(QwtPlot::xBottom, 2);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, slotsOf(Period::Year), 1.0);
}
