// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "cost.h"

#include <cmath>

namespace Costs {

namespace {

constexpr double thousandths = 1000.0;
constexpr qint64 perCent = 1000000;

} // namespace

void Cost::add(qint64 amount, Price price)
{
    known += amount * price;
    isPartKnown = true;
}

void Cost::add(const std::optional<Readings::Measured> &measured, Price price)
{
    if (measured) {
        add(thousandthsOf(measured->amount), price);
    }
    if (!measured || !measured->isComplete) {
        addUnknown(price);
    }
}

void Cost::addUnknown(Price price)
{
    mayBeMore = mayBeMore || price > 0;
    mayBeLess = mayBeLess || price < 0;
}

void Cost::addUnknown()
{
    mayBeMore = true;
    mayBeLess = true;
}

Cost Cost::rounded() const
{
    Cost whole = *this;
    whole.known = cents() * perCent;
    return whole;
}

qint64 Cost::cents() const
{
    const qint64 half = known < 0 ? -perCent / 2 : perCent / 2;
    return (known + half) / perCent;
}

Cost operator+(const Cost &left, const Cost &right)
{
    return {left.known + right.known, left.isPartKnown || right.isPartKnown,
            left.mayBeMore || right.mayBeMore, left.mayBeLess || right.mayBeLess};
}

qint64 thousandthsOf(double amount)
{
    return std::llround(amount * thousandths);
}

} // namespace Costs
