// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ENERGYSOURCE_H
#define ENERGYSOURCE_H

#include "household.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVector>
#include <algorithm>
#include <optional>

/** What power goes into. The panel of devices has room for these four. */
enum class Device { HeatPump, Car, Kitchen, Rest };

/** Power in watts. */
struct DevicePower
{
    Device device = Device::Rest;
    double watts = 0.0;
    double most = 0.0; ///< at which the device is fully on
};

/**
 * The power that flows now, in watts. Consumption and production are never negative, and empty
 * where no meter tells them: what the panels of a house without a meter for them make, and what it
 * uses behind them.
 */
struct PowerReport
{
    double grid = 0.0; ///< taken from the grid; negative while the house delivers
    std::optional<double> consumption = {};
    std::optional<double> production = {};
    QVector<DevicePower> devices = {}; ///< parts of the consumption
    double battery = 0.0; ///< what it gives; negative while it is charged

    /** The least that the panels make. */
    double leastProduction() const { return production.value_or(std::max(-grid - battery, 0.0)); }

    /** Works out the consumption, if it can be told of a house that @p delivers, or never did. */
    void tellConsumption(bool delivers)
    {
        if (production || (!delivers && grid + battery >= 0.0)) {
            consumption = std::max(grid + production.value_or(0.0) + battery, 0.0);
        }
    }
};

/** Where the display has its numbers from: files, a smart meter or a simulated house. */
class EnergySource : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * Works out what there is to show at first, which may take seconds. Called once before all
     * else; may run in a thread of its own while nobody else uses the source.
     */
    virtual void prepare() { }

    /** Begins to tell of changes. Called once, when somebody listens. */
    virtual void start() { }

    /** The time of the household, on its clock. */
    virtual QDateTime now() const
    {
        return QDateTime::currentDateTime().toTimeZone(household().timeZone);
    }

    /** What the meters counted. It is the same object as long as the source lives. */
    virtual const Readings::Household &household() const = 0;
    /** The latest power; empty if it was never known. */
    virtual std::optional<PowerReport> power() const = 0;
    /** The production at which the panels give all they can, in watts; 0 without panels. */
    virtual double mostProduction() const = 0;
    /** Whether the readings go on; what does not is shown as the past, with its date. */
    virtual bool isLive() const { return true; }
    /** Whether nobody lives in the house, which every page then says. */
    virtual bool isSimulated() const { return false; }
    /** Whether the meter is heard. */
    virtual bool isMetering() const { return true; }

Q_SIGNALS:
    void powerChanged();
    /** The meters counted on: the charts have more to show. */
    void historyChanged();
    void meteringChanged(bool metering);
    /**
     * Something is wrong, told in one line. Lines of one @p kind are news of the same thing, of
     * which the last is worth reading; a line without one is of its own kind.
     */
    void problem(const QString &line, const QString &kind = QString());
};

#endif
