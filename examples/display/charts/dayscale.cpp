// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dayscale.h"

#include <QDateTime>
#include <QLocale>
#include <ZEMUtils>
#include <algorithm>
#include <cmath>

namespace {

constexpr int minutesPerHour = 60;
constexpr double secondsPerMinute = 60.0;
constexpr int labelDigits = 5; // a deep zoom has labels such as 1,2345

/** Steps between the labels of a time axis and between the ticks without one, in minutes. */
struct TimeStep
{
    int major;
    int minor;
};

constexpr TimeStep timeSteps[] = {{1, 1},   {2, 1},   {5, 1},    {10, 5},   {15, 5},
                                  {30, 10}, {60, 15}, {120, 60}, {180, 60}, {360, 60}};

TimeStep timeStepFor(double minutes, int most)
{
    const auto *found =
        std::find_if(std::begin(timeSteps), std::end(timeSteps), [&](const TimeStep &step) {
            return minutes / step.major <= double(std::max(most, 1));
        });
    return found == std::end(timeSteps) ? *std::prev(found) : *found;
}

} // namespace

DayClock::DayClock(const PowerDay &day)
    : interval(day.interval), timeZone(day.timeZone), length(int(std::lround(day.minutes())))
{
}

int DayClock::shownAt(double minute) const
{
    const int whole = int(std::floor(minute));
    if (!timeZone.isValid() || whole >= length) {
        return whole >= length ? 24 * minutesPerHour : whole;
    }
    const qint64 instant = interval.from + qint64(whole * secondsPerMinute);
    const QTime time = QDateTime::fromSecsSinceEpoch(instant, timeZone).time();
    return time.hour() * minutesPerHour + time.minute();
}

QString DayClock::textAt(double minute) const
{
    const int shown = shownAt(minute);
    return QStringLiteral("%1:%2")
        .arg(shown / minutesPerHour, 2, 10, QLatin1Char('0'))
        .arg(shown % minutesPerHour, 2, 10, QLatin1Char('0'));
}

QwtScaleDiv DayScaleEngine::divideScale(double x1, double x2, int maxMajor, int, double) const
{
    const TimeStep step = timeStepFor(x2 - x1, maxMajor);
    QList<double> all[QwtScaleDiv::NTickTypes];
    all[QwtScaleDiv::MajorTick] = ticks(x1, x2, step.major);
    if (step.minor < step.major) {
        all[QwtScaleDiv::MinorTick] = ticks(x1, x2, step.minor);
    }
    return QwtScaleDiv(x1, x2, all);
}

QList<double> DayScaleEngine::ticks(double x1, double x2, int step) const
{
    // No clock is changed at another time than a full hour.
    const int stride = std::min(step, minutesPerHour);
    QList<double> found;
    for (int minute = int(std::ceil(x1 / stride)) * stride; minute <= x2; minute += stride) {
        if (dayClock->shownAt(minute) % step == 0) {
            found.append(minute);
        }
    }
    return found;
}

bool PowerScaleDraw::isInKilowatts() const
{
    return scaleDiv().upperBound() >= ZEMUtils::c_kW;
}

QwtText PowerScaleDraw::label(double watts) const
{
    const double value = isInKilowatts() ? watts / ZEMUtils::c_kW : watts;
    return QLocale().toString(value, 'g', labelDigits);
}
