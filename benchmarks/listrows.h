// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LISTROWS_H
#define LISTROWS_H

#include "benchtable.h"

/** The rows of the table that tell of paging in short and in long lists and tables. */
std::vector<BenchTable::Row> listRows();

#endif
