// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "readingfilter.h"

#include "thinning.h"

#include <algorithm>
#include <iterator>

namespace Readings {

namespace {

constexpr qint64 SecondsPerHour = 3600;

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
    const auto oldEnd = std::find_if_not(keptReadings.begin(), keptReadings.end(),
                                         [&](const Kept &kept) { return isOld(kept.reading); });
    std::vector<Reading> old;
    std::transform(keptReadings.begin(), oldEnd, std::back_inserter(old),
                   [](const Kept &kept) { return kept.reading; });
    const std::vector<bool> isDispensable = dispensable(old, step, mostPerHour);
    std::size_t index = 0;
    keptReadings.erase(std::remove_if(keptReadings.begin(), oldEnd,
                                      [&](const Kept &) { return isDispensable[index++]; }),
                       oldEnd);
    discardedReadings.erase(
        std::remove_if(discardedReadings.begin(), discardedReadings.end(), isOld),
        discardedReadings.end());
}

double ReadingFilter::counted(const Kept &reading) const
{
    return reading.reading.value + segmentOffsets[static_cast<std::size_t>(reading.segment)];
}

bool ReadingFilter::follows(const Reading &earlier, const Reading &later) const
{
    const qint64 elapsed = std::max(later.instant - earlier.instant, SecondsPerHour);
    const double most = mostPerHour * static_cast<double>(elapsed) / SecondsPerHour;
    return later.value >= earlier.value && later.value - earlier.value <= most;
}

// Decides about a reading that did not follow from the last one kept.
void ReadingFilter::decide(const Reading &suspect, const Reading &next)
{
    const Reading last = keptReadings.back().reading;
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
        segmentOffsets.push_back(0.0);
        keep(reading);
    } else if (follows(keptReadings.back().reading, reading)) {
        keep(reading);
    } else {
        waiting = reading;
    }
}

void ReadingFilter::keep(const Reading &reading)
{
    keptReadings.push_back({reading, static_cast<int>(segmentOffsets.size()) - 1});
}

void ReadingFilter::keepAfterBreak(const Reading &reading)
{
    segmentOffsets.push_back(counted(keptReadings.back()) - reading.value);
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
    const Kept &last = keptReadings.back();
    const Kept &lastButOne = keptReadings[keptReadings.size() - 2];
    return lastButOne.segment == last.segment && follows(lastButOne.reading, suspect);
}

} // namespace Readings
