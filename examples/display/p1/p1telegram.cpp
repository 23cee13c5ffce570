// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1telegram.h"

#include "p1crc.h"
#include "p1lines.h"
#include "p1time.h"
#include "problemlist.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>

using namespace Readings;

namespace {

constexpr double wattsPerKilowatt = 1000.0;
constexpr qint64 secondsPerDay = 86400;
constexpr std::size_t tariffCount = 2;

/** The kinds of devices on the M-Bus that a household has. */
enum class DeviceKind { Gas = 3, Heat = 4, Water = 7 };

struct Channel
{
    int kind = 0;
    QByteArray unit;
    std::optional<double> value;
    std::optional<qint64> instant;
};

/** The counters of one direction. A meter may tell their total as well, or that alone. */
struct Counters
{
    std::array<std::optional<double>, tariffCount> tariffs;
    bool hasTariffs = false; ///< told, be it that they cannot be read
    std::optional<double> total;
};

/** What the lines say, before the tariffs and channels can be told what they mean. */
struct Content
{
    QByteArray versionCode;
    bool belgian = false;
    bool hasTime = false;
    std::optional<qint64> instant;
    Counters imported;
    Counters exported;
    std::optional<double> importPower;
    std::optional<double> exportPower;
    /** Digits before the point of the power. */
    std::size_t powerDigits = 0;
    std::map<char, Channel> channels;
    /** The first line that cannot be read. */
    QString unreadable;
};

void note(Content &content, const P1Line &line)
{
    if (content.unreadable.isEmpty()) {
        content.unreadable =
            QCoreApplication::translate("P1Telegram", "%1 cannot be read").arg(quoted(line.text));
    }
}

/** The number of a line in @p unit, which may be told in thousandths as well: kWh, or Wh. */
std::optional<double> amountOf(Content &content, const P1Line &line, std::string_view unit)
{
    constexpr double thousandth = 0.001;
    const P1Value value = parseP1Value(line.values.back());
    if (value.number && value.unit == unit) {
        return value.number;
    }
    if (value.number && value.unit == unit.substr(1)) {
        return *value.number * thousandth;
    }
    note(content, line);
    return std::nullopt;
}

/** Lines of electricity, "1-0:1.8.0" to "1-0:2.8.2"; false if it is none. */
bool readCounterLine(Content &content, const P1Line &line)
{
    constexpr std::string_view importPrefix = "1-0:1.8.";
    constexpr std::string_view exportPrefix = "1-0:2.8.";
    const std::string_view prefix = line.code.substr(0, importPrefix.size());
    const std::string_view tariff = line.code.substr(prefix.size());
    if ((prefix != importPrefix && prefix != exportPrefix) || tariff.size() != 1) {
        return false;
    }
    Counters &counters = prefix == importPrefix ? content.imported : content.exported;
    if (tariff == "0") {
        counters.total = amountOf(content, line, "kWh");
    } else if (tariff == "1" || tariff == "2") {
        counters.tariffs[tariff == "1" ? 0 : 1] = amountOf(content, line, "kWh");
        counters.hasTariffs = true;
    }
    return true;
}

void readTime(Content &content, const P1Line &line)
{
    content.hasTime = true;
    content.instant = parseP1Time(line.values.front());
}

void readPower(Content &content, const P1Line &line, std::optional<double> &power)
{
    power = amountOf(content, line, "kW");
    content.powerDigits = line.values.front().find('.');
}

/** "(time)(value*unit)"; an empty channel has a value without a unit, and a time long ago. */
void readChannel(Content &content, Channel &channel, const P1Line &line)
{
    if (line.values.size() != 2) {
        note(content, line);
        return;
    }
    const P1Value value = parseP1Value(line.values[1]);
    if (!value.number && !line.values[1].empty()) {
        note(content, line);
        return;
    }
    channel.instant = parseP1Time(line.values[0]);
    channel.value = value.number;
    channel.unit = QByteArray(value.unit.data(), int(value.unit.size()));
}

/** "(time)(status)(minutes)(count)(code)(unit)", and "(value)" on the next line. */
void readOldChannel(Content &content, Channel &channel, const P1Line &line)
{
    constexpr std::size_t unit = 5;
    constexpr std::size_t reading = 6;
    if (line.values.size() != reading + 1) {
        note(content, line);
        return;
    }
    const P1Value value = parseP1Value(line.values[reading]);
    if (!value.number && !line.values[reading].empty()) {
        note(content, line);
        return;
    }
    channel.instant = parseP1Time(line.values[0]);
    channel.value = value.number;
    channel.unit = QByteArray(line.values[unit].data(), int(line.values[unit].size()));
}

void readKind(Content &content, Channel &channel, const P1Line &line)
{
    if (const P1Value value = parseP1Value(line.values.front()); value.number) {
        channel.kind = int(*value.number);
    } else if (!line.values.front().empty()) {
        note(content, line);
    }
}

/** Lines of a channel, "0-n:24...."; false if it is none. */
bool readChannelLine(Content &content, const P1Line &line)
{
    constexpr std::size_t number = 2;
    constexpr std::string_view prefix = "0-";
    if (line.code.size() <= number || line.code.substr(0, number) != prefix) {
        return false;
    }
    const std::string_view what = line.code.substr(number + 1);
    const char name = line.code[number];
    if (name < '1' || name > '4') {
        return false;
    }
    if (what == ":24.1.0") {
        readKind(content, content.channels[name], line);
    } else if (what == ":24.2.1" || what == ":24.2.3") {
        readChannel(content, content.channels[name], line);
    } else if (what == ":24.3.0") {
        readOldChannel(content, content.channels[name], line);
    } else {
        return false;
    }
    return true;
}

void readLine(Content &content, const P1Line &line)
{
    const std::string_view code = line.code;
    const auto text = [&] {
        return QByteArray(line.values.front().data(), int(line.values.front().size()));
    };
    if (readChannelLine(content, line) || readCounterLine(content, line)) {
        return;
    }
    if (code == "1-3:0.2.8") {
        content.versionCode = text();
    } else if (code == "0-0:96.1.4") {
        content.versionCode = text();
        content.belgian = true;
    } else if (code == "0-0:1.0.0") {
        readTime(content, line);
    } else if (code == "1-0:1.7.0") {
        readPower(content, line, content.importPower);
    } else if (code == "1-0:2.7.0") {
        readPower(content, line, content.exportPower);
    }
}

Content readLines(std::string_view body)
{
    Content content;
    P1LineReader reader(body);
    P1Line line;
    while (reader.next(line)) {
        if (line.values.empty()) {
            note(content, line);
        } else {
            readLine(content, line);
        }
    }
    return content;
}

P1Telegram::Version versionOf(const Content &content)
{
    constexpr std::size_t powerDigitsOf22 = 4;
    if (content.belgian) {
        return P1Telegram::Version::Belgian;
    }
    if (content.versionCode.isEmpty() && !content.hasTime) {
        return content.powerDigits == powerDigitsOf22 ? P1Telegram::Version::Dsmr22
                                                      : P1Telegram::Version::Dsmr30;
    }
    if (content.versionCode.size() == 2 && content.versionCode.startsWith('4')) {
        return P1Telegram::Version::Dsmr4;
    }
    if (content.versionCode.size() == 2 && content.versionCode.startsWith('5')) {
        return P1Telegram::Version::Dsmr5;
    }
    return P1Telegram::Version::Other;
}

std::optional<int> powerOf(const Content &content)
{
    if (!content.importPower) {
        return std::nullopt;
    }
    const double kilowatts = *content.importPower - content.exportPower.value_or(0.0);
    return int(std::lround(kilowatts * wattsPerKilowatt));
}

std::optional<Quantity> quantityOf(const Channel &channel)
{
    static const QByteArray cubicMetres = QByteArrayLiteral("m3");
    static const QByteArray gigajoules = QByteArrayLiteral("GJ");
    switch (channel.kind) {
    case int(DeviceKind::Gas):
        return channel.unit == cubicMetres ? std::optional<Quantity>(Quantity::Gas) : std::nullopt;
    case int(DeviceKind::Heat):
        return channel.unit == gigajoules ? std::optional<Quantity>(Quantity::Heating)
                                          : std::nullopt;
    case int(DeviceKind::Water):
        return channel.unit == cubicMetres ? std::optional<Quantity>(Quantity::Water)
                                           : std::nullopt;
    default:
        return std::nullopt;
    }
}

void addElectricity(P1Telegram &telegram, Quantity quantity, const Counters &counters, bool belgian)
{
    const std::array<Tariff, tariffCount> dutch = {Tariff::Low, Tariff::Normal};
    for (std::size_t i = 0; i < tariffCount; ++i) {
        if (counters.tariffs[i]) {
            const Tariff tariff = belgian ? dutch[tariffCount - 1 - i] : dutch[i];
            telegram.readings.push_back({{quantity, tariff}, *counters.tariffs[i], std::nullopt});
        }
    }
    // Beside tariffs the total would count everything twice.
    if (counters.total && !counters.hasTariffs) {
        telegram.readings.push_back({{quantity, Tariff::Single}, *counters.total, std::nullopt});
    }
}

void addChannels(P1Telegram &telegram, const std::map<char, Channel> &channels)
{
    std::map<Quantity, P1Reading> chosen;
    for (const auto &[name, channel] : channels) {
        const std::optional<Quantity> quantity = quantityOf(channel);
        if (!quantity || !channel.value || !channel.instant) {
            continue;
        }
        const P1Reading reading = {{*quantity, Tariff::Single}, *channel.value, channel.instant};
        const auto [known, isNew] = chosen.try_emplace(*quantity, reading);
        if (!isNew && *channel.instant - *known->second.instant > secondsPerDay) {
            known->second = reading;
        }
    }
    for (const auto &[quantity, reading] : chosen) {
        telegram.readings.push_back(reading);
    }
}

void fill(P1Telegram &telegram, const Content &content)
{
    telegram.version = versionOf(content);
    telegram.versionCode = content.versionCode;
    telegram.instant = content.instant;
    telegram.power = powerOf(content);
    addElectricity(telegram, Quantity::GridImport, content.imported, content.belgian);
    addElectricity(telegram, Quantity::GridExport, content.exported, content.belgian);
    addChannels(telegram, content.channels);
}

/** Compares the checksum; returns what is wrong. */
QString checkChecksum(P1Telegram &telegram, std::string_view throughMark, std::string_view written)
{
    if (written.empty()) {
        return QString();
    }
    const quint16 computed = p1TelegramCrc(throughMark);
    if (parseP1Crc(written) == computed) {
        telegram.checksum = P1Telegram::Checksum::Right;
        return QString();
    }
    telegram.checksum = P1Telegram::Checksum::Wrong;
    return QCoreApplication::translate("P1Telegram", "its checksum is %1 and should be %2")
        .arg(quoted(written),
             QStringLiteral("%1").arg(computed, 4, 16, QLatin1Char('0')).toUpper());
}

QString problemOf(const P1Telegram &telegram, const Content &content)
{
    if (telegram.checksum == P1Telegram::Checksum::None) {
        if (content.hasTime || !content.versionCode.isEmpty()) {
            return QCoreApplication::translate("P1Telegram", "it has no checksum");
        }
        if (!content.unreadable.isEmpty()) {
            return content.unreadable;
        }
    }
    const auto isKnown = [](const Counters &counters) {
        return counters.total || counters.tariffs[0] || counters.tariffs[1];
    };
    const bool hasCounter = isKnown(content.imported) || isKnown(content.exported);
    if (!hasCounter && !content.importPower && content.channels.empty()) {
        return QCoreApplication::translate("P1Telegram", "it holds no reading that is known here");
    }
    return QString();
}

} // namespace

const P1Reading *P1Telegram::reading(const Register &meterRegister) const
{
    const auto found =
        std::find_if(readings.cbegin(), readings.cend(), [&](const P1Reading &candidate) {
            return candidate.meterRegister == meterRegister;
        });
    return found == readings.cend() ? nullptr : &*found;
}

QString p1VersionName(const P1Telegram &telegram)
{
    switch (telegram.version) {
    case P1Telegram::Version::Dsmr22:
        return QStringLiteral("2.2");
    case P1Telegram::Version::Dsmr30:
        return QStringLiteral("3.0");
    case P1Telegram::Version::Dsmr4:
    case P1Telegram::Version::Dsmr5:
        return QString::fromLatin1(telegram.versionCode).insert(1, QLatin1Char('.'));
    case P1Telegram::Version::Belgian:
        return QStringLiteral("Belgian %1").arg(QString::fromLatin1(telegram.versionCode));
    case P1Telegram::Version::Other:
        break;
    }
    return QStringLiteral("unknown");
}

P1Telegram parseP1Telegram(const QByteArray &bytes)
{
    P1Telegram telegram;
    const std::string_view text(bytes.constData(), std::size_t(bytes.size()));
    const std::size_t mark = text.find('!');
    if (text.empty() || text.front() != '/' || mark == std::string_view::npos) {
        telegram.problem = QCoreApplication::translate("P1Telegram", "it is no telegram");
        return telegram;
    }
    const std::string_view body = text.substr(1, mark - 1);
    const std::size_t lineEnd = std::min(body.find_first_of("\r\n"), body.size());
    telegram.identification = QByteArray(body.data(), int(lineEnd));

    telegram.problem =
        checkChecksum(telegram, text.substr(0, mark + 1), trimmed(text.substr(mark + 1)));
    if (!telegram.isGood()) {
        return telegram;
    }
    const Content content = readLines(body.substr(lineEnd));
    telegram.problem = problemOf(telegram, content);
    if (telegram.isGood()) {
        fill(telegram, content);
    }
    return telegram;
}
