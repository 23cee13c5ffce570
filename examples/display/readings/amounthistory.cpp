// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "amounthistory.h"

#include <algorithm>
#include <iterator>
#include <map>

namespace Readings {

namespace {

constexpr qint64 secondsPerHour = 3600;

bool overlap(const Interval &left, const Interval &right)
{
    return left.from < right.to && right.from < left.to;
}

} // namespace

AmountHistory::AmountHistory(double most) : mostPerHour(most) { }

void AmountHistory::add(const IntervalAmount &amount)
{
    if (!isPlausible(amount)) {
        foundFaults.push_back(
            {Fault::Kind::TooMuch, amount.interval.from, amount.amount, amount.tag});
    } else if (late.empty()
               && (rows.empty() || amount.interval.from >= rows.back().data.interval.to)) {
        append(amount);
    } else if (late.empty() && amount.interval == rows.back().data.interval) {
        reportDouble(rows.back().data, amount);
    } else {
        late.push_back(amount);
    }
}

std::optional<double> AmountHistory::amount(const Interval &interval) const
{
    settle();
    if (interval.isEmpty()) {
        return std::nullopt;
    }
    const RowIterator first = startingNotBefore(interval.from);
    if (first == rows.cend() || first->data.interval.from != interval.from) {
        return std::nullopt;
    }
    const RowIterator afterLast = endingAfter(interval.to);
    if (afterLast <= first) {
        return std::nullopt;
    }
    const RowIterator last = std::prev(afterLast);
    if (last->data.interval.to != interval.to || last->run != first->run) {
        return std::nullopt;
    }
    return last->sumAfter() - first->sumBefore;
}

double AmountHistory::total(const Interval &interval) const
{
    settle();
    const RowIterator first = startingNotBefore(interval.from);
    const RowIterator afterLast = endingAfter(interval.to);
    return first < afterLast ? std::prev(afterLast)->sumAfter() - first->sumBefore : 0.0;
}

std::optional<qint64> AmountHistory::firstInstant() const
{
    settle();
    if (rows.empty()) {
        return std::nullopt;
    }
    return rows.front().data.interval.from;
}

std::optional<qint64> AmountHistory::lastInstant() const
{
    settle();
    if (rows.empty()) {
        return std::nullopt;
    }
    return rows.back().data.interval.to;
}

std::optional<Interval> AmountHistory::lastStepUntil(qint64 instant) const
{
    settle();
    const RowIterator after = endingAfter(instant);
    if (after == rows.cbegin()) {
        return std::nullopt;
    }
    return std::prev(after)->data.interval;
}

std::vector<IntervalAmount> AmountHistory::all() const
{
    settle();
    std::vector<IntervalAmount> amounts;
    amounts.reserve(rows.size());
    for (const Row &row : rows) {
        amounts.push_back(row.data);
    }
    return amounts;
}

std::optional<qint64> AmountHistory::knownUntil(const Interval &interval) const
{
    settle();
    const RowIterator first = startingNotBefore(interval.from);
    RowIterator after = endingAfter(interval.to);
    if (first >= after || first->data.interval.from != interval.from) {
        return std::nullopt;
    }
    after = std::upper_bound(first, after, first->run,
                             [](int run, const Row &row) { return run < row.run; });
    return std::prev(after)->data.interval.to;
}

std::optional<qint64> AmountHistory::lastStart(qint64 instant) const
{
    settle();
    const RowIterator next = startingNotBefore(instant + 1);
    return next == rows.cbegin() ? std::nullopt
                                 : std::optional<qint64>(std::prev(next)->data.interval.from);
}

std::optional<qint64> AmountHistory::lastEnd(qint64 instant) const
{
    const std::optional<Interval> step = lastStepUntil(instant);
    return step ? std::optional<qint64>(step->to) : std::nullopt;
}

std::optional<qint64> AmountHistory::firstEnd(qint64 instant) const
{
    settle();
    const RowIterator found = endingAfter(instant - 1);
    return found == rows.cend() ? std::nullopt : std::optional<qint64>(found->data.interval.to);
}

bool AmountHistory::knowsPartOf(const Interval &interval) const
{
    settle();
    return startingNotBefore(interval.from) < endingAfter(interval.to);
}

std::vector<Fault> AmountHistory::faults() const
{
    settle();
    return foundFaults;
}

bool AmountHistory::isPlausible(const IntervalAmount &amount) const
{
    const qint64 elapsed = std::max(amount.interval.seconds(), secondsPerHour);
    return amount.amount <= mostPerHour * static_cast<double>(elapsed) / secondsPerHour;
}

void AmountHistory::append(const IntervalAmount &amount) const
{
    if (rows.empty()) {
        rows.push_back({amount, 0.0, 0});
        return;
    }
    const Row &last = rows.back();
    const bool touches = last.data.interval.to == amount.interval.from;
    rows.push_back({amount, last.sumAfter(), touches ? last.run : last.run + 1});
}

// The first that came holds, not the first by time: so late rows are taken in the order in which
// they came.
void AmountHistory::settle() const
{
    if (late.empty()) {
        return;
    }
    std::map<qint64, IntervalAmount> byStart;
    for (const Row &row : rows) {
        byStart.emplace_hint(byStart.end(), row.data.interval.from, row.data);
    }
    for (const IntervalAmount &added : late) {
        const auto next = byStart.lower_bound(added.interval.from);
        if (next != byStart.end() && overlap(next->second.interval, added.interval)) {
            reportDouble(next->second, added);
        } else if (next != byStart.begin()
                   && overlap(std::prev(next)->second.interval, added.interval)) {
            reportDouble(std::prev(next)->second, added);
        } else {
            byStart.emplace_hint(next, added.interval.from, added);
        }
    }
    late.clear();
    rows.clear();
    rows.reserve(byStart.size());
    for (const auto &entry : byStart) {
        append(entry.second);
    }
}

void AmountHistory::reportDouble(const IntervalAmount &known, const IntervalAmount &added) const
{
    const bool same = known.interval == added.interval;
    if (same && known.amount == added.amount) {
        return;
    }
    foundFaults.push_back({same ? Fault::Kind::Contradiction : Fault::Kind::Overlap,
                           added.interval.from, added.amount, added.tag});
}

AmountHistory::RowIterator AmountHistory::startingNotBefore(qint64 instant) const
{
    return std::lower_bound(rows.cbegin(), rows.cend(), instant, [](const Row &row, qint64 wanted) {
        return row.data.interval.from < wanted;
    });
}

AmountHistory::RowIterator AmountHistory::endingAfter(qint64 instant) const
{
    return std::upper_bound(rows.cbegin(), rows.cend(), instant, [](qint64 wanted, const Row &row) {
        return wanted < row.data.interval.to;
    });
}

} // namespace Readings
