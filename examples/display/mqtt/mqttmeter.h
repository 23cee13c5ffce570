// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTMETER_H
#define MQTTMETER_H

#include "livemeter.h"
#include "mqttlink.h"
#include "mqttreadings.h"

#include <QTimer>

/** Which publisher is followed, and where. Times in milliseconds. */
struct MqttSettings
{
    /** Its topics are those of the mapping. */
    MqttConnection connection;
    MqttMapping mapping;
    /** What comes closer together than this belongs together. */
    int quiet = 250;
    /** What belongs together is not longer than this. */
    int longestBurst = 1000;
    /** Without anything that is mapped for so long, metering has failed. */
    int watchdog = 180000;
    /** So long the times, or anything at all, are waited for in a new connection. */
    int patience = 60000;
    /** Messages that cannot be read are gathered for so long, and then told in one. */
    int gathering = 5000;
};

/**
 * Follows the meters of a household through an MQTT broker, for as long as it lives.
 *
 * What is wrong with the connection is told once until it works again. Messages that cannot be
 * read are counted, and told together; and again when there are ten times as many.
 */
class MqttMeter : public LiveMeter
{
    Q_OBJECT

public:
    explicit MqttMeter(const MqttSettings &settings, QObject *parent = nullptr);
    ~MqttMeter() override;
    Q_DISABLE_COPY(MqttMeter)

    void goOnFrom(const Readings::Household &household) override;
    bool isMetering() const override { return isGood && !failed; }
    HousePower housePower() const override { return house; }

    /** Whether there is a connection to the broker now. */
    bool isConnected() const { return connected; }
    /** Messages that could not be read so far. */
    int unreadableCount() const { return readings.unreadableCount(); }
    /** Where its messages come from. */
    MqttLink *link() { return &broker; }

public Q_SLOTS:
    void start() override;

private:
    void handleConnection();
    void handleLoss(const QString &reason);
    void take(const MqttMessage &message);
    void handleTelegram(const P1Telegram &telegram, const HousePower &power);
    void handlePatience();
    void tellUnreadable();
    void fail();
    void tell(const QString &what, const QString &kind = QString());

    const QString name; ///< of the broker, in messages
    const QString mappingName;
    const QString firstTopic;
    MqttReadings readings;
    HousePower house;
    QTimer quiet;
    QTimer burst;
    QTimer watchdog;
    QTimer patience;
    QTimer gathering;
    int told = 0;
    bool isGood = false;
    bool failed = false;
    bool connected = false;
    QString lastLoss;
    MqttLink broker;
};

#endif
