// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_OWNFORMAT_H
#define READINGS_OWNFORMAT_H

#include "amounthistory.h"

#include <set>
#include <vector>

class QIODevice;

namespace Readings {

class Household;

/**
 * Writes what a household's meters know as CSV in the program's own format, to a thousandth of each
 * unit: what they showed and what was counted by the hour (by a quarter of one where the zone's
 * clock does not run by whole hours), the amounts that files told, and the readings between the
 * hours that some sum by the hour needs. loadReadings() makes the same sums of it.
 *
 * Returns the number of rows. Errors of @p device are the caller's to ask for.
 */
int writeOwnFormat(const Household &household, QIODevice *device);

/** The instants at which rows begin and end. */
std::set<qint64> bordersOf(const std::vector<IntervalAmount> &rows);

} // namespace Readings

#endif
