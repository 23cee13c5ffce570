// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTSPAGE_H
#define CHARTSPAGE_H

#include "displaypage.h"
#include "energychart.h"
#include "period.h"

#include <ZEMHistogramWidget>
#include <memory>
#include <vector>

class DisplaySettings;

/**
 * The page of charts: each energy that the house measures by day, week, month and year. A chart is
 * fed when it comes into view, and again when a slot of it is complete.
 */
class ChartsPage : public DisplayPage
{
    Q_OBJECT

public:
    /** Both must outlive the page. */
    ChartsPage(const EnergySource &source, const DisplaySettings *settings,
               QWidget *parent = nullptr);
    ~ChartsPage() override;

    /** The energies in the order of their tabs. */
    const std::vector<Energy> &allEnergies() const { return energies; }
    /** Shows the chart of an energy that the house measures at its newest period. */
    void showChart(ZEM::ZEMTab energy, Period period);
    /** Shows the period before the one in view. */
    void showPreviousPeriod();

protected:
    void arrange(Shape shape) override;
    void showEvent(QShowEvent *event) override;
    void handleNewDay() override { handleHistory(); }

private:
    struct Entry
    {
        ZEM::ZEMTab energy;
        Period period;
        std::unique_ptr<EnergyChart> chart;
        bool isFed = false;
    };

    std::vector<Energy> measuredEnergies() const;
    void makeCharts();
    void selectChart(ZEM::ZEMTab energy, Period period);
    void handleButton(ZEMHistogramWidget::ButtonType button);
    void handleHistory();
    void feedCurrentChart();
    Entry *currentEntry();

    const DisplaySettings *settings;
    std::vector<Energy> energies;
    std::vector<Entry> entries;
    ZEM::ZEMTab currentEnergy = ZEM::TabElectricity;
    Period currentPeriod = Period::Day;
    Shape pageShape = Shape::Wide;
    ZEMHistogramWidget *charts = nullptr;
};

#endif
