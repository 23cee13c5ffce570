// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTMAPPINGREADER_H
#define MQTTMAPPINGREADER_H

#include "jsonreader.h"
#include "mqttmapping.h"

#include <QJsonValue>

/** Reads the JSON of a mapping. Whatever is not as it should be is a problem: the first is told. */
class MqttMappingReader : public Readings::JsonReader
{
public:
    MqttMapping read(const QJsonDocument &document);

private:
    QString text(const QJsonObject &object, const QString &place, const QString &key);
    MqttPlace readPlace(const QJsonValue &value, const QString &where);
    std::vector<MqttPlace> readTimes(const QJsonValue &value);
    MqttStatus readStatus(const QJsonValue &value);
    void readValues(const QJsonValue &list, MqttMapping &mapping);
    MqttValue readValue(const QJsonObject &object, const QString &where);
    void readMeaning(const QJsonObject &object, const QString &where, MqttValue &value);
    void readSources(const QJsonObject &object, const QString &where, MqttValue &value);
    MqttSource readSource(const QJsonObject &object, const QString &where, MqttUnit unit);
    void readUnit(const QJsonValue &value, const QString &where, MqttUnit unit, MqttSource &source);
    void checkTwice(const MqttMapping &mapping, const QString &where, const MqttValue &value);
};

#endif
