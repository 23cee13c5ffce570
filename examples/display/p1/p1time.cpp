// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1time.h"

#include "wallclock.h"

#include <QDate>
#include <QTime>
#include <array>

namespace {

constexpr std::size_t digitCount = 12;
constexpr qint64 secondsPerHour = 3600;
constexpr int millisecondsPerSecond = 1000;
constexpr int firstYear = 2007;
/** Two digits from here on are a clock that counts from 1970. */
constexpr int firstYearOfLastCentury = 70;

std::optional<int> twoDigits(std::string_view text, std::size_t position)
{
    const char tens = text[position];
    const char ones = text[position + 1];
    if (tens < '0' || tens > '9' || ones < '0' || ones > '9') {
        return std::nullopt;
    }
    return (tens - '0') * 10 + (ones - '0');
}

std::optional<qint64> wallSeconds(std::string_view text)
{
    std::array<int, digitCount / 2> parts {};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::optional<int> part = twoDigits(text, 2 * i);
        if (!part) {
            return std::nullopt;
        }
        parts[i] = *part;
    }
    const int year = parts[0] + (parts[0] < firstYearOfLastCentury ? 2000 : 1900);
    const QDate date(year, parts[1], parts[2]);
    const QTime time(parts[3], parts[4], parts[5]);
    if (!date.isValid() || !time.isValid() || year < firstYear) {
        return std::nullopt;
    }
    return Readings::WallClock::wallSeconds(date,
                                            time.msecsSinceStartOfDay() / millisecondsPerSecond);
}

} // namespace

QTimeZone p1TimeZone()
{
    return QTimeZone("Europe/Amsterdam");
}

std::optional<qint64> parseP1Time(std::string_view text)
{
    const bool hasLetter = text.size() == digitCount + 1;
    if (!hasLetter && text.size() != digitCount) {
        return std::nullopt;
    }
    const std::optional<qint64> wall = wallSeconds(text);
    if (!wall) {
        return std::nullopt;
    }
    if (hasLetter) {
        switch (text.back()) {
        case 'S':
            return *wall - 2 * secondsPerHour;
        case 'W':
            return *wall - secondsPerHour;
        default:
            return std::nullopt;
        }
    }
    static const Readings::WallClock clock(p1TimeZone());
    const Readings::WallClock::Moment moment = clock.moment(*wall);
    return moment.occurrences > 0 ? std::optional<qint64>(moment.earlier) : std::nullopt;
}
