// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef OVERVIEWPAGE_H
#define OVERVIEWPAGE_H

#include "chartvalues.h"
#include "displaypage.h"
#include "period.h"
#include "quantity.h"

#include <initializer_list>
#include <optional>

class QGridLayout;
class QwtPlot;
class ZEMCurrentStatusWidget;
class ZEMHistogram;
class ZEMHistogramButton;
class ZEMTotalsTodayWidget;
class AmountSeries;

/**
 * The start page: the power that flows now, the totals of today, and the way to the other pages.
 * The totals are those of what the house measures, electricity first.
 */
class OverviewPage : public DisplayPage
{
    Q_OBJECT

public:
    explicit OverviewPage(const EnergySource &source, QWidget *parent = nullptr);

Q_SIGNALS:
    void chartsClicked();
    void devicesClicked();
    void analysisClicked();
    void goalsClicked();

protected:
    void arrange(Shape shape) override;
    void showEvent(QShowEvent *event) override;
    void handleNewDay() override { handleHistory(); }

private:
    /** A chart of one series that shows the newest period. */
    struct SmallChart
    {
        ZEMHistogram *chart = nullptr;
        AmountSeries *series = nullptr;
        Period period = Period::Day;
    };
    using Quantities = std::initializer_list<Readings::Quantity>;

    void makeTotals();
    void makeWeekButton();
    void makePageButtons();
    static SmallChart makeSmallChart(ZEMHistogram *chart, Period period);
    std::optional<Readings::Quantity> firstMeasured(Quantities quantities,
                                                    std::optional<Readings::Quantity> butNot) const;
    void showPower();
    void handleHistory();
    void feedCharts();
    ChartValues feed(const SmallChart &small, Readings::Quantity quantity);
    void feedWeek(Readings::Quantity quantity);

    QGridLayout *tiles = nullptr;
    ZEMCurrentStatusWidget *status = nullptr;
    ZEMTotalsTodayWidget *totals = nullptr;
    SmallChart upperDay;
    SmallChart lowerDay;
    SmallChart week;
    ZEMHistogramButton *weekButton = nullptr;
    QWidget *pageButtons = nullptr;
    QwtPlot *weekPlot = nullptr;
    bool isFed = false;
};

#endif
