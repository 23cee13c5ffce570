// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef COSTS_PRICE_H
#define COSTS_PRICE_H

#include "quantity.h"

#include <QtGlobal>
#include <optional>

namespace Costs {

/**
 * What a unit of a quantity costs, or a month of a standing charge, in hundred-thousandths of a
 * euro. Whole numbers, since a double holds no price: 0.1 is none in binary.
 */
using Price = qint64;

constexpr int priceDecimals = 5;

/** So many euro; empty if there are more decimals than a price has, or more than @p most euro. */
std::optional<Price> exactPrice(double euro, double most);
/** So many euro, rounded; empty if there are more than @p most. */
std::optional<Price> roundedPrice(double euro, double most);

/**
 * The most euro that a unit of a quantity costs or brings in; a price beyond was told for another
 * unit.
 */
double mostOf(Readings::Quantity quantity);

} // namespace Costs

#endif
