// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HEADLINES_P_H
#define HEADLINES_P_H

#include <QDateTime>
#include <QString>
#include <qwt_interval.h>

/**
 * The dates that the headlines of the charts are made of, worded in the default QLocale. A null
 * date gives empty texts.
 */
namespace Headlines {

/** First and last date of a view. */
struct Range
{
    QDateTime start;
    QDateTime end;
};

/** How the months of a view are worded. */
enum class Months {
    One, ///< the view lies in one month
    Two, ///< it touches two neighbouring months
    Several ///< it spans more than two
};

/** The days in view where a slot is an hour, a day or a week and @p t is the date of x = 0. */
Range rangeOfHours(const QDateTime &t, const QwtInterval &view);
Range rangeOfDays(const QDateTime &t, const QwtInterval &view);
Range rangeOfWeeks(const QDateTime &t, const QwtInterval &view);

Months monthsOf(const Range &range);

/** @p t in the format of QLocale::toString(). */
QString text(const QDateTime &t, const QString &format);

/** Start of a week: its day alone if the week ends in the same month, else with the short month. */
QString weekStart(const Range &range);
/** End of a week: day and long month. */
QString weekEnd(const Range &range);

} // namespace Headlines

#endif
