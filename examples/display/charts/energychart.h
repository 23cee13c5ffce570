// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ENERGYCHART_H
#define ENERGYCHART_H

#include "chartvalues.h"
#include "energy.h"

#include <QTimer>
#include <functional>
#include <optional>
#include <qwt_interval.h>

class QwtPlot;
class ZEMHistogram;
class AmountSeries;

/**
 * The chart of one energy and one period: consumption, and under it what the house yields, if it
 * does. It shows nothing until it is fed. Below the headline stand the totals of the view, and
 * after a tap on a bar what it stands for, until the next touch. The value axes fit the bars in
 * view as soon as it stands still.
 */
class EnergyChart
{
public:
    /** The meters of @p energy must outlive the chart, and it must outlive its widget(). */
    EnergyChart(const Energy &energy, Period period);

    /** The widget, which the page takes into its layout. */
    ZEMHistogram *widget() const { return upper.chart; }

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
        QString caption;
        Readings::Calendar::Meters meters;
    };

    /** One of the two charts, with what its value axis needs to know. */
    struct Pane
    {
        ZEMHistogram *chart = nullptr;
        std::vector<Series> series;
        std::vector<float> largest; ///< of all series, slot by slot
        int firstSlot = 0; ///< the x of the oldest one
        double limit = 0.0; ///< of the value axis
    };

    template <class Base>
    void make(const Energy &energy);
    static std::vector<Series> addSeries(ZEMHistogram *chart,
                                         const std::vector<EnergySeries> &allSeries);
    void feed(Pane *pane, const DateRange &range);

    void watch(QwtPlot *plot);
    void handleView(const QwtInterval &itsView);
    void fitAxes();
    static bool fitAxis(Pane *pane, int firstSlot, int lastSlot);
    void pick(std::optional<int> slot);
    Readings::Interval intervalOf(int slot) const;
    int firstInView() const;
    int lastInView() const;
    QString headline(const QString &plain) const;
    QString yearOf(int firstSlot, int lastSlot) const;
    QString amounts(const Readings::Interval &interval) const;

    const Period period;
    const QString unit;
    bool isFed = false;
    Readings::Calendar calendar {QTimeZone::utc()};
    QDate newestWindow; ///< the date of x = 0
    QDate today;
    qint64 readUntil = 0;
    std::optional<int> picked;
    QwtInterval view;
    bool isPressed = false;
    QTimer fitTimer;
    Pane upper;
    Pane lower; ///< without a chart if the house yields nothing
    std::function<void()> refreshTitle;
};

#endif
