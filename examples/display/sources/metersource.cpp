// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "metersource.h"

#include <QDateTime>
#include <algorithm>
#include <utility>

namespace {

constexpr double mostOfCar = 11000.0; // watts
constexpr qint64 mostAhead = 600; // seconds that clocks may differ
constexpr qint64 secondsPerMinute = 60;

P1Recorder::Listener listenerOf(HistoryKeeper *keeper)
{
    if (!keeper) {
        return nullptr;
    }
    return [keeper](const Readings::Register &meterRegister, qint64 instant, double value) {
        keeper->add(meterRegister, instant, value);
    };
}

} // namespace

MeterSource::MeterSource(const QString &address, const P1Settings &settings,
                         const QString &historyDirectory, QObject *parent)
    : MeterSource(std::make_unique<P1Source>(address, settings), historyDirectory, parent)
{
}

MeterSource::MeterSource(std::unique_ptr<LiveMeter> liveMeter, const QString &historyDirectory,
                         QObject *parent)
    : EnergySource(parent),
      keeper(historyDirectory.isEmpty() ? nullptr
                                        : std::make_unique<HistoryKeeper>(historyDirectory)),
      recorder(&readings, listenerOf(keeper.get())), meter(std::move(liveMeter))
{
    if (keeper) {
        connect(keeper.get(), &HistoryKeeper::problem, this,
                [this](const QString &line) { Q_EMIT problem(line); });
    }
    connect(meter.get(), &LiveMeter::telegram, this, &MeterSource::take);
    connect(meter.get(), &LiveMeter::problem, this, &MeterSource::problem);
    connect(meter.get(), &LiveMeter::ended, this, &MeterSource::ended);
    connect(meter.get(), &LiveMeter::meteringFailed, this,
            [this](bool failed) { Q_EMIT meteringChanged(!failed); });
}

MeterSource::~MeterSource() = default;

void MeterSource::prepare()
{
    if (!keeper) {
        return;
    }
    const auto collecting =
        connect(keeper.get(), &HistoryKeeper::problem, this,
                [this](const QString &line) { readings.problems.append(line); });
    keeper->load(&readings);
    disconnect(collecting);
}

void MeterSource::start()
{
    breaks.start(readings);
    meter->goOnFrom(readings);
    meter->start();
}

std::optional<PowerReport> MeterSource::power() const
{
    if (!readings.measuredPower) {
        return std::nullopt;
    }
    const HousePower house = meter->housePower();
    PowerReport report;
    report.grid = readings.measuredPower->watts;
    report.battery = house.battery.value_or(0.0);
    report.production = house.production;
    report.tellConsumption(readings.delivers());
    if (house.car) {
        report.devices = {{Device::Car, *house.car, mostOfCar}};
    }
    return report;
}

double MeterSource::mostProduction() const
{
    return mostProduced;
}

bool MeterSource::isMetering() const
{
    return meter->isMetering();
}

void MeterSource::take(const P1Telegram &telegram)
{
    const qint64 now = telegram.instant.value_or(QDateTime::currentSecsSinceEpoch());
    compareClocks(now);
    const bool wasFirst = !readings.firstInstant();
    const std::size_t metersBefore = readings.meters.size();
    recorder.add(telegram, now);
    if (!telegram.power) {
        // What it was is not what it is.
        readings.measuredPower.reset();
    }
    if (const std::optional<PowerReport> report = power()) {
        mostProduced = std::max(mostProduced, report->leastProduction());
    }
    Q_EMIT powerChanged();

    const qint64 step = now / P1Recorder::step;
    // Whoever shows a meter must hear at once that it made way for another.
    if (wasFirst || readings.meters.size() != metersBefore || step != knownStep) {
        knownStep = step;
        if (keeper) {
            keeper->keep(now, &readings);
        }
        for (const QString &line : breaks.news(readings, now)) {
            Q_EMIT problem(line);
        }
        Q_EMIT historyChanged();
    }
}

void MeterSource::compareClocks(qint64 toldTime)
{
    // The past is what files tell.
    const qint64 ahead = toldTime - QDateTime::currentSecsSinceEpoch();
    const bool wasAhead = std::exchange(isClockAhead, ahead > mostAhead);
    if (isClockAhead && !wasAhead) {
        Q_EMIT problem(tr("the clock of the meter is %n minutes ahead of that of the display; bars "
                          "stand where the meter's clock has them",
                          nullptr, int(ahead / secondsPerMinute)),
                       QStringLiteral("clock"));
    }
}
