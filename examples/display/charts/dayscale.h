// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DAYSCALE_H
#define DAYSCALE_H

#include "powerday.h"

#include <QString>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_text.h>

/** What the clock of a house shows in the minutes of a day, which may have 23 or 25 hours. */
class DayClock
{
public:
    DayClock() = default;
    explicit DayClock(const PowerDay &day);

    /** The length of the day in minutes; the day that is none has 1440. */
    int minutes() const { return length; }
    /** Minutes since midnight on the clock, at minutes of real time since midnight. */
    int shownAt(double minute) const;
    /** The time that is shown: "09:05"; at the end of the day "24:00". */
    QString textAt(double minute) const;

private:
    Readings::Interval interval;
    QTimeZone timeZone;
    int length = 24 * 60;
};

/** Ticks of a time axis in minutes of a day, at round times of the clock. */
class DayScaleEngine : public QwtLinearScaleEngine
{
public:
    /** @p clock must outlive the engine. */
    explicit DayScaleEngine(const DayClock *clock) : dayClock(clock) { }

    /** At most @p maxMajor steps between ticks; minor ticks and the step size are its own. */
    QwtScaleDiv divideScale(double x1, double x2, int maxMajor, int maxMinor,
                            double stepSize) const override;

private:
    QList<double> ticks(double x1, double x2, int step) const;

    const DayClock *const dayClock;
};

/** Labels of a time axis: "06:00". */
class DayScaleDraw : public QwtScaleDraw
{
public:
    /** @p clock must outlive the labels. */
    explicit DayScaleDraw(const DayClock *clock) : dayClock(clock) { }
    QwtText label(double minute) const override { return dayClock->textAt(minute); }

private:
    const DayClock *const dayClock;
};

/** Labels of an axis of power, whose values are W: in kW if the axis reaches that far. */
class PowerScaleDraw : public QwtScaleDraw
{
public:
    /** Whether the labels are in kW; in W otherwise. */
    bool isInKilowatts() const;
    QwtText label(double watts) const override;
};

#endif
