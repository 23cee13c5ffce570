// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1SAMPLES_H
#define P1SAMPLES_H

#include "p1crc.h"

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTimeZone>

/** The instant of a UTC time such as "2024-05-01T10:00:00". */
inline qint64 utc(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso) + QLatin1Char('Z'), Qt::ISODate)
        .toSecsSinceEpoch();
}

/** The checksum behind a '!' as a meter writes it. */
inline QByteArray checksumOf(const QByteArray &throughMark)
{
    const quint16 crc =
        p1Crc(std::string_view(throughMark.constData(), std::size_t(throughMark.size())));
    return QByteArray::number(crc, 16).rightJustified(4, '0').toUpper();
}

/** A telegram of these data lines, which end with CR and LF, with the right checksum. */
inline QByteArray withChecksum(const QByteArray &lines)
{
    const QByteArray bytes = "/TST5\\METER\r\n\r\n" + lines + "!";
    return bytes + checksumOf(bytes) + "\r\n";
}

/** The lines of version 5 without any reading. */
inline QByteArray linesOfVersion5(const QByteArray &stamp)
{
    return "1-3:0.2.8(50)\r\n0-0:1.0.0(" + stamp + ")\r\n";
}

/** The stamp that a Dutch meter gives an instant. */
inline QByteArray stampOf(qint64 instant)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(instant, QTimeZone("Europe/Amsterdam"));
    return time.toString(QStringLiteral("yyMMddHHmmss")).toLatin1()
        + (time.isDaylightTime() ? 'S' : 'W');
}

/** A telegram of version 5 with one counter and the power, sent at an instant. */
inline QByteArray telegramAt(qint64 instant, double counter, int watts)
{
    return withChecksum(
        linesOfVersion5(stampOf(instant)) + "1-0:1.8.1("
        + QByteArray::number(counter, 'f', 3).rightJustified(10, '0') + "*kWh)\r\n1-0:1.7.0("
        + QByteArray::number(watts / 1000.0, 'f', 3).rightJustified(6, '0') + "*kW)\r\n");
}

/** A telegram of a real meter; empty where those are not at hand. */
inline QByteArray realTelegram(const QString &name)
{
    QFile file(QDir(QStringLiteral(HOUSEHOLD_DATA_DIR "/telegrams")).filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

#endif
