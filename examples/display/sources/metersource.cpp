// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "metersource.h"

#include <QDateTime>
#include <algorithm>

namespace {

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
    : EnergySource(parent),
      keeper(historyDirectory.isEmpty() ? nullptr
                                        : std::make_unique<HistoryKeeper>(historyDirectory)),
      recorder(&readings, listenerOf(keeper.get())), meter(address, settings)
{
    if (keeper) {
        connect(keeper.get(), &HistoryKeeper::problem, this, &MeterSource::problem);
    }
    connect(&meter, &P1Source::telegram, this, &MeterSource::take);
    connect(&meter, &P1Source::problem, this, &MeterSource::problem);
    connect(&meter, &P1Source::ended, this, &MeterSource::ended);
    connect(&meter, &P1Source::meteringFailed, this,
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
    meter.start();
}

std::optional<PowerReport> MeterSource::power() const
{
    if (!readings.measuredPower) {
        return std::nullopt;
    }
    // The meter knows the grid alone: what is delivered is the least that the panels make.
    PowerReport report;
    report.consumption = std::max(readings.measuredPower->watts, 0.0);
    report.production = std::max(-readings.measuredPower->watts, 0.0);
    return report;
}

double MeterSource::mostProduction() const
{
    return mostDelivered;
}

bool MeterSource::isMetering() const
{
    return meter.goodCount() > 0 && !meter.hasFailed();
}

void MeterSource::take(const P1Telegram &telegram)
{
    const qint64 now = telegram.instant.value_or(QDateTime::currentSecsSinceEpoch());
    const bool wasFirst = !readings.firstInstant();
    recorder.add(telegram, now);
    if (telegram.power) {
        mostDelivered = std::max(mostDelivered, double(-*telegram.power));
    }
    Q_EMIT powerChanged();

    const qint64 step = now / P1Recorder::step;
    if (wasFirst || step != knownStep) {
        knownStep = step;
        if (keeper) {
            keeper->keep(now, &readings);
        }
        Q_EMIT historyChanged();
    }
}
