// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttmapping.h"

#include "mqttmappingreader.h"

#include <QFile>
#include <QJsonDocument>

// Where the resources of a static library are asked for, no namespace may be open.
static void addReadyMappings()
{
    Q_INIT_RESOURCE(mqttmappings);
}

namespace {

constexpr qint64 largestFile = 1 << 20; // bytes

struct UnitName
{
    const char *name;
    MqttUnit unit;
    double factor;
};

constexpr UnitName unitNames[] = {
    {"W", MqttUnit::Watt, 1.0},
    {"kW", MqttUnit::Watt, 1000.0},
    {"Wh", MqttUnit::KilowattHour, 0.001},
    {"kWh", MqttUnit::KilowattHour, 1.0},
    {"MWh", MqttUnit::KilowattHour, 1000.0},
    {"m³", MqttUnit::CubicMetre, 1.0},
    {"m3", MqttUnit::CubicMetre, 1.0},
    {"dm³", MqttUnit::CubicMetre, 0.001},
    {"dm3", MqttUnit::CubicMetre, 0.001},
    {"L", MqttUnit::CubicMetre, 0.001},
    {"l", MqttUnit::CubicMetre, 0.001},
    {"GJ", MqttUnit::Gigajoule, 1.0},
    {"MJ", MqttUnit::Gigajoule, 0.001},
};

MqttMapping parseMapping(const QString &name, const QByteArray &text, QString *problem)
{
    const QJsonDocument document = Readings::parseJson(name, text, problem);
    if (document.isNull()) {
        return {};
    }
    MqttMappingReader reader;
    MqttMapping mapping = reader.read(document);
    if (!reader.problem().isEmpty()) {
        *problem = QStringLiteral("%1: %2").arg(name, reader.problem());
        return {};
    }
    mapping.name = name;
    return mapping;
}

} // namespace

MqttUnit MqttValue::unit() const
{
    if (power) {
        return MqttUnit::Watt;
    }
    switch (meterRegister->quantity) {
    case Readings::Quantity::Gas:
    case Readings::Quantity::Water:
        return MqttUnit::CubicMetre;
    case Readings::Quantity::Heating:
        return MqttUnit::Gigajoule;
    default:
        return MqttUnit::KilowattHour;
    }
}

QList<QByteArray> MqttMapping::topics() const
{
    QList<QByteArray> all;
    const auto add = [&](const MqttPlace &place) {
        if (!all.contains(place.topic)) {
            all.append(place.topic);
        }
    };
    for (const MqttPlace &place : times) {
        add(place);
    }
    if (status) {
        add(status->place);
    }
    for (const MqttValue &value : values) {
        for (const MqttSource &source : value.sources) {
            add(source.place);
            if (source.unitPlace) {
                add(*source.unitPlace);
            }
            if (source.timePlace) {
                add(*source.timePlace);
            }
        }
    }
    return all;
}

std::optional<double> mqttFactor(const QString &name, MqttUnit unit)
{
    for (const UnitName &known : unitNames) {
        if (known.unit == unit && name == QString::fromUtf8(known.name)) {
            return known.factor;
        }
    }
    return std::nullopt;
}

QStringList readyMqttMappings()
{
    return {QStringLiteral("dsmr-reader"), QStringLiteral("evcc"),
            QStringLiteral("home-assistant")};
}

QByteArray readyMqttMapping(const QString &name)
{
    if (!readyMqttMappings().contains(name)) {
        return QByteArray();
    }
    addReadyMappings();
    QFile file(QStringLiteral(":/mqtt/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

MqttMapping loadMqttMapping(const QString &nameOrFile, QString *problem)
{
    if (readyMqttMappings().contains(nameOrFile)) {
        return parseMapping(nameOrFile, readyMqttMapping(nameOrFile), problem);
    }
    QFile file(nameOrFile);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = QStringLiteral("%1: it is neither a file that can be opened (%2) nor one of the "
                                  "ready mappings %3")
                       .arg(nameOrFile, file.errorString(),
                            readyMqttMappings().join(QStringLiteral(", ")));
        return {};
    }
    if (file.size() > largestFile) {
        *problem = QStringLiteral("%1: it is too large for a mapping").arg(nameOrFile);
        return {};
    }
    return parseMapping(nameOrFile, file.readAll(), problem);
}
