// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttmappingreader.h"

#include "profile.h"

#include <QJsonArray>
#include <algorithm>
#include <array>
#include <utility>

using Readings::Column;

namespace {

const QString topicKey = QStringLiteral("topic");
const QString pathKey = QStringLiteral("path");
const QString unitKey = QStringLiteral("unit");
const QString signKey = QStringLiteral("sign");
const QString timeKey = QStringLiteral("time");
const QString fromKey = QStringLiteral("from");
const QString registerKey = QStringLiteral("register");
const QString powerKey = QStringLiteral("power");
const QString statusKey = QStringLiteral("status");
const QString onlineKey = QStringLiteral("online");
const QString offlineKey = QStringLiteral("offline");
const QString valuesKey = QStringLiteral("values");

const std::array<std::pair<const char *, MqttPower>, 7> powerNames = {{
    {"grid", MqttPower::Grid},
    {"import", MqttPower::Import},
    {"export", MqttPower::Export},
    {"production", MqttPower::Production},
    {"home", MqttPower::Home},
    {"battery", MqttPower::Battery},
    {"car", MqttPower::Car},
}};

/** The columns of the program's own CSV format: registers have the same names everywhere. */
const std::vector<Column> &columns()
{
    return Readings::profiles().front().columns;
}

template <typename Names>
QString listOf(const Names &names)
{
    QStringList all;
    std::transform(names.begin(), names.end(), std::back_inserter(all),
                   [](const auto &name) { return QString::fromUtf8(name); });
    return all.join(QStringLiteral(", "));
}

QString unitList(MqttUnit unit)
{
    switch (unit) {
    case MqttUnit::Watt:
        return QStringLiteral("W, kW");
    case MqttUnit::KilowattHour:
        return QStringLiteral("Wh, kWh, MWh");
    case MqttUnit::CubicMetre:
        return QStringLiteral("m³, dm³, L");
    case MqttUnit::Gigajoule:
        break;
    }
    return QStringLiteral("GJ, MJ");
}

} // namespace

MqttMapping MqttMappingReader::read(const QJsonDocument &document)
{
    MqttMapping mapping;
    if (!document.isObject()) {
        note(QString(), QStringLiteral("it must be one JSON object"));
        return mapping;
    }
    const QJsonObject object = document.object();
    checkKeys(object, QString(), {timeKey, statusKey, valuesKey});
    if (object.contains(timeKey)) {
        mapping.times = readTimes(object.value(timeKey));
    }
    if (object.contains(statusKey)) {
        mapping.status = readStatus(object.value(statusKey));
    }
    readValues(object.value(valuesKey), mapping);
    return mapping;
}

QString MqttMappingReader::text(const QJsonObject &object, const QString &place, const QString &key)
{
    const QString found = object.value(key).toString();
    if (found.isEmpty()) {
        note(below(place, key),
             object.contains(key) ? QStringLiteral("must be a text")
                                  : QStringLiteral("is missing"));
    }
    return found;
}

MqttPlace MqttMappingReader::readPlace(const QJsonValue &value, const QString &where)
{
    const QJsonObject object = value.toObject();
    if (!value.isObject()) {
        note(where, QStringLiteral("must be { \"topic\": ... }"));
        return {};
    }
    MqttPlace place;
    place.topic = text(object, where, topicKey).toUtf8();
    if (place.topic.contains('#') || place.topic.contains('+')) {
        note(below(where, topicKey), QStringLiteral("must be one topic, without + and #"));
    }
    if (object.contains(pathKey)) {
        place.path = text(object, where, pathKey).split(QLatin1Char('.'));
    }
    return place;
}

std::vector<MqttPlace> MqttMappingReader::readTimes(const QJsonValue &value)
{
    const QJsonArray list = value.isArray() ? value.toArray() : QJsonArray {value};
    std::vector<MqttPlace> places;
    for (int i = 0; i < list.size(); ++i) {
        const QString where =
            value.isArray() ? QStringLiteral("%1[%2]").arg(timeKey).arg(i) : timeKey;
        checkKeys(list.at(i).toObject(), where, {topicKey, pathKey});
        places.push_back(readPlace(list.at(i), where));
    }
    return places;
}

MqttStatus MqttMappingReader::readStatus(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    checkKeys(object, statusKey, {topicKey, pathKey, onlineKey, offlineKey});
    MqttStatus status;
    status.place = readPlace(value, statusKey);
    status.online = text(object, statusKey, onlineKey).toUtf8();
    status.offline = text(object, statusKey, offlineKey).toUtf8();
    return status;
}

void MqttMappingReader::readValues(const QJsonValue &list, MqttMapping &mapping)
{
    const QJsonArray values = list.toArray();
    if (values.isEmpty()) {
        note(valuesKey, QStringLiteral("must be a list of registers and powers"));
    }
    for (int i = 0; i < values.size(); ++i) {
        const QString where = QStringLiteral("%1[%2]").arg(valuesKey).arg(i);
        if (!values.at(i).isObject()) {
            note(where, QStringLiteral("must be an object"));
            return;
        }
        MqttValue value = readValue(values.at(i).toObject(), where);
        if (!problem().isEmpty()) {
            return;
        }
        checkTwice(mapping, where, value);
        mapping.values.push_back(std::move(value));
    }
}

MqttValue MqttMappingReader::readValue(const QJsonObject &object, const QString &where)
{
    checkKeys(object, where,
              {registerKey, powerKey, topicKey, pathKey, unitKey, signKey, timeKey, fromKey});
    MqttValue value;
    readMeaning(object, where, value);
    if (problem().isEmpty()) {
        readSources(object, where, value);
    }
    return value;
}

void MqttMappingReader::readMeaning(const QJsonObject &object, const QString &where,
                                    MqttValue &value)
{
    if (object.contains(registerKey) == object.contains(powerKey)) {
        note(where, QStringLiteral("must have either a register or a power"));
    } else if (object.contains(registerKey)) {
        const QByteArray name = text(object, where, registerKey).toUtf8();
        std::vector<QByteArray> names;
        for (const Column &column : columns()) {
            names.push_back(column.name);
            if (column.name == name) {
                value.meterRegister = column.meterRegister;
            }
        }
        if (!value.meterRegister) {
            note(below(where, registerKey),
                 QStringLiteral("is not known; there is %1").arg(listOf(names)));
        }
    } else {
        const QByteArray name = text(object, where, powerKey).toUtf8();
        std::vector<QByteArray> names;
        for (const auto &[known, power] : powerNames) {
            names.emplace_back(known);
            if (known == name) {
                value.power = power;
            }
        }
        if (!value.power) {
            note(below(where, powerKey),
                 QStringLiteral("is not known; there is %1").arg(listOf(names)));
        }
    }
}

void MqttMappingReader::readSources(const QJsonObject &object, const QString &where,
                                    MqttValue &value)
{
    if (!object.contains(fromKey)) {
        value.sources.push_back(readSource(object, where, value.unit()));
        return;
    }
    const QJsonArray list = object.value(fromKey).toArray();
    if (list.isEmpty() || object.contains(topicKey)) {
        note(below(where, fromKey),
             QStringLiteral("must be a list, and the only place where topics are told"));
    }
    for (int i = 0; i < list.size(); ++i) {
        const QString place = QStringLiteral("%1[%2]").arg(below(where, fromKey)).arg(i);
        QJsonObject source = list.at(i).toObject();
        checkKeys(source, place, {topicKey, pathKey, unitKey, signKey, timeKey});
        // What is the same for all is told once, beside the list.
        for (const QString &key : {unitKey, signKey}) {
            if (!source.contains(key) && object.contains(key)) {
                source.insert(key, object.value(key));
            }
        }
        value.sources.push_back(readSource(source, place, value.unit()));
    }
}

MqttSource MqttMappingReader::readSource(const QJsonObject &object, const QString &where,
                                         MqttUnit unit)
{
    MqttSource source;
    source.place = readPlace(object, where);
    readUnit(object.value(unitKey), below(where, unitKey), unit, source);
    if (object.contains(signKey)) {
        source.sign = object.value(signKey).toDouble();
        if (source.sign != 1.0 && source.sign != -1.0) {
            note(below(where, signKey), QStringLiteral("must be 1 or -1"));
        }
    }
    if (object.contains(timeKey)) {
        const QString timeWhere = below(where, timeKey);
        checkKeys(object.value(timeKey).toObject(), timeWhere, {topicKey, pathKey});
        source.timePlace = readPlace(object.value(timeKey), timeWhere);
    }
    return source;
}

void MqttMappingReader::readUnit(const QJsonValue &value, const QString &where, MqttUnit unit,
                                 MqttSource &source)
{
    if (value.isObject()) {
        checkKeys(value.toObject(), where, {topicKey, pathKey});
        source.unitPlace = readPlace(value, where);
        return;
    }
    source.factor = mqttFactor(value.toString(), unit);
    if (!source.factor) {
        note(where,
             QStringLiteral("must be one of %1, or a topic that tells it").arg(unitList(unit)));
    }
}

void MqttMappingReader::checkTwice(const MqttMapping &mapping, const QString &where,
                                   const MqttValue &value)
{
    const bool isKnown =
        std::any_of(mapping.values.cbegin(), mapping.values.cend(), [&](const MqttValue &other) {
            return value.meterRegister && other.meterRegister
                && *value.meterRegister == *other.meterRegister;
        });
    if (isKnown) {
        note(below(where, registerKey),
             QStringLiteral("is there twice; several topics of one register go into \"from\""));
    }
}
