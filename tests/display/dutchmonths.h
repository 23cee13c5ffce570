// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DUTCHMONTHS_H
#define DUTCHMONTHS_H

#include <QLocale>
#include <QString>
#include <array>

/** @p text with its abbreviated months, such as "mrt.", as this Qt has them: newer ones have no
 * dot. */
inline QString withMonthsOfQt(QString text)
{
    const std::array<const char *, 12> months {"jan.", "feb.", "mrt.", "apr.", "mei",  "jun.",
                                               "jul.", "aug.", "sep.", "okt.", "nov.", "dec."};
    const QLocale dutch(QLocale::Dutch);
    for (std::size_t i = 0; i < months.size(); ++i) {
        text.replace(QLatin1String(months[i]), dutch.monthName(int(i) + 1, QLocale::ShortFormat));
    }
    return text;
}

#endif
