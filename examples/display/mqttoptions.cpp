// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttoptions.h"

#include <QCommandLineParser>
#include <QFileInfo>

MqttOptions::MqttOptions()
    : broker(QStringLiteral("mqtt"),
             QStringLiteral("Follow the meters that are published through an MQTT broker: "
                            "mqtt://host[:port] or, encrypted, mqtts://host[:port]."),
             QStringLiteral("URL")),
      mapping(QStringLiteral("mapping"),
              QStringLiteral("What the topics mean: %1, or a file.")
                  .arg(readyMqttMappings().join(QStringLiteral(", "))),
              QStringLiteral("NAME|FILE"), readyMqttMappings().constFirst()),
      credentials(QStringLiteral("mqtt-credentials"),
                  QStringLiteral("A file of mode 0600 with the user and the password of the broker "
                                 "on lines of their own."),
                  QStringLiteral("FILE")),
      authorities(
          QStringLiteral("mqtt-ca"),
          QStringLiteral("Believe an encrypted broker by the certificates in this PEM file, "
                         "instead of those of the system."),
          QStringLiteral("FILE")),
      printMapping(QStringLiteral("print-mapping"),
                   QStringLiteral("Print a mapping, as the beginning of one of your own, and end."),
                   QStringLiteral("NAME"))
{
}

QList<QCommandLineOption> MqttOptions::all() const
{
    return {broker, mapping, credentials, authorities, printMapping};
}

QByteArray MqttOptions::mappingToPrint(const QCommandLineParser &parser) const
{
    return readyMqttMapping(parser.value(printMapping));
}

std::optional<MqttSettings> MqttOptions::read(const QCommandLineParser &parser,
                                              QString *problem) const
{
    if (parser.isSet(printMapping)) {
        *problem =
            QStringLiteral("there is no mapping '%1' to print; there is %2")
                .arg(parser.value(printMapping), readyMqttMappings().join(QStringLiteral(", ")));
        return std::nullopt;
    }
    if (!parser.isSet(broker)) {
        for (const QCommandLineOption &other : {mapping, credentials, authorities}) {
            if (parser.isSet(other)) {
                *problem = QStringLiteral("--%1 goes with --mqtt").arg(other.names().constFirst());
            }
        }
        return std::nullopt;
    }
    MqttSettings settings;
    MqttConnection &connection = settings.connection;
    connection.address = parseMqttAddress(parser.value(broker), problem);
    if (!problem->isEmpty()) {
        problem->prepend(QStringLiteral("--mqtt: "));
        return std::nullopt;
    }
    if (parser.isSet(authorities)) {
        connection.authorities = parser.value(authorities);
        const QFileInfo file(connection.authorities);
        if (!connection.address.encrypted) {
            *problem = QStringLiteral("--mqtt-ca goes with mqtts://");
        } else if (!file.isFile() || !file.isReadable()) {
            *problem = QStringLiteral("--mqtt-ca: %1: cannot be read").arg(connection.authorities);
        }
    }
    if (problem->isEmpty() && parser.isSet(credentials)) {
        connection.credentials = readMqttCredentials(parser.value(credentials), problem);
    }
    if (problem->isEmpty()) {
        settings.mapping = loadMqttMapping(parser.value(mapping), problem);
    }
    return problem->isEmpty() ? std::make_optional(settings) : std::nullopt;
}
