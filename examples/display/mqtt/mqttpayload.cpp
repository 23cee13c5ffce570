// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttpayload.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QRegularExpression>
#include <cmath>

namespace {

MqttAnswer answerOf(const QByteArray &text)
{
    // What publishers send for a value that there is not.
    for (const char *word : {"", "unknown", "unavailable", "null", "none"}) {
        if (text.toLower() == word) {
            return {MqttAnswer::Kind::Unknown, text};
        }
    }
    return {MqttAnswer::Kind::Text, text};
}

MqttAnswer answerOf(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Undefined:
        return {MqttAnswer::Kind::Absent, {}};
    case QJsonValue::Null:
        return {MqttAnswer::Kind::Unknown, {}};
    case QJsonValue::Double:
        return {MqttAnswer::Kind::Text, QByteArray::number(value.toDouble(), 'g', 17)};
    case QJsonValue::String:
        return answerOf(value.toString().trimmed().toUtf8());
    case QJsonValue::Bool:
    case QJsonValue::Array:
    case QJsonValue::Object:
        break;
    }
    return {MqttAnswer::Kind::Unreadable, {}};
}

QJsonValue stepInto(const QJsonValue &value, const QString &name)
{
    if (value.isArray()) {
        bool isNumber = false;
        const int index = name.toInt(&isNumber);
        return isNumber ? value.toArray().at(index) : QJsonValue(QJsonValue::Undefined);
    }
    return value.isObject() ? value.toObject().value(name) : QJsonValue(QJsonValue::Undefined);
}

QByteArray withoutQuotes(const QByteArray &text)
{
    const bool isQuoted = text.size() >= 2 && text.startsWith('"') && text.endsWith('"');
    return isQuoted ? text.mid(1, text.size() - 2).trimmed() : text;
}

} // namespace

MqttAnswer mqttAnswer(const QByteArray &payload, const QStringList &path)
{
    if (payload.size() > longestMqttPayload) {
        return {MqttAnswer::Kind::Unreadable, {}};
    }
    const QByteArray text = payload.trimmed();
    if (path.isEmpty() || text.isEmpty()) {
        return answerOf(withoutQuotes(text));
    }
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (document.isNull()) {
        return {MqttAnswer::Kind::Unreadable, {}};
    }
    QJsonValue value =
        document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    for (const QString &name : path) {
        value = stepInto(value, name);
    }
    return answerOf(value);
}

std::optional<double> mqttNumber(const QByteArray &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

std::optional<qint64> mqttTime(const QByteArray &text)
{
    // Qt 6 rounds a fraction, and half a second before noon it is not noon yet.
    static const QRegularExpression fraction(QStringLiteral("(:\\d\\d)[.,]\\d+"));
    const QDateTime time = QDateTime::fromString(
        QString::fromUtf8(text).replace(fraction, QStringLiteral("\\1")), Qt::ISODate);
    // Without an offset it is anybody's guess, twice a year even in the household's own zone.
    if (!time.isValid() || time.timeSpec() == Qt::LocalTime) {
        return std::nullopt;
    }
    return time.toSecsSinceEpoch();
}
