// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttreadings.h"

#include "household.h"
#include "mqttpayload.h"
#include "problemlist.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

using namespace Readings;

MqttReadings::MqttReadings(const MqttMapping &theMapping, Listener hears)
    : mapping(theMapping), listener(std::move(hears))
{
    forget();
    const auto isMapped = [&](std::initializer_list<MqttPower> powers) {
        return std::any_of(
            mapping.values.cbegin(), mapping.values.cend(), [&](const MqttValue &value) {
                return value.power
                    && std::find(powers.begin(), powers.end(), *value.power) != powers.end();
            });
    };
    // What has a power and no register.
    const auto addCounter = [&](Quantity quantity, std::initializer_list<MqttPower> powers) {
        if (isMapped(powers) && !hasRegister(quantity)) {
            counters[quantity];
        }
    };
    addCounter(Quantity::GridImport, {MqttPower::Grid, MqttPower::Import, MqttPower::Home});
    addCounter(Quantity::GridExport, {MqttPower::Grid, MqttPower::Export});
    addCounter(Quantity::SolarProduction, {MqttPower::Production});
    addCounter(Quantity::ElectricCar, {MqttPower::Car});
}

void MqttReadings::goOnFrom(const Household &household)
{
    for (auto &[quantity, counter] : counters) {
        const auto meter = household.meters.find({quantity, Tariff::Single});
        if (meter != household.meters.end() && meter->second.lastInstant()) {
            const qint64 last = *meter->second.lastInstant();
            counter.goOnFrom(meter->second.readingAt(last).value_or(0.0));
        }
    }
}

void MqttReadings::take(const MqttMessage &message, qint64 now)
{
    isNoted = false;
    if (mapping.status && mapping.status->place.topic == message.topic) {
        takeStatus(message, now);
    }
    for (const MqttPlace &place : mapping.times) {
        if (place.topic == message.topic) {
            takeTime(place, message, now);
        }
    }
    const bool isMissed = isTimed() && !message.retained && !heardLiveTime;
    if (isMissed) {
        return;
    }
    for (std::size_t i = 0; i < tellings.size(); ++i) {
        const MqttValue &value = mapping.values[i];
        for (std::size_t j = 0; j < tellings[i].size(); ++j) {
            const MqttSource &source = value.sources[j];
            Told &told = tellings[i][j];
            if (source.unitPlace && source.unitPlace->topic == message.topic) {
                takeUnit(source, value.unit(), told, message);
            }
            if (source.timePlace && source.timePlace->topic == message.topic) {
                takeOwnTime(source, told, message, now);
            }
            if (source.place.topic == message.topic) {
                takeValue(source, told, message, value.meterRegister.has_value());
            }
        }
    }
}

void MqttReadings::complete(qint64 now)
{
    if (!pending) {
        return;
    }
    pending = false;
    const std::optional<qint64> instant = isTimed() ? time : now;
    const bool isLate =
        instant && lastInstant && *instant < *lastInstant && *lastInstant - *instant <= latest;
    P1Telegram telegram;
    telegram.instant = instant;
    for (std::size_t i = 0; i < tellings.size(); ++i) {
        addReading(telegram, i);
    }
    if (!instant || isLate) {
        return;
    }
    lastInstant = instant;
    addCounters(telegram, *instant);
    HousePower house;
    if (now - *instant <= oldestPower) {
        if (const Flow grid = gridFlow(); grid.watts) {
            telegram.power = int(std::lround(*grid.watts));
        }
        house = {flowOf(MqttPower::Production).watts, flowOf(MqttPower::Battery).watts,
                 flowOf(MqttPower::Car).watts};
    }
    if (!telegram.readings.empty() || telegram.power) {
        listener(telegram, house);
    }
}

void MqttReadings::pause(qint64 now)
{
    complete(now);
    hasTime = false;
    // A value whose time was missed, or a time whose value was: the other half never comes.
    for (std::vector<Told> &sources : tellings) {
        for (Told &told : sources) {
            told.fresh = false;
            told.freshTime = false;
        }
    }
}

void MqttReadings::goWithoutTimes()
{
    withoutTimes = !heardLiveTime;
}

void MqttReadings::forget()
{
    tellings.clear();
    for (const MqttValue &value : mapping.values) {
        std::vector<Told> sources;
        for (const MqttSource &source : value.sources) {
            sources.emplace_back();
            sources.back().factor = source.factor;
        }
        tellings.push_back(std::move(sources));
    }
    online.reset();
    time.reset();
    hasTime = false;
    heardLive = false;
    heardLiveTime = false;
    heard = false;
    pending = false;
    withoutTimes = false;
}

void MqttReadings::takeStatus(const MqttMessage &message, qint64 now)
{
    const MqttAnswer answer = mqttAnswer(message.payload, mapping.status->place.path);
    if (answer.text == mapping.status->online) {
        online = true;
        pending = true;
    } else if (answer.text == mapping.status->offline) {
        complete(now);
        online = false;
        pending = true;
        for (std::vector<Told> &sources : tellings) {
            for (Told &told : sources) {
                told.value.reset();
            }
        }
    }
}

void MqttReadings::takeTime(const MqttPlace &place, const MqttMessage &message, qint64 now)
{
    const std::optional<qint64> told = timeIn(place, message, now);
    if (!told) {
        return;
    }
    if (!message.retained) {
        heardLiveTime = true;
        withoutTimes = false;
    }
    if (hasTime && time != told) {
        complete(now);
    }
    time = told;
    hasTime = true;
}

void MqttReadings::takeValue(const MqttSource &source, Told &told, const MqttMessage &message,
                             bool isRegister)
{
    const MqttAnswer answer = mqttAnswer(message.payload, source.place.path);
    if (answer.kind == MqttAnswer::Kind::Absent) {
        return;
    }
    const std::optional<double> number = mqttNumber(answer.text);
    const bool isUnknown = answer.kind == MqttAnswer::Kind::Unknown;
    if (!isUnknown && (!number || (isRegister && *number < 0.0))) {
        note(message,
             isRegister && number
                 ? QCoreApplication::translate("MqttReadings", "a counter is not below 0")
                 : QCoreApplication::translate("MqttReadings", "there is no number"));
        return;
    }
    heard = true;
    pending = true;
    told.value = isUnknown ? std::nullopt : number;
    told.live = told.live || !message.retained;
    told.fresh = true;
    heardLive = heardLive || !message.retained;
}

void MqttReadings::takeOwnTime(const MqttSource &source, Told &told, const MqttMessage &message,
                               qint64 now)
{
    if (const std::optional<qint64> own = timeIn(*source.timePlace, message, now)) {
        told.time = own;
        told.freshTime = true;
        pending = true;
    }
}

void MqttReadings::takeUnit(const MqttSource &source, MqttUnit unit, Told &told,
                            const MqttMessage &message)
{
    const MqttAnswer answer = mqttAnswer(message.payload, source.unitPlace->path);
    if (answer.kind == MqttAnswer::Kind::Absent || answer.kind == MqttAnswer::Kind::Unknown) {
        return;
    }
    told.factor = mqttFactor(QString::fromUtf8(answer.text), unit);
    pending = true;
    if (!told.factor) {
        note(message,
             QCoreApplication::translate("MqttReadings", "that is no unit of what is mapped"));
    }
}

void MqttReadings::note(const MqttMessage &message, const QString &what)
{
    // One message may be the place of many values.
    if (isNoted) {
        return;
    }
    isNoted = true;
    ++unreadables;
    unreadable =
        QCoreApplication::translate("MqttReadings", "%1 told %2: %3")
            .arg(QString::fromUtf8(message.topic),
                 quoted({message.payload.constData(), std::size_t(message.payload.size())}), what);
}

std::optional<qint64> MqttReadings::timeIn(const MqttPlace &place, const MqttMessage &message,
                                           qint64 now)
{
    const MqttAnswer answer = mqttAnswer(message.payload, place.path);
    if (answer.kind == MqttAnswer::Kind::Absent || answer.kind == MqttAnswer::Kind::Unknown) {
        return std::nullopt;
    }
    const std::optional<qint64> told = mqttTime(answer.text);
    if (!told || *told - now > farthestAhead) {
        note(message,
             told ? QCoreApplication::translate("MqttReadings", "that time is still to come")
                  : QCoreApplication::translate("MqttReadings",
                                                "there is no time with its offset from UTC"));
        return std::nullopt;
    }
    return told;
}

bool MqttReadings::isCurrent(const Told &told, bool isPower) const
{
    if (!told.value || !told.factor || !isOnline()) {
        return false;
    }
    if (isTimed()) {
        return told.live || !isPower;
    }
    return told.live || online || (!isPower && heardLive);
}

std::size_t MqttReadings::chosen(std::size_t value) const
{
    // A name of another release may have been retained for years: what is live goes before it.
    const std::vector<Told> &sources = tellings[value];
    auto found =
        std::find_if(sources.cbegin(), sources.cend(), [](const Told &told) { return told.live; });
    if (found == sources.cend()) {
        found = std::find_if(sources.cbegin(), sources.cend(),
                             [](const Told &told) { return told.value.has_value(); });
    }
    return found == sources.cend() ? 0 : std::size_t(found - sources.cbegin());
}

void MqttReadings::addReading(P1Telegram &telegram, std::size_t index)
{
    const MqttValue &value = mapping.values[index];
    if (!value.meterRegister) {
        return;
    }
    const std::size_t choice = chosen(index);
    const MqttSource &source = value.sources[choice];
    Told &told = tellings[index][choice];
    const bool hasOwnTime = source.timePlace.has_value();
    const bool isNew = hasOwnTime ? told.fresh && told.freshTime : told.fresh || !isTimed();
    if (!isNew
        || !(hasOwnTime ? told.value && told.factor && isOnline() : isCurrent(told, false))) {
        return;
    }
    const double amount = *told.value * *told.factor * source.sign;
    telegram.readings.push_back(
        {*value.meterRegister, amount, hasOwnTime ? told.time : std::nullopt});
    told.fresh = false;
    told.freshTime = false;
}

void MqttReadings::addCounters(P1Telegram &telegram, qint64 instant)
{
    for (auto &[quantity, counter] : counters) {
        Flow flow;
        if (quantity == Quantity::SolarProduction) {
            flow = flowOf(MqttPower::Production);
        } else if (quantity == Quantity::ElectricCar) {
            flow = flowOf(MqttPower::Car);
        } else {
            flow = gridFlow();
            if (flow.watts && quantity == Quantity::GridExport) {
                flow.watts = -*flow.watts;
            }
        }
        if (!flow.told) {
            continue;
        }
        counter.add(instant, flow.watts);
        if (const std::optional<double> reading = counter.reading()) {
            telegram.readings.push_back({{quantity, Tariff::Single}, *reading, std::nullopt});
        }
    }
}

MqttReadings::Flow MqttReadings::flowOf(MqttPower power) const
{
    Flow flow;
    for (std::size_t i = 0; i < tellings.size(); ++i) {
        if (mapping.values[i].power != power) {
            continue;
        }
        const std::size_t choice = chosen(i);
        const Told &told = tellings[i][choice];
        if (isCurrent(told, true)) {
            flow.watts = flow.watts.value_or(0.0)
                + *told.value * *told.factor * mapping.values[i].sources[choice].sign;
        }
        flow.told = flow.told || flow.watts || told.live || !isOnline();
    }
    return flow;
}

MqttReadings::Flow MqttReadings::gridFlow() const
{
    const Flow grid = flowOf(MqttPower::Grid);
    if (grid.told) {
        return grid;
    }
    // A part that is unknown makes the sum unknown; one that was never heard of is not there.
    const auto sum = [](const std::vector<std::pair<Flow, double>> &parts) {
        Flow all {true, 0.0};
        for (const auto &[part, sign] : parts) {
            if (part.told && !part.watts) {
                return Flow {true, std::nullopt};
            }
            *all.watts += part.watts.value_or(0.0) * sign;
        }
        return all;
    };
    if (const Flow imported = flowOf(MqttPower::Import); imported.told) {
        return sum({{imported, 1.0}, {flowOf(MqttPower::Export), -1.0}});
    }
    if (const Flow home = flowOf(MqttPower::Home); home.told) {
        return sum({{home, 1.0},
                    {flowOf(MqttPower::Car), 1.0},
                    {flowOf(MqttPower::Production), -1.0},
                    {flowOf(MqttPower::Battery), -1.0}});
    }
    return {};
}

bool MqttReadings::hasRegister(Quantity quantity) const
{
    return std::any_of(mapping.values.cbegin(), mapping.values.cend(), [&](const MqttValue &value) {
        return value.meterRegister && value.meterRegister->quantity == quantity;
    });
}
