// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ENERGYCHART_H
#define ENERGYCHART_H

#include "chartvalues.h"
#include "energy.h"

#include <functional>

class QwtPlot;
class ZEMHistogram;
class AmountSeries;

/** Heights of the plots of a chart in pixels, x axis included. */
struct PlotHeights
{
    int alone; ///< of a chart without a lower one
    int upper;
    int lower;
};

/**
 * The chart of one energy and one period: consumption, and under it what the house yields, if it
 * does. It shows nothing until it is fed.
 */
class EnergyChart
{
public:
    /** The meters of @p energy must outlive the chart. */
    EnergyChart(const Energy &energy, Period period, const PlotHeights &heights);

    /** The widget, which the page takes into its layout. */
    ZEMHistogram *widget() const { return upper; }

    /** Reads the meters over the dates of @p range and draws the bars anew. */
    void feed(const Readings::Calendar &calendar, const DateRange &range);

private:
    struct Series
    {
        AmountSeries *item;
        Readings::Calendar::Meters meters;
    };

    template <class Base>
    void make(const Energy &energy, const PlotHeights &heights);
    static std::vector<Series> addSeries(ZEMHistogram *chart,
                                         const std::vector<EnergySeries> &allSeries);
    void feed(ZEMHistogram *chart, const std::vector<Series> &allSeries,
              const Readings::Calendar &calendar, const DateRange &range);

    const Period period;
    bool isFed = false;
    ZEMHistogram *upper = nullptr;
    /** Tells the headline which slots are incomplete. */
    std::function<void(const std::set<int> &)> markSlots;
    ZEMHistogram *lower = nullptr;
    std::set<int> incomplete;
    std::vector<Series> upperSeries;
    std::vector<Series> lowerSeries;
};

#endif
