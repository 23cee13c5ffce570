// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTOPTIONS_H
#define MQTTOPTIONS_H

#include "mqttmeter.h"

#include <QCommandLineOption>
#include <QList>
#include <optional>

class QCommandLineParser;

/** The options that have to do with MQTT. */
class MqttOptions
{
public:
    MqttOptions();

    /** For the parser, in the order of its help. */
    QList<QCommandLineOption> all() const;

    /** The text that --print-mapping asks for; empty if it is not there. */
    QByteArray mappingToPrint(const QCommandLineParser &parser) const;

    /**
     * Which publisher is to be followed; empty if none is, or if it cannot be, for the reason in
     * @p problem. Reads the files that the options name.
     */
    std::optional<MqttSettings> read(const QCommandLineParser &parser, QString *problem) const;

private:
    const QCommandLineOption broker;
    const QCommandLineOption mapping;
    const QCommandLineOption credentials;
    const QCommandLineOption authorities;
    const QCommandLineOption printMapping;
};

#endif
