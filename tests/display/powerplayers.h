// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef POWERPLAYERS_H
#define POWERPLAYERS_H

#include "calendar.h"
#include "energysource.h"
#include "powerday.h"
#include "simulatedhouse.h"

#include <cmath>
#include <limits>
#include <map>
#include <vector>

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
inline const QTimeZone dutchZone("Europe/Amsterdam");
inline const QDate lastDate(2024, 6, 21);

/** A source that a test plays: meters that are read each minute. */
class MeterPlayer : public EnergySource
{
public:
    MeterPlayer() { readings.timeZone = dutchZone; }

    const Readings::Household &household() const override
    {
        ++questions;
        return readings;
    }
    std::optional<PowerReport> power() const override { return std::nullopt; }
    double mostProduction() const override { return 0.0; }
    QDateTime now() const override { return QDateTime(lastDate, QTime(12, 0), dutchZone); }

    /** Counts on from where the meter stands, a minute for each power. */
    void count(Readings::Quantity quantity, const QDate &date, const std::vector<double> &watts)
    {
        Readings::Meter &meter =
            readings.meter({quantity, Readings::Tariff::Single}, Readings::Meter::Kind::Counter);
        qint64 instant = Readings::Calendar(dutchZone).day(date).from;
        double &reading = counters[quantity];
        meter.addReading(instant, reading);
        for (const double power : watts) {
            instant += 60;
            reading += power / 60000.0;
            meter.addReading(instant, reading);
        }
    }

    Readings::Household readings;
    mutable int questions = 0;

private:
    std::map<Readings::Quantity, double> counters;
};

/** A simulated house, which knows each minute. */
class HousePlayer : public EnergySource, public MinutePower
{
public:
    explicit HousePlayer(const QDate &date)
        : house(20161, {52.09, 5.12}, dutchZone,
                Readings::Calendar(dutchZone).day(date.addDays(-3)).from),
          until(Readings::Calendar(dutchZone).day(date).to), readings(house.history(until))
    {
    }

    const Readings::Household &household() const override { return readings; }
    std::optional<PowerReport> power() const override
    {
        return PowerReport {-1460.0, 850.0, 2310.0};
    }
    double mostProduction() const override { return 3600.0; }
    QDateTime now() const override { return QDateTime(lastDate, QTime(12, 0), dutchZone); }
    PowerDay powerDay(const QDate &date) const override { return ::powerDay(house, date, until); }

private:
    const SimulatedHouse house;
    const qint64 until;
    const Readings::Household readings;
};

/** A day of this many samples: consumption is a saw tooth, production a hill. */
inline PowerDay dayOfSamples(std::size_t count)
{
    PowerDay day;
    day.date = lastDate;
    day.timeZone = dutchZone;
    day.interval = Readings::Calendar(dutchZone).day(lastDate);
    PowerCurve consumption {PowerKind::Consumption, std::vector<double>(count)};
    PowerCurve production {PowerKind::Production, std::vector<double>(count)};
    for (std::size_t i = 0; i < count; ++i) {
        const double part = double(i) / double(count);
        consumption.watts[i] = 300.0 + double((i * 7919) % 600);
        production.watts[i] = 3000.0 + 500.0 * std::sin(part * 6.28);
    }
    day.curves = {consumption, production};
    day.gridByHour.assign(24, 400.0);
    return day;
}

#endif
