// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HOUSESOURCE_H
#define HOUSESOURCE_H

#include "energysource.h"
#include "houseclock.h"
#include "houserecorder.h"
#include "powerday.h"
#include "simulatedhouse.h"

#include <QTimer>

/** A simulated house with two years of history, which lives on. */
class HouseSource : public EnergySource, public MinutePower
{
    Q_OBJECT

public:
    /** The house lives by @p houseClock, from what that shows now. */
    explicit HouseSource(const HouseClock &houseClock, QObject *parent = nullptr);

    /** Counts the history. */
    void prepare() override;
    void start() override;
    QDateTime now() const override;
    const Readings::Household &household() const override { return readings; }
    std::optional<PowerReport> power() const override;
    double mostProduction() const override;
    bool isSimulated() const override { return true; }
    PowerDay powerDay(const QDate &date) const override;

private:
    void followClock();

    const HouseClock clock;
    SimulatedHouse house;
    Readings::Household readings;
    HouseRecorder recorder;
    qint64 instant;
    qint64 recorded;
    QTimer timer;
};

#endif
