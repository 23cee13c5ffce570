// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTROWS_H
#define CHARTROWS_H

#include "benchtable.h"

/** The rows of the table that tell of charts. */
std::vector<BenchTable::Row> chartRows();

#endif
