// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ENERGYSOURCE_H
#define ENERGYSOURCE_H

#include "household.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVector>

/** What power goes into. The panel of devices has room for these four. */
enum class Device { HeatPump, Car, Kitchen, Rest };

/** Power in watts. */
struct DevicePower
{
    Device device = Device::Rest;
    double watts = 0.0;
    double most = 0.0; ///< at which the device is fully on
};

/** The power that flows now, in watts; none of it is negative but that of a battery. */
struct PowerReport
{
    double consumption = 0.0;
    double production = 0.0;
    QVector<DevicePower> devices; ///< parts of the consumption
    double battery = 0.0; ///< what it gives; negative while it is charged

    /** Taken from the grid; negative while the house delivers. */
    double grid() const { return consumption - production - battery; }
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
    /** Whether nobody lives in the house, which every page then says. */
    virtual bool isSimulated() const { return false; }
    /** Whether the meter is heard. */
    virtual bool isMetering() const { return true; }

Q_SIGNALS:
    void powerChanged();
    /** The meters counted on: the charts have more to show. */
    void historyChanged();
    void meteringChanged(bool metering);
    /** Something is wrong, told in one line. */
    void problem(const QString &line);
};

#endif
