// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttmapping.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace Readings;

/** What topics mean. */
class tst_MqttMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readyOnesAreGood_data();
    void readyOnesAreGood();
    void readyTopics();
    void ownMapping();
    void sourcesShareUnitAndSign();
    void units_data();
    void units();
    void faultsAreNamed_data();
    void faultsAreNamed();
    void missingFileIsNamed();

private:
    MqttMapping load(const QByteArray &text, QString *problem) const
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            qFatal("the test cannot write its file");
        }
        file.close();
        return loadMqttMapping(path(), problem);
    }
    QString path() const { return directory.filePath(QStringLiteral("own.json")); }

    QTemporaryDir directory;
};

void tst_MqttMapping::readyOnesAreGood_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("registers");
    QTest::addColumn<int>("powers");
    QTest::newRow("dsmr-reader") << "dsmr-reader" << 5 << 2;
    QTest::newRow("evcc") << "evcc" << 0 << 8;
    QTest::newRow("home-assistant") << "home-assistant" << 6 << 3;
}

void tst_MqttMapping::readyOnesAreGood()
{
    QFETCH(QString, name);
    QFETCH(int, registers);
    QFETCH(int, powers);
    QString problem;
    const MqttMapping mapping = loadMqttMapping(name, &problem);
    QCOMPARE(problem, QString());
    QCOMPARE(mapping.name, name);
    int found = 0;
    for (const MqttValue &value : mapping.values) {
        found += value.meterRegister ? 1 : 0;
    }
    QCOMPARE(found, registers);
    QCOMPARE(int(mapping.values.size()) - found, powers);
    QCOMPARE(readyMqttMappings().constFirst(), QStringLiteral("dsmr-reader"));
    QVERIFY(readyMqttMapping(QStringLiteral("none")).isEmpty());
}

void tst_MqttMapping::readyTopics()
{
    QString problem;
    const QList<QByteArray> evcc = loadMqttMapping(QStringLiteral("evcc"), &problem).topics();
    for (const char *topic :
         {"evcc/site/grid/power", "evcc/site/gridPower", "evcc/site/pvPower", "evcc/site/homePower",
          "evcc/site/battery/power", "evcc/loadpoints/1/chargePower", "evcc/status"}) {
        QVERIFY2(evcc.contains(topic), topic);
    }
    const QList<QByteArray> dsmr =
        loadMqttMapping(QStringLiteral("dsmr-reader"), &problem).topics();
    QCOMPARE(dsmr.count("dsmr/json"), 1);
    for (const char *topic : {"dsmr/reading/timestamp", "dsmr/reading/extra_device_timestamp",
                              "dsmr/consumption/gas/read_at"}) {
        QVERIFY2(dsmr.contains(topic), topic);
    }
}

void tst_MqttMapping::ownMapping()
{
    QString problem;
    const MqttMapping mapping = load(R"({
        "comment": "mine",
        "time": { "topic": "m/json", "path": "at.utc" },
        "status": { "topic": "m/status", "online": "yes", "offline": "no" },
        "values": [
            { "register": "solar_kwh", "topic": "m/json", "path": "ENERGY.Total", "unit": "Wh" },
            { "power": "production", "topic": "m/watts", "unit": { "topic": "m/unit" }, "sign": -1,
              "time": { "topic": "m/at" } }
        ]
    })",
                                     &problem);
    QCOMPARE(problem, QString());
    QCOMPARE(mapping.times.size(), std::size_t(1));
    QCOMPARE(mapping.times[0].path, QStringList({"at", "utc"}));
    QCOMPARE(mapping.status->offline, QByteArray("no"));
    const MqttSource &solar = mapping.values.at(0).sources.at(0);
    QCOMPARE(solar.place.path, QStringList({"ENERGY", "Total"}));
    QCOMPARE(*solar.factor, 0.001);
    QVERIFY(*mapping.values[0].meterRegister
            == (Register {Quantity::SolarProduction, Tariff::Single}));
    const MqttSource &power = mapping.values.at(1).sources.at(0);
    QCOMPARE(power.sign, -1.0);
    QVERIFY(!power.factor);
    QCOMPARE(power.unitPlace->topic, QByteArray("m/unit"));
    QCOMPARE(power.timePlace->topic, QByteArray("m/at"));
    QCOMPARE(mapping.topics(),
             QList<QByteArray>({"m/json", "m/status", "m/watts", "m/unit", "m/at"}));
}

void tst_MqttMapping::sourcesShareUnitAndSign()
{
    QString problem;
    const MqttMapping mapping = load(R"({"values": [{"power": "grid", "unit": "kW", "sign": -1,
        "from": [{"topic": "new"}, {"topic": "old", "unit": "W", "sign": 1}]}]})",
                                     &problem);
    QCOMPARE(problem, QString());
    const std::vector<MqttSource> &sources = mapping.values.at(0).sources;
    QCOMPARE(*sources.at(0).factor * sources.at(0).sign, -1000.0);
    QCOMPARE(*sources.at(1).factor * sources.at(1).sign, 1.0);
}

void tst_MqttMapping::units_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("factor");
    const auto add = [](const char *name, MqttUnit unit, double factor) {
        QTest::newRow(name) << QString::fromUtf8(name) << int(unit) << factor;
    };
    add("W", MqttUnit::Watt, 1.0);
    add("kW", MqttUnit::Watt, 1000.0);
    add("Wh", MqttUnit::KilowattHour, 0.001);
    add("kWh", MqttUnit::KilowattHour, 1.0);
    add("MWh", MqttUnit::KilowattHour, 1000.0);
    add("m³", MqttUnit::CubicMetre, 1.0);
    add("m3", MqttUnit::CubicMetre, 1.0);
    add("dm³", MqttUnit::CubicMetre, 0.001);
    add("dm3", MqttUnit::CubicMetre, 0.001);
    add("L", MqttUnit::CubicMetre, 0.001);
    add("l", MqttUnit::CubicMetre, 0.001);
    add("GJ", MqttUnit::Gigajoule, 1.0);
    add("MJ", MqttUnit::Gigajoule, 0.001);
}

void tst_MqttMapping::units()
{
    QFETCH(QString, name);
    QFETCH(int, unit);
    QFETCH(double, factor);
    QCOMPARE(mqttFactor(name, MqttUnit(unit)), std::optional<double>(factor));
    const auto other = MqttUnit(unit) == MqttUnit::Watt ? MqttUnit::KilowattHour : MqttUnit::Watt;
    QVERIFY(!mqttFactor(name, other));
    QVERIFY(!mqttFactor(name + QLatin1Char('x'), MqttUnit(unit)));
}

void tst_MqttMapping::faultsAreNamed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char *row, const char *text, const char *problem) {
        QTest::newRow(row) << QByteArray(text) << QString::fromUtf8(problem);
    };
    const auto addValue = [](const char *row, const QByteArray &value, const char *problem) {
        QTest::newRow(row)
            << "{\"values\": [{\"power\": \"grid\", \"topic\": \"a\", \"unit\": \"W\"}, " + value
                + "]}"
            << QString::fromUtf8(problem);
    };
    add("no JSON", "{\n  \"values\": [,]\n}", ":2:14: illegal value");
    add("a list", "[]", ": it must be one JSON object");
    add("no values", "{}", ": values: must be a list");
    add("values of no kind", "{\"values\": [7]}", ": values[0]: must be an object");
    add("unknown key", "{\"vales\": []}", ": vales: is not known; there is time, status, values");
    add("time", "{\"time\": [{\"topic\": \"a\"}, 1], \"values\": []}", ": time[1]: must be {");
    add("status", "{\"status\": {\"topic\": \"a\", \"online\": \"x\"}, \"values\": []}",
        ": status.offline: is missing");
    addValue("neither", R"({"topic": "a", "unit": "W"})",
             ": values[1]: must have either a register or a power");
    addValue("both", R"({"register": "gas_m3", "power": "grid", "topic": "a", "unit": "W"})",
             ": values[1]: must have either a register or a power");
    addValue("register", R"({"register": "gas", "topic": "a", "unit": "m³"})",
             ": values[1].register: is not known; there is electricity_import_kwh, ");
    addValue("power", R"({"power": "solar", "topic": "a", "unit": "W"})",
             ": values[1].power: is not known; there is grid, import, export, production, ");
    addValue("unit", R"({"register": "gas_m3", "topic": "a", "unit": "kWh"})",
             ": values[1].unit: must be one of m³, dm³, L, or a topic");
    addValue("no unit", R"({"power": "car", "topic": "a"})",
             ": values[1].unit: must be one of W, kW");
    addValue("no topic", R"({"power": "car", "unit": "W"})", ": values[1].topic: is missing");
    addValue("topic of no kind", R"({"power": "car", "topic": 5, "unit": "W"})",
             ": values[1].topic: must be a text");
    addValue("many topics", R"({"power": "car", "topic": "a/#", "unit": "W"})",
             ": values[1].topic: must be one topic, without + and #");
    addValue("sign", R"({"power": "car", "topic": "a", "unit": "W", "sign": 2})",
             ": values[1].sign: must be 1 or -1");
    addValue("key", R"({"power": "car", "topic": "a", "unit": "W", "factor": 2})",
             ": values[1].factor: is not known; there is register, power, ");
    addValue("in from", R"({"power": "car", "unit": "W", "from": [{"topic": "a"}, {"path": "b"}]})",
             ": values[1].from[1].topic: is missing");
    addValue("empty from", R"({"power": "car", "unit": "W", "from": []})",
             ": values[1].from: must be a list");
    addValue("own time", R"({"power": "car", "topic": "a", "unit": "W", "time": {"tpic": "b"}})",
             ": values[1].time.tpic: is not known");
    add("twice",
        R"({"values": [{"register": "gas_m3", "topic": "a", "unit": "m³"},
                       {"register": "gas_m3", "topic": "b", "unit": "m³"}]})",
        ": values[1].register: is there twice");
}

void tst_MqttMapping::faultsAreNamed()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, problem);
    QString found;
    QVERIFY(load(text, &found).values.empty());
    QVERIFY2(found.startsWith(path() + problem), qPrintable(found));
    QVERIFY(!found.contains(QLatin1Char('\n')));
}

void tst_MqttMapping::missingFileIsNamed()
{
    QString problem;
    loadMqttMapping(QStringLiteral("no/such/mapping"), &problem);
    QVERIFY2(problem.startsWith(QStringLiteral("no/such/mapping: it is neither a file that can be "
                                               "opened (No such file or directory) nor one of the "
                                               "ready mappings dsmr-reader, evcc, home-assistant")),
             qPrintable(problem));
}

QTEST_GUILESS_MAIN(tst_MqttMapping)
#include "tst_mqttmapping.moc"
