// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTSPAGE_H
#define CHARTSPAGE_H

#include "energy.h"
#include "period.h"

#include <QHash>
#include <QMap>
#include <QPair>
#include <ZEMPageBackground>
#include <vector>

class QStackedWidget;
class ZEMButton;
class ZEMHistogram;
class ZEMLabel;
class ZEMTextLabel;

namespace Readings {
class Household;
}

/**
 * The page of charts: one energy at a time by day, week and month, with the headline of the view
 * and the power that flows now. Charts are made when they are first shown.
 */
class ChartsPage : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** @p household must measure something and outlive the page. */
    explicit ChartsPage(const Readings::Household &household, QWidget *parent = nullptr);

    /** Keys of the energies that the page shows, as in the names of pictures. */
    QStringList energyKeys() const;

    /** Shows the chart of an energy, counted as in energyKeys(), at its newest period. */
    void showChart(int energy, Period period);
    ZEMHistogram *chart() const;

private:
    QWidget *makeTopRow();
    QWidget *makeHeadlineRow();
    QWidget *makeEnergyTabs();
    ZEMButton *makePagingButton(const QString &picture, void (ZEMHistogram::*page)());
    ZEMButton *makePeriodButton(const QString &text, Period period);

    ZEMHistogram *chartOf(int energy, Period period);
    void showHeadline();
    void showLivePower();

    const Readings::Household &household;
    const std::vector<Energy> energies;
    int currentEnergy = 0;
    Period currentPeriod = Period::Day;
    QHash<QPair<int, int>, ZEMHistogram *> charts;

    QStackedWidget *stack = nullptr;
    ZEMTextLabel *title = nullptr;
    ZEMTextLabel *powerCaption = nullptr;
    ZEMLabel *power = nullptr;
    ZEMTextLabel *headline = nullptr;
    ZEMButton *previous = nullptr;
    ZEMButton *next = nullptr;
    QMap<Period, ZEMButton *> periodButtons;
    QList<ZEMButton *> energyTabs;
};

#endif
