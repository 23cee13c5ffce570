// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "overviewpage.h"

#include "amountseries.h"
#include "chartvalues.h"
#include "energysource.h"
#include "fittedhistogram.h"
#include "pagelook.h"

#include <QBrush>
#include <QGridLayout>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMCurrentStatusWidget>
#include <ZEMHistogramButton>
#include <ZEMLabel>
#include <ZEMMiniDayHistogram>
#include <ZEMSmartWeekHistogram>
#include <ZEMTotalsTodayWidget>
#include <algorithm>
#include <cmath>

using Readings::Quantity;

namespace {

constexpr int weekPlotHeight = 132; // pixels, of the 152 of the button

/** The dates of the newest window of a chart. */
DateRange newestOnly(Period period, const QDate &last)
{
    return {period == Period::Week ? Readings::Calendar::mondayOf(last) : last, last};
}

} // namespace

OverviewPage::OverviewPage(const EnergySource &source, QWidget *parent)
    : DisplayPage(tr("Overzicht"), source, parent), status(new ZEMCurrentStatusWidget)
{
    status->setMaxProduction(source.mostProduction());
    connect(status, &ZEMCurrentStatusWidget::clicked, this, &OverviewPage::devicesClicked);

    auto *tiles = new QGridLayout;
    tiles->setHorizontalSpacing(24);
    tiles->setVerticalSpacing(18);
    tiles->setAlignment(Qt::AlignCenter);
    tiles->addWidget(status, 0, 0);
    tiles->addWidget(makeTotals(), 0, 1);
    tiles->addWidget(makeWeekButton(), 1, 0);
    tiles->addWidget(makePageButtons(), 1, 1, Qt::AlignBottom);
    content()->addLayout(tiles, 1);

    connect(&source, &EnergySource::powerChanged, this, &OverviewPage::showPower);
    connect(&source, &EnergySource::meteringChanged, this, &OverviewPage::showPower);
    connect(&source, &EnergySource::historyChanged, this, &OverviewPage::handleHistory);
    showPower();
}

void OverviewPage::showEvent(QShowEvent *event)
{
    DisplayPage::showEvent(event);
    feedCharts();
    showPower();
}

QWidget *OverviewPage::makeTotals()
{
    auto *totals = new ZEMTotalsTodayWidget;
    totals->setBottomEnergyType(ZEMEnergyIcon::SolarProduction);
    connect(totals, &ZEMTotalsTodayWidget::btn_top_histogram_clicked, this,
            &OverviewPage::chartsClicked);
    connect(totals, &ZEMTotalsTodayWidget::btn_bottom_histogram_clicked, this,
            &OverviewPage::chartsClicked);

    addSmallChart(totals->getTopHistogram(), {Quantity::GridImport, Quantity::Gas}, Period::Day,
                  ZEMStyle::Amber);
    addSmallChart(totals->getBottomHistogram(),
                  {Quantity::SolarProduction, Quantity::GridExport, Quantity::Water}, Period::Day,
                  ZEMStyle::Yellow);
    return totals;
}

QWidget *OverviewPage::makeWeekButton()
{
    using Chart = FittedHistogram<ZEMSmartWeekHistogram>;
    auto *chart = new Chart(Chart::Place::Lower, weekPlotHeight);
    chart->init();
    chart->setScalePeriod(slotsOf(Period::Week));
    chart->setTouchable(false);
    addSmallChart(chart, {Quantity::GridImport, Quantity::Gas}, Period::Week, ZEMStyle::Amber);

    auto *button = new ZEMHistogramButton;
    weekButton = button;
    button->setTitle(tr("deze week"));
    button->setHistogram(chart);
    connect(button, &ZEMHistogramButton::clicked, this, &OverviewPage::chartsClicked);
    return button;
}

QWidget *OverviewPage::makePageButtons()
{
    ZEMButton *analysis = PageLook::makeTextButton(tr("Analyse"));
    analysis->setObjectName(QStringLiteral("analysis"));
    connect(analysis, &ZEMButton::clicked, this, &OverviewPage::analysisClicked);
    ZEMButton *goals = PageLook::makeTextButton(tr("Doelen"));
    goals->setObjectName(QStringLiteral("goals"));
    connect(goals, &ZEMButton::clicked, this, &OverviewPage::goalsClicked);

    auto *buttons = new QWidget;
    auto *rows = new QVBoxLayout(buttons);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    rows->addWidget(analysis);
    rows->addWidget(goals);
    return buttons;
}

void OverviewPage::addSmallChart(ZEMHistogram *chart, const QVector<Readings::Quantity> &quantities,
                                 Period period, ZEMStyle::ZEMColor color)
{
    auto *series = new AmountSeries(QString(), QBrush(ZEMStyle(nullptr).color(color)), false);
    chart->addSeries(series);
    smallCharts.push_back({chart, series, quantities, period});
}

Readings::Calendar::Meters OverviewPage::metersOf(const SmallChart &small) const
{
    for (const Quantity quantity : small.quantities) {
        const auto meters = energySource().household().metersOf(quantity);
        if (!meters.empty()) {
            return meters;
        }
    }
    return {};
}

void OverviewPage::showPower()
{
    // A hidden tile needs no news, and its arrows no time.
    if (!isVisible()) {
        return;
    }
    const PowerReport report = energySource().power().value_or(PowerReport());
    const bool isMetering = energySource().power() && energySource().isMetering();
    status->setMeteringStatus(isMetering);
    // The tile takes consumption minus production for the grid.
    status->setProduction(report.leastProduction());
    status->setConsumption(report.grid + report.leastProduction());
    // The tile knows every power, or none.
    const auto show = [this](const char *label, const std::optional<double> &watts) {
        status->findChild<ZEMLabel *>(QLatin1String(label))->setText(PageLook::powerText(watts));
    };
    show("lblProduction", report.production);
    if (isMetering) {
        show("lblConsumption", report.consumption);
        show("lblPowerGrid", std::fabs(report.grid));
    }
}

void OverviewPage::handleHistory()
{
    isFed = false;
    if (isVisible()) {
        feedCharts();
    }
}

void OverviewPage::feedCharts()
{
    if (isFed) {
        return;
    }
    isFed = true;
    const Readings::Household &household = energySource().household();
    const Readings::Calendar calendar(household.timeZone);
    const QDate last = datesOf(household).last;
    for (const SmallChart &small : smallCharts) {
        const ChartValues values =
            chartValues(calendar, metersOf(small), small.period, newestOnly(small.period, last));
        small.series->setValues(values);
        if (small.period == Period::Week) {
            weekButton->setTitle(values.incomplete.empty() ? tr("deze week")
                                                           : tr("deze week (onvolledig)"));
        }
        small.chart->setValueLimits(QwtInterval(0.0, std::max(largestValue(values), 0.1)));
        small.chart->setDataChangedTimestamp(QDateTime(values.newestWindow, QTime(0, 0), Qt::UTC));
        small.chart->replot();
    }
}
