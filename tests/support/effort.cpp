// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "effort.h"

#include <algorithm>
#include <ctime>

namespace ZemTest {

namespace {

// Long enough for the processor's clock to tell.
constexpr std::clock_t measurable = CLOCKS_PER_SEC / 50;
constexpr int rounds = 3;

double ticksOf(const std::function<void()> &work)
{
    int count = 0;
    std::clock_t ticks = 0;
    const std::clock_t start = std::clock();
    while (ticks < measurable) {
        work();
        ++count;
        ticks = std::clock() - start;
    }
    return double(ticks) / count;
}

} // namespace

double effortBeside(const std::function<void()> &little, const std::function<void()> &much)
{
    double leastLittle = ticksOf(little);
    double leastMuch = ticksOf(much);
    for (int i = 1; i < rounds; ++i) {
        leastLittle = std::min(leastLittle, ticksOf(little));
        leastMuch = std::min(leastMuch, ticksOf(much));
    }
    return leastMuch / leastLittle;
}

} // namespace ZemTest
