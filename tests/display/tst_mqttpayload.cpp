// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttpayload.h"
#include "mqttsamples.h"

#include <QTest>

namespace {

const qint64 noon = utc("2024-06-01T10:00:00");

} // namespace

/** What payloads say. */
class tst_MqttPayload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void payloads_data();
    void payloads();
    void numbers_data();
    void numbers();
    void times_data();
    void times();
};

void tst_MqttPayload::payloads_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("text");
    using Kind = MqttAnswer::Kind;
    const auto add = [](const char *row, const QByteArray &payload, const char *path, Kind kind,
                        const char *text = "") {
        QTest::newRow(row) << payload << path << int(kind) << QByteArray(text);
    };
    add("plain", " 12.5 \n", "", Kind::Text, "12.5");
    add("quoted", "\"kWh\"", "", Kind::Text, "kWh");
    add("empty", "", "", Kind::Unknown);
    add("empty JSON", "", "a", Kind::Unknown);
    add("unknown", "unknown", "", Kind::Unknown, "unknown");
    add("unavailable", "Unavailable", "", Kind::Unknown, "Unavailable");
    add("member", R"({"a": {"b": 7.5}})", "a.b", Kind::Text, "7.5");
    add("member as text", R"({"a": "001.250"})", "a", Kind::Text, "001.250");
    add("element", R"({"a": [1, {"b": 3}]})", "a.1.b", Kind::Text, "3");
    add("list", "[4, 5]", "1", Kind::Text, "5");
    add("absent", R"({"a": 1})", "b", Kind::Absent);
    add("absent beneath a number", R"({"a": 1})", "a.b", Kind::Absent);
    add("null", R"({"a": null})", "a", Kind::Unknown);
    add("unavailable in JSON", R"({"a": "unavailable"})", "a", Kind::Unknown, "unavailable");
    add("object", R"({"a": {}})", "a", Kind::Unreadable);
    add("no JSON", "{\"a\": ", "a", Kind::Unreadable);
    add("binary", QByteArray("\0\xff\xfe", 3), "a", Kind::Unreadable);
    add("too long", QByteArray(longestMqttPayload + 1, '1'), "", Kind::Unreadable);
}

void tst_MqttPayload::payloads()
{
    QFETCH(QByteArray, payload);
    QFETCH(QString, path);
    QFETCH(int, kind);
    QFETCH(QByteArray, text);
    const MqttAnswer answer =
        mqttAnswer(payload, path.isEmpty() ? QStringList() : path.split(QLatin1Char('.')));
    QCOMPARE(int(answer.kind), kind);
    QCOMPARE(answer.text, text);
}

void tst_MqttPayload::numbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("good");
    QTest::addColumn<double>("value");
    QTest::newRow("whole") << QByteArray("42") << true << 42.0;
    QTest::newRow("point") << QByteArray("1234.567") << true << 1234.567;
    QTest::newRow("negative") << QByteArray("-3.5") << true << -3.5;
    QTest::newRow("exponent") << QByteArray("1.5e3") << true << 1500.0;
    for (const char *text : {"", "1,5", "12 kWh", "nan", "inf", "1e999", "0x10", "on", "1.2.3"}) {
        QTest::newRow(text) << QByteArray(text) << false << 0.0;
    }
}

void tst_MqttPayload::numbers()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, good);
    QFETCH(double, value);
    QCOMPARE(mqttNumber(text), good ? std::optional<double>(value) : std::nullopt);
}

void tst_MqttPayload::times_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("good");
    for (const char *text :
         {"2024-06-01T10:00:00Z", "2024-06-01T12:00:00+02:00", "2024-06-01 12:00:00+02:00",
          "2024-06-01T10:00:00.999999+00:00", "2024-06-01T10:00:00.5Z"}) {
        QTest::newRow(text) << QByteArray(text) << true;
    }
    for (const char *text :
         {"", "2024-06-01T12:00:00", "1717236000", "2024-06-01", "noon", "2024-13-01T10:00:00Z"}) {
        QTest::newRow(text) << QByteArray(text) << false;
    }
}

void tst_MqttPayload::times()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, good);
    QCOMPARE(mqttTime(text), good ? std::optional<qint64>(noon) : std::nullopt);
}

QTEST_GUILESS_MAIN(tst_MqttPayload)
#include "tst_mqttpayload.moc"
