// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "datetext.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

/** No letter of a format stands for an ordinal number. */
QString withOrdinal(QString format, const QDate &date)
{
    // Between figures, as in 1/11/2026, it stays a figure.
    static const QRegularExpression day(QStringLiteral("(?<![d/-])d(?![d/-])"));
    const bool isOrdinal = QLocale().language() == QLocale::French && date.day() == 1;
    return isOrdinal ? format.replace(day, QStringLiteral("d'er'")) : format;
}

} // namespace

QString dateText(const QDate &date, const QString &format)
{
    return QLocale().toString(date, withOrdinal(format, date));
}

QString dateText(const QDateTime &time, const QString &format)
{
    return QLocale().toString(time, withOrdinal(format, time.date()));
}
