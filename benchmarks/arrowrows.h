// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ARROWROWS_H
#define ARROWROWS_H

#include "benchtable.h"

/** The rows of the table that tell of the animated arrows. */
std::vector<BenchTable::Row> arrowRows();

#endif
