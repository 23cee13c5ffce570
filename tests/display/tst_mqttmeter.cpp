// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttbroker.h"
#include "mqttmeter.h"
#include "mqttsamples.h"
#include "zemtest.h"

#include <QSignalSpy>
#include <QTest>
#include <mosquitto.h>

#include <utility>

using namespace Readings;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr Register importNormal {Quantity::GridImport, Tariff::Normal};
constexpr Register exportLow {Quantity::GridExport, Tariff::Low};
constexpr Register importSingle {Quantity::GridImport, Tariff::Single};
constexpr Register solar {Quantity::SolarProduction, Tariff::Single};
constexpr Register gas {Quantity::Gas, Tariff::Single};

MqttSettings settingsOf(const Broker &broker, const char *mapping)
{
    QString problem;
    MqttSettings settings;
    settings.connection.address = parseMqttAddress(broker.url(), &problem);
    settings.connection.pause = 20;
    settings.connection.longestPause = 40;
    settings.mapping = loadMqttMapping(QLatin1String(mapping), &problem);
    settings.quiet = 20;
    settings.gathering = 20;
    if (!problem.isEmpty()) {
        qFatal("%s", qPrintable(problem));
    }
    return settings;
}

/** A meter, and what it told. */
class Listener
{
public:
    explicit Listener(const MqttSettings &settings)
        : meter(settings), failures(&meter, &LiveMeter::meteringFailed),
          connections(meter.link(), &MqttLink::connected)
    {
        QObject::connect(&meter, &LiveMeter::telegram, [this](const P1Telegram &told) {
            ++count;
            if (told.power) {
                power = told.power;
            }
            for (const P1Reading &reading : told.readings) {
                values[reading.meterRegister] = reading.value;
                instants[reading.meterRegister] = reading.instant.value_or(*told.instant);
            }
        });
        QObject::connect(&meter, &LiveMeter::problem,
                         [this](const QString &line) { problems.append(line); });
    }

    MqttMeter meter;
    QSignalSpy failures;
    QSignalSpy connections;
    std::map<Register, double> values;
    std::map<Register, qint64> instants;
    std::optional<int> power;
    QStringList problems;
    int count = 0;
};

} // namespace

/** A household's meters on a real bus. */
class tst_MqttMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dsmrReader();
    void jsonOfDsmrReader();
    void evcc();
    void offlineIsTheLastWord();
    void homeAssistant();
    void retainedIsOld();
    void brokerThatGoesAndComes();
    void brokerThatComesLater();
    void wrongCredentials_data();
    void wrongCredentials();
    void encrypted();
    void strangersAreNotBelieved_data();
    void strangersAreNotBelieved();
    void garbageIsToldInOne();
    void floodIsSurvived();
    void silenceIsToldAsSuch();
    void wrongMappingIsNamed();

private:
    /** Publishes until it is heard: a subscription has no moment at which it is known to be there.
     */
    template <typename Publish, typename Heard>
    static void publishUntil(Publish publish, Heard heard)
    {
        for (int i = 0; i < 100000 && !heard(); ++i) {
            publish();
            QTest::qWait(50);
        }
    }
};

void tst_MqttMeter::dsmrReader()
{
    Broker broker;
    broker.start();
    Listener listener(settingsOf(broker, "dsmr-reader"));
    listener.meter.start();
    Publisher publisher(broker);
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    qint64 at = now;
    publishUntil(
        [&] {
            at = QDateTime::currentSecsSinceEpoch();
            publisher.publish("dsmr/reading/timestamp", isoOf(at));
            publisher.publish("dsmr/reading/electricity_delivered_1", "1001.250");
            publisher.publish("dsmr/reading/electricity_returned_1", "12.000");
            publisher.publish("dsmr/reading/electricity_delivered_2", "2002.500");
            publisher.publish("dsmr/reading/electricity_returned_2", "13.000");
            publisher.publish("dsmr/reading/electricity_currently_delivered", "0.000");
            publisher.publish("dsmr/reading/electricity_currently_returned", "1.234");
            publisher.publish("dsmr/reading/extra_device_timestamp", isoOf(now - 600));
            publisher.publish("dsmr/reading/extra_device_delivered", "777.125");
        },
        [&] { return listener.values.size() == 5 && listener.power == -1234; });
    QCOMPARE(listener.values[importLow], 1001.25);
    QCOMPARE(listener.values[importNormal], 2002.5);
    QCOMPARE(listener.values[exportLow], 12.0);
    QCOMPARE(listener.values[gas], 777.125);
    QCOMPARE(listener.instants[gas], now - 600);
    QVERIFY(listener.instants[importLow] >= now && listener.instants[importLow] <= at);
    QVERIFY(listener.meter.isMetering());
    QCOMPARE(listener.problems, QStringList());
}

void tst_MqttMeter::jsonOfDsmrReader()
{
    Broker broker;
    broker.start();
    Listener listener(settingsOf(broker, "dsmr-reader"));
    listener.meter.start();
    Publisher publisher(broker);
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    publishUntil(
        [&] {
            publisher.publish("dsmr/json",
                              R"({"id": 7, "electricity_delivered_1": "1001.250", "timestamp": ")"
                                  + isoOf(now) + R"(", "electricity_currently_delivered": 0.5,
                                      "extra_device_delivered": null})");
        },
        [&] { return listener.power == 500; });
    QCOMPARE(listener.values[importLow], 1001.25);
    QCOMPARE(listener.instants[importLow], now);
    QCOMPARE(listener.values.size(), std::size_t(1));
    QCOMPARE(listener.problems, QStringList());
}

void tst_MqttMeter::evcc()
{
    Broker broker;
    broker.start();
    Publisher publisher(broker);
    publisher.publish("evcc/status", "online", true);
    publisher.publish("evcc/site/gridPower", "9999", true);
    publisher.publish("evcc/site/pvPower", "2500", true);
    publisher.publish("evcc/site/battery/power", "-300", true);
    publisher.publish("evcc/site/battery/soc", "55", true);
    publisher.publish("evcc/loadpoints/1/chargePower", "1400", true);
    Listener listener(settingsOf(broker, "evcc"));
    listener.meter.start();
    publishUntil([&] { publisher.publish("evcc/site/grid/power", "-800"); },
                 [&] { return listener.power == -800; });
    QCOMPARE(*listener.meter.housePower().production, 2500.0);
    QCOMPARE(*listener.meter.housePower().battery, -300.0);
    QCOMPARE(*listener.meter.housePower().car, 1400.0);
    QVERIFY(listener.values.count(importSingle) == 1 && listener.values.count(solar) == 1);
    QVERIFY(listener.meter.isMetering());
    publisher.publish("evcc/status", "offline", true);
    ZEM_TRY_VERIFY(!listener.meter.isMetering());
    QCOMPARE(listener.problems, QStringList());
}

// A value that came just before waits for what belongs to it.
void tst_MqttMeter::offlineIsTheLastWord()
{
    Broker broker;
    broker.start();
    Listener listener(settingsOf(broker, "evcc"));
    listener.meter.start();
    Publisher publisher(broker);
    publishUntil([&] { publisher.publish("evcc/site/grid/power", "-800"); },
                 [&] { return listener.power == -800; });
    publisher.publish("evcc/site/grid/power", "-900");
    publisher.publish("evcc/status", "offline");
    ZEM_TRY_VERIFY(!listener.meter.isMetering());
    QCOMPARE(listener.power, std::optional<int>(-900));
    publisher.publish("evcc/site/pvPower", "100");
    QTest::qWait(1000);
    QVERIFY(!listener.meter.isMetering());
    publisher.publish("evcc/status", "online");
    publisher.publish("evcc/site/grid/power", "-700");
    ZEM_TRY_VERIFY(listener.meter.isMetering());
    QCOMPARE(listener.power, std::optional<int>(-700));
}

void tst_MqttMeter::homeAssistant()
{
    Broker broker;
    broker.start();
    Listener listener(settingsOf(broker, "home-assistant"));
    listener.meter.start();
    Publisher publisher(broker);
    const QByteArray base = "homeassistant/sensor/";
    publishUntil(
        [&] {
            publisher.publish(base + "energy_consumption_tarif_1/state", "1001.25", true);
            publisher.publish(base + "energy_consumption_tarif_2/state", "unavailable", true);
            publisher.publish(base + "solar_energy/state", "500.5", true);
            publisher.publish(base + "gas_consumption/state", "unknown", true);
            publisher.publish(base + "power_consumption/state", "0.75", true);
            publisher.publish(base + "solar_power/state", "1200", true);
        },
        [&] { return listener.power == 750; });
    QCOMPARE(listener.values[importLow], 1001.25);
    QCOMPARE(listener.values[solar], 500.5);
    QCOMPARE(listener.values.size(), std::size_t(2));
    QCOMPARE(*listener.meter.housePower().production, 1200.0);
    QCOMPARE(listener.problems, QStringList());
}

void tst_MqttMeter::retainedIsOld()
{
    Broker broker;
    broker.start();
    Publisher publisher(broker);
    const qint64 yesterday = QDateTime::currentSecsSinceEpoch() - 86400;
    publisher.publish("dsmr/reading/timestamp", isoOf(yesterday), true);
    publisher.publish("dsmr/reading/electricity_delivered_1", "1001.250", true);
    publisher.publish("dsmr/reading/electricity_currently_delivered", "3.0", true);
    publisher.publish("dsmr/reading/electricity_currently_returned", "0.0", true);
    Listener listener(settingsOf(broker, "dsmr-reader"));
    listener.meter.start();
    ZEM_TRY_COMPARE(listener.count, 1);
    QCOMPARE(listener.instants[importLow], yesterday);
    QCOMPARE(listener.values[importLow], 1001.25);
    QVERIFY(!listener.power);
}

void tst_MqttMeter::brokerThatGoesAndComes()
{
    Broker broker;
    broker.start();
    Listener listener(settingsOf(broker, "home-assistant"));
    listener.meter.start();
    const auto hear = [&](const QByteArray &value) {
        Publisher publisher(broker);
        publishUntil(
            [&] {
                publisher.publish("homeassistant/sensor/energy_consumption_tarif_1/state", value);
            },
            [&] { return listener.values[importLow] == value.toDouble(); });
    };
    hear("100.5");
    QVERIFY(listener.meter.isMetering());
    for (int i = 1; i <= 3; ++i) {
        broker.kill();
        ZEM_TRY_VERIFY(!listener.meter.isMetering());
        // Some vain tries make no more messages.
        QTest::qWait(200);
        QVERIFY(!listener.meter.isConnected());
        broker.start();
        hear(QByteArray::number(100.5 + i));
        QVERIFY(listener.meter.isMetering());
        QCOMPARE(listener.connections.count(), i + 1);
        QCOMPARE(listener.failures.count(), 2 * i);
    }
    const QString name = broker.url();
    QCOMPARE(listener.problems.filter(QStringLiteral("the connection was lost: ")).size(), 3);
    QCOMPARE(listener.problems.filter(name + QStringLiteral(": cannot be connected to: ")).size(),
             3);
    QCOMPARE(listener.problems.size(), 6);
    QVERIFY2(listener.problems.at(1).contains(QStringLiteral("Connection refused")),
             qPrintable(listener.problems.at(1)));
}

void tst_MqttMeter::brokerThatComesLater()
{
    Broker broker;
    Listener listener(settingsOf(broker, "home-assistant"));
    listener.meter.start();
    ZEM_TRY_COMPARE(listener.problems.size(), 1);
    broker.start();
    ZEM_TRY_VERIFY(listener.meter.isConnected());
    QCOMPARE(listener.problems.size(), 1);
}

void tst_MqttMeter::wrongCredentials_data()
{
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<QString>("reason");
    const QString refused = QStringLiteral("the broker refuses the user and password");
    QTest::newRow("password") << QByteArray("me") << QByteArray("wrong") << refused;
    QTest::newRow("user") << QByteArray("you") << QByteArray("secret") << refused;
    QTest::newRow("none") << QByteArray() << QByteArray()
                          << QStringLiteral("the broker wants a user and a password");
    QTest::newRow("right") << QByteArray("me") << QByteArray("secret") << QString();
}

void tst_MqttMeter::wrongCredentials()
{
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, password);
    QFETCH(QString, reason);
    Broker broker;
    broker.demand("me", "secret");
    broker.start();
    MqttSettings settings = settingsOf(broker, "dsmr-reader");
    settings.connection.credentials = {user, password};
    Listener listener(settings);
    listener.meter.start();
    if (reason.isEmpty()) {
        ZEM_TRY_VERIFY(listener.meter.isConnected());
        QCOMPARE(listener.problems, QStringList());
        return;
    }
    ZEM_TRY_COMPARE(listener.problems.size(), 1);
    QVERIFY2(listener.problems.constFirst().contains(reason),
             qPrintable(listener.problems.constFirst()));
    QVERIFY(!listener.problems.constFirst().contains(QLatin1String("wrong")));
    QTest::qWait(200);
    QCOMPARE(listener.problems.size(), 1);
    QVERIFY(!listener.meter.isConnected());
}

void tst_MqttMeter::encrypted()
{
    Broker broker(Broker::Kind::Encrypted);
    broker.demand("me", "secret");
    broker.start();
    MqttSettings settings = settingsOf(broker, "evcc");
    settings.connection.authorities = broker.authority();
    settings.connection.credentials = {"me", "secret"};
    Listener listener(settings);
    listener.meter.start();
    Publisher publisher(broker, "me", "secret");
    publishUntil([&] { publisher.publish("evcc/site/grid/power", "321"); },
                 [&] { return listener.power == 321; });
    QCOMPARE(listener.problems, QStringList());
}

void tst_MqttMeter::strangersAreNotBelieved_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("knowsAuthority");
    QTest::newRow("another name than the certificate's") << "127.0.0.1" << true;
    QTest::newRow("an authority that the system does not know") << "localhost" << false;
}

void tst_MqttMeter::strangersAreNotBelieved()
{
    QFETCH(QString, host);
    QFETCH(bool, knowsAuthority);
    Broker broker(Broker::Kind::Encrypted);
    broker.start();
    QString problem;
    MqttSettings settings = settingsOf(broker, "evcc");
    settings.connection.address = parseMqttAddress(broker.url(host), &problem);
    settings.connection.authorities = knowsAuthority ? broker.authority() : QString();
    Listener listener(settings);
    listener.meter.start();
    ZEM_TRY_VERIFY(!listener.problems.isEmpty());
    const QString line = listener.problems.constFirst();
    QVERIFY2(line.startsWith(broker.url(host) + QStringLiteral(": cannot be connected to: ")),
             qPrintable(line));
    // From 2.1 on the library calls both the same.
    const bool tellsOfNames = knowsAuthority && LIBMOSQUITTO_VERSION_NUMBER < 2001000;
    QVERIFY2(line.contains(tellsOfNames ? QStringLiteral("host name verification failed")
                                        : QStringLiteral("certificate verify failed")),
             qPrintable(line));
    QCOMPARE(listener.connections.count(), 0);
}

void tst_MqttMeter::garbageIsToldInOne()
{
    Broker broker;
    broker.start();
    MqttSettings settings = settingsOf(broker, "evcc");
    settings.gathering = 1000000;
    Listener patient(settings);
    Listener listener(settingsOf(broker, "evcc"));
    patient.meter.start();
    listener.meter.start();
    ZEM_TRY_VERIFY(patient.meter.isConnected() && listener.meter.isConnected());
    Publisher publisher(broker);
    publishUntil([&] { publisher.publish("evcc/site/grid/power", "rub\nbish"); },
                 [&] { return !listener.problems.isEmpty(); });
    publishUntil([&] { publisher.publish("evcc/site/grid/power", "rub\nbish"); },
                 [&] { return listener.problems.size() == 2; });
    QVERIFY2(listener.problems.at(1).contains(
                 QStringLiteral("messages cannot be read, the last one: evcc/site/grid/power told "
                                "\"rub?bish\": there is no number")),
             qPrintable(listener.problems.at(1)));
    QVERIFY(listener.meter.unreadableCount() > 10);
    QCOMPARE(listener.count, 0);
    // Whoever gathers for longer has told nothing yet.
    ZEM_TRY_VERIFY(patient.meter.unreadableCount() > 10);
    QCOMPARE(patient.problems, QStringList());
}

void tst_MqttMeter::floodIsSurvived()
{
    Broker broker;
    broker.start();
    Listener listener(settingsOf(broker, "evcc"));
    QSignalSpy turns(listener.meter.link(), &MqttLink::turnEnded);
    listener.meter.start();
    Publisher publisher(broker);
    publishUntil([&] { publisher.publish("evcc/site/pvPower", "1"); },
                 [&] { return listener.meter.housePower().production || listener.count > 0; });
    turns.clear();
    constexpr int flood = 5000;
    for (int i = 1; i <= flood; ++i) {
        publisher.publish(i % 2 == 0 ? "evcc/site/grid/power" : "evcc/site/pvPower",
                          QByteArray::number(i));
    }
    ZEM_TRY_VERIFY(listener.power == flood && listener.meter.housePower().production == flood - 1);
    int events = 0;
    for (const QList<QVariant> &turn : std::as_const(turns)) {
        QVERIFY(turn.constFirst().toInt() <= int(MqttLink::eventsPerTurn));
        events += turn.constFirst().toInt();
    }
    QVERIFY(events <= flood);
    // Nobody is told of each message.
    QVERIFY2(listener.count < events / 10 + 100, qPrintable(QString::number(listener.count)));
}

void tst_MqttMeter::silenceIsToldAsSuch()
{
    Broker broker;
    broker.start();
    MqttSettings settings = settingsOf(broker, "evcc");
    settings.watchdog = 100;
    Listener listener(settings);
    listener.meter.start();
    ZEM_TRY_COMPARE(listener.failures.count(), 1);
    QVERIFY(listener.failures.at(0).constFirst().toBool());
    Publisher publisher(broker);
    publishUntil([&] { publisher.publish("evcc/site/grid/power", "5"); },
                 [&] { return listener.count > 0; });
    QVERIFY(listener.failures.count() >= 2);
    QVERIFY(!listener.failures.at(1).constFirst().toBool());
}

void tst_MqttMeter::wrongMappingIsNamed()
{
    Broker broker;
    broker.start();
    MqttSettings settings = settingsOf(broker, "dsmr-reader");
    settings.patience = 100;
    Listener listener(settings);
    listener.meter.start();
    ZEM_TRY_COMPARE(listener.problems.size(), 1);
    QCOMPARE(
        listener.problems.constFirst(),
        broker.url()
            + QStringLiteral(": none of the topics of the mapping dsmr-reader is published; the "
                             "first one is dsmr/reading/electricity_delivered_1"));
}

QTEST_GUILESS_MAIN(tst_MqttMeter)
#include "tst_mqttmeter.moc"
