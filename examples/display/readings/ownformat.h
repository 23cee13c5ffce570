// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_OWNFORMAT_H
#define READINGS_OWNFORMAT_H

class QIODevice;

namespace Readings {

class Household;

/**
 * Writes what a household's meters know as CSV in the program's own format, to a thousandth of each
 * unit: what they showed and what was counted by the hour (by a quarter of one where the zone's
 * clock does not run by whole hours), and the readings and amounts between the hours that some sum
 * by the hour needs. loadReadings() makes the same sums of it.
 *
 * Returns the number of rows. Errors of @p device are the caller's to ask for.
 */
int writeOwnFormat(const Household &household, QIODevice *device);

} // namespace Readings

#endif
