// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BUDGET_H
#define BUDGET_H

#include "displaysettings.h"

#include "calendar.h"
#include "meter.h"

#include <QDate>
#include <optional>

namespace Readings {
class Household;
}

/** What a house means to take from the grid, and what it took. */
namespace Budget {

/** The kWh of a day of which @p yearGoal makes a year: less while nobody is at home. */
double ofDay(int yearGoal, Profile profile);

/**
 * Stars for a day that took @p used of @p budget, both in kWh: 3 up to three quarters of it, 2 up
 * to all of it, 1 up to one and a quarter, else 0. Without a budget there are none.
 */
int starsFor(double used, double budget);

/**
 * What the house took from the grid on a day, in kWh; so far, if the day is still running.
 * Incomplete if readings are missing, empty if nothing is known.
 */
std::optional<Readings::Measured> takenOn(const Readings::Household &household, const QDate &date);

} // namespace Budget

#endif
