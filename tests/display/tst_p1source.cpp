// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1source.h"
#include "p1sourcetest.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace P1SourceTest;

/** What a source is, and how it plays files. */
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
    add("scheme", QStringLiteral("tcp://meter:80"), P1Address::Kind::Network,
        QStringLiteral("meter"), 80);
    add("scheme without a port", QStringLiteral("tcp://meter"), P1Address::Kind::File,
        QStringLiteral("tcp://meter"));
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
    QVERIFY(ended.wait(ZemTest::hangs));
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
    ZEM_TRY_COMPARE(problems.count(), 1);
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
    QVERIFY(ended.wait(ZemTest::hangs));
    QCOMPARE(times.size(), 3);
    // 10 and 30 seconds at a hundred times the speed, since before the first; timers may be late
    // but not early.
    QVERIFY2(times.at(1) >= 80, qPrintable(QString::number(times.at(1))));
    QVERIFY2(times.at(2) >= 350, qPrintable(QString::number(times.at(2))));
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
    QVERIFY(ended.wait(ZemTest::hangs));
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
    QVERIFY(ended.wait(ZemTest::hangs));
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
    QVERIFY(ended.wait(ZemTest::hangs));
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
    QVERIFY(ended.wait(ZemTest::hangs));
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
    QVERIFY(ended.wait(ZemTest::hangs));
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
    QVERIFY(ended.wait(ZemTest::hangs));

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
    for (const QList<QVariant> &told : problems) {
        QCOMPARE(told.at(1).toString(), QStringLiteral("telegram"));
    }
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
    QVERIFY(ended.wait(ZemTest::hangs));
    QCOMPARE(source.droppedCount(), 101);
    QCOMPARE(problems.count(), P1Source::mostNamed + 1 + 1);
    QVERIFY(linesOf(problems).constLast().contains(QLatin1String("telegram 102 is dropped")));
    // What is told in words that do not change needs no kind.
    QCOMPARE(problems.at(P1Source::mostNamed).at(1).toString(), QString());
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
    QVERIFY(ended.wait(ZemTest::hangs));
    QCOMPARE(source.goodCount(), 566);
    QCOMPARE(source.droppedCount(), 0);
    QCOMPARE(linesOf(problems), QStringList());
}

QTEST_GUILESS_MAIN(tst_P1Source)
#include "tst_p1source.moc"
