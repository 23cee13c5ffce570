// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1source.h"
#include "p1sourcetest.h"

#include <QElapsedTimer>
#include <QRegularExpression>
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

/** Short times, so that the tests are: what is awaited comes soon. */
P1Settings quickSettings()
{
    P1Settings settings;
    settings.watchdog = 300;
    settings.retry = 50;
    settings.serialPatience = 400;
    return settings;
}

/** Patience without end, where silence is not what is tested: the test itself may be slow. */
P1Settings patientSettings()
{
    P1Settings settings = quickSettings();
    settings.watchdog = ZemTest::hangs;
    settings.serialPatience = ZemTest::hangs;
    return settings;
}

/** A meter in the network that holds the last connection that was made to it. */
class NetworkMeter
{
public:
    NetworkMeter()
    {
        isListening = server.listen(QHostAddress::LocalHost);
        QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
            while (server.hasPendingConnections()) {
                socket.reset(server.nextPendingConnection());
                ++connections;
            }
        });
    }
    Q_DISABLE_COPY(NetworkMeter)

    QString address() const { return QStringLiteral("127.0.0.1:%1").arg(server.serverPort()); }
    void send(const QByteArray &bytes) const
    {
        if (socket) {
            socket->write(bytes);
        }
    }

    bool isListening = false;
    int connections = 0;

private:
    QTcpServer server;
    std::unique_ptr<QTcpSocket> socket;
};

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
    const NetworkMeter meter;
    QVERIFY(meter.isListening);
    P1Source source(meter.address(), quickSettings());
    QStringList events;
    connect(&source, &P1Source::telegram, this, [&] { events.append(QStringLiteral("telegram")); });
    connect(&source, &P1Source::meteringFailed, this, [&](bool failed) {
        QCOMPARE(source.hasFailed(), failed);
        events.append(failed ? QStringLiteral("failed") : QStringLiteral("well"));
    });
    source.start();
    // It is told once, however often it is tried anew.
    ZEM_TRY_VERIFY(meter.connections >= 4);
    QCOMPARE(events, QStringList({QStringLiteral("failed")}));

    // A connection may be given up for a newer one before what was sent through it is there.
    const auto sendAndLook = [&] {
        meter.send(someTelegrams(2));
        QCoreApplication::processEvents();
        return events.contains(QStringLiteral("telegram"));
    };
    ZEM_TRY_VERIFY(sendAndLook());
    ZEM_TRY_COMPARE(events.constLast(), QStringLiteral("failed"));
    const QRegularExpression inTurn(QStringLiteral("^failed( well( telegram)+ failed)+$"));
    const QString told = events.join(QLatin1Char(' '));
    QVERIFY2(inTurn.match(told).hasMatch(), qPrintable(told));
}

void tst_P1Connections::damagedTelegramsDoNotCalmTheWatchdog()
{
    const NetworkMeter meter;
    QVERIFY(meter.isListening);
    P1Source source(meter.address(), quickSettings());
    QSignalSpy failures(&source, &P1Source::meteringFailed);
    source.start();
    const auto sendAndLook = [&] {
        meter.send(withChecksum("0-0:96.1.1(45)\r\n"));
        return !failures.isEmpty() && source.droppedCount() > 2;
    };
    ZEM_TRY_VERIFY(sendAndLook());
    QCOMPARE(failures.count(), 1);
}

void tst_P1Connections::pipeIsFollowed()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString path = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    P1Source source(path, patientSettings());
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    // Two writers, one after the other: the end of the first is not the end.
    for (int i = 1; i <= 2; ++i) {
        int writer = -1;
        const auto isRead = [&] {
            writer = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
            return writer >= 0;
        };
        ZEM_TRY_VERIFY(writer >= 0 || isRead());
        const QByteArray bytes = telegramAt(noon + i, double(i), i);
        QCOMPARE(int(::write(writer, bytes.constData(), std::size_t(bytes.size()))), bytes.size());
        ::close(writer);
        ZEM_TRY_COMPARE(telegrams.count(), i);
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
        P1Source source(QStringLiteral("-"), patientSettings());
        QSignalSpy telegrams(&source, &P1Source::telegram);
        QSignalSpy ended(&source, &P1Source::ended);
        source.start();
        const QByteArray bytes = someTelegrams(2);
        QCOMPARE(int(::write(ends[1], bytes.constData(), std::size_t(bytes.size()))), bytes.size());
        ZEM_TRY_COMPARE(telegrams.count(), 2);
        QCOMPARE(ended.count(), 0);
        ::close(ends[1]);
        ZEM_TRY_COMPARE(ended.count(), 1);
    }
    ::dup2(before, STDIN_FILENO);
    ::close(before);
}

void tst_P1Connections::networkIsFollowed()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), patientSettings());
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    ZEM_TRY_VERIFY(server.hasPendingConnections());
    const std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
    // It may begin in the midst of a telegram.
    const QByteArray bytes = telegramAt(noon, 1.0, 1).mid(30) + someTelegrams(3);
    for (int at = 0; at < bytes.size(); at += 50) {
        meter->write(bytes.mid(at, 50));
        QVERIFY(meter->flush());
        QTest::qWait(1);
    }
    ZEM_TRY_COMPARE(telegrams.count(), 3);
    QCOMPARE(linesOf(problems), QStringList());
}

void tst_P1Connections::networkIsConnectedAgain()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), patientSettings());
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    for (int i = 1; i <= 3; ++i) {
        ZEM_TRY_VERIFY(server.hasPendingConnections());
        const std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
        meter->write(telegramAt(noon + i, double(i), i));
        ZEM_TRY_COMPARE(telegrams.count(), i);
        meter->close();
        ZEM_TRY_COMPARE(problems.count(), i);
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
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(port), patientSettings());
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    ZEM_TRY_COMPARE(problems.count(), 1);
    // Many tries later it is still told once.
    QTest::qWait(500);
    QCOMPARE(problems.count(), 1);
    QVERIFY2(linesOf(problems).constLast().contains(QLatin1String(": cannot be connected to: ")),
             qPrintable(linesOf(problems).constLast()));

    QVERIFY(server.listen(QHostAddress::LocalHost, port));
    ZEM_TRY_VERIFY(server.hasPendingConnections());
    const std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
    meter->write(someTelegrams(1));
    ZEM_TRY_COMPARE(telegrams.count(), 1);
}

void tst_P1Connections::silentConnectionIsMadeAnew()
{
    const NetworkMeter meter;
    QVERIFY(meter.isListening);
    P1Source source(meter.address(), quickSettings());
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    ZEM_TRY_VERIFY(meter.connections >= 3);
    ZEM_TRY_COMPARE(problems.count(), 1);
    QVERIFY(source.hasFailed());
}

void tst_P1Connections::telegramCutByALossIsDropped()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    P1Source source(QStringLiteral("127.0.0.1:%1").arg(server.serverPort()), patientSettings());
    QSignalSpy telegrams(&source, &P1Source::telegram);
    source.start();
    const QByteArray whole = telegramAt(noon, 1.0, 1);
    ZEM_TRY_VERIFY(server.hasPendingConnections());
    std::unique_ptr<QTcpSocket> meter(server.nextPendingConnection());
    meter->write(whole.left(60));
    meter->close();
    ZEM_TRY_COMPARE(source.droppedCount(), 1);
    ZEM_TRY_VERIFY(server.hasPendingConnections());
    meter.reset(server.nextPendingConnection());
    // The other half does not make it whole.
    meter->write(whole.mid(60) + whole);
    ZEM_TRY_COMPARE(telegrams.count(), 1);
    QCOMPARE(source.droppedCount(), 1);
}

void tst_P1Connections::serialPortIsRead()
{
    const Terminal terminal;
    if (terminal.path().isEmpty()) {
        QSKIP("there are no pseudo terminals", );
    }
    P1Source source(terminal.path(), patientSettings());
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    ZEM_TRY_COMPARE(int(terminal.speed()), int(B115200));
    QVERIFY(terminal.send(someTelegrams(3)));
    ZEM_TRY_COMPARE(telegrams.count(), 3);
    QCOMPARE(linesOf(problems), QStringList());
}

void tst_P1Connections::serialPortFallsBackToTheOldLine()
{
    const Terminal terminal;
    if (terminal.path().isEmpty()) {
        QSKIP("there are no pseudo terminals", );
    }
    P1Settings settings = quickSettings();
    settings.watchdog = ZemTest::hangs;
    P1Source source(terminal.path(), settings);
    QElapsedTimer silence;
    qint64 longestSilence = 0;
    connect(&source, &P1Source::telegram, this,
            [&] { longestSilence = qMax(longestSilence, silence.restart()); });
    source.start();
    ZEM_TRY_COMPARE(int(terminal.speed()), int(B115200));
    // What a line of another speed gives.
    QVERIFY(terminal.send(QByteArray("\x80\xF8\x1E\x00\xFE", 5)));
    ZEM_TRY_COMPARE(int(terminal.speed()), int(B9600));
    silence.start();

    // As long as telegrams come, the line stays as it is. They all come in time unless the test is
    // kept from sending them, which makes a silence.
    const QByteArray old = "/A\r\n\r\n1-0:1.8.1(00001.000*kWh)\r\n1-0:1.7.0(0000.54*kW)\r\n!\r\n";
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 3 * settings.serialPatience || source.goodCount() == 0) {
        QVERIFY(terminal.send(old));
        QTest::qWait(50);
        const bool wasSilent =
            qMax(longestSilence, silence.elapsed()) >= settings.serialPatience * 9 / 10;
        QVERIFY(wasSilent || int(terminal.speed()) == int(B9600));
    }
    // And when they stop it looks for the other line again.
    ZEM_TRY_COMPARE(int(terminal.speed()), int(B115200));
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
    ZEM_TRY_COMPARE(int(terminal.speed()), int(B115200));
    // What arrives while it changes the line may be lost, so another is sent then.
    speed_t lastLine = B115200;
    qint64 last = noon;
    QVERIFY(terminal.send(telegramAt(last, 1.0, 1)));
    const auto lastIsTaken = [&] {
        if (terminal.speed() != lastLine) {
            lastLine = terminal.speed();
            terminal.send(telegramAt(++last, 1.0, 1));
        }
        const int count = telegrams.count();
        return count > 0 && *telegramOf(telegrams, count - 1).instant == last;
    };
    ZEM_TRY_VERIFY(lastIsTaken());
    terminal.hangUp();
    ZEM_TRY_COMPARE(problems.count(), 1);
    ZEM_TRY_VERIFY(source.hasFailed());
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
    ZEM_TRY_COMPARE(problems.count(), 1);
    QTest::qWait(900);
    QCOMPARE(problems.count(), 1);
    QVERIFY2(
        linesOf(problems).constFirst().startsWith(path + QStringLiteral(": cannot be opened: ")),
        qPrintable(linesOf(problems).constFirst()));
}

QTEST_GUILESS_MAIN(tst_P1Connections)
#include "tst_p1connections.moc"
