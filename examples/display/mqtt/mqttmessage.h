// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTMESSAGE_H
#define MQTTMESSAGE_H

#include <QByteArray>

/** What a broker hands on. */
struct MqttMessage
{
    QByteArray topic;
    QByteArray payload;
    /** It was kept by the broker, and may be of any age. */
    bool retained = false;
};

#endif
