// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MONTHSTRANSFER_H
#define MONTHSTRANSFER_H

#include "historytransfer.h"

struct Options;

/**
 * Writes the table of months to the file that @p options name: of their files of readings, or else
 * of the history, by the clock of @p zone. What the months cost is in it where there is a contract.
 * A file is complete or not there.
 */
Transfer exportMonths(const Options &options, const QTimeZone &zone);

#endif
