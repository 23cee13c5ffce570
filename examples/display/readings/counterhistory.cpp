// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "counterhistory.h"

#include <algorithm>

namespace Readings {

CounterHistory::CounterHistory(double most) : mostPerHour(most), filter(most) { }

void CounterHistory::add(const Reading &reading)
{
    if (isSettled() && (!newest || reading.instant > newest->instant)) {
        filter.append(reading);
        newest = reading;
    } else if (isSettled() && reading.instant == newest->instant) {
        if (reading.value != newest->value) {
            contradictions.push_back(
                {Fault::Kind::Contradiction, reading.instant, reading.value, reading.tag});
        }
    } else {
        late.push_back(reading);
    }
}

void CounterHistory::replace(const Reading &reading)
{
    if (isSettled() && (!newest || reading.instant > newest->instant)) {
        add(reading);
    } else {
        retold[reading.instant] = reading;
    }
}

std::vector<Reading> CounterHistory::all() const
{
    settle();
    return collected();
}

void CounterHistory::thin(qint64 before, qint64 step)
{
    settle();
    filter.thin(before, step);
}

std::optional<double> CounterHistory::readingAt(qint64 instant) const
{
    settle();
    const KeptReading found = find(instant);
    if (found == filter.kept().cend()) {
        return std::nullopt;
    }
    return found->value;
}

std::optional<double> CounterHistory::amount(const Interval &interval) const
{
    settle();
    if (interval.isEmpty()) {
        return std::nullopt;
    }
    const KeptReading start = find(interval.from);
    const KeptReading end = find(interval.to);
    const KeptReading none = filter.kept().cend();
    if (start == none || end == none
        || filter.segmentOf(indexOf(start)) != filter.segmentOf(indexOf(end))) {
        return std::nullopt;
    }
    return end->value - start->value;
}

double CounterHistory::total(const Interval &interval) const
{
    settle();
    const KeptReading start = notBefore(interval.from);
    KeptReading end = notBefore(interval.to);
    if (end == filter.kept().cend() || end->instant > interval.to) {
        if (end == filter.kept().cbegin()) {
            return 0.0;
        }
        --end;
    }
    return start < end ? filter.counted(indexOf(end)) - filter.counted(indexOf(start)) : 0.0;
}

std::optional<qint64> CounterHistory::firstInstant() const
{
    settle();
    if (filter.kept().empty()) {
        return std::nullopt;
    }
    return filter.kept().front().instant;
}

std::optional<qint64> CounterHistory::lastInstant() const
{
    settle();
    if (filter.kept().empty()) {
        return std::nullopt;
    }
    return filter.kept().back().instant;
}

std::optional<Interval> CounterHistory::lastStepUntil(qint64 instant) const
{
    settle();
    KeptReading end = notBefore(instant);
    if (end == filter.kept().cend() || end->instant > instant) {
        if (end == filter.kept().cbegin()) {
            return std::nullopt;
        }
        --end;
    }
    if (end == filter.kept().cbegin()) {
        return std::nullopt;
    }
    return Interval {(end - 1)->instant, end->instant};
}

std::optional<qint64> CounterHistory::knownUntil(const Interval &interval) const
{
    settle();
    const KeptReading start = find(interval.from);
    if (interval.isEmpty() || start == filter.kept().cend()) {
        return std::nullopt;
    }
    const KeptReading last = after(interval.to) - 1;
    const std::size_t segment = filter.segmentOf(indexOf(start));
    if (filter.segmentOf(indexOf(last)) == segment) {
        return last->instant;
    }
    return filter.kept()[filter.endOf(segment) - 1].instant;
}

std::optional<qint64> CounterHistory::lastStart(qint64 instant) const
{
    settle();
    const KeptReading next = after(instant);
    return next == filter.kept().cbegin() ? std::nullopt
                                          : std::optional<qint64>((next - 1)->instant);
}

qint64 CounterHistory::knownSince(qint64 instant) const
{
    settle();
    const KeptReading end = find(instant);
    return end == filter.kept().cend()
        ? instant
        : filter.kept()[filter.beginOf(filter.segmentOf(indexOf(end)))].instant;
}

std::optional<qint64> CounterHistory::firstStart(qint64 instant) const
{
    settle();
    const KeptReading found = notBefore(instant);
    return found == filter.kept().cend() ? std::nullopt : std::optional<qint64>(found->instant);
}

Interval CounterHistory::readIn(const Interval &interval) const
{
    settle();
    const KeptReading first = notBefore(interval.from);
    const KeptReading end = after(interval.to);
    return first < end ? Interval {first->instant, (end - 1)->instant} : Interval();
}

bool CounterHistory::knowsPartOf(const Interval &interval) const
{
    settle();
    const KeptReading first = notBefore(interval.from);
    const KeptReading end = after(interval.to);
    if (end - first < 2) {
        return false;
    }
    // More readings than segments: two of them belong together.
    const std::size_t segments =
        filter.segmentOf(indexOf(end - 1)) - filter.segmentOf(indexOf(first)) + 1;
    return std::size_t(end - first) > segments;
}

std::vector<Fault> CounterHistory::faults() const
{
    settle();
    std::vector<Fault> all = contradictions;
    all.insert(all.end(), filter.faults().cbegin(), filter.faults().cend());
    if (const std::optional<Reading> &suspect = filter.undecided()) {
        all.push_back({Fault::Kind::Undecided, suspect->instant, suspect->value, suspect->tag});
    }
    return all;
}

// Puts late readings in their places and judges the whole history anew, since they may turn what
// looked like a break into a single wrong reading and the other way round.
void CounterHistory::settle() const
{
    if (isSettled()) {
        return;
    }
    const std::vector<Reading> all = collected();
    late.clear();
    retold.clear();
    filter = ReadingFilter(mostPerHour);
    const Reading *previous = nullptr;
    for (const Reading &reading : all) {
        if (!previous || reading.instant != previous->instant) {
            filter.append(reading);
            previous = &reading;
        } else if (reading.value != previous->value) {
            contradictions.push_back(
                {Fault::Kind::Contradiction, reading.instant, reading.value, reading.tag});
        }
    }
    newest = *previous;
}

// Two readings of an instant stay in the order in which they came.
std::vector<Reading> CounterHistory::collected() const
{
    std::vector<Reading> all;
    all.reserve(filter.kept().size() + filter.discarded().size() + late.size() + 1);
    all.insert(all.end(), filter.kept().cbegin(), filter.kept().cend());
    all.insert(all.end(), filter.discarded().cbegin(), filter.discarded().cend());
    if (filter.undecided()) {
        all.push_back(*filter.undecided());
    }
    all.insert(all.end(), late.cbegin(), late.cend());
    all.erase(std::remove_if(all.begin(), all.end(),
                             [&](const Reading &known) { return retold.count(known.instant) > 0; }),
              all.end());
    for (const auto &[instant, reading] : retold) {
        all.push_back(reading);
    }
    std::stable_sort(all.begin(), all.end(), [](const Reading &left, const Reading &right) {
        return left.instant < right.instant;
    });
    return all;
}

CounterHistory::KeptReading CounterHistory::notBefore(qint64 instant) const
{
    return std::lower_bound(
        filter.kept().cbegin(), filter.kept().cend(), instant,
        [](const Reading &kept, qint64 wanted) { return kept.instant < wanted; });
}

CounterHistory::KeptReading CounterHistory::after(qint64 instant) const
{
    return std::upper_bound(
        filter.kept().cbegin(), filter.kept().cend(), instant,
        [](qint64 wanted, const Reading &kept) { return wanted < kept.instant; });
}

std::size_t CounterHistory::indexOf(KeptReading kept) const
{
    return std::size_t(kept - filter.kept().cbegin());
}

CounterHistory::KeptReading CounterHistory::find(qint64 instant) const
{
    const KeptReading found = notBefore(instant);
    if (found == filter.kept().cend() || found->instant == instant) {
        return found;
    }
    return filter.kept().cend();
}

} // namespace Readings
