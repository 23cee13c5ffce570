// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "timestamp.h"

#include "wallclock.h"

namespace Readings {

namespace {

constexpr int secondsPerMinute = 60;
constexpr int secondsPerHour = 3600;
constexpr int hoursPerDay = 24;
constexpr int minutesPerHour = 60;
constexpr qint64 lastUnixSecond = 253402300799; // the end of the year 9999

/** Walks through a text of fixed form; once something does not fit, it stays failed. */
class Cursor
{
public:
    explicit Cursor(std::string_view text) : rest(text) { }

    bool failed() const { return bad; }
    bool atEnd() const { return !bad && rest.empty(); }
    bool startsWith(char wanted) const { return !rest.empty() && rest.front() == wanted; }

    int number(std::size_t digits)
    {
        if (rest.size() < digits) {
            bad = true;
            return 0;
        }
        int value = 0;
        for (const char letter : rest.substr(0, digits)) {
            if (letter < '0' || letter > '9') {
                bad = true;
            }
            value = value * 10 + (letter - '0');
        }
        rest.remove_prefix(digits);
        return value;
    }

    void skip(char wanted)
    {
        if (startsWith(wanted)) {
            rest.remove_prefix(1);
        } else {
            bad = true;
        }
    }

private:
    std::string_view rest;
    bool bad = false;
};

std::optional<qint64> secondsOf(int year, int month, int day, int secondsOfDay)
{
    const QDate date(year, month, day);
    if (!date.isValid() || secondsOfDay < 0) {
        return std::nullopt;
    }
    return WallClock::wallSeconds(date, secondsOfDay);
}

// Returns a negative number for a time that no clock shows.
int timeOfDay(Cursor &cursor, bool secondsMayLack)
{
    const int hour = cursor.number(2);
    cursor.skip(':');
    const int minute = cursor.number(2);
    int second = 0;
    if (!secondsMayLack || cursor.startsWith(':')) {
        cursor.skip(':');
        second = cursor.number(2);
    }
    if (hour >= hoursPerDay || minute >= minutesPerHour || second >= secondsPerMinute) {
        return -1;
    }
    return hour * secondsPerHour + minute * secondsPerMinute + second;
}

int offset(Cursor &cursor)
{
    const int sign = cursor.startsWith('-') ? -1 : 1;
    cursor.skip(sign < 0 ? '-' : '+');
    const int hours = cursor.number(2);
    if (cursor.startsWith(':')) {
        cursor.skip(':');
    }
    const int minutes = cursor.number(2);
    if (hours >= hoursPerDay || minutes >= minutesPerHour) {
        cursor.skip('\0');
    }
    return sign * (hours * secondsPerHour + minutes * secondsPerMinute);
}

std::optional<qint64> parseYearFirst(std::string_view text, char between, bool withOffset)
{
    Cursor cursor(text);
    const int year = cursor.number(4);
    cursor.skip('-');
    const int month = cursor.number(2);
    cursor.skip('-');
    const int day = cursor.number(2);
    cursor.skip(between);
    const int time = timeOfDay(cursor, withOffset);
    int seconds = 0;
    if (withOffset) {
        if (cursor.startsWith('Z')) {
            cursor.skip('Z');
        } else {
            seconds = offset(cursor);
        }
    }
    const std::optional<qint64> wall = secondsOf(year, month, day, time);
    if (!cursor.atEnd() || !wall) {
        return std::nullopt;
    }
    return *wall - seconds;
}

std::optional<qint64> parseDayFirst(std::string_view text)
{
    Cursor cursor(text);
    const int day = cursor.number(2);
    cursor.skip('-');
    const int month = cursor.number(2);
    cursor.skip('-');
    const int year = cursor.number(4);
    cursor.skip(' ');
    const int time = timeOfDay(cursor, false);
    cursor.skip(' ');
    const int seconds = offset(cursor);
    const std::optional<qint64> wall = secondsOf(year, month, day, time);
    if (!cursor.atEnd() || !wall) {
        return std::nullopt;
    }
    return *wall - seconds;
}

std::optional<qint64> parseUnixSeconds(std::string_view text)
{
    if (text.empty()) {
        return std::nullopt;
    }
    qint64 seconds = 0;
    for (const char letter : text) {
        if (letter < '0' || letter > '9') {
            return std::nullopt;
        }
        seconds = seconds * 10 + (letter - '0');
        if (seconds > lastUnixSecond) {
            return std::nullopt;
        }
    }
    return seconds;
}

} // namespace

bool isWallClock(TimeFormat format)
{
    return format == TimeFormat::IsoWallClock || format == TimeFormat::WallClock;
}

std::optional<qint64> parseStamp(std::string_view text, TimeFormat format)
{
    switch (format) {
    case TimeFormat::IsoWallClock:
        return parseYearFirst(text, 'T', false);
    case TimeFormat::WallClock:
        return parseYearFirst(text, ' ', false);
    case TimeFormat::DayFirstWithOffset:
        return parseDayFirst(text);
    case TimeFormat::UnixSeconds:
        return parseUnixSeconds(text);
    case TimeFormat::IsoWithOffset:
        return parseYearFirst(text, 'T', true);
    }
    return std::nullopt;
}

} // namespace Readings
