// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QUANTITYLOOK_H
#define QUANTITYLOOK_H

#include "quantity.h"

#include <QString>
#include <ZEMEnergyIcon>
#include <ZEMStyle>

/**
 * How the display shows a quantity, wherever it does. What is taken from the grid is called so: a
 * house with panels consumes more than that, see PowerKind::Consumption.
 */
struct QuantityLook
{
    QString caption; ///< in lower case: "van het net"
    ZEMStyle::ZEMColor color; ///< of its bars
    ZEMEnergyIcon::Type icon;
};

QuantityLook lookOf(Readings::Quantity quantity);

#endif
