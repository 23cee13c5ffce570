// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historyfile.h"
#include "mqttbroker.h"
#include "mqttsamples.h"
#include "zemtest.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Readings;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr qint64 pace = 60; // seconds of the meter from telegram to telegram
constexpr qint64 hour = 3600;
constexpr int hours = 6;
constexpr int headerHeight = 74; // pixels; the clock is in it
const qint64 begin = utc("2024-06-01T10:00:00");

double counterAt(qint64 instant)
{
    return 1000.0 + double((instant - begin) / pace) / 100.0;
}

} // namespace

/** Runs zemkit-display on a bus, as a household would, and ends it as a power cut would. */
class tst_MqttDisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void chartsSurvive();
    void troubleIsTold();

private:
    void startDisplay(QProcess &display) const;
    void publish(const Broker &broker, qint64 from, qint64 to) const;
    std::optional<qint64> keptUntil() const;
    Household kept() const;
    QMap<QString, QImage> charts(const QString &name) const;

    QTemporaryDir directory;
    std::unique_ptr<Broker> broker;
    QStringList arguments;
};

void tst_MqttDisplay::initTestCase()
{
    broker = std::make_unique<Broker>();
    broker->demand("display", "secret");
    broker->start();
    QFile credentials(directory.filePath(QStringLiteral("credentials")));
    QVERIFY(credentials.open(QIODevice::WriteOnly));
    credentials.write("display\nsecret\n");
    credentials.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    arguments =
        QStringList {"--mqtt", broker->url(),   "--mqtt-credentials", credentials.fileName(),
                     "--data", directory.path()};
}

void tst_MqttDisplay::startDisplay(QProcess &display) const
{
    display.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    display.start(QStringLiteral(DISPLAY_PROGRAM), arguments);
    QVERIFY(display.waitForStarted(ZemTest::hangs));
}

/** Tells the meter's telegrams, and waits until the display has kept the last one of each hour. */
void tst_MqttDisplay::publish(const Broker &where, qint64 from, qint64 to) const
{
    Publisher publisher(where, "display", "secret");
    const auto tell = [&](qint64 at) {
        publisher.publish("dsmr/reading/timestamp", isoOf(at));
        publisher.publish("dsmr/reading/electricity_delivered_1",
                          QByteArray::number(counterAt(at), 'f', 3));
    };
    for (qint64 at = from; at <= to; at += pace) {
        tell(at);
        // The first one until somebody listens, who then keeps it at once: it is the first of a
        // run, or is sent at a time at which readings are entered.
        for (int i = 0; (at == from || at % hour == 0) && keptUntil().value_or(0) < at; ++i) {
            QVERIFY(i < 100000);
            QTest::qWait(50);
            if (at == from) {
                tell(at);
            }
        }
    }
}

Household tst_MqttDisplay::kept() const
{
    Household household;
    const QString path = directory.filePath(QStringLiteral("history.sqlite"));
    HistoryFile history;
    if (QFile::exists(path) && history.open(path) == HistoryFile::Trouble::None) {
        history.read(&household);
    }
    return household;
}

std::optional<qint64> tst_MqttDisplay::keptUntil() const
{
    return kept().lastInstant();
}

QMap<QString, QImage> tst_MqttDisplay::charts(const QString &name) const
{
    const QDir screens(directory.filePath(name));
    QProcess display;
    display.start(QStringLiteral(DISPLAY_PROGRAM),
                  arguments + QStringList {"--screenshots", screens.path()});
    QMap<QString, QImage> pictures;
    if (display.waitForFinished(ZemTest::hangs)) {
        for (const QString &file : screens.entryList({QStringLiteral("charts-*.png")})) {
            const QImage picture(screens.filePath(file));
            pictures[file] = picture.copy(picture.rect().adjusted(0, headerHeight, 0, 0));
        }
    }
    return pictures;
}

void tst_MqttDisplay::chartsSurvive()
{
    for (int i = 0; i < hours; ++i) {
        QProcess display;
        startDisplay(display);
        const qint64 from = begin + i * hour + (i > 0 ? pace : 0);
        const qint64 half = begin + i * hour + hour / 2;
        publish(*broker, from, half - pace);
        // The broker as well, in the midst of some hours.
        if (i % 2 == 1) {
            broker->kill();
            broker->start();
        }
        publish(*broker, half, begin + (i + 1) * hour);
        display.kill();
        QVERIFY(display.waitForFinished(ZemTest::hangs));
        QCOMPARE(display.exitStatus(), QProcess::CrashExit);
    }
    const Household household = kept();
    for (int i = 0; i < hours; ++i) {
        const std::optional<double> amount =
            household.amount(Quantity::GridImport, {begin + i * hour, begin + (i + 1) * hour});
        QVERIFY2(amount, QByteArray::number(i).constData());
        QCOMPARE(qRound64(*amount * 1000.0), qint64(600));
    }

    const QMap<QString, QImage> before = charts(QStringLiteral("before"));
    QVERIFY(before.contains(QStringLiteral("charts-electricity-day.png")));
    QVERIFY(before[QStringLiteral("charts-electricity-day.png")]
            != before[QStringLiteral("charts-electricity-year.png")]);
    QProcess display;
    startDisplay(display);
    display.kill();
    QVERIFY(display.waitForFinished(ZemTest::hangs));
    const QMap<QString, QImage> after = charts(QStringLiteral("after"));
    QCOMPARE(after.keys(), before.keys());
    for (const QString &name : before.keys()) {
        QVERIFY2(after[name] == before[name], qPrintable(name));
    }
}

void tst_MqttDisplay::troubleIsTold()
{
    broker->kill();
    QProcess display;
    display.setReadChannel(QProcess::StandardError);
    display.start(QStringLiteral(DISPLAY_PROGRAM), arguments);
    QByteArray errors;
    while (!errors.contains("er komt geen verbinding tot stand")) {
        QVERIFY(display.waitForReadyRead(ZemTest::hangs));
        errors += display.readAllStandardError();
    }
    QVERIFY2(errors.contains(broker->url().toUtf8() + ": er komt geen verbinding tot stand: "),
             errors.constData());
    QVERIFY(!errors.contains("secret"));
    display.kill();
    QVERIFY(display.waitForFinished(ZemTest::hangs));
}

QTEST_GUILESS_MAIN(tst_MqttDisplay)
#include "tst_mqttdisplay.moc"
