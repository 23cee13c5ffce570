// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDROWS_H
#define KEYBOARDROWS_H

#include "benchtable.h"

/** The rows of the table that tell of the on-screen keyboard. */
std::vector<BenchTable::Row> keyboardRows();

#endif
