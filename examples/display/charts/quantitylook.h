// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QUANTITYLOOK_H
#define QUANTITYLOOK_H

#include "quantity.h"

#include <QString>
#include <ZEMEnergyIcon>
#include <ZEMStyle>

/** How the display shows a quantity, wherever it does. */
struct QuantityLook
{
    QString caption; ///< one word in lower case: "verbruik"
    ZEMStyle::ZEMColor color; ///< of its bars
    ZEMEnergyIcon::Type icon;
};

QuantityLook lookOf(Readings::Quantity quantity);

#endif
