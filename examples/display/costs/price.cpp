// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "price.h"

#include <cmath>

using Readings::Quantity;

namespace Costs {

namespace {

constexpr double pricesPerEuro = 1e5;

} // namespace

std::optional<Price> exactPrice(double euro, double most)
{
    const std::optional<Price> price = roundedPrice(euro, most);
    // Both are the double that is nearest to the same decimal number, if it is one.
    return price && double(*price) / pricesPerEuro == euro ? price : std::nullopt;
}

std::optional<Price> roundedPrice(double euro, double most)
{
    if (!(std::fabs(euro) <= most)) {
        return std::nullopt;
    }
    return std::llround(euro * pricesPerEuro);
}

double mostOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Gas:
    case Quantity::Water:
        return 100.0;
    case Quantity::Heating:
        return 1000.0;
    default:
        return 10.0;
    }
}

} // namespace Costs
