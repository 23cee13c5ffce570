// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTPAYLOAD_H
#define MQTTPAYLOAD_H

#include <QByteArray>
#include <QStringList>
#include <optional>

/** What a payload says at a place in it. */
struct MqttAnswer
{
    enum class Kind {
        Text, ///< a text or a number
        Absent, ///< it says nothing about this, as JSON without that member
        Unknown, ///< it says that this is not known: "unknown", "unavailable", null, nothing at all
        Unreadable,
    };

    Kind kind = Kind::Absent;
    QByteArray text; ///< without blanks and quotes around it
};

/** The longest payload that is looked at, in bytes. */
constexpr int longestMqttPayload = 65536;

/** What @p payload says at @p path; see MqttPlace. A single text may be in the quotes of JSON. */
MqttAnswer mqttAnswer(const QByteArray &payload, const QStringList &path);

/** A decimal number with a point; empty if the text is anything else, or is not finite. */
std::optional<double> mqttNumber(const QByteArray &text);

/**
 * A time of ISO 8601 with its offset from UTC, in seconds since 1970-01-01 UTC; fractions of a
 * second are left out. Empty if the text is anything else.
 */
std::optional<qint64> mqttTime(const QByteArray &text);

#endif
