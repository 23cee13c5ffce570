// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "housesource.h"

#include <QDateTime>

namespace {

constexpr quint64 seed = 20161; // of a house with all that the display can show
constexpr Place utrecht {52.09, 5.12};
constexpr qint64 secondsPerMinute = 60;
constexpr qint64 recordInterval = 5 * secondsPerMinute;
constexpr int tick = 1000; // milliseconds
constexpr int yearsOfHistory = 2;

qint64 instantNow(const HouseClock &clock)
{
    return clock.instantAt(QDateTime::currentMSecsSinceEpoch());
}

qint64 startOfHistory(qint64 now)
{
    return QDateTime::fromSecsSinceEpoch(now).toUTC().addYears(-yearsOfHistory).toSecsSinceEpoch();
}

} // namespace

HouseSource::HouseSource(const HouseClock &houseClock, QObject *parent)
    : EnergySource(parent), clock(houseClock),
      house(seed, utrecht, QTimeZone("Europe/Amsterdam"), startOfHistory(instantNow(clock))),
      recorder(&house, &readings), instant(instantNow(clock)), recorded(instant)
{
    timer.setInterval(tick);
    connect(&timer, &QTimer::timeout, this, &HouseSource::followClock);
}

void HouseSource::prepare()
{
    recorder.recordUntil(instant);
}

QDateTime HouseSource::now() const
{
    return QDateTime::fromSecsSinceEpoch(instant, house.timeZone());
}

void HouseSource::start()
{
    timer.start();
}

std::optional<PowerReport> HouseSource::power() const
{
    const PowerNow flow = house.powerAt(instant);
    PowerReport report;
    report.grid = flow.grid();
    report.consumption = flow.consumption();
    report.production = flow.production;
    report.devices = {{Device::HeatPump, double(flow.heatPump), 2000.0},
                      {Device::Car, double(flow.car), 7400.0},
                      {Device::Kitchen, double(flow.kitchen), 3000.0},
                      {Device::Rest, double(flow.washing + flow.rest), 3000.0}};
    return report;
}

double HouseSource::mostProduction() const
{
    return SimulatedHouse::mostProduction;
}

PowerDay HouseSource::powerDay(const QDate &date) const
{
    return ::powerDay(house, date, instant);
}

void HouseSource::followClock()
{
    const qint64 before = instant;
    instant = instantNow(clock);
    // Power changes with the minute only.
    if (instant / secondsPerMinute != before / secondsPerMinute) {
        Q_EMIT powerChanged();
    }
    if (instant - recorded >= recordInterval) {
        recorder.recordUntil(instant);
        recorded = instant;
        Q_EMIT historyChanged();
    }
}
