// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "readingfilter.h"

#include "thinning.h"

#include <algorithm>

namespace Readings {

namespace {

constexpr qint64 secondsPerHour = 3600;

} // namespace

ReadingFilter::ReadingFilter(double most) : mostPerHour(most) { }

void ReadingFilter::append(const Reading &reading)
{
    if (waiting) {
        const Reading suspect = *waiting;
        waiting.reset();
        decide(suspect, reading);
    }
    accept(reading);
}

void ReadingFilter::thin(qint64 before, qint64 step)
{
    const auto isOld = [&](const Reading &reading) { return reading.instant < before; };
    const auto oldEnd = std::find_if_not(keptReadings.cbegin(), keptReadings.cend(), isOld);
    std::vector<bool> isDispensable =
        dispensable({keptReadings.cbegin(), oldEnd}, step, mostPerHour);
    isDispensable.resize(keptReadings.size(), false);

    std::vector<Reading> needed;
    auto segment = segments.begin();
    for (std::size_t i = 0; i < keptReadings.size(); ++i) {
        if (segment != segments.end() && segment->begin == i) {
            segment->begin = needed.size();
            ++segment;
        }
        if (!isDispensable[i]) {
            needed.push_back(keptReadings[i]);
        }
    }
    keptReadings = std::move(needed);
    keptReadings.shrink_to_fit();
    discardedReadings.erase(
        std::remove_if(discardedReadings.begin(), discardedReadings.end(), isOld),
        discardedReadings.end());
}

std::size_t ReadingFilter::segmentOf(std::size_t index) const
{
    const auto next =
        std::upper_bound(segments.cbegin(), segments.cend(), index,
                         [](std::size_t at, const Segment &segment) { return at < segment.begin; });
    return std::size_t(next - segments.cbegin()) - 1;
}

std::size_t ReadingFilter::endOf(std::size_t segment) const
{
    return segment + 1 < segments.size() ? segments[segment + 1].begin : keptReadings.size();
}

double ReadingFilter::counted(std::size_t index) const
{
    return keptReadings[index].value + segments[segmentOf(index)].offset;
}

bool ReadingFilter::follows(const Reading &earlier, const Reading &later) const
{
    const qint64 elapsed = std::max(later.instant - earlier.instant, secondsPerHour);
    const double most = mostPerHour * static_cast<double>(elapsed) / secondsPerHour;
    return later.value >= earlier.value && later.value - earlier.value <= most;
}

// Decides about a reading that did not follow from the last one kept.
void ReadingFilter::decide(const Reading &suspect, const Reading &next)
{
    const Reading last = keptReadings.back();
    const bool stepsBack = suspect.value < last.value;
    const bool nextFollowsLast = follows(last, next);
    if (stepsBack) {
        if (nextFollowsLast) {
            discard(suspect, Fault::Kind::StepBack);
        } else if (lastWasWrong(suspect)) {
            keptReadings.pop_back();
            discard(last, Fault::Kind::Leap);
            keep(suspect);
        } else {
            keepAfterBreak(suspect);
        }
        return;
    }
    // A counter that leaps and stays up belongs to another meter, even if enough time has passed by
    // now to use as much; one that falls below where it came from was never up there.
    const bool comesDown =
        next.value < suspect.value && (nextFollowsLast || next.value < last.value);
    if (comesDown) {
        discard(suspect, Fault::Kind::Leap);
    } else {
        keepAfterBreak(suspect);
    }
}

void ReadingFilter::accept(const Reading &reading)
{
    if (keptReadings.empty()) {
        segments.push_back({0, 0.0});
        keep(reading);
    } else if (follows(keptReadings.back(), reading)) {
        keep(reading);
    } else {
        waiting = reading;
    }
}

void ReadingFilter::keep(const Reading &reading)
{
    keptReadings.push_back(reading);
}

void ReadingFilter::keepAfterBreak(const Reading &reading)
{
    segments.push_back({keptReadings.size(), counted(keptReadings.size() - 1) - reading.value});
    keep(reading);
    foundFaults.push_back({Fault::Kind::Break, reading.instant, reading.value, reading.tag});
}

void ReadingFilter::discard(const Reading &reading, Fault::Kind kind)
{
    discardedReadings.push_back(reading);
    foundFaults.push_back({kind, reading.instant, reading.value, reading.tag});
}

bool ReadingFilter::lastWasWrong(const Reading &suspect) const
{
    if (keptReadings.size() < 2) {
        return false;
    }
    const std::size_t last = keptReadings.size() - 1;
    return segmentOf(last - 1) == segmentOf(last) && follows(keptReadings[last - 1], suspect);
}

} // namespace Readings
