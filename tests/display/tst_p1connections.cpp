// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1source.h"
#include "p1sourcetest.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

using namespace P1SourceTest;

namespace {

/** Short times, so that the tests are. */
P1Settings quickSettings()
{
    P1Settings settings;
    settings.watchdog = 300;
    settings.retry = 50;
    settings.serialPatience = 400;
    return settings;
}

/** A terminal whose other end the test holds, as the serial port of a meter. */
class Terminal
{
public:
    Terminal() : meter(::posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (meter >= 0 && ::grantpt(meter) == 0 && ::unlockpt(meter) == 0) {
            device = QString::fromLocal8Bit(::ptsname(meter));
        }
    }
    ~Terminal() { hangUp(); }
    Q_DISABLE_COPY(Terminal)

    QString path() const { return device; }
    speed_t speed() const
    {
        termios settings {};
        return ::tcgetattr(meter, &settings) == 0 ? ::cfgetispeed(&settings) : B0;
    }
    bool send(const QByteArray &bytes) const
    {
        return ::write(meter, bytes.constData(), std::size_t(bytes.size())) == bytes.size();
    }
    void hangUp()
    {
        if (meter >= 0) {
            ::close(meter);
            meter = -1;
        }
    }

private:
    int meter;
    QString device;
};

} // namespace

/** How a source follows what does not end: pipes, the network and serial ports. */
class tst_P1Connections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void watchdogTellsFailureAndRecovery();
    void damagedTelegramsDoNotCalmTheWatchdog();
    void pipeIsFollowed();
    void standardInputIsReadToItsEnd();
    void networkIsFollowed();
    void networkIsConnectedAgain();
    void networkThatIsNotThereIsTriedAgain();
    void silentConnectionIsMadeAnew();
    void telegramCutByALossIsDropped();
    void serialPortIsRead();
    void serialPortFallsBackToTheOldLine();
    void serialPortThatVanishesIsNamedOnce();
    void serialPortThatComesLaterIsOpened();
};

void tst_P1Connections::watchdogTellsFailureAndRecovery()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), quickSettings());
    QStringList events;
    connect(&source, &P1Source::telegram, this, [&] { events.append(QStringLiteral("telegram")); });
    connect(&source, &P1Source::meteringFailed, this, [&](bool failed) {
        QCOMPARE(source.hasFailed(), failed);
        events.append(failed ? QStringLiteral("failed") : QStringLiteral("well"));
    });
    source.start();
    QTRY_COMPARE(events, QStringList({QStringLiteral("failed")}));
    // It is told once, however long it lasts.
    QTest::qWait(700);
    QCOMPARE(events.size(), 1);

    std::unique_ptr<QTcpSocket> meter;
    while (server.hasPendingConnections()) {
        meter.reset(server.nextPendingConnection());
    }
    QVERIFY(meter);
    meter->write(someTelegrams(2));
    const QStringList recovered = {QStringLiteral("failed"), QStringLiteral("well"),
                                   QStringLiteral("telegram"), QStringLiteral("telegram")};
    QTRY_COMPARE(events, recovered);
    QTRY_COMPARE(events, recovered + QStringList(QStringLiteral("failed")));
}

void tst_P1Connections::damagedTelegramsDoNotCalmTheWatchdog()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), quickSettings());
    QSignalSpy failures(&source, &P1Source::meteringFailed);
    source.start();
    QTRY_VERIFY(server.hasPendingConnections());
    const std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
    QElapsedTimer clock;
    clock.start();
    while (failures.isEmpty() && clock.elapsed() < 5000) {
        meter->write(withChecksum("0-0:96.1.1(45)\r\n"));
        QTest::qWait(20);
    }
    QCOMPARE(failures.count(), 1);
    QVERIFY(source.droppedCount() > 2);
}

void tst_P1Connections::pipeIsFollowed()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString path = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    P1Source source(path);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    // Two writers, one after the other: the end of the first is not the end.
    for (int i = 1; i <= 2; ++i) {
        QTest::qWait(50);
        const int writer = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
        QVERIFY(writer >= 0);
        const QByteArray bytes = telegramAt(noon + i, double(i), i);
        QCOMPARE(int(::write(writer, bytes.constData(), std::size_t(bytes.size()))), bytes.size());
        ::close(writer);
        QTRY_COMPARE(telegrams.count(), i);
    }
    QCOMPARE(linesOf(problems), QStringList());
}

void tst_P1Connections::standardInputIsReadToItsEnd()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    const int before = ::dup(STDIN_FILENO);
    QVERIFY(::dup2(ends[0], STDIN_FILENO) == STDIN_FILENO);
    ::close(ends[0]);
    {
        P1Source source(QStringLiteral("-"));
        QSignalSpy telegrams(&source, &P1Source::telegram);
        QSignalSpy ended(&source, &P1Source::ended);
        source.start();
        const QByteArray bytes = someTelegrams(2);
        QCOMPARE(int(::write(ends[1], bytes.constData(), std::size_t(bytes.size()))), bytes.size());
        QTRY_COMPARE(telegrams.count(), 2);
        QCOMPARE(ended.count(), 0);
        ::close(ends[1]);
        QTRY_COMPARE(ended.count(), 1);
    }
    ::dup2(before, STDIN_FILENO);
    ::close(before);
}

void tst_P1Connections::networkIsFollowed()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()));
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    QTRY_VERIFY(server.hasPendingConnections());
    const std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
    // It may begin in the midst of a telegram.
    const QByteArray bytes = telegramAt(noon, 1.0, 1).mid(30) + someTelegrams(3);
    for (int at = 0; at < bytes.size(); at += 50) {
        meter->write(bytes.mid(at, 50));
        QVERIFY(meter->flush());
        QTest::qWait(1);
    }
    QTRY_COMPARE(telegrams.count(), 3);
    QCOMPARE(linesOf(problems), QStringList());
}

void tst_P1Connections::networkIsConnectedAgain()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Settings settings = quickSettings();
    settings.watchdog = 30000;
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    for (int i = 1; i <= 3; ++i) {
        QTRY_VERIFY(server.hasPendingConnections());
        const std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
        meter->write(telegramAt(noon + i, double(i), i));
        QTRY_COMPARE(telegrams.count(), i);
        meter->close();
        QTRY_COMPARE(problems.count(), i);
    }
    QVERIFY2(linesOf(problems).constLast().contains(QLatin1String(": the connection was lost: ")),
             qPrintable(linesOf(problems).constLast()));
}

void tst_P1Connections::networkThatIsNotThereIsTriedAgain()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const quint16 port = server.serverPort();
    server.close();
    P1Settings settings = quickSettings();
    settings.watchdog = 30000;
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(port), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    QTRY_COMPARE(problems.count(), 1);
    // Many tries later it is still told once.
    QTest::qWait(500);
    QCOMPARE(problems.count(), 1);
    QVERIFY2(linesOf(problems).constLast().contains(QLatin1String(": cannot be connected to: ")),
             qPrintable(linesOf(problems).constLast()));

    QVERIFY(server.listen(QHostAddress::LocalHost, port));
    QTRY_VERIFY(server.hasPendingConnections());
    const std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
    meter->write(someTelegrams(1));
    QTRY_COMPARE(telegrams.count(), 1);
}

void tst_P1Connections::silentConnectionIsMadeAnew()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), quickSettings());
    QSignalSpy connections(&server, &QTcpServer::newConnection);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    QTRY_VERIFY(connections.count() >= 3);
    QCOMPARE(problems.count(), 1);
    QVERIFY(source.hasFailed());
}

void tst_P1Connections::telegramCutByALossIsDropped()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Settings settings = quickSettings();
    settings.watchdog = 30000;
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    source.start();
    const QByteArray whole = telegramAt(noon, 1.0, 1);
    QTRY_VERIFY(server.hasPendingConnections());
    std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
    meter->write(whole.left(60));
    meter->close();
    QTRY_COMPARE(source.droppedCount(), 1);
    QTRY_VERIFY(server.hasPendingConnections());
    meter.reset(server.nextPendingConnection());
    // The other half does not make it whole.
    meter->write(whole.mid(60) + whole);
    QTRY_COMPARE(telegrams.count(), 1);
    QCOMPARE(source.droppedCount(), 1);
}

void tst_P1Connections::serialPortIsRead()
{
    const Terminal terminal;
    if (terminal.path().isEmpty()) {
        QSKIP("there are no pseudo terminals", );
    }
    P1Settings settings = quickSettings();
    settings.serialPatience = 20000;
    P1Source source(terminal.path(), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    QTRY_COMPARE(int(terminal.speed()), int(B115200));
    QVERIFY(terminal.send(someTelegrams(3)));
    QTRY_COMPARE(telegrams.count(), 3);
    QCOMPARE(linesOf(problems), QStringList());
}

void tst_P1Connections::serialPortFallsBackToTheOldLine()
{
    const Terminal terminal;
    if (terminal.path().isEmpty()) {
        QSKIP("there are no pseudo terminals", );
    }
    P1Settings settings = quickSettings();
    settings.watchdog = 20000;
    P1Source source(terminal.path(), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    source.start();
    QTRY_COMPARE(int(terminal.speed()), int(B115200));
    // What a line of another speed gives.
    QVERIFY(terminal.send(QByteArray("\x80\xF8\x1E\x00\xFE", 5)));
    QTRY_COMPARE(int(terminal.speed()), int(B9600));
    const QByteArray old = "/A\r\n\r\n1-0:1.8.1(00001.000*kWh)\r\n1-0:1.7.0(0000.54*kW)\r\n!\r\n";
    QElapsedTimer clock;
    clock.start();
    int sent = 0;
    // As long as telegrams come, the line stays as it is.
    while (clock.elapsed() < 3 * settings.serialPatience) {
        QVERIFY(terminal.send(old));
        ++sent;
        QTRY_COMPARE(telegrams.count(), sent);
        QCOMPARE(int(terminal.speed()), int(B9600));
        QTest::qWait(50);
    }
    // And when they stop it looks for the other line again.
    QTRY_COMPARE(int(terminal.speed()), int(B115200));
    QCOMPARE(source.droppedCount(), 0);
}

void tst_P1Connections::serialPortThatVanishesIsNamedOnce()
{
    Terminal terminal;
    if (terminal.path().isEmpty()) {
        QSKIP("there are no pseudo terminals", );
    }
    P1Source source(terminal.path(), quickSettings());
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    QTRY_COMPARE(int(terminal.speed()), int(B115200));
    QVERIFY(terminal.send(someTelegrams(1)));
    QTRY_COMPARE(telegrams.count(), 1);
    terminal.hangUp();
    QTRY_COMPARE(problems.count(), 1);
    QTRY_VERIFY(source.hasFailed());
    QTest::qWait(1000);
    QCOMPARE(problems.count(), 1);
}

void tst_P1Connections::serialPortThatComesLaterIsOpened()
{
    // A link that leads nowhere is a device that is not plugged in.
    const QString path = QStringLiteral("/dev/zem-no-such-port");
    P1Source missing(path, quickSettings());
    QSignalSpy problems(&missing, &P1Source::problem);
    missing.start();
    QTRY_COMPARE(problems.count(), 1);
    QTest::qWait(900);
    QCOMPARE(problems.count(), 1);
    QVERIFY2(
        linesOf(problems).constFirst().startsWith(path + QStringLiteral(": cannot be opened: ")),
        qPrintable(linesOf(problems).constFirst()));
}

QTEST_GUILESS_MAIN(tst_P1Connections)
#include "tst_p1connections.moc"
