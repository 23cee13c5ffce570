// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttmailbox.h"

#include <QSet>
#include <algorithm>
#include <iterator>

bool MqttMailbox::put(MqttEvent event)
{
    const std::lock_guard<std::mutex> guard(mutex);
    const bool wasEmpty = events.empty();
    events.push_back(std::move(event));
    if (events.size() > most) {
        compact();
    }
    return wasEmpty;
}

std::vector<MqttEvent> MqttMailbox::take(std::size_t count)
{
    const std::lock_guard<std::mutex> guard(mutex);
    const auto end = events.begin() + std::ptrdiff_t(std::min(count, events.size()));
    std::vector<MqttEvent> taken(std::make_move_iterator(events.begin()),
                                 std::make_move_iterator(end));
    events.erase(events.begin(), end);
    return taken;
}

bool MqttMailbox::isEmpty() const
{
    return size() == 0;
}

std::size_t MqttMailbox::size() const
{
    const std::lock_guard<std::mutex> guard(mutex);
    return events.size();
}

void MqttMailbox::compact()
{
    // From the newest to the oldest: a connection that is lost ends what came before it.
    QSet<QByteArray> topics;
    std::deque<MqttEvent> kept;
    bool isNewestConnection = true;
    for (auto event = events.rbegin(); event != events.rend(); ++event) {
        if (event->kind != MqttEvent::Kind::Message) {
            kept.push_front(std::move(*event));
            isNewestConnection = false;
        } else if (isNewestConnection && !topics.contains(event->message.topic)) {
            topics.insert(event->message.topic);
            kept.push_front(std::move(*event));
        }
    }
    events = std::move(kept);
}
