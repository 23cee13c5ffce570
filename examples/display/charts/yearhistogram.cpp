// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "yearhistogram.h"

#include "period.h"

#include <QEvent>
#include <QFontMetrics>
#include <QLocale>
#include <ZEMScaleEngine>
#include <algorithm>
#include <cmath>
#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>
#include <utility>

namespace {

constexpr int monthsPerYear = 12;
constexpr double middleOfSlot = 0.5;
constexpr int gapOfNames = 8; // pixels at least between the names of months

/** The year of a slot, counted from the one at x = 0. */
int yearOf(double slot)
{
    return int(std::floor(slot / monthsPerYear));
}

/** Labels months with their short names and parts each from the next by a small tick. */
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
        const int month = slot - yearOf(slot) * monthsPerYear;
        return month % step == 0 ? QwtText(nameOf(month + 1)) : QwtText();
    }

    /** Names each month if a month of that many pixels has room for it, or else every other. */
    void fitInto(double monthWidth, const QFont &font)
    {
        int widest = 0;
        for (int month = 1; month <= monthsPerYear; ++month) {
            widest = std::max(widest, QFontMetrics(font).horizontalAdvance(nameOf(month)));
        }
        const int needed = widest + gapOfNames > monthWidth ? 2 : 1;
        if (std::exchange(step, needed) != needed) {
            invalidateCache();
        }
    }

private:
    static QString nameOf(int month)
    {
        // The names of a year have no room for a full stop.
        return QLocale().standaloneMonthName(month, QLocale::ShortFormat).remove(QLatin1Char('.'));
    }

    int step = 1;
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
    plot->axisWidget(QwtPlot::xBottom)->installEventFilter(this);
}

bool YearHistogram::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        // Before the axis itself lays out its labels.
        const auto *axis = static_cast<const QwtScaleWidget *>(watched);
        const int length = axis->width() - axis->startBorderDist() - axis->endBorderDist();
        static_cast<MonthScaleDraw *>(plot->axisScaleDraw(QwtPlot::xBottom))
            ->fitInto(double(length) / monthsPerYear, axis->font());
    }
    return ZEMSmartHistogram::eventFilter(watched, event);
}
