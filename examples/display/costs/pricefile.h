// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_PRICEFILE_H
#define COSTS_PRICEFILE_H

#include "pricelist.h"

#include <QString>
#include <QStringList>

namespace Costs {

/** What files of prices tell. */
struct LoadedPrices
{
    PriceList prices;
    /** What is wrong with single rows, which are left out: "FILE:LINE: what". */
    QStringList problems;
    /** Why a file is of no use: "FILE: what" or "FILE:LINE: what". Empty if all are. */
    QString failure;
};

/**
 * Reads the prices of hours from CSV files with the columns "time" and "eur_per_kwh", which
 * docs/costs.md describes. Where two rows contradict each other, the first holds.
 */
LoadedPrices loadPrices(const QStringList &files);

} // namespace Costs

#endif
