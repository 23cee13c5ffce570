// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTMAILBOX_H
#define MQTTMAILBOX_H

#include "mqttmessage.h"

#include <QString>
#include <deque>
#include <mutex>
#include <vector>

/** Something that happens on the way from a broker. */
struct MqttEvent
{
    enum class Kind {
        Connected,
        Lost, ///< or not even made; the reason is in @p reason
        Message,
    };

    Kind kind = Kind::Message;
    QString reason;
    MqttMessage message;
};

/**
 * Hands events from one thread to another, and stays small however many come: when more wait than
 * it has room for, only the newest message of each topic is kept.
 */
class MqttMailbox
{
public:
    explicit MqttMailbox(std::size_t room) : most(room) { }

    /** Puts an event in. True if it lay empty before, so that the reader must be told. */
    bool put(MqttEvent event);
    /** Takes out the oldest events, @p count at most. */
    std::vector<MqttEvent> take(std::size_t count);
    bool isEmpty() const;
    std::size_t size() const;

private:
    void compact();

    const std::size_t most;
    mutable std::mutex mutex;
    std::deque<MqttEvent> events;
};

#endif
