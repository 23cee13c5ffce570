// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1TIME_H
#define P1TIME_H

#include <QTimeZone>
#include <QtGlobal>
#include <optional>
#include <string_view>

/** The clock that meters with this port show: that of the Netherlands and of Belgium. */
QTimeZone p1TimeZone();

/**
 * Reads a meter's time stamp, "YYMMDDhhmmss" with an "S" behind it in summer and a "W" in winter:
 * seconds since 1970-01-01 UTC. Without a letter, as old meters write the time of gas, the clock is
 * that of p1TimeZone(), and of an hour that comes twice it is the first.
 *
 * Empty if it is no time of the calendar, and if the clock was never set: before 2007 there was no
 * such meter, but a clock that lost its power begins anew in 2000 or 1970.
 *
 * Not for use from two threads at the same time.
 */
std::optional<qint64> parseP1Time(std::string_view text);

#endif
