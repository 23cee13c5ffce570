// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "p1recorder.h"

#include "household.h"
#include "p1time.h"

using namespace Readings;

namespace {

/** The first instant after @p instant at which readings are entered. */
qint64 stepAfter(qint64 instant)
{
    return (instant / P1Recorder::step + 1) * P1Recorder::step;
}

} // namespace

P1Recorder::P1Recorder(Household *recorded, Listener listener)
    : household(recorded), entered(std::move(listener))
{
    household->timeZone = p1TimeZone();
}

void P1Recorder::add(const P1Telegram &telegram, qint64 receivedAt)
{
    if (!telegram.isGood()) {
        return;
    }
    const qint64 instant = telegram.instant.value_or(receivedAt);
    if (telegram.power) {
        household->measuredPower = GridPower {double(*telegram.power), instant};
    }
    for (const P1Reading &reading : telegram.readings) {
        add(reading, instant);
    }
}

void P1Recorder::enterNewest()
{
    for (auto &[meterRegister, latest] : latestOf) {
        enter(meterRegister, latest, latest.instant);
    }
}

void P1Recorder::add(const P1Reading &reading, qint64 sentAt)
{
    const qint64 instant = reading.instant.value_or(sentAt);
    const qint64 silence = reading.instant ? longestChannelSilence : longestSilence;
    const auto [entry, isFirst] = latestOf.try_emplace(reading.meterRegister);
    Latest &latest = entry->second;
    if (!isFirst && instant == latest.instant) {
        return;
    }
    // A clock that is put back begins a new stretch, as after a silence.
    const bool goesOn = !isFirst && instant > latest.instant && instant - latest.instant <= silence;
    if (goesOn) {
        for (qint64 at = stepAfter(latest.instant); at < instant; at += step) {
            enter(reading.meterRegister, latest, at);
        }
    } else if (!isFirst) {
        enter(reading.meterRegister, latest, latest.instant);
    }
    latest.instant = instant;
    latest.value = reading.value;
    if (!goesOn || instant % step == 0) {
        enter(reading.meterRegister, latest, instant);
    }
}

void P1Recorder::enter(const Register &meterRegister, Latest &latest, qint64 instant)
{
    if (latest.entered == instant) {
        return;
    }
    latest.entered = instant;
    household->makeWayFor(meterRegister);
    if (household->meter(meterRegister, Meter::Kind::Counter).setReading(instant, latest.value)
        && entered) {
        entered(meterRegister, instant, latest.value);
    }
}
