// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1samples.h"
#include "p1source.h"

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

namespace {

const qint64 noon = utc("2024-06-01T10:00:00");

/** Short times, so that the tests are. */
P1Settings quickSettings()
{
    P1Settings settings;
    settings.watchdog = 300;
    settings.retry = 50;
    settings.serialPatience = 400;
    return settings;
}

QByteArray someTelegrams(int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i) {
        bytes += telegramAt(noon + i, 100.0 + i, 500 + i);
    }
    return bytes;
}

QStringList linesOf(const QSignalSpy &spy)
{
    QStringList lines;
    for (const QList<QVariant> &arguments : spy) {
        lines.append(arguments.constFirst().toString());
    }
    return lines;
}

P1Telegram telegramOf(const QSignalSpy &spy, int index)
{
    return spy.at(index).constFirst().value<P1Telegram>();
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

class tst_P1Source : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void addresses_data();
    void addresses();
    void fileIsPlayedToItsEnd();
    void nothingHappensBeforeTheEventLoop();
    void paceFollowsTheTelegrams();
    void paceWithoutTimes();
    void longSilenceInAFileIsShortened();
    void pacedFileLosesNothing();
    void missingFileIsNamed();
    void fileWithoutTelegramsIsNamed();
    void eachBadTelegramIsNamedOnce();
    void manyBadTelegramsAreNotAllNamed();
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
    void realStream();

private:
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("the test cannot write its file");
        }
        return file.fileName();
    }

    QTemporaryDir folder;
};

void tst_P1Source::initTestCase()
{
    QVERIFY(folder.isValid());
}

void tst_P1Source::addresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("port");
    const QString existing = write(QStringLiteral("meter:80"), QByteArray());
    const QString pipe = folder.filePath(QStringLiteral("some-pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const auto add = [](const char *row, const QString &text, P1Address::Kind kind,
                        const QString &name,
                        int port = 0) { QTest::newRow(row) << text << int(kind) << name << port; };
    const auto network = P1Address::Kind::Network;
    add("standard input", QStringLiteral("-"), P1Address::Kind::Pipe, QString());
    add("file", QStringLiteral("no/such/file.txt"), P1Address::Kind::File,
        QStringLiteral("no/such/file.txt"));
    add("file that looks like a host", existing, P1Address::Kind::File, existing);
    add("named pipe", pipe, P1Address::Kind::Pipe, pipe);
    add("device", QStringLiteral("/dev/null"), P1Address::Kind::Serial,
        QStringLiteral("/dev/null"));
    add("device that is not there", QStringLiteral("/dev/ttyNoSuch0"), P1Address::Kind::Serial,
        QStringLiteral("/dev/ttyNoSuch0"));
    add("host", QStringLiteral("meter.local:8088"), network, QStringLiteral("meter.local"), 8088);
    add("IPv4", QStringLiteral("192.168.1.7:23"), network, QStringLiteral("192.168.1.7"), 23);
    add("IPv6", QStringLiteral("[fe80::1]:23"), network, QStringLiteral("fe80::1"), 23);
    add("IPv6 without brackets", QStringLiteral("fe80::1:23"), P1Address::Kind::File,
        QStringLiteral("fe80::1:23"));
    add("port 0", QStringLiteral("meter:0"), P1Address::Kind::File, QStringLiteral("meter:0"));
    add("port too high", QStringLiteral("meter:65536"), P1Address::Kind::File,
        QStringLiteral("meter:65536"));
    add("no port", QStringLiteral("meter:"), P1Address::Kind::File, QStringLiteral("meter:"));
    add("no host", QStringLiteral(":80"), P1Address::Kind::File, QStringLiteral(":80"));
    add("path with a colon", QStringLiteral("no/such:80"), P1Address::Kind::File,
        QStringLiteral("no/such:80"));
}

void tst_P1Source::addresses()
{
    QFETCH(QString, text);
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(int, port);
    const P1Address address = parseP1Address(text);
    QCOMPARE(int(address.kind), kind);
    QCOMPARE(address.name, name);
    QCOMPARE(int(address.port), port);
}

void tst_P1Source::fileIsPlayedToItsEnd()
{
    P1Source source(write(QStringLiteral("three.txt"), someTelegrams(3)));
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    QSignalSpy ended(&source, &P1Source::ended);
    source.start();
    QVERIFY(ended.wait());
    QCOMPARE(telegrams.count(), 3);
    QCOMPARE(*telegramOf(telegrams, 2).instant, noon + 2);
    QCOMPARE(*telegramOf(telegrams, 2).power, 502);
    QCOMPARE(source.goodCount(), 3);
    QCOMPARE(source.droppedCount(), 0);
    QCOMPARE(linesOf(problems), QStringList());
    QVERIFY(!source.hasFailed());
}

void tst_P1Source::nothingHappensBeforeTheEventLoop()
{
    P1Source source(QStringLiteral("no/such/file"));
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    QCOMPARE(problems.count(), 0);
    QTRY_COMPARE(problems.count(), 1);
}

void tst_P1Source::paceFollowsTheTelegrams()
{
    const QByteArray bytes =
        telegramAt(noon, 1.0, 1) + telegramAt(noon + 10, 2.0, 2) + telegramAt(noon + 40, 3.0, 3);
    P1Settings settings;
    settings.speed = 100.0;
    P1Source source(write(QStringLiteral("paced.txt"), bytes), settings);
    QElapsedTimer clock;
    QVector<qint64> times;
    connect(&source, &P1Source::telegram, this, [&] { times.append(clock.elapsed()); });
    QSignalSpy ended(&source, &P1Source::ended);
    clock.start();
    source.start();
    QVERIFY(ended.wait());
    QCOMPARE(times.size(), 3);
    // 10 and 30 seconds at a hundred times the speed; timers may be late but not early.
    QVERIFY2(times.at(1) - times.at(0) >= 80, qPrintable(QString::number(times.at(1))));
    QVERIFY2(times.at(2) - times.at(1) >= 250, qPrintable(QString::number(times.at(2))));
}

void tst_P1Source::paceWithoutTimes()
{
    const QByteArray old = "/A\r\n\r\n1-0:1.8.1(00001.000*kWh)\r\n!\r\n";
    P1Settings settings;
    settings.speed = 100.0;
    const QByteArray bytes = telegramAt(noon, 1.0, 1) + old + old + old;
    P1Source source(write(QStringLiteral("old.txt"), bytes), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy ended(&source, &P1Source::ended);
    QElapsedTimer clock;
    clock.start();
    source.start();
    QVERIFY(ended.wait());
    QCOMPARE(telegrams.count(), 4);
    QVERIFY2(clock.elapsed() >= 180, qPrintable(QString::number(clock.elapsed())));
}

void tst_P1Source::longSilenceInAFileIsShortened()
{
    const QByteArray bytes = telegramAt(noon, 1.0, 1) + telegramAt(noon + 86400, 2.0, 2)
        + telegramAt(noon - 86400, 2.0, 2);
    P1Settings settings;
    settings.speed = 300.0;
    P1Source source(write(QStringLiteral("silence.txt"), bytes), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy ended(&source, &P1Source::ended);
    QElapsedTimer clock;
    clock.start();
    source.start();
    QVERIFY(ended.wait(20000));
    QCOMPARE(telegrams.count(), 3);
    QVERIFY2(clock.elapsed() >= 180, qPrintable(QString::number(clock.elapsed())));
}

void tst_P1Source::pacedFileLosesNothing()
{
    P1Settings settings;
    settings.speed = 86400.0;
    QByteArray bytes = "8.1(2*kWh)\r\n!7777\r\n" + someTelegrams(50);
    bytes.replace("\r\n", "\n");
    P1Source source(write(QStringLiteral("bare.txt"), bytes), settings);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy ended(&source, &P1Source::ended);
    source.start();
    QVERIFY(ended.wait(20000));
    QCOMPARE(telegrams.count(), 50);
    QCOMPARE(source.droppedCount(), 0);
}

void tst_P1Source::missingFileIsNamed()
{
    const QString path = folder.filePath(QStringLiteral("missing.txt"));
    P1Source source(path);
    QSignalSpy problems(&source, &P1Source::problem);
    QSignalSpy ended(&source, &P1Source::ended);
    source.start();
    QVERIFY(ended.wait());
    QVERIFY2(
        linesOf(problems).constFirst().startsWith(path + QStringLiteral(": cannot be opened: ")),
        qPrintable(linesOf(problems).constFirst()));
}

void tst_P1Source::fileWithoutTelegramsIsNamed()
{
    const QString path = write(QStringLiteral("readings.csv"), "time;kWh\n1;2\n");
    P1Source source(path);
    QSignalSpy problems(&source, &P1Source::problem);
    QSignalSpy ended(&source, &P1Source::ended);
    source.start();
    QVERIFY(ended.wait());
    QCOMPARE(linesOf(problems), QStringList(path + QStringLiteral(": there is no telegram in it")));
}

void tst_P1Source::eachBadTelegramIsNamedOnce()
{
    QByteArray damaged = telegramAt(noon + 1, 2.0, 2);
    damaged.replace("00.002*kW", "00.003*kW");
    const QByteArray foreign = withChecksum("0-0:96.1.1(45)\r\n");
    const QByteArray bytes = telegramAt(noon, 1.0, 1) + damaged + telegramAt(noon + 2, 3.0, 3)
        + foreign + telegramAt(noon + 3, 4.0, 4).left(60) + telegramAt(noon + 4, 5.0, 5)
        + "8.1(2*kWh)\r\n!7777\r\n" + '/' + QByteArray(P1Splitter::longestTelegram, 'x') + "\r\n"
        + telegramAt(noon + 5, 6.0, 6);
    const QString path = write(QStringLiteral("bad.txt"), bytes);
    P1Source source(path);
    QSignalSpy telegrams(&source, &P1Source::telegram);
    QSignalSpy problems(&source, &P1Source::problem);
    QSignalSpy ended(&source, &P1Source::ended);
    source.start();
    QVERIFY(ended.wait());

    QCOMPARE(telegrams.count(), 4);
    QCOMPARE(source.goodCount(), 4);
    QCOMPARE(source.droppedCount(), 5);
    QStringList lines = linesOf(problems);
    QVERIFY2(lines.at(0).contains(QLatin1String(": telegram 2 is dropped: its checksum is \"")),
             qPrintable(lines.at(0)));
    lines.removeFirst();
    const QString start = path + QStringLiteral(": telegram %1 is dropped: %2");
    QCOMPARE(lines,
             QStringList({
                 start.arg(4).arg(QStringLiteral("it holds no reading that is known here")),
                 start.arg(5).arg(QStringLiteral("it is cut short")),
                 start.arg(7).arg(QStringLiteral("its beginning is missing")),
                 start.arg(8).arg(QStringLiteral("it does not end within 16384 bytes")),
             }));
}

void tst_P1Source::manyBadTelegramsAreNotAllNamed()
{
    QByteArray bytes;
    for (int i = 0; i < 100; ++i) {
        bytes += withChecksum("0-0:96.1.1(45)\r\n");
    }
    bytes += telegramAt(noon, 1.0, 1) + withChecksum("0-0:96.1.1(45)\r\n");
    P1Source source(write(QStringLiteral("many.txt"), bytes));
    QSignalSpy problems(&source, &P1Source::problem);
    QSignalSpy ended(&source, &P1Source::ended);
    source.start();
    QVERIFY(ended.wait());
    QCOMPARE(source.droppedCount(), 101);
    QCOMPARE(problems.count(), P1Source::mostNamed + 1 + 1);
    QVERIFY(linesOf(problems).constLast().contains(QLatin1String("telegram 102 is dropped")));
}

void tst_P1Source::watchdogTellsFailureAndRecovery()
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

void tst_P1Source::damagedTelegramsDoNotCalmTheWatchdog()
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

void tst_P1Source::pipeIsFollowed()
{
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

void tst_P1Source::standardInputIsReadToItsEnd()
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

void tst_P1Source::networkIsFollowed()
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

void tst_P1Source::networkIsConnectedAgain()
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

void tst_P1Source::networkThatIsNotThereIsTriedAgain()
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

void tst_P1Source::silentConnectionIsMadeAnew()
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

void tst_P1Source::telegramCutByALossIsDropped()
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

void tst_P1Source::serialPortIsRead()
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

void tst_P1Source::serialPortFallsBackToTheOldLine()
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

void tst_P1Source::serialPortThatVanishesIsNamedOnce()
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

void tst_P1Source::serialPortThatComesLaterIsOpened()
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

void tst_P1Source::realStream()
{
    const QString name = QStringLiteral("stream_dsmr50_iskra_1s_566_telegrams.txt");
    if (realTelegram(name).isEmpty()) {
        QSKIP("the telegrams of real meters are not at hand", );
    }
    P1Source source(QDir(QStringLiteral(HOUSEHOLD_DATA_DIR "/telegrams")).filePath(name));
    QSignalSpy ended(&source, &P1Source::ended);
    QSignalSpy problems(&source, &P1Source::problem);
    source.start();
    QVERIFY(ended.wait());
    QCOMPARE(source.goodCount(), 566);
    QCOMPARE(source.droppedCount(), 0);
    QCOMPARE(linesOf(problems), QStringList());
}

QTEST_GUILESS_MAIN(tst_P1Source)
#include "tst_p1source.moc"
