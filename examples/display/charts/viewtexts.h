// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef VIEWTEXTS_H
#define VIEWTEXTS_H

#include "cost.h"
#include "meter.h"
#include "period.h"

#include <QDate>
#include <QString>
#include <optional>

/** What charts say in words, by the default QLocale. A slot is told by its x. */
namespace ViewTexts {

/** The slot by its date: "wo 9 mrt., 14:00 – 15:00", "week van 7 mrt. 2016", "maart 2016". */
QString slotName(Period period, const QDate &newestWindow, int slot);

/**
 * The days in view from @p first to @p last, without their year unless it is a view of years: "wo 9
 * maart", "zo 6 t/m ma 7 maart"; "7 t/m 13 maart"; "februari / maart"; "2016".
 */
QString viewName(Period period, const QDate &first, const QDate &last);

/** "12,3", "≥ 12,3" of which a part is not known, "–" of nothing. */
QString number(const std::optional<Readings::Measured> &measured, int decimals);

/** "12,3 kWh", "≥ 12,3 kWh" of which a part is not known, "–" of nothing. */
QString amount(const std::optional<Readings::Measured> &measured, const QString &unit);

/**
 * "12,34" euro (or "12" without @p decimals), "≥ 12,34" or "≤ 12,34" of which a part is not known
 * that makes it more or less, "–" where that may be both, or of nothing.
 */
QString euro(const Costs::Cost &cost, int decimals = 2);

} // namespace ViewTexts

#endif
