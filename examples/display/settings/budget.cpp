// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "budget.h"

#include "household.h"

namespace Budget {

namespace {

constexpr double daysPerYear = 365.25;
constexpr double partWhileAway = 0.6; // nobody by day
constexpr double partOnHoliday = 0.25; // what is always on

constexpr double partForThreeStars = 0.75;
constexpr double partForOneStar = 1.25;

double partOf(Profile profile)
{
    switch (profile) {
    case Profile::Away:
        return partWhileAway;
    case Profile::Holiday:
        return partOnHoliday;
    case Profile::Home:
        break;
    }
    return 1.0;
}

} // namespace

double ofDay(int yearGoal, Profile profile)
{
    return yearGoal / daysPerYear * partOf(profile);
}

int starsFor(double used, double budget)
{
    if (!(budget > 0.0) || used > partForOneStar * budget) {
        return 0;
    }
    if (used > budget) {
        return 1;
    }
    return used > partForThreeStars * budget ? 2 : 3;
}

std::optional<Readings::Measured> takenOn(const Readings::Household &household, const QDate &date)
{
    const Readings::Calendar calendar(household.timeZone);
    return household.measured(Readings::Quantity::GridImport, calendar.day(date));
}

} // namespace Budget
