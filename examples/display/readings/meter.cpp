// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "meter.h"

#include <cmath>

namespace Readings {

namespace {

bool isQuantity(double value)
{
    return std::isfinite(value) && value >= 0.0;
}

std::variant<CounterHistory, AmountHistory> newHistory(Meter::Kind kind, double mostPerHour)
{
    if (kind == Meter::Kind::Counter) {
        return CounterHistory(mostPerHour);
    }
    return AmountHistory(mostPerHour);
}

} // namespace

Meter::Meter(Kind kind, double mostPerHour) : history(newHistory(kind, mostPerHour)) { }

Meter::Kind Meter::kind() const
{
    return std::holds_alternative<CounterHistory>(history) ? Kind::Counter : Kind::Amounts;
}

bool Meter::addReading(qint64 instant, double value, qint64 tag)
{
    auto *counter = std::get_if<CounterHistory>(&history);
    if (!counter || !isQuantity(value)) {
        return false;
    }
    counter->add({instant, value, tag});
    return true;
}

bool Meter::addAmount(const Interval &interval, double amount, qint64 tag)
{
    auto *amounts = std::get_if<AmountHistory>(&history);
    if (!amounts || interval.isEmpty() || !isQuantity(amount)) {
        return false;
    }
    amounts->add({interval, amount, tag});
    return true;
}

void Meter::thin(qint64 before, qint64 step)
{
    if (auto *counter = std::get_if<CounterHistory>(&history)) {
        counter->thin(before, step);
    }
}

std::optional<double> Meter::amount(const Interval &interval) const
{
    return std::visit([&](const auto &known) { return known.amount(interval); }, history);
}

std::optional<double> Meter::amount(qint64 from, qint64 to) const
{
    return amount(Interval {from, to});
}

double Meter::total(const Interval &interval) const
{
    return std::visit([&](const auto &known) { return known.total(interval); }, history);
}

double Meter::total(qint64 from, qint64 to) const
{
    return total(Interval {from, to});
}

double Meter::total() const
{
    const std::optional<qint64> first = firstInstant();
    return first ? total(*first, *lastInstant()) : 0.0;
}

std::optional<double> Meter::readingAt(qint64 instant) const
{
    const auto *counter = std::get_if<CounterHistory>(&history);
    return counter ? counter->readingAt(instant) : std::nullopt;
}

std::optional<qint64> Meter::firstInstant() const
{
    return std::visit([](const auto &known) { return known.firstInstant(); }, history);
}

std::optional<qint64> Meter::lastInstant() const
{
    return std::visit([](const auto &known) { return known.lastInstant(); }, history);
}

std::optional<Interval> Meter::lastStepUntil(qint64 instant) const
{
    return std::visit([&](const auto &known) { return known.lastStepUntil(instant); }, history);
}

std::vector<Fault> Meter::faults() const
{
    return std::visit([](const auto &known) { return known.faults(); }, history);
}

} // namespace Readings
