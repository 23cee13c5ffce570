// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CURVEROWS_H
#define CURVEROWS_H

#include "benchtable.h"

/** The rows of the table that tell of finding a point in short and in long curves. */
std::vector<BenchTable::Row> curveRows();

#endif
