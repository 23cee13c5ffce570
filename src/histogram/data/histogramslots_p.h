// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HISTOGRAMSLOTS_P_H
#define HISTOGRAMSLOTS_P_H

#include <QVector>

#include <qwt_interval.h>
#include <qwt_samples.h>

/** How a bar stands in the slots that it covers. Lengths are in slots. */
struct HistogramBarShape
{
    double inset = 0.0; ///< gap on each side
    double shift = 0.0; ///< added to the start
    QwtInterval::BorderFlags flags = QwtInterval::ExcludeMaximum;

    /** The x range of a bar over @p width slots, the first of which begins at @p slotStart. */
    QwtInterval interval(double slotStart, double width) const;
};

/** Index behind the run of equal values that begins at @p start; at least @p start + 1. */
unsigned int endOfRun(unsigned int start, unsigned int count, const double *values);

/**
 * The samples of all slots of a chart's series, and for each slot the nearest one at or before it
 * that holds a bar. That is kept up to date by the writers, so that a reader finds the bar that
 * reaches into its view with one look, however long the history before the view is.
 *
 * What a writer would put outside of the array is dropped.
 */
class HistogramSlots
{
public:
    int count() const { return samples.size(); }
    /** @p index must lie within the array. */
    const QwtIntervalSample &at(int index) const { return samples.at(index); }
    /** The nearest slot with a valid interval at or before @p index; -1 when there is none. */
    int barAtOrBefore(int index) const { return index < lastBar ? nearestBar.at(index) : lastBar; }

    /** Keeps what is there; new slots are empty. */
    void resize(int count);
    /** Writes one bar per value; the slot @p index begins at @p x. */
    void writeBars(double x, unsigned int index, unsigned int count, const double *values,
                   const HistogramBarShape &shape);
    /**
     * Writes one bar per run of equal values into the first slot of the run and empties the others.
     * Reads and writes the first value even if @p count is 0. Returns the number of runs.
     */
    int writeRuns(double x, unsigned int index, unsigned int count, const double *values,
                  const HistogramBarShape &shape);
    /** Empties the slots whose value is @p value; their border flags stay. */
    void clearValue(unsigned int index, unsigned int count, double value);

private:
    void put(unsigned int index, unsigned int offset, const QwtIntervalSample &sample);
    int bounded(unsigned int index, unsigned int count) const;
    void updateNearestBars(unsigned int index, unsigned int count);

    QVector<QwtIntervalSample> samples;
    // Of the slots before the last bar. A history is filled from its beginning on, and the slots
    // that are still empty would all be told of every new bar.
    QVector<int> nearestBar;
    int lastBar = -1;
};

#endif
