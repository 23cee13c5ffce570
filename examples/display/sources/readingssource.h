// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef READINGSSOURCE_H
#define READINGSSOURCE_H

#include "energysource.h"

/** Readings from files, which do not change any more. Their last interval counts as now. */
class ReadingsSource : public EnergySource
{
    Q_OBJECT

public:
    explicit ReadingsSource(Readings::Household readings, QObject *parent = nullptr);

    const Readings::Household &household() const override { return readings; }
    std::optional<PowerReport> power() const override;
    double mostProduction() const override;
    bool isLive() const override { return false; }

private:
    const Readings::Household readings;
};

#endif
