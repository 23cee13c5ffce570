// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTLINK_H
#define MQTTLINK_H

#include "mqttaddress.h"
#include "mqttcredentials.h"
#include "mqttmailbox.h"

#include <QList>
#include <QObject>
#include <condition_variable>
#include <thread>

struct mosquitto;

/** Where to connect, and what to subscribe to. */
struct MqttConnection
{
    MqttAddress address;
    MqttCredentials credentials;
    /** A file of certificates of authorities; empty: those of the system. */
    QString authorities;
    QList<QByteArray> topics;
    /** The pause before a lost connection is made anew, in ms; it doubles up to the longest. */
    int pause = 1000;
    int longestPause = 60000;
};

/**
 * Follows topics of a broker, and connects again whenever the connection is lost.
 *
 * It works in a thread of its own, since looking up a name and shaking hands may take long. All it
 * tells comes through the mailbox, of which the thread of the link takes no more than
 * @p eventsPerTurn in a turn of its event loop, so that a screen that is served by the same thread
 * is not kept waiting by a flood.
 */
class MqttLink : public QObject
{
    Q_OBJECT

public:
    static constexpr std::size_t eventsPerTurn = 100;
    static constexpr std::size_t mostWaiting = 2000;

    explicit MqttLink(const MqttConnection &connection, QObject *parent = nullptr);
    /** Ends the connection, and waits for it. */
    ~MqttLink() override;
    Q_DISABLE_COPY(MqttLink)

    /** Begins; called once. */
    void start();

    /** Takes an event as if it had come from the broker; from any thread. */
    void post(MqttEvent event);

Q_SIGNALS:
    void connected();
    /** The connection ended, or could not be made, for this reason in English. */
    void lost(const QString &reason);
    void received(const MqttMessage &message);
    /** So many events were handed on; there may be more, in the next turn. */
    void turnEnded(int events);

private:
    void run();
    bool follow();
    bool prepare(mosquitto *client, QString *reason) const;
    void handleAnswer(mosquitto *client, int code);
    void handOn();
    bool isStopping();
    /** Waits; false if the link ends. */
    bool rest(int milliseconds);

    const MqttConnection connection;
    MqttMailbox mailbox;
    std::thread thread;
    std::mutex mutex;
    std::condition_variable wakeUp;
    mosquitto *current = nullptr; ///< guarded by mutex, as is stopping
    bool stopping = false;
    // Of the thread alone.
    bool wasConnected = false;
    QString refusal;
    QString complaint; ///< of the library, about this connection
};

#endif
