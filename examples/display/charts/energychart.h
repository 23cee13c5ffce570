// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ENERGYCHART_H
#define ENERGYCHART_H

#include "chartvalues.h"
#include "energy.h"

#include <QCoreApplication>
#include <functional>
#include <optional>

class QwtInterval;
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
 * does. It shows nothing until it is fed. Below the headline stand the totals of the view, and
 * after a tap on a bar what it stands for, until the next touch.
 */
class EnergyChart
{
    Q_DECLARE_TR_FUNCTIONS(EnergyChart)

public:
    /** The meters of @p energy must outlive the chart, and it must outlive its widget(). */
    EnergyChart(const Energy &energy, Period period, const PlotHeights &heights);

    /** The widget, which the page takes into its layout. */
    ZEMHistogram *widget() const { return upper; }

    /**
     * Reads the meters over the dates of @p range and draws the bars anew. The headline tells the
     * year of a view unless it is that of @p itsToday.
     */
    void feed(const Readings::Calendar &houseCalendar, const DateRange &range,
              const QDate &itsToday);

    /** Forgets which bar was tapped. */
    void unpick();

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
    void feed(ZEMHistogram *chart, const std::vector<Series> &allSeries, const DateRange &range);

    void watch(QwtPlot *plot);
    void pick(std::optional<int> slot);
    Readings::Interval intervalOf(int slot) const;
    QString headline(const QString &plain, const QwtInterval &view) const;
    QString yearOf(int firstSlot, int lastSlot) const;
    QString amounts(const Readings::Interval &interval) const;

    const Period period;
    const QString unit;
    bool isFed = false;
    Readings::Calendar calendar {QTimeZone::utc()};
    QDate newestWindow; ///< the date of x = 0
    QDate today;
    std::optional<int> picked;
    ZEMHistogram *upper = nullptr;
    std::function<void()> refreshTitle;
    ZEMHistogram *lower = nullptr;
    std::vector<Series> upperSeries;
    std::vector<Series> lowerSeries;
};

#endif
