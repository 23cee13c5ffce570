// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttmeter.h"

#include <QDateTime>

namespace {

constexpr int tenfold = 10;

QString nameOf(const MqttAddress &address)
{
    const bool isSixth = address.host.contains(QLatin1Char(':'));
    return QStringLiteral("%1://%2:%3")
        .arg(address.encrypted ? QStringLiteral("mqtts") : QStringLiteral("mqtt"),
             isSixth ? QStringLiteral("[%1]").arg(address.host) : address.host)
        .arg(address.port);
}

MqttConnection withTopics(MqttConnection connection, const MqttMapping &mapping)
{
    connection.topics = mapping.topics();
    return connection;
}

qint64 now()
{
    return QDateTime::currentSecsSinceEpoch();
}

} // namespace

MqttMeter::MqttMeter(const MqttSettings &settings, QObject *parent)
    : LiveMeter(parent), name(nameOf(settings.connection.address)),
      mappingName(settings.mapping.name),
      firstTopic(QString::fromUtf8(settings.mapping.values.front().sources.front().place.topic)),
      readings(settings.mapping,
               [this](const P1Telegram &heard, const HousePower &power) {
                   handleTelegram(heard, power);
               }),
      broker(withTopics(settings.connection, settings.mapping))
{
    for (const auto &[timer, milliseconds] : {std::pair<QTimer *, int>(&quiet, settings.quiet),
                                              {&burst, settings.longestBurst},
                                              {&watchdog, settings.watchdog},
                                              {&patience, settings.patience},
                                              {&gathering, settings.gathering}}) {
        timer->setSingleShot(true);
        timer->setInterval(milliseconds);
    }
    connect(&quiet, &QTimer::timeout, this, [this] {
        burst.stop();
        readings.pause(now());
    });
    connect(&burst, &QTimer::timeout, this, [this] { readings.complete(now()); });
    connect(&watchdog, &QTimer::timeout, this, &MqttMeter::fail);
    connect(&patience, &QTimer::timeout, this, &MqttMeter::handlePatience);
    connect(&gathering, &QTimer::timeout, this, &MqttMeter::tellUnreadable);
    connect(&broker, &MqttLink::connected, this, &MqttMeter::handleConnection);
    connect(&broker, &MqttLink::lost, this, &MqttMeter::handleLoss);
    connect(&broker, &MqttLink::received, this, &MqttMeter::take);
}

MqttMeter::~MqttMeter() = default;

void MqttMeter::goOnFrom(const Readings::Household &household)
{
    readings.goOnFrom(household);
}

void MqttMeter::start()
{
    watchdog.start();
    broker.start();
}

void MqttMeter::handleConnection()
{
    connected = true;
    lastLoss.clear();
    patience.start();
}

void MqttMeter::handleLoss(const QString &reason)
{
    if (connected) {
        readings.complete(now());
        readings.forget();
        quiet.stop();
        burst.stop();
        patience.stop();
    }
    // A host that is tried again and again fails for one reason, as a rule.
    if (reason != lastLoss) {
        lastLoss = reason;
        tell(connected ? tr("the connection was lost: %1").arg(reason)
                       : tr("cannot be connected to: %1").arg(reason),
             QStringLiteral("connection"));
    }
    if (connected) {
        connected = false;
        fail();
    }
}

void MqttMeter::take(const MqttMessage &message)
{
    readings.take(message, now());
    quiet.start();
    if (!burst.isActive()) {
        burst.start();
    }
    if (!readings.isOnline()) {
        fail();
    }
    if (readings.unreadableCount() > told * tenfold && !gathering.isActive()) {
        gathering.start();
    }
}

void MqttMeter::handleTelegram(const P1Telegram &heard, const HousePower &power)
{
    house = power;
    isGood = true;
    watchdog.start();
    // What others of its topics tell does not bring back a publisher that says that it is offline.
    if (failed && readings.isOnline()) {
        failed = false;
        Q_EMIT meteringFailed(false);
    }
    Q_EMIT telegram(heard);
}

void MqttMeter::handlePatience()
{
    readings.goWithoutTimes();
    if (!readings.isHeard()) {
        tell(tr("none of the topics of the mapping %1 is published; the first one is %2")
                 .arg(mappingName, firstTopic));
    }
}

void MqttMeter::tellUnreadable()
{
    told = readings.unreadableCount();
    tell(told == 1 ? tr("a message cannot be read: %1").arg(readings.lastUnreadable())
                   : tr("%n messages cannot be read, the last one: %1", nullptr, told)
                         .arg(readings.lastUnreadable()),
         QStringLiteral("message"));
}

void MqttMeter::fail()
{
    if (!failed) {
        failed = true;
        Q_EMIT meteringFailed(true);
    }
}

void MqttMeter::tell(const QString &what, const QString &kind)
{
    Q_EMIT problem(QStringLiteral("%1: %2").arg(name, what), kind);
}
