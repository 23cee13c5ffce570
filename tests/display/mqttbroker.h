// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MQTTBROKER_H
#define MQTTBROKER_H

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

struct mosquitto;

/** A mosquitto of a test's own, on the loopback address. Whatever it cannot do ends the test. */
class Broker
{
public:
    enum class Kind { Plain, Encrypted };

    explicit Broker(Kind kind = Kind::Plain);
    ~Broker();
    Q_DISABLE_COPY(Broker)

    /** Lets in nobody but this user; to be called before start(). */
    void demand(const QByteArray &user, const QByteArray &password);
    /** Starts it, and waits until it is there; after kill() on the same port as before. */
    void start();
    void kill();

    quint16 port() const { return number; }
    /** "mqtt://localhost:PORT", or of another host that is the loopback address as well. */
    QString url(const QString &host = QStringLiteral("localhost")) const;
    /** The certificate of the authority that vouches for "localhost", of an encrypted one. */
    QString authority() const { return file("ca.pem"); }
    QString file(const char *name) const { return directory.filePath(QLatin1String(name)); }

private:
    void write(const char *name, const QByteArray &text) const;
    void makeCertificates() const;

    const Kind kind;
    QTemporaryDir directory;
    QProcess process;
    quint16 number = 0;
    bool isClosed = false;
};

/** Somebody who publishes at a broker, and knows that it has arrived. */
class Publisher
{
public:
    /** Connects; the broker's user and password are empty where it wants none. */
    explicit Publisher(const Broker &broker, const QByteArray &user = {},
                       const QByteArray &password = {});
    ~Publisher();
    Q_DISABLE_COPY(Publisher)

    /** Returns when the broker has it. */
    void publish(const QByteArray &topic, const QByteArray &payload, bool retained = false);

private:
    void work();

    mosquitto *client;
    bool isConnected = false;
    int arrived = 0;
};

#endif
