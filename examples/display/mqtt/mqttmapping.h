// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTMAPPING_H
#define MQTTMAPPING_H

#include "quantity.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

/** Where something is told: in the payload of a topic, or at a place in its JSON. */
struct MqttPlace
{
    QByteArray topic;
    /** Names of members and numbers of elements, from the outside in; empty: the whole payload. */
    QStringList path;
};

/** What a value measures. */
enum class MqttUnit { Watt, KilowattHour, CubicMetre, Gigajoule };

/** Where a value is told, and what it means there. */
struct MqttSource
{
    MqttPlace place;
    /** A value times this is in the unit of what it is; empty where a topic tells its unit. */
    std::optional<double> factor;
    std::optional<MqttPlace> unitPlace;
    double sign = 1.0;
    /** Where the time is told at which the value was read; without it, it was when it was sent. */
    std::optional<MqttPlace> timePlace;
};

/** The powers that make up what flows in a house, in W. */
enum class MqttPower {
    Grid, ///< less than 0 while the house delivers
    Import,
    Export,
    Production,
    Home, ///< what the house takes, without the car
    Battery, ///< less than 0 while it is charged
    Car,
};

/** A register, or a power; exactly one of the two is there. */
struct MqttValue
{
    std::optional<Readings::Register> meterRegister;
    std::optional<MqttPower> power;
    /** The same value as several releases tell it; the first one that is heard counts. */
    std::vector<MqttSource> sources;

    /** The unit that sources are converted to. */
    MqttUnit unit() const;
};

/** Where a publisher tells whether it runs. */
struct MqttStatus
{
    MqttPlace place;
    QByteArray online;
    QByteArray offline;
};

/** What the topics of a publisher mean. */
struct MqttMapping
{
    QString name; ///< of the ready mapping, or of the file
    /** Where the time of all values is told that have no time of their own. */
    std::vector<MqttPlace> times;
    std::optional<MqttStatus> status;
    std::vector<MqttValue> values;

    /** All topics that are named, each once. */
    QList<QByteArray> topics() const;
};

/** The factor from a unit as people write it ("Wh", "m³") to @p unit; empty if there is none. */
std::optional<double> mqttFactor(const QString &name, MqttUnit unit);

/** The names of the ready mappings, the default first. */
QStringList readyMqttMappings();

/** The text of a ready mapping; empty if there is none of that name. */
QByteArray readyMqttMapping(const QString &name);

/**
 * Reads a mapping: a ready one by its name, or a JSON file. docs/mqtt.md tells its form. If it
 * cannot be used, it has no values, and @p problem says what is wrong and where, in English.
 */
MqttMapping loadMqttMapping(const QString &nameOrFile, QString *problem);

#endif
