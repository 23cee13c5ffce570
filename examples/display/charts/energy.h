// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ENERGY_H
#define ENERGY_H

#include "calendar.h"

#include <QString>
#include <ZEM>
#include <ZEMStyle>
#include <vector>

namespace Readings {
class Household;
}

/** One series of a chart. */
struct EnergySeries
{
    QString name; ///< in the legend
    QString caption; ///< amid other words
    ZEMStyle::ZEMColor color = ZEMStyle::White;
    Readings::Calendar::Meters meters; ///< summed up
};

/** What the chart page shows of one energy. */
struct Energy
{
    QString key; ///< in the names of pictures: "electricity"
    ZEM::ZEMTab tab = ZEM::TabElectricity; ///< its tab on the chart page
    QString unit; ///< of its value axes
    std::vector<EnergySeries> consumption; ///< the chart, from the back to the front
    std::vector<EnergySeries> yield; ///< the chart under it; none without series
};

/**
 * The energies that @p household measures, in the order of their tabs. It must outlive them. A low
 * tariff has bars of its own if @p showTariffs is true.
 */
std::vector<Energy> energiesOf(const Readings::Household &household, bool showTariffs = true);

#endif
