// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ENERGYCHART_H
#define ENERGYCHART_H

#include "chartvalues.h"
#include "energy.h"

class ZEMHistogram;

/**
 * Makes the chart of @p energy for a page: consumption, and under it what the house yields, if it
 * does. It shows the newest period and can be dragged back over the whole @p range.
 */
ZEMHistogram *makeEnergyChart(const Energy &energy, Period period,
                              const Readings::Calendar &calendar, const DateRange &range);

#endif
