// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef EFFORT_H
#define EFFORT_H

#include <functional>

namespace ZemTest {

/**
 * How many times the processor's time of @p little @p much takes. With n times the data this is
 * about n where the work grows as the data does, and n * n where each entry is compared with all
 * others; how fast the machine is, and who else is busy on it, does not matter.
 */
double effortBeside(const std::function<void()> &little, const std::function<void()> &much);

} // namespace ZemTest

#endif
