// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "thinning.h"

#include <QDateTime>
#include <QTimeZone>
#include <algorithm>

namespace Readings {

namespace {

constexpr qint64 hour = 3600;
constexpr qint64 quarter = 900;

bool isAtBorder(const Reading &reading, qint64 step)
{
    return reading.instant % step == 0;
}

} // namespace

qint64 keptStep(const QTimeZone &zone)
{
    // Both halves of the year, since there are zones whose clock moves by half an hour.
    for (const int month : {1, 7}) {
        const QDateTime noon(QDate(2024, month, 1), QTime(12, 0), QTimeZone::utc());
        if (zone.isValid() && zone.offsetFromUtc(noon) % hour != 0) {
            return quarter;
        }
    }
    return hour;
}

std::vector<bool> dispensable(const std::vector<Reading> &readings, qint64 step, double mostPerHour)
{
    std::vector<bool> answers(readings.size(), false);
    auto border = readings.cend();
    for (auto reading = readings.cbegin(); reading != readings.cend(); ++reading) {
        if (!isAtBorder(*reading, step)) {
            continue;
        }
        if (border != readings.cend() && reading->instant - border->instant == step) {
            const bool rises =
                std::is_sorted(border, reading + 1, [](const Reading &left, const Reading &right) {
                    return left.value < right.value;
                });
            if (rises && reading->value - border->value <= mostPerHour) {
                std::fill(answers.begin() + (border + 1 - readings.cbegin()),
                          answers.begin() + (reading - readings.cbegin()), true);
            }
        }
        border = reading;
    }
    return answers;
}

} // namespace Readings
