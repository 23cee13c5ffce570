// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef METERSOURCE_H
#define METERSOURCE_H

#include "breakwatch.h"
#include "energysource.h"
#include "historykeeper.h"
#include "livemeter.h"
#include "p1recorder.h"
#include "p1source.h"

#include <memory>

/**
 * A smart meter, on its P1 port or in another way. What it counts fills the charts from now on, and
 * where a history is kept, from the first day on that it was followed.
 */
class MeterSource : public EnergySource
{
    Q_OBJECT

public:
    /**
     * @p address and @p settings as at P1Source. The history is kept in @p historyDirectory, see
     * HistoryKeeper; if it is empty, nothing is kept.
     */
    MeterSource(const QString &address, const P1Settings &settings, const QString &historyDirectory,
                QObject *parent = nullptr);
    /** Follows @p meter. */
    MeterSource(std::unique_ptr<LiveMeter> meter, const QString &historyDirectory,
                QObject *parent = nullptr);
    ~MeterSource() override;

    /** Reads the history; what is wrong with it is in household().problems as well. */
    void prepare() override;
    /**
     * Shows what files tell of the household besides. It is not kept in the history. To be called
     * once, after prepare() and before start().
     */
    void addOlder(Readings::Household older) { readings.add(std::move(older)); }
    void start() override;
    const Readings::Household &household() const override { return readings; }
    std::optional<PowerReport> power() const override;
    double mostProduction() const override;
    bool isMetering() const override;

Q_SIGNALS:
    /** A file is at its end. */
    void ended();

private:
    void take(const P1Telegram &telegram);
    void compareClocks(qint64 toldTime);

    Readings::Household readings;
    const std::unique_ptr<HistoryKeeper> keeper;
    P1Recorder recorder;
    Readings::BreakWatch breaks;
    const std::unique_ptr<LiveMeter> meter;
    double mostProduced = 0.0; ///< watts; without a meter of the panels, what was delivered
    qint64 knownStep = 0;
    bool isClockAhead = false;
};

#endif
