// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef OVERVIEWPAGE_H
#define OVERVIEWPAGE_H

#include "calendar.h"
#include "displaypage.h"
#include "period.h"
#include "quantity.h"

#include <QVector>
#include <ZEMStyle>
#include <vector>

class ZEMCurrentStatusWidget;
class ZEMHistogram;
class ZEMHistogramButton;
class AmountSeries;

/** The start page: the power that flows now, the totals of today, and the way to the other pages.
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
    void showEvent(QShowEvent *event) override;

private:
    /** A chart of one series that shows the newest period. */
    struct SmallChart
    {
        ZEMHistogram *chart;
        AmountSeries *series;
        QVector<Readings::Quantity> quantities; ///< the first that is measured is shown
        Period period;
    };

    QWidget *makeTotals();
    QWidget *makeWeekButton();
    QWidget *makePageButtons();
    void addSmallChart(ZEMHistogram *chart, const QVector<Readings::Quantity> &quantities,
                       Period period, ZEMStyle::ZEMColor color);
    Readings::Calendar::Meters metersOf(const SmallChart &small) const;
    void showPower();
    void handleHistory();
    void feedCharts();

    ZEMCurrentStatusWidget *status = nullptr;
    std::vector<SmallChart> smallCharts;
    ZEMHistogramButton *weekButton = nullptr;
    bool isFed = false;
};

#endif
