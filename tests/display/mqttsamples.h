// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTSAMPLES_H
#define MQTTSAMPLES_H

#include <QByteArray>
#include <QDateTime>

/** An instant as publishers write it. */
inline QByteArray isoOf(qint64 instant)
{
    return QDateTime::fromSecsSinceEpoch(instant).toUTC().toString(Qt::ISODate).toLatin1();
}

/** The instant of a UTC time such as "2024-06-01T10:00:00". */
inline qint64 utc(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso) + QLatin1Char('Z'), Qt::ISODate)
        .toSecsSinceEpoch();
}

#endif
