// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGS_TIMESTAMP_H
#define READINGS_TIMESTAMP_H

#include <QtGlobal>
#include <optional>
#include <string_view>

namespace Readings {

/** How a file writes its times. */
enum class TimeFormat {
    /** "2016-12-31T23:00:00", what the clock of the house showed. */
    IsoWallClock,
    /** "2023-02-01 00:00:00", what the clock of the house showed. */
    WallClock,
    /** "31-12-2023 23:45:00 +0100", day first, with the offset from UTC. */
    DayFirstWithOffset,
    /** "1357027200", seconds since 1970-01-01 UTC. */
    UnixSeconds,
    /**
     * "2024-05-01T12:00:00+02:00" or "2024-05-01T10:00:00Z"; the seconds and the colon of the
     * offset
     * may be left out.
     */
    IsoWithOffset,
};

/** Whether stamps of this format need the clock of a time zone to become instants. */
bool isWallClock(TimeFormat format);

/**
 * Reads a time stamp: seconds since 1970-01-01 UTC, or as the wall clock counts them. Empty if the
 * text is not of that format to the letter, or is no time of the calendar.
 */
std::optional<qint64> parseStamp(std::string_view text, TimeFormat format);

} // namespace Readings

#endif
