// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "histogramslots_p.h"

QwtInterval HistogramBarShape::interval(double slotStart, double width) const
{
    const double start = slotStart + inset + shift;
    const double end = width - (inset + inset) + start;
    return QwtInterval(start, end, flags);
}

unsigned int endOfRun(unsigned int start, unsigned int count, const double *values)
{
    unsigned int end = start + 1;
    while (end < count && values[end] == values[start]) {
        ++end;
    }
    return end;
}

void HistogramSlots::resize(int count)
{
    lastBar = count > 0 && lastBar >= 0 ? barAtOrBefore(count - 1) : -1;
    // A vector that grows by itself takes up to twice the room.
    samples.reserve(count);
    samples.resize(count);
    nearestBar.reserve(count);
    nearestBar.resize(count);
}

void HistogramSlots::writeBars(double x, unsigned int index, unsigned int count,
                               const double *values, const HistogramBarShape &shape)
{
    for (unsigned int i = 0; i < count; ++i) {
        put(index, i, QwtIntervalSample(values[i], shape.interval(i + x, 1.0)));
    }
    updateNearestBars(index, count);
}

int HistogramSlots::writeRuns(double x, unsigned int index, unsigned int count,
                              const double *values, const HistogramBarShape &shape)
{
    for (unsigned int i = 0; i < count; ++i) {
        put(index, i, QwtIntervalSample());
    }

    int runs = 0;
    unsigned int i = 0;
    do {
        const unsigned int end = endOfRun(i, count, values);
        put(index, i, QwtIntervalSample(values[i], shape.interval(x + i, end - i)));
        ++runs;
        i = end;
    } while (i < count);

    updateNearestBars(index, qMax(count, 1u));
    return runs;
}

void HistogramSlots::clearValue(unsigned int index, unsigned int count, double value)
{
    const int end = bounded(index, count);
    for (int k = bounded(index, 0); k < end; ++k) {
        if (samples.at(k).value == value) {
            samples[k].value = 0.0;
            samples[k].interval.invalidate();
        }
    }
    updateNearestBars(index, count);
}

void HistogramSlots::put(unsigned int index, unsigned int offset, const QwtIntervalSample &sample)
{
    const quint64 k = quint64(index) + offset;
    if (k < quint64(samples.size())) {
        samples[int(k)] = sample;
    }
}

int HistogramSlots::bounded(unsigned int index, unsigned int count) const
{
    return int(qMin(quint64(index) + count, quint64(samples.size())));
}

void HistogramSlots::updateNearestBars(unsigned int index, unsigned int count)
{
    const int first = bounded(index, 0);
    const int end = bounded(index, count);
    int bar = first > 0 ? barAtOrBefore(first - 1) : -1;
    for (int k = first; k < end; ++k) {
        if (samples.at(k).interval.isValid()) {
            bar = k;
        }
        nearestBar[k] = bar;
    }
    if (end > lastBar) {
        // What lies between the last bar and a later one was not kept.
        for (int k = lastBar + 1; bar >= first && k < first; ++k) {
            nearestBar[k] = lastBar;
        }
        lastBar = bar;
        return;
    }
    // Up to the next bar the slots behind all name the same one, so the first that already names
    // the right one ends the work, as does that bar itself.
    for (int k = end; nearestBar.at(k) != k && nearestBar.at(k) != bar; ++k) {
        nearestBar[k] = bar;
    }
}
