// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTMAPPINGREADER_H
#define MQTTMAPPINGREADER_H

#include "mqttmapping.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

/** Reads the JSON of a mapping. Whatever is not as it should be is a problem: the first is told. */
class MqttMappingReader
{
public:
    MqttMapping read(const QJsonDocument &document);

    /** "values[3].unit: what is wrong", in English; empty if all is well. */
    QString problem() const { return firstProblem; }

private:
    void note(const QString &place, const QString &what);
    void checkKeys(const QJsonObject &object, const QString &place, const QStringList &known);
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

    QString firstProblem;
};

#endif
