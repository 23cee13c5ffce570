// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "viewtexts.h"

#include "chartvalues.h"
#include "datetext.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTime>

namespace {

/** Translates what charts say. */
class Texts
{
    Q_DECLARE_TR_FUNCTIONS(ViewTexts)
};

constexpr double centsPerEuro = 100.0;
constexpr double twoDigits = 0.9995; // from here on two decimals tell enough
constexpr double manyDigits = 9.995; // and one from here on

/** Heat comes in GJ, of which an hour has few. */
int decimalsOf(double amount, const QString &unit)
{
    const int most = unit == QLatin1String("GJ") ? 3 : 2;
    return amount < twoDigits ? most : amount < manyDigits ? 2 : 1;
}

QString dayText(const QDate &date)
{
    return dateText(date, Texts::tr("ddd d MMM yyyy"));
}

bool isInOneMonth(const QDate &first, const QDate &last)
{
    return first.month() == last.month();
}

QString rangeText(const QString &first, const QString &last)
{
    return QStringLiteral("%1 %2 %3").arg(first, Texts::tr("t/m"), last);
}

QString rangeOfDays(const QDate &first, const QDate &last)
{
    const QString to = dateText(last, Texts::tr("ddd d MMMM"));
    if (first == last) {
        return to;
    }
    return rangeText(
        dateText(first, isInOneMonth(first, last) ? Texts::tr("ddd d") : Texts::tr("ddd d MMM")),
        to);
}

QString weekText(const QDate &first, const QDate &last)
{
    return rangeText(
        dateText(first, isInOneMonth(first, last) ? Texts::tr("d") : Texts::tr("d MMM")),
        dateText(last, Texts::tr("d MMMM")));
}

QString monthsText(const QDate &first, const QDate &last)
{
    // Alone, a month is not in the case that it has beside a day.
    const QString from = QLocale().standaloneMonthName(first.month());
    const QString to = QLocale().standaloneMonthName(last.month());
    if (isInOneMonth(first, last)) {
        return from;
    }
    return first.addMonths(1).month() == last.month() ? QStringLiteral("%1 / %2").arg(from, to)
                                                      : rangeText(from, to);
}

} // namespace

namespace ViewTexts {

QString viewName(Period period, const QDate &first, const QDate &last)
{
    switch (period) {
    case Period::Day:
        return rangeOfDays(first, last);
    case Period::Week:
        return weekText(first, last);
    case Period::Month:
        return monthsText(first, last);
    case Period::Year:
        break;
    }
    return first.year() == last.year()
        ? QString::number(first.year())
        : QStringLiteral("%1 / %2").arg(first.year()).arg(last.year());
}

QString slotName(Period period, const QDate &newestWindow, int slot)
{
    const QDate date = dateOfSlot(period, newestWindow, slot);
    switch (period) {
    case Period::Day: {
        const int hour = hourOfSlot(slot);
        return Texts::tr("%1, %2 – %3 uur").arg(dayText(date)).arg(hour).arg(hour + 1);
    }
    case Period::Week:
        return dayText(date);
    case Period::Month:
        return Texts::tr("week van %1").arg(dateText(date, Texts::tr("d MMM yyyy")));
    case Period::Year:
        break;
    }
    return QStringLiteral("%1 %2")
        .arg(QLocale().standaloneMonthName(date.month()))
        .arg(date.year());
}

QString number(const std::optional<Readings::Measured> &measured, int decimals)
{
    if (!measured) {
        return QStringLiteral("–");
    }
    const QString text = QLocale().toString(measured->amount, 'f', decimals);
    return measured->isComplete ? text : QStringLiteral("≥ %1").arg(text);
}

QString amount(const std::optional<Readings::Measured> &measured, const QString &unit)
{
    if (!measured) {
        return number(measured, 0);
    }
    return QStringLiteral("%1 %2").arg(number(measured, decimalsOf(measured->amount, unit)), unit);
}

QString euro(const Costs::Cost &cost, int decimals)
{
    if (!cost.isTold()) {
        return number(std::nullopt, 0);
    }
    const double euros = double(cost.cents()) / centsPerEuro;
    const QString text = number(Readings::Measured {euros, !cost.mayBeMore}, decimals);
    return cost.mayBeLess ? QStringLiteral("≤ %1").arg(text) : text;
}

} // namespace ViewTexts
