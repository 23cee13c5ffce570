// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTADDRESS_H
#define MQTTADDRESS_H

#include <QString>

/** Where an MQTT broker is. */
struct MqttAddress
{
    QString host; ///< a name or an address, IPv6 without brackets
    quint16 port = 0;
    bool encrypted = false;
};

/**
 * Reads "mqtt://host[:port]" or "mqtts://host[:port]", of which the second is encrypted; the ports
 * are 1883 and 8883 unless told. Anything else is refused: then the host is empty, and @p problem
 * says why in English, without repeating a password.
 */
MqttAddress parseMqttAddress(const QString &text, QString *problem);

#endif
