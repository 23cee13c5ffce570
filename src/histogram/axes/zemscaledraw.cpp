// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemscaledraw.h"

#include "saturatedint_p.h"
#include "scaletexts_p.h"

#include <QLocale>

#include <qwt_text.h>

#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr int hoursOfDay = 24;
constexpr int daysOfWeek = 7;

// In pixels: the ticks, and the space between them and the labels.
constexpr double slotSeparator = 40.0;
constexpr double hourTick = 18.0;
constexpr double valueTick = 4.0;
constexpr double noTick = 0.0;
constexpr double slotSpacing = 15.0;
constexpr double hourSpacing = 10.0;
constexpr double valueSpacing = 8.0;

void setTickLengths(QwtScaleDraw *scale, double major, double medium, double minor)
{
    scale->setTickLength(QwtScaleDiv::MajorTick, major);
    scale->setTickLength(QwtScaleDiv::MediumTick, medium);
    scale->setTickLength(QwtScaleDiv::MinorTick, minor);
}

/** Tall separators between the slots are medium ticks: the major ones stand where the labels do. */
void setUpSlotScale(QwtScaleDraw *scale)
{
    scale->enableComponent(QwtAbstractScaleDraw::Backbone, false);
    setTickLengths(scale, noTick, slotSeparator, noTick);
    scale->setLabelAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    scale->setSpacing(slotSpacing);
}

/** Day 0 is a Monday, the days before it run backwards; the answer is from 1 to 7. */
int dayOfWeek(int day)
{
    if (day >= 0) {
        return day % daysOfWeek + 1;
    }
    const int daysBefore = -day % daysOfWeek;
    return daysBefore == 0 ? 1 : daysOfWeek + 1 - daysBefore;
}

} // namespace

ZEMNoScaleDraw::ZEMNoScaleDraw()
{
    enableComponent(Backbone, false);
    enableComponent(Ticks, false);
    enableComponent(Labels, false);
}

ZEMNoScaleDraw::~ZEMNoScaleDraw() = default;

class ZEMScaleDraw::Private
{
public:
    int digits = 1;
};

ZEMScaleDraw::ZEMScaleDraw() : d(std::make_unique<Private>()) { }

ZEMScaleDraw::~ZEMScaleDraw() = default;

void ZEMScaleDraw::setDigits(int digits)
{
    if (digits != d->digits) {
        d->digits = digits;
        ScaleTexts::renew(this);
    }
}

int ZEMScaleDraw::getDigits() const
{
    return d->digits;
}

void ScaleTexts::renew(QwtScaleDraw *draw)
{
    // To a plot an axis is as it was while its draw has the plot's scale. With one tick more, that
    // is in no scale and drawn by nobody, it has another.
    QwtScaleDiv scale = draw->scaleDiv();
    QList<double> ticks = scale.ticks(QwtScaleDiv::MinorTick);
    if (ticks.isEmpty() || !std::isnan(ticks.last())) {
        ticks.append(std::numeric_limits<double>::quiet_NaN());
        scale.setTicks(QwtScaleDiv::MinorTick, ticks);
    }
    draw->setScaleDiv(scale);
}

ZEMKWhScaleDraw::ZEMKWhScaleDraw(double)
{
    enableComponent(Backbone, false);
    setTickLengths(this, valueTick, valueTick, valueTick);
    setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setSpacing(valueSpacing);
}

ZEMKWhScaleDraw::~ZEMKWhScaleDraw() = default;

ScaleTexts::Source ScaleTexts::source(const ZEMKWhScaleDraw &draw)
{
    return {QLocale(), QDate(), draw.getDigits()};
}

QString ScaleTexts::text(const ZEMKWhScaleDraw &draw, double value)
{
    return QStringLiteral("%L1").arg(value, 0, 'f', draw.getDigits(), QLatin1Char(' '));
}

QwtText ZEMKWhScaleDraw::label(double value) const
{
    return QwtText(ScaleTexts::text(*this, value));
}

ZEMMonthKWhScaleDraw::ZEMMonthKWhScaleDraw(double unused) : ZEMKWhScaleDraw(unused)
{
    setTickLengths(this, valueTick, valueTick, noTick);
}

ZEMMonthKWhScaleDraw::~ZEMMonthKWhScaleDraw() = default;

ZEMDayScaleDraw::ZEMDayScaleDraw()
{
    enableComponent(Backbone, false);
    setTickLengths(this, slotSeparator, hourTick, hourTick);
    setLabelAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    setSpacing(hourSpacing);
}

ZEMDayScaleDraw::~ZEMDayScaleDraw() = default;

ScaleTexts::Source ScaleTexts::source(const ZEMDayScaleDraw & /*draw*/)
{
    return {};
}

QString ScaleTexts::text(const ZEMDayScaleDraw & /*draw*/, double value)
{
    int hour = roundedInt(value) % hoursOfDay;
    if (hour < 0) {
        hour += hoursOfDay;
    }
    return QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0'));
}

QwtText ZEMDayScaleDraw::label(double value) const
{
    return QwtText(ScaleTexts::text(*this, value));
}

class ZEMWeekScaleDraw::Private
{
public:
    double labelShift;
};

ZEMWeekScaleDraw::ZEMWeekScaleDraw(double shift) : d(new Private {shift})
{
    setUpSlotScale(this);
}

ZEMWeekScaleDraw::~ZEMWeekScaleDraw() = default;

ScaleTexts::Source ScaleTexts::source(const ZEMWeekScaleDraw & /*draw*/)
{
    return {QLocale(), QDate(), 0};
}

QString ScaleTexts::text(const ZEMWeekScaleDraw &draw, double value)
{
    const int day = dayOfWeek(roundedInt(value - draw.d->labelShift));
    return QLocale().dayName(day, QLocale::ShortFormat);
}

QwtText ZEMWeekScaleDraw::label(double value) const
{
    return QwtText(ScaleTexts::text(*this, value));
}

class ZEMMonthScaleDraw::Private
{
public:
    QDateTime startTimestamp;
    double labelShift;
};

ZEMMonthScaleDraw::ZEMMonthScaleDraw(double shift) : d(new Private {QDateTime(), shift})
{
    setUpSlotScale(this);
}

ZEMMonthScaleDraw::~ZEMMonthScaleDraw() = default;

void ZEMMonthScaleDraw::setStartTimestamp(QDateTime timestamp)
{
    const QDate date = d->startTimestamp.date();
    d->startTimestamp = std::move(timestamp);
    invalidateCache();
    if (d->startTimestamp.date() != date) {
        ScaleTexts::renew(this);
    }
}

ScaleTexts::Source ScaleTexts::source(const ZEMMonthScaleDraw &draw)
{
    return {QLocale(), draw.d->startTimestamp.date(), 0};
}

QString ScaleTexts::text(const ZEMMonthScaleDraw &draw, double value)
{
    const qint64 week = roundedInt(value - draw.d->labelShift);
    // Days are counted on the date: a null timestamp becomes a valid one by counting, a date does
    // not.
    const QDate date = draw.d->startTimestamp.date().addDays(daysOfWeek * week);
    const QString text = QLocale().toString(date, QStringLiteral("d MMM"));
    return QStringLiteral("%1").arg(text, 0, QLatin1Char(' '));
}

QwtText ZEMMonthScaleDraw::label(double value) const
{
    return QwtText(ScaleTexts::text(*this, value));
}
