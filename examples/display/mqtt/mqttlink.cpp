// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttlink.h"

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <memory>
#include <mosquitto.h>
#include <netdb.h>

namespace {

constexpr int keepAlive = 30; // seconds after which a broker that is gone is noticed
constexpr int glance = 2000; // ms; a link that ends is woken at once
constexpr int badUserOrPassword = 4; // codes with which a broker refuses
constexpr int notAuthorised = 5;

using Client = std::unique_ptr<mosquitto, decltype(&mosquitto_destroy)>;

/** The library of the broker's makers is made ready once. */
void initializeLibrary()
{
    static const int ready = [] {
        // What is written to a broker that has just gone, encrypted, would end the program.
        std::signal(SIGPIPE, SIG_IGN);
        return mosquitto_lib_init();
    }();
    Q_UNUSED(ready)
}

QString textOf(int result, int error)
{
    switch (result) {
    case MOSQ_ERR_ERRNO:
        return QString::fromLocal8Bit(std::strerror(error));
    case MOSQ_ERR_EAI:
        return MqttLink::tr("the host is not found");
    case MOSQ_ERR_CONN_LOST:
        return MqttLink::tr("the broker ended it");
    case MOSQ_ERR_KEEPALIVE:
        return MqttLink::tr("the broker does not answer");
    default:
        return QString::fromUtf8(mosquitto_strerror(result));
    }
}

} // namespace

MqttLink::MqttLink(const MqttConnection &theConnection, QObject *parent)
    : QObject(parent), connection(theConnection), mailbox(mostWaiting)
{
    initializeLibrary();
}

MqttLink::~MqttLink()
{
    {
        const std::lock_guard<std::mutex> guard(mutex);
        stopping = true;
        if (current) {
            mosquitto_disconnect(current);
        }
    }
    wakeUp.notify_all();
    if (thread.joinable()) {
        thread.join();
    }
}

void MqttLink::start()
{
    thread = std::thread([this] { run(); });
}

void MqttLink::post(MqttEvent event)
{
    if (mailbox.put(std::move(event))) {
        QMetaObject::invokeMethod(this, &MqttLink::handOn, Qt::QueuedConnection);
    }
}

void MqttLink::handOn()
{
    const std::vector<MqttEvent> events = mailbox.take(eventsPerTurn);
    // Asked for before anybody is told, who might run an event loop.
    if (!mailbox.isEmpty()) {
        QMetaObject::invokeMethod(this, &MqttLink::handOn, Qt::QueuedConnection);
    }
    for (const MqttEvent &event : events) {
        switch (event.kind) {
        case MqttEvent::Kind::Connected:
            Q_EMIT connected();
            break;
        case MqttEvent::Kind::Lost:
            Q_EMIT lost(event.reason);
            break;
        case MqttEvent::Kind::Message:
            Q_EMIT received(event.message);
            break;
        }
    }
    Q_EMIT turnEnded(int(events.size()));
}

void MqttLink::run()
{
    int pause = connection.pause;
    while (!isStopping()) {
        const bool worked = follow();
        pause = worked ? connection.pause : pause;
        if (!rest(pause)) {
            return;
        }
        pause = std::min(pause * 2, connection.longestPause);
    }
}

/** Connects, and follows until the end of it. False if it was never connected. */
bool MqttLink::follow()
{
    wasConnected = false;
    refusal.clear();
    complaint.clear();
    QString reason;
    const Client client(mosquitto_new(nullptr, true, this), &mosquitto_destroy);
    if (prepare(client.get(), &reason)) {
        const QByteArray host = connection.address.host.toUtf8();
        int result = mosquitto_connect_async(client.get(), host.constData(),
                                             connection.address.port, keepAlive);
        int error = errno;
        {
            const std::lock_guard<std::mutex> guard(mutex);
            current = client.get();
        }
        while (result == MOSQ_ERR_SUCCESS && !isStopping()) {
            errno = 0;
            result = mosquitto_loop(client.get(), glance, 1);
            error = errno;
        }
        {
            const std::lock_guard<std::mutex> guard(mutex);
            current = nullptr;
        }
        if (!refusal.isEmpty()) {
            reason = refusal;
        } else if (connection.address.encrypted && !wasConnected && !complaint.isEmpty()) {
            reason = tr("no encryption: %1").arg(complaint);
        } else {
            reason = textOf(result, error);
        }
    }
    if (!isStopping()) {
        post({MqttEvent::Kind::Lost, reason, {}});
    }
    return wasConnected;
}

bool MqttLink::prepare(mosquitto *client, QString *reason) const
{
    mosquitto_threaded_set(client, true);
    mosquitto_connect_callback_set(client, [](mosquitto *answered, void *link, int code) {
        static_cast<MqttLink *>(link)->handleAnswer(answered, code);
    });
    mosquitto_message_callback_set(
        client, [](mosquitto *, void *link, const mosquitto_message *told) {
            MqttEvent event;
            event.message.topic = told->topic;
            event.message.payload =
                QByteArray(static_cast<const char *>(told->payload), told->payloadlen);
            event.message.retained = told->retain;
            static_cast<MqttLink *>(link)->post(std::move(event));
        });
    mosquitto_log_callback_set(client, [](mosquitto *, void *link, int level, const char *text) {
        // The first tells what is wrong, the others what became of it.
        auto *self = static_cast<MqttLink *>(link);
        if (level == MOSQ_LOG_ERR && self->complaint.isEmpty()) {
            self->complaint = QString::fromUtf8(text);
        }
    });
    int result = MOSQ_ERR_SUCCESS;
    if (!connection.credentials.user.isEmpty()) {
        result = mosquitto_username_pw_set(client, connection.credentials.user.constData(),
                                           connection.credentials.password.constData());
    }
    if (result == MOSQ_ERR_SUCCESS && connection.address.encrypted) {
        const QByteArray file = QFile::encodeName(connection.authorities);
        result = file.isEmpty()
            ? mosquitto_int_option(client, MOSQ_OPT_TLS_USE_OS_CERTS, 1)
            : mosquitto_tls_set(client, file.constData(), nullptr, nullptr, nullptr, nullptr);
    }
    *reason = textOf(result, errno);
    return result == MOSQ_ERR_SUCCESS;
}

void MqttLink::handleAnswer(mosquitto *client, int code)
{
    if (code == badUserOrPassword || code == notAuthorised) {
        refusal = connection.credentials.user.isEmpty()
            ? tr("the broker wants a user and a password, and there is no file with credentials")
            : tr("the broker refuses the user and password of the credentials");
        return;
    }
    if (code != 0) {
        refusal = tr("the broker refuses: %1").arg(QLatin1String(mosquitto_connack_string(code)));
        return;
    }
    wasConnected = true;
    post({MqttEvent::Kind::Connected, {}, {}});
    for (const QByteArray &topic : connection.topics) {
        mosquitto_subscribe(client, nullptr, topic.constData(), 0);
    }
}

bool MqttLink::isStopping()
{
    const std::lock_guard<std::mutex> guard(mutex);
    return stopping;
}

bool MqttLink::rest(int milliseconds)
{
    std::unique_lock<std::mutex> guard(mutex);
    wakeUp.wait_for(guard, std::chrono::milliseconds(milliseconds), [this] { return stopping; });
    return !stopping;
}
