// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_READINGSFILE_H
#define READINGS_READINGSFILE_H

#include "household.h"

#include <QStringList>

namespace Readings {

/**
 * Reads household readings from CSV files of the kinds in profiles(), and puts them together into
 * one household.
 *
 * Whatever is wrong becomes a line in Household::problems, and everything else is read: a file
 * that is missing or unknown is left out, a broken row is left out (a wrong number of fields, a
 * bad time stamp, a number that is none, negative or beyond what a meter can show), and so is a
 * row at a wall-clock time that the clock skips in spring. Of a wall-clock time that comes twice
 * in autumn the first row of a file is summer time and the second winter time; a single one is
 * winter time, unless it stands before a row that shows that the clock was yet to be put back.
 *
 * Several files of a register are merged; where they contradict each other the first one holds, and
 * readings of a counter hold over amounts. A quantity that another file tells by other registers
 * (one instead of two tariffs) is left out. The time zone is that of the first file that can be
 * read.
 */
Household loadReadings(const QStringList &files);

} // namespace Readings

#endif
