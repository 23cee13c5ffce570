// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "headlines_p.h"

#include "saturatedint_p.h"

#include <QLocale>

namespace Headlines {

namespace {

constexpr double secondsPerHour = 60.0 * 60.0;
constexpr double daysPerWeek = 7.0;

// A null QDateTime counts from 4714 BC when something is added to it.
QDateTime afterDays(const QDateTime &t, double days)
{
    return t.isValid() ? t.addDays(truncatedInt(days)) : QDateTime();
}

QDateTime afterSeconds(const QDateTime &t, double seconds)
{
    return t.isValid() ? t.addSecs(truncatedInt(seconds)) : QDateTime();
}

} // namespace

Range rangeOfHours(const QDateTime &t, const QwtInterval &view)
{
    return {afterSeconds(t, view.minValue() * secondsPerHour),
            afterSeconds(t, (view.maxValue() - 1.0) * secondsPerHour)};
}

Range rangeOfDays(const QDateTime &t, const QwtInterval &view)
{
    return {afterDays(t, view.minValue()), afterDays(t, view.maxValue() - 1.0)};
}

Range rangeOfWeeks(const QDateTime &t, const QwtInterval &view)
{
    return {afterDays(t, daysPerWeek * view.minValue()),
            afterDays(t, daysPerWeek * view.maxValue() - 1.0)};
}

Months monthsOf(const Range &range)
{
    const int start = range.start.date().month();
    const int end = range.end.date().month();
    if (start == end) {
        return Months::One;
    }
    const int next = range.start.addMonths(1).date().month();
    return next == end ? Months::Two : Months::Several;
}

QString text(const QDateTime &t, const QString &format)
{
    return QLocale().toString(t.date(), format);
}

QString weekStart(const Range &range)
{
    const bool oneMonth = range.start.date().month() == range.end.date().month();
    return text(range.start, oneMonth ? QStringLiteral("d") : QStringLiteral("d MMM"));
}

QString weekEnd(const Range &range)
{
    return text(range.end, QStringLiteral("d MMMM"));
}

} // namespace Headlines
