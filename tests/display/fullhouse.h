// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FULLHOUSE_H
#define FULLHOUSE_H

#include "playedsource.h"

/** A house with every meter and device, and numbers as wide as they get. */
class FullHouse : public PlayedSource
{
public:
    explicit FullHouse(int days = 60)
    {
        using Readings::Quantity;
        for (const Quantity quantity : {Quantity::GridExport, Quantity::SolarProduction,
                                        Quantity::Gas, Quantity::Heating, Quantity::Water}) {
            count(quantity, days, 1.25);
        }
        count(Quantity::GridImport, days, 0.5, Readings::Tariff::Low);
        count(Quantity::GridImport, days, 0.75, Readings::Tariff::Normal);
        time = QDateTime(QDate(2016, 5, 5), QTime(20, 48), readings.timeZone);
        report = PowerReport {-11800.0,
                              12400.0,
                              24200.0,
                              {{Device::HeatPump, 11300.0, 12000.0},
                               {Device::Car, 11800.0, 12000.0},
                               {Device::Kitchen, 10800.0, 12000.0},
                               {Device::Rest, 12400.0, 13000.0}}};
        simulated = true;
    }
};

#endif
