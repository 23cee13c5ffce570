// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTCREDENTIALS_H
#define MQTTCREDENTIALS_H

#include <QByteArray>
#include <QString>

/** What a broker knows a user by. */
struct MqttCredentials
{
    QByteArray user; ///< empty: none
    QByteArray password;
};

/**
 * Reads a file with the user in its first line and the password in its second. Its mode must be
 * 0600: nobody else may read it. If it cannot be used, @p problem says why: "FILE: what", and
 * never tells what is in it.
 */
MqttCredentials readMqttCredentials(const QString &path, QString *problem);

#endif
