// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "household.h"
#include "mqttlink.h"
#include "mqttreadings.h"
#include "mqttsamples.h"
#include "p1recorder.h"

#include <QSignalSpy>
#include <QTest>

#include <utility>

using namespace Readings;

namespace {

constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr Register importSingle {Quantity::GridImport, Tariff::Single};
constexpr Register gas {Quantity::Gas, Tariff::Single};
const qint64 noon = utc("2024-06-01T10:00:00");

MqttMapping mappingOf(const char *name)
{
    QString problem;
    return loadMqttMapping(QLatin1String(name), &problem);
}

/** To the Wh, empty where it is a gap. */
std::optional<qint64> wattHours(const Household &household, qint64 from, qint64 to)
{
    const std::optional<double> amount = household.amount(Quantity::GridImport, {from, to});
    return amount ? std::optional<qint64>(qRound64(*amount * 1000.0)) : std::nullopt;
}

} // namespace

/** What comes of messages, without a broker. */
class tst_MqttReadings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void telegramsEndWithTheNextTime();
    void timeMayComeLast();
    void missedBeginningIsLeftOut();
    void lateTelegramsAreLeftOut();
    void retainedTelegramHasItsOwnTime();
    void valuesWithoutTimesCountWhenTheyCome();
    void gasHasItsOwnTime();
    void halfOfAPairIsNoReading();
    void olderNamesAreHeardToo();

    void valuesHoldUntilToldAnew();
    void retainedRegistersWaitForLife();
    void retainedPowersWaitForTheirOwn();
    void onlineMakesRetainedCount();
    void offlineEndsEverything();
    void offlineLosesNothing();
    void unavailableIsNotKnown();
    void unitByTopic();
    void gridOfTheHouse();
    void batteryAndCar();
    void garbageIsCounted();

    void powerAddsUp();
    void gapOfPowerStaysAGap();
    void countersGoOnAfterARestart();

    void mailboxStaysSmall();
    void mailboxKeepsWhatALossEnds();
    void floodIsTakenInTurns();

private:
    /** Follows a mapping from now on. */
    void follow(const MqttMapping &mapping)
    {
        readings = std::make_unique<MqttReadings>(
            mapping, [this](const P1Telegram &telegram, const HousePower &power) {
                telegrams.push_back(telegram);
                house = power;
            });
    }
    void tell(const QByteArray &topic, const QByteArray &payload, bool retained = false)
    {
        readings->take({topic, payload, retained}, now);
    }
    void tellTelegram(qint64 instant, double counter)
    {
        tell("dsmr/reading/timestamp", isoOf(instant));
        tell("dsmr/reading/electricity_delivered_1", QByteArray::number(counter, 'f', 3));
    }
    std::optional<double> valueOf(std::size_t telegram, const Register &meterRegister) const
    {
        const P1Reading *reading = telegrams.at(telegram).reading(meterRegister);
        return reading ? std::optional<double>(reading->value) : std::nullopt;
    }
    std::optional<int> lastPower() const
    {
        return telegrams.empty() ? std::nullopt : telegrams.back().power;
    }

    std::unique_ptr<MqttReadings> readings;
    std::vector<P1Telegram> telegrams;
    HousePower house;
    qint64 now = noon;
};

void tst_MqttReadings::init()
{
    telegrams.clear();
    house = {};
    now = noon;
}

void tst_MqttReadings::telegramsEndWithTheNextTime()
{
    follow(mappingOf("dsmr-reader"));
    tellTelegram(noon - 20, 100.0);
    tellTelegram(noon - 10, 100.1);
    tell("dsmr/reading/electricity_currently_delivered", "0.5");
    tell("dsmr/reading/electricity_currently_returned", "0");
    tellTelegram(noon, 100.2);
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(3));
    QCOMPARE(*telegrams[1].instant, noon - 10);
    QCOMPARE(*valueOf(0, importLow), 100.0);
    QCOMPARE(*valueOf(1, importLow), 100.1);
    QCOMPARE(*telegrams[1].power, 500);
    QCOMPARE(*valueOf(2, importLow), 100.2);
    QVERIFY(telegrams[2].isGood());
}

void tst_MqttReadings::timeMayComeLast()
{
    follow(mappingOf("dsmr-reader"));
    tellTelegram(noon - 20, 100.0);
    readings->pause(noon);
    telegrams.clear();
    for (int i = 0; i < 3; ++i) {
        tell("dsmr/reading/electricity_delivered_1", QByteArray::number(101 + i));
        tell("dsmr/reading/timestamp", isoOf(noon + 10 * i));
        readings->pause(noon);
        QCOMPARE(telegrams.size(), std::size_t(i) + 1);
        QCOMPARE(*telegrams[std::size_t(i)].instant, noon + 10 * i);
        QCOMPARE(*valueOf(std::size_t(i), importLow), 101.0 + i);
    }
}

void tst_MqttReadings::missedBeginningIsLeftOut()
{
    follow(mappingOf("dsmr-reader"));
    tell("dsmr/reading/electricity_delivered_1", "100.0");
    tell("dsmr/reading/timestamp", isoOf(noon));
    tell("dsmr/reading/electricity_delivered_2", "200.0");
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(1));
    QVERIFY(!valueOf(0, importLow));
    QCOMPARE(*valueOf(0, {Quantity::GridImport, Tariff::Normal}), 200.0);
}

void tst_MqttReadings::lateTelegramsAreLeftOut()
{
    follow(mappingOf("dsmr-reader"));
    tellTelegram(noon, 100.0);
    tellTelegram(noon - 600, 99.0);
    tellTelegram(noon + 10, 100.1);
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(2));
    QCOMPARE(*valueOf(1, importLow), 100.1);
    // A clock that was put back by more than an hour begins anew.
    tellTelegram(noon - 7200, 100.2);
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(3));
    QCOMPARE(*telegrams[2].instant, noon - 7200);
}

void tst_MqttReadings::retainedTelegramHasItsOwnTime()
{
    follow(mappingOf("dsmr-reader"));
    tell("dsmr/reading/electricity_delivered_1", "100.0", true);
    tell("dsmr/reading/electricity_currently_delivered", "3.0", true);
    tell("dsmr/reading/timestamp", isoOf(noon - 86400), true);
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(1));
    QCOMPARE(*telegrams[0].instant, noon - 86400);
    QCOMPARE(*valueOf(0, importLow), 100.0);
    QVERIFY(!telegrams[0].power);
    // What the old one said of power is no part of a new one.
    tellTelegram(noon, 101.0);
    readings->pause(noon);
    QCOMPARE(*telegrams.at(1).instant, noon);
    QVERIFY(!telegrams[1].power);
}

void tst_MqttReadings::valuesWithoutTimesCountWhenTheyCome()
{
    follow(mappingOf("dsmr-reader"));
    tell("dsmr/reading/electricity_delivered_1", "100.0");
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(0));
    readings->goWithoutTimes();
    tell("dsmr/reading/electricity_delivered_1", "100.1");
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(1));
    QCOMPARE(*telegrams[0].instant, noon);
    QCOMPARE(*valueOf(0, importLow), 100.1);
}

void tst_MqttReadings::gasHasItsOwnTime()
{
    follow(mappingOf("dsmr-reader"));
    for (int i = 0; i < 2; ++i) {
        tellTelegram(noon + 10 * i, 100.0);
        tell("dsmr/reading/extra_device_delivered", "50.5");
        tell("dsmr/reading/extra_device_timestamp", isoOf(noon - 300));
    }
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(2));
    for (const P1Telegram &telegram : telegrams) {
        QCOMPARE(telegram.reading(gas)->value, 50.5);
        QCOMPARE(*telegram.reading(gas)->instant, noon - 300);
    }
}

void tst_MqttReadings::halfOfAPairIsNoReading()
{
    follow(mappingOf("dsmr-reader"));
    tellTelegram(noon, 100.0);
    tell("dsmr/reading/extra_device_delivered", "50.5");
    readings->pause(noon);
    tellTelegram(noon + 10, 100.0);
    tell("dsmr/reading/extra_device_timestamp", isoOf(noon));
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(2));
    QVERIFY(!valueOf(0, gas));
    QVERIFY(!valueOf(1, gas));
}

void tst_MqttReadings::olderNamesAreHeardToo()
{
    follow(mappingOf("evcc"));
    tell("evcc/site/grid/power", "7000", true);
    tell("evcc/site/gridPower", "250");
    readings->complete(noon);
    QCOMPARE(*lastPower(), 250);
    // The newer name, as soon as it is alive.
    tell("evcc/site/grid/power", "300");
    readings->complete(noon);
    QCOMPARE(*lastPower(), 300);
}

void tst_MqttReadings::valuesHoldUntilToldAnew()
{
    follow(mappingOf("home-assistant"));
    tell("homeassistant/sensor/energy_consumption_tarif_1/state", "100.0");
    readings->complete(noon);
    now = noon + 1000;
    tell("homeassistant/sensor/power_consumption/state", "0.25");
    readings->complete(now);
    QCOMPARE(telegrams.size(), std::size_t(2));
    QCOMPARE(*telegrams[1].instant, noon + 1000);
    QCOMPARE(*valueOf(1, importLow), 100.0);
    QCOMPARE(*telegrams[1].power, 250);
}

void tst_MqttReadings::retainedRegistersWaitForLife()
{
    follow(mappingOf("home-assistant"));
    tell("homeassistant/sensor/energy_consumption_tarif_1/state", "100.0", true);
    readings->pause(noon);
    QVERIFY(telegrams.empty());
    tell("homeassistant/sensor/gas_consumption/state", "50.0");
    readings->pause(noon);
    QCOMPARE(*valueOf(0, importLow), 100.0);
}

void tst_MqttReadings::retainedPowersWaitForTheirOwn()
{
    follow(mappingOf("home-assistant"));
    tell("homeassistant/sensor/power_consumption/state", "3.0", true);
    tell("homeassistant/sensor/gas_consumption/state", "50.0");
    readings->pause(noon);
    QVERIFY(!lastPower());
    tell("homeassistant/sensor/power_consumption/state", "0.2");
    readings->pause(noon);
    QCOMPARE(*lastPower(), 200);
}

void tst_MqttReadings::onlineMakesRetainedCount()
{
    follow(mappingOf("evcc"));
    tell("evcc/site/grid/power", "-1500", true);
    tell("evcc/site/pvPower", "2000", true);
    readings->pause(noon);
    QVERIFY(telegrams.empty());
    tell("evcc/status", "online", true);
    readings->pause(noon);
    QCOMPARE(*lastPower(), -1500);
    QCOMPARE(*house.production, 2000.0);
}

void tst_MqttReadings::offlineEndsEverything()
{
    follow(mappingOf("evcc"));
    tell("evcc/status", "online");
    tell("evcc/site/grid/power", "500");
    readings->pause(noon);
    QVERIFY(readings->isOnline());
    tell("evcc/status", "offline");
    readings->pause(noon);
    QVERIFY(!readings->isOnline());
    QVERIFY(!lastPower());
    telegrams.clear();
    // What it was is not what it is when the publisher is back.
    tell("evcc/status", "online");
    tell("evcc/site/pvPower", "100");
    readings->pause(noon);
    QVERIFY(!lastPower());
    tell("evcc/site/grid/power", "400");
    readings->pause(noon);
    QCOMPARE(*lastPower(), 400);
}

void tst_MqttReadings::offlineLosesNothing()
{
    follow(mappingOf("evcc"));
    tell("evcc/status", "online");
    tell("evcc/site/grid/power", "500");
    tell("evcc/status", "offline");
    QCOMPARE(*lastPower(), 500);
}

void tst_MqttReadings::unavailableIsNotKnown()
{
    follow(mappingOf("home-assistant"));
    tell("homeassistant/sensor/energy_consumption_tarif_1/state", "100.0");
    tell("homeassistant/sensor/power_consumption/state", "0.5");
    readings->pause(noon);
    QCOMPARE(*lastPower(), 500);
    for (const char *word : {"unavailable", "unknown"}) {
        tell("homeassistant/sensor/energy_consumption_tarif_1/state", word);
        tell("homeassistant/sensor/power_consumption/state", word);
        tell("homeassistant/sensor/gas_consumption/state", "50.0");
        readings->pause(noon);
        QVERIFY(!lastPower());
        QVERIFY(!valueOf(telegrams.size() - 1, importLow));
    }
    QCOMPARE(readings->unreadableCount(), 0);
}

void tst_MqttReadings::unitByTopic()
{
    MqttMapping mapping;
    MqttSource source;
    source.place.topic = "x/state";
    source.unitPlace = MqttPlace {"x/unit_of_measurement", {}};
    mapping.values = {{importSingle, std::nullopt, {source}}};
    follow(mapping);
    tell("x/state", "12000");
    readings->pause(noon);
    QVERIFY(telegrams.empty());
    tell("x/unit_of_measurement", "\"Wh\"");
    readings->pause(noon);
    QCOMPARE(*valueOf(0, importSingle), 12.0);
    tell("x/unit_of_measurement", "\"kWh\"");
    readings->pause(noon);
    QCOMPARE(*valueOf(1, importSingle), 12000.0);
    tell("x/unit_of_measurement", "\"m³\"");
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(2));
    QCOMPARE(readings->unreadableCount(), 1);
}

void tst_MqttReadings::gridOfTheHouse()
{
    follow(mappingOf("evcc"));
    tell("evcc/site/homePower", "400");
    tell("evcc/site/pvPower", "3000");
    tell("evcc/site/battery/power", "-1000");
    tell("evcc/loadpoints/1/chargePower", "1100");
    tell("evcc/loadpoints/2/chargePower", "200");
    readings->pause(noon);
    QCOMPARE(*lastPower(), 400 + 1300 - 3000 + 1000);
    tell("evcc/site/pvPower", "unknown");
    readings->pause(noon);
    QVERIFY(!telegrams.back().power);
}

void tst_MqttReadings::batteryAndCar()
{
    follow(mappingOf("evcc"));
    tell("evcc/site/grid/power", "100");
    readings->pause(noon);
    QVERIFY(!house.production && !house.battery && !house.car);
    tell("evcc/site/battery/power", "-1000");
    tell("evcc/loadpoints/1/chargePower", "7200");
    tell("evcc/loadpoints/2/chargePower", "3600");
    readings->pause(noon);
    QCOMPARE(*house.battery, -1000.0);
    QCOMPARE(*house.car, 10800.0);
}

void tst_MqttReadings::garbageIsCounted()
{
    follow(mappingOf("dsmr-reader"));
    tellTelegram(noon, 100.0);
    tell("dsmr/reading/electricity_delivered_1", "garbage");
    tell("dsmr/reading/electricity_delivered_1", "-5");
    tell("dsmr/json", "{\"electricity_delivered_1\": ");
    tell("dsmr/reading/timestamp", "yesterday");
    tell("dsmr/reading/timestamp", isoOf(noon + 100 * 86400));
    QCOMPARE(readings->unreadableCount(), 5);
    QVERIFY2(readings->lastUnreadable().startsWith(
                 QStringLiteral("dsmr/reading/timestamp told \"2024-09-09T10:00:00Z\": that time")),
             qPrintable(readings->lastUnreadable()));
    readings->pause(noon);
    QCOMPARE(telegrams.size(), std::size_t(1));
    QCOMPARE(*valueOf(0, importLow), 100.0);
    tell("some/other/topic", "garbage");
    QCOMPARE(readings->unreadableCount(), 5);
}

void tst_MqttReadings::powerAddsUp()
{
    follow(mappingOf("evcc"));
    tell("evcc/status", "online");
    // 1 kW for half an hour, 3 kW the other way for the other half.
    for (int minute = 0; minute <= 60; ++minute) {
        now = noon + 60 * minute;
        tell("evcc/site/grid/power", minute < 30 ? "1000" : "-3000");
        tell("evcc/site/pvPower", "2000");
        readings->pause(now);
    }
    const P1Telegram &last = telegrams.back();
    QCOMPARE(last.reading(importSingle)->value, 0.5);
    QCOMPARE(last.reading({Quantity::GridExport, Tariff::Single})->value, 1.5);
    QCOMPARE(last.reading({Quantity::SolarProduction, Tariff::Single})->value, 2.0);
    QVERIFY(!last.reading({Quantity::ElectricCar, Tariff::Single}));
}

void tst_MqttReadings::gapOfPowerStaysAGap()
{
    Household household;
    P1Recorder recorder(&household);
    follow(mappingOf("evcc"));
    const auto play = [&](qint64 from, qint64 to) {
        for (now = from; now <= to; now += 60) {
            tell("evcc/site/grid/power", "1200");
            readings->pause(now);
            recorder.add(telegrams.back(), now);
        }
    };
    constexpr qint64 hour = 3600;
    play(noon, noon + hour);
    // Silent for a quarter of an hour, then known to be unknown for a short while.
    play(noon + hour + 900, noon + 2 * hour);
    tell("evcc/site/grid/power", "unavailable");
    readings->pause(now);
    play(noon + 2 * hour + 120, noon + 4 * hour);
    QCOMPARE(wattHours(household, noon, noon + hour), std::optional<qint64>(1200));
    QVERIFY(!wattHours(household, noon + hour, noon + 2 * hour));
    QVERIFY(!wattHours(household, noon + 2 * hour, noon + 3 * hour));
    QCOMPARE(wattHours(household, noon + 3 * hour, noon + 4 * hour), std::optional<qint64>(1200));
    // What was measured around the gaps is not lost: all but the gaps and a step beside each.
    const double all = household.total(Quantity::GridImport);
    QVERIFY2(all > 4.5 - 2 * 0.1 - 0.1 && all < 4.5, qPrintable(QString::number(all)));
}

void tst_MqttReadings::countersGoOnAfterARestart()
{
    Household household;
    constexpr qint64 hour = 3600;
    // As often as it likes, also when the last readings are of a leap that nobody has confirmed.
    for (int run = 0; run < 4; ++run) {
        P1Recorder recorder(&household);
        follow(mappingOf("evcc"));
        readings->goOnFrom(household);
        const qint64 begin = noon + run * hour;
        const qint64 end = run == 1 ? begin : begin + 1800;
        for (now = begin; now <= end; now += 60) {
            tell("evcc/site/grid/power", "1000");
            readings->pause(now);
            recorder.add(telegrams.back(), now);
        }
    }
    for (int run : {0, 2, 3}) {
        const qint64 begin = noon + run * hour;
        QCOMPARE(wattHours(household, begin + 300, begin + 1800), std::optional<qint64>(417));
        QVERIFY(!wattHours(household, begin + 1800, begin + hour + 300));
    }
}

void tst_MqttReadings::mailboxStaysSmall()
{
    MqttMailbox mailbox(100);
    QVERIFY(mailbox.put({MqttEvent::Kind::Connected, {}, {}}));
    for (int i = 0; i < 100000; ++i) {
        const bool wakes =
            mailbox.put({MqttEvent::Kind::Message,
                         {},
                         {i % 7 == 0 ? "rare" + QByteArray::number(i % 3) : QByteArray("often"),
                          QByteArray::number(i), false}});
        QVERIFY(!wakes);
        QVERIFY(mailbox.size() <= 100);
    }
    std::map<QByteArray, int> newest;
    for (const MqttEvent &event : mailbox.take(1000)) {
        const int number = event.message.payload.toInt();
        QVERIFY(newest[event.message.topic] <= number);
        newest[event.message.topic] = number;
    }
    QCOMPARE(newest["often"], 99999);
    QCOMPARE(newest["rare0"], 99981);
    QCOMPARE(newest["rare1"], 99988);
    QCOMPARE(newest["rare2"], 99995);
    QVERIFY(mailbox.isEmpty());
}

void tst_MqttReadings::mailboxKeepsWhatALossEnds()
{
    MqttMailbox mailbox(4);
    mailbox.put({MqttEvent::Kind::Message, {}, {"a", "1", false}});
    mailbox.put({MqttEvent::Kind::Lost, QStringLiteral("gone"), {}});
    mailbox.put({MqttEvent::Kind::Connected, {}, {}});
    mailbox.put({MqttEvent::Kind::Message, {}, {"a", "2", false}});
    mailbox.put({MqttEvent::Kind::Message, {}, {"a", "3", false}});
    const std::vector<MqttEvent> events = mailbox.take(10);
    QCOMPARE(events.size(), std::size_t(3));
    QCOMPARE(events[0].reason, QStringLiteral("gone"));
    QVERIFY(events[1].kind == MqttEvent::Kind::Connected);
    QCOMPARE(events[2].message.payload, QByteArray("3"));
}

void tst_MqttReadings::floodIsTakenInTurns()
{
    MqttLink link((MqttConnection()));
    int received = 0;
    QByteArray last;
    connect(&link, &MqttLink::received, this, [&](const MqttMessage &message) {
        ++received;
        last = message.payload;
    });
    QSignalSpy turns(&link, &MqttLink::turnEnded);
    // Whoever else is served by the event loop has a turn after each of the link's.
    int others = 0;
    connect(&link, &MqttLink::turnEnded, this, [&] {
        QMetaObject::invokeMethod(
            this, [&] { ++others; }, Qt::QueuedConnection);
    });
    for (int i = 0; i < 50000; ++i) {
        link.post({MqttEvent::Kind::Message,
                   {},
                   {"topic" + QByteArray::number(i % 1500), QByteArray::number(i), false}});
    }
    while (received == 0 || last != "49999") {
        const int before = received;
        QCoreApplication::processEvents();
        QVERIFY(received - before <= int(MqttLink::mostWaiting));
    }
    QCoreApplication::processEvents();
    QVERIFY(received <= int(MqttLink::mostWaiting));
    for (const QList<QVariant> &turn : std::as_const(turns)) {
        QVERIFY(turn.constFirst().toInt() <= int(MqttLink::eventsPerTurn));
    }
    QVERIFY(turns.count() >= received / int(MqttLink::eventsPerTurn));
    QCOMPARE(others, turns.count());
}

QTEST_GUILESS_MAIN(tst_MqttReadings)
#include "tst_mqttreadings.moc"
