// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttbroker.h"

#include "zemtest.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <mosquitto.h>

namespace {

constexpr int glance = 20; // ms

QString program(const char *name)
{
    // Debian keeps servers where a user's path does not lead.
    QString path = QStandardPaths::findExecutable(QLatin1String(name));
    if (path.isEmpty()) {
        path = QStandardPaths::findExecutable(
            QLatin1String(name), {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin")});
    }
    if (path.isEmpty()) {
        qFatal("the program %s is not installed; scripts/packages.txt names its package", name);
    }
    return path;
}

void run(const char *name, const QStringList &arguments)
{
    QProcess process;
    process.start(program(name), arguments);
    if (!process.waitForFinished(ZemTest::hangs) || process.exitCode() != 0) {
        qFatal("%s failed: %s", name, process.readAllStandardError().constData());
    }
}

quint16 freePort()
{
    QTcpServer server;
    if (!server.listen(QHostAddress::LocalHost)) {
        qFatal("there is no free port");
    }
    return server.serverPort();
}

bool answers(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    return socket.waitForConnected(ZemTest::hangs);
}

} // namespace

Broker::Broker(Kind theKind) : kind(theKind), number(freePort())
{
    if (kind == Kind::Encrypted) {
        makeCertificates();
    }
}

Broker::~Broker()
{
    kill();
}

void Broker::demand(const QByteArray &user, const QByteArray &password)
{
    write("users", QByteArray());
    run("mosquitto_passwd",
        {QStringLiteral("-b"), file("users"), QString::fromUtf8(user),
         QString::fromUtf8(password)});
    isClosed = true;
}

void Broker::start()
{
    QByteArray text = "listener " + QByteArray::number(number) + " 127.0.0.1\npersistence false\n";
    // The administrator's broker would else become a user who may not read the files of a test.
    text += "user root\n";
    text += isClosed ? "allow_anonymous false\npassword_file " + file("users").toUtf8() + "\n"
                     : QByteArray("allow_anonymous true\n");
    if (kind == Kind::Encrypted) {
        text += "certfile " + file("server.pem").toUtf8() + "\nkeyfile "
            + file("server.key").toUtf8() + "\n";
    }
    write("mosquitto.conf", text);
    const QDeadlineTimer limit(ZemTest::hangs);
    while (process.state() != QProcess::Running || !answers(number)) {
        // Somebody else may have the port for a moment.
        if (process.state() == QProcess::NotRunning) {
            process.start(program("mosquitto"), {QStringLiteral("-c"), file("mosquitto.conf")});
            process.waitForStarted(ZemTest::hangs);
        }
        if (limit.hasExpired()) {
            qFatal("mosquitto does not start: %s", process.readAllStandardError().constData());
        }
        process.waitForFinished(10);
    }
}

void Broker::kill()
{
    process.kill();
    process.waitForFinished(ZemTest::hangs);
}

QString Broker::url(const QString &host) const
{
    return QStringLiteral("%1://%2:%3")
        .arg(kind == Kind::Encrypted ? QStringLiteral("mqtts") : QStringLiteral("mqtt"), host)
        .arg(number);
}

void Broker::write(const char *name, const QByteArray &text) const
{
    QFile target(file(name));
    if (!target.open(QIODevice::WriteOnly) || target.write(text) != text.size()) {
        qFatal("the test cannot write %s", name);
    }
    target.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

void Broker::makeCertificates() const
{
    const auto openssl = [](const QString &command) {
        run("openssl", command.split(QLatin1Char(' ')));
    };
    const QString key = QStringLiteral("-newkey rsa:2048 -nodes -days 30");
    openssl(QStringLiteral("req -x509 %1 -subj /CN=test-authority -keyout %2 -out %3")
                .arg(key, file("ca.key"), file("ca.pem")));
    openssl(QStringLiteral("req -new %1 -subj /CN=localhost -keyout %2 -out %3")
                .arg(key, file("server.key"), file("server.csr")));
    write("names", "subjectAltName=DNS:localhost\n");
    openssl(QStringLiteral("x509 -req -days 30 -in %1 -CA %2 -CAkey %3 -CAcreateserial -extfile %4 "
                           "-out %5")
                .arg(file("server.csr"), file("ca.pem"), file("ca.key"), file("names"),
                     file("server.pem")));
}

Publisher::Publisher(const Broker &broker, const QByteArray &user, const QByteArray &password)
{
    mosquitto_lib_init();
    client = mosquitto_new(nullptr, true, this);
    if (!user.isEmpty()) {
        mosquitto_username_pw_set(client, user.constData(), password.constData());
    }
    if (QFile::exists(broker.authority())) {
        mosquitto_tls_set(client, QFile::encodeName(broker.authority()).constData(), nullptr,
                          nullptr, nullptr, nullptr);
    }
    mosquitto_connect_callback_set(client, [](mosquitto *, void *self, int code) {
        static_cast<Publisher *>(self)->isConnected = code == 0;
    });
    mosquitto_publish_callback_set(
        client, [](mosquitto *, void *self, int) { ++static_cast<Publisher *>(self)->arrived; });
    const int result = mosquitto_connect(client, "localhost", broker.port(), 600);
    if (result != MOSQ_ERR_SUCCESS) {
        qFatal("the test cannot connect to its broker: %s", mosquitto_strerror(result));
    }
    while (!isConnected) {
        work();
    }
}

Publisher::~Publisher()
{
    mosquitto_disconnect(client);
    mosquitto_destroy(client);
}

void Publisher::publish(const QByteArray &topic, const QByteArray &payload, bool retained)
{
    const int wanted = arrived + 1;
    mosquitto_publish(client, nullptr, topic.constData(), payload.size(), payload.constData(), 1,
                      retained);
    while (arrived < wanted) {
        work();
    }
}

void Publisher::work()
{
    // What the loop has read beforehand, encrypted, it does not wait for: it waits for more.
    const int result = mosquitto_loop(client, glance, 1);
    if (result != MOSQ_ERR_SUCCESS) {
        qFatal("the test lost its broker: %s", mosquitto_strerror(result));
    }
}
