// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "meter.h"

#include <algorithm>
#include <cmath>

namespace Readings {

namespace {

bool isQuantity(double value)
{
    return std::isfinite(value) && value >= 0.0;
}

/**
 * The last instant after @p start and until @p end up to which @p first knows, and from which on
 * @p second does.
 */
template <class First, class Second>
std::optional<qint64> lastSeam(const First &first, const Second &second, qint64 start, qint64 end)
{
    std::optional<qint64> seam = end;
    while (seam && *seam > start) {
        const std::optional<qint64> begins = second.lastStart(*seam);
        seam = begins ? first.lastEnd(*begins) : std::nullopt;
        if (seam && seam == begins && *seam > start) {
            return seam;
        }
    }
    return std::nullopt;
}

std::optional<qint64> bestSeam(const CounterHistory &first, const AmountHistory &second,
                               const Interval &interval)
{
    return lastSeam(first, second, interval.from, interval.to);
}

// What the counter knows there begins where it can, since readings hold over amounts.
std::optional<qint64> bestSeam(const AmountHistory &first, const CounterHistory &second,
                               const Interval &interval)
{
    const std::optional<qint64> last = lastSeam(first, second, interval.from, interval.to);
    if (!last) {
        return std::nullopt;
    }
    qint64 seam = std::max(second.knownSince(*last), interval.from + 1);
    while (seam < *last) {
        const qint64 ends = *first.firstEnd(seam);
        seam = *second.firstStart(ends);
        if (seam == ends) {
            break;
        }
    }
    return seam;
}

/**
 * The amount of an interval of which two histories know a part each, the first one its beginning.
 * What the other one knows at the last of their seams reaches as far as any.
 */
template <class First, class Second>
std::optional<double> amountInTurns(const First &first, const Second &second,
                                    const Interval &interval)
{
    const std::optional<qint64> until = first.knownUntil(interval);
    if (!until || *until == interval.to) {
        return until ? first.amount(interval) : std::nullopt;
    }
    const std::optional<qint64> seam = bestSeam(first, second, {interval.from, *until});
    if (!seam) {
        return std::nullopt;
    }
    const std::optional<double> rest = amountInTurns(second, first, {*seam, interval.to});
    return rest ? std::optional<double>(*first.amount({interval.from, *seam}) + *rest)
                : std::nullopt;
}

} // namespace

Meter::Meter(Kind kind, double most) : mostPerHour(most), amounts(most)
{
    if (kind == Kind::Counter) {
        takeReadings();
    }
}

Meter::Kind Meter::kind() const
{
    return counter ? Kind::Counter : Kind::Amounts;
}

void Meter::takeReadings()
{
    if (!counter) {
        counter.emplace(mostPerHour);
    }
}

bool Meter::addReading(qint64 instant, double value, qint64 tag)
{
    if (!counter || !isQuantity(value)) {
        return false;
    }
    counter->add({instant, value, tag});
    return true;
}

bool Meter::setReading(qint64 instant, double value)
{
    if (!counter || !isQuantity(value)) {
        return false;
    }
    counter->replace({instant, value, 0});
    return true;
}

bool Meter::addAmount(const Interval &interval, double amount, qint64 tag)
{
    if (interval.isEmpty() || !isQuantity(amount)) {
        return false;
    }
    amounts.add({interval, amount, tag});
    return true;
}

void Meter::thin(qint64 before, qint64 step)
{
    if (counter) {
        counter->thin(before, step);
    }
}

std::optional<double> Meter::amount(const Interval &interval) const
{
    if (!counter) {
        return amounts.amount(interval);
    }
    std::optional<double> known = counter->amount(interval);
    if (!known && !amounts.isEmpty()) {
        known = amountInTurns(*counter, amounts, interval);
        if (!known) {
            known = amountInTurns(amounts, *counter, interval);
        }
    }
    return known;
}

std::optional<double> Meter::amount(qint64 from, qint64 to) const
{
    return amount(Interval {from, to});
}

bool Meter::isRead(const Interval &interval) const
{
    return counter && counter->amount(interval);
}

std::optional<Measured> Meter::measured(const Interval &interval) const
{
    if (const std::optional<double> known = amount(interval)) {
        return Measured {*known, true};
    }
    const bool isPartKnown =
        amounts.knowsPartOf(interval) || (counter && counter->knowsPartOf(interval));
    return isPartKnown && !interval.isEmpty() ? std::optional<Measured>({total(interval), false})
                                              : std::nullopt;
}

double Meter::total(const Interval &interval) const
{
    if (!counter) {
        return amounts.total(interval);
    }
    if (amounts.isEmpty()) {
        return counter->total(interval);
    }
    if (const std::optional<double> known = amount(interval)) {
        return *known;
    }
    const Interval read = counter->readIn(interval);
    if (read.isEmpty()) {
        return amounts.total(interval);
    }
    return amounts.total({interval.from, read.from}) + counter->total(read)
        + amounts.total({read.to, interval.to});
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
    return counter ? counter->readingAt(instant) : std::nullopt;
}

std::optional<qint64> Meter::firstInstant() const
{
    const std::optional<qint64> read = counter ? counter->firstInstant() : std::nullopt;
    const std::optional<qint64> told = amounts.firstInstant();
    return read && told ? std::min(read, told) : std::max(read, told);
}

std::optional<qint64> Meter::lastInstant() const
{
    return std::max(counter ? counter->lastInstant() : std::nullopt, amounts.lastInstant());
}

std::optional<Interval> Meter::lastStepUntil(qint64 instant) const
{
    const std::optional<Interval> read = counter ? counter->lastStepUntil(instant) : std::nullopt;
    const std::optional<Interval> told = amounts.lastStepUntil(instant);
    if (!read || !told) {
        return read ? read : told;
    }
    if (read->to != told->to) {
        return read->to > told->to ? read : told;
    }
    return read->from >= told->from ? read : told;
}

std::vector<Reading> Meter::readings() const
{
    return counter ? counter->all() : std::vector<Reading>();
}

std::vector<IntervalAmount> Meter::amountRows() const
{
    return amounts.all();
}

std::vector<Fault> Meter::faults() const
{
    std::vector<Fault> all = amounts.faults();
    if (counter) {
        const std::vector<Fault> ofCounter = counter->faults();
        all.insert(all.end(), ofCounter.cbegin(), ofCounter.cend());
    }
    return all;
}

} // namespace Readings
