// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_THINNING_H
#define READINGS_THINNING_H

#include "readingfilter.h"

#include <QTimeZone>
#include <vector>

namespace Readings {

/** How far back the readings between the full hours are kept, in seconds: 100 days. */
constexpr qint64 fineHistory = qint64(100) * 24 * 3600;

/**
 * The length of the slots whose borders are always kept, in seconds: an hour, or a quarter of one
 * where a clock of the zone does not run by whole hours.
 */
qint64 keptStep(const QTimeZone &zone);

/**
 * Whether no sum by the hour needs a reading: it lies between readings at the two borders of its
 * slot of @p step seconds, and the counter rose from one to the other by no more than a household
 * can use. So the first and the last reading, those beside a silence and those at which a meter was
 * replaced are needed.
 *
 * @p readings are those of one register in the order of time; the answers are in the same order.
 */
std::vector<bool> dispensable(const std::vector<Reading> &readings, qint64 step,
                              double mostPerHour);

} // namespace Readings

#endif
