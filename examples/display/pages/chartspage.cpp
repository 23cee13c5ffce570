// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartspage.h"

#include "daterange.h"
#include "displaysettings.h"
#include "energysource.h"
#include "pagelook.h"

#include <QBoxLayout>
#include <QLabel>
#include <ZEMButton>
#include <ZEMHistogram>
#include <algorithm>

namespace {

constexpr int headlineSize = 11; // points
constexpr QSize periodButton(54, 40); // pixels; the picture is too low for a finger

bool sameMeters(const std::vector<EnergySeries> &left, const std::vector<EnergySeries> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const EnergySeries &a, const EnergySeries &b) {
                          return a.name == b.name && a.meters == b.meters;
                      });
}

/** Whether two lists need the same charts: a meter that is heard for the first time adds one. */
bool sameSeries(const std::vector<Energy> &left, const std::vector<Energy> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Energy &a, const Energy &b) {
                          return a.tab == b.tab && sameMeters(a.consumption, b.consumption)
                              && sameMeters(a.yield, b.yield);
                      });
}

} // namespace

ChartsPage::ChartsPage(const EnergySource &source, const DisplaySettings *theSettings,
                       QWidget *parent)
    : DisplayPage(tr("Grafieken"), source, parent), settings(theSettings)
{
    energies = measuredEnergies();
    makeCharts();
    connect(&source, &EnergySource::historyChanged, this, &ChartsPage::handleHistory);
    connect(settings, &DisplaySettings::changed, this, &ChartsPage::handleHistory);
}

ChartsPage::~ChartsPage()
{
    delete charts;
}

void ChartsPage::showChart(ZEM::ZEMTab energy, Period period)
{
    selectChart(energy, period);
    feedCurrentChart();
}

void ChartsPage::selectChart(ZEM::ZEMTab energy, Period period)
{
    // A press on the tab of the period is what the chart page remembers for the next energy.
    charts->findChild<ZEMButton *>(QLatin1String(infoOf(period).button))->click();
    charts->selectTab(infoOf(period).tab, energy);
}

void ChartsPage::showPreviousPeriod()
{
    currentEntry()->chart->widget()->showPrevPeriod();
}

/** On an upright page the periods have a row of their own below the headline. */
void ChartsPage::arrange(Shape shape)
{
    pageShape = shape;
    auto *periods = charts->findChild<QBoxLayout *>(QStringLiteral("horizontalLayout"));
    auto *headline = charts->findChild<QBoxLayout *>(QStringLiteral("horizontalLayout_2"));
    auto *rows = charts->findChild<QBoxLayout *>(QStringLiteral("verticalLayout"));
    headline->removeItem(periods);
    rows->removeItem(periods);
    if (shape == Shape::Wide) {
        headline->addLayout(periods);
    } else {
        rows->insertLayout(1, periods);
    }
}

void ChartsPage::showEvent(QShowEvent *event)
{
    DisplayPage::showEvent(event);
    feedCurrentChart();
}

std::vector<Energy> ChartsPage::measuredEnergies() const
{
    return energiesOf(energySource().household(),
                      settings->contract() == ContractType::DayAndNight);
}

void ChartsPage::makeCharts()
{
    delete charts;
    entries.clear();
    charts = new ZEMHistogramWidget;
    content()->addWidget(charts);
    ChartsPage::arrange(pageShape);
    // Two amounts of a year want as much room as there is.
    charts->findChild<QLabel *>(QStringLiteral("lblTitle"))
        ->setFont(PageLook::textFont(headlineSize));
    for (const Period period : allPeriods) {
        charts->findChild<ZEMButton *>(QLatin1String(infoOf(period).button))
            ->setFixedSize(periodButton);
    }
    ZEM::ZEMTabs tabs;
    for (const Energy &energy : energies) {
        for (const Period period : allPeriods) {
            auto chart = std::make_unique<EnergyChart>(energy, period);
            charts->setHistogram(infoOf(period).tab, energy.tab, chart->widget());
            entries.push_back({energy.tab, period, std::move(chart)});
            tabs |= infoOf(period).tab;
        }
        tabs |= energy.tab;
    }
    charts->showTabs(tabs);
    connect(charts, &ZEMHistogramWidget::sigBtnClicked, this, &ChartsPage::handleButton);
    if (energies.empty()) {
        charts->setTitle(tr("Er is nog geen meter gehoord"));
    } else {
        selectChart(energies.front().tab, Period::Day);
    }
}

void ChartsPage::handleButton(ZEMHistogramWidget::ButtonType button)
{
    for (const Entry &entry : entries) {
        entry.chart->unpick();
    }
    switch (button) {
    case ZEMHistogramWidget::BtnDay:
        currentPeriod = Period::Day;
        break;
    case ZEMHistogramWidget::BtnWeek:
        currentPeriod = Period::Week;
        break;
    case ZEMHistogramWidget::BtnMonth:
        currentPeriod = Period::Month;
        break;
    case ZEMHistogramWidget::BtnYear:
        currentPeriod = Period::Year;
        break;
    case ZEMHistogramWidget::BtnElectricity:
        currentEnergy = ZEM::TabElectricity;
        break;
    case ZEMHistogramWidget::BtnGas:
        currentEnergy = ZEM::TabGas;
        break;
    case ZEMHistogramWidget::BtnWater:
        currentEnergy = ZEM::TabWater;
        break;
    case ZEMHistogramWidget::BtnHeating:
        currentEnergy = ZEM::TabHeating;
        break;
    case ZEMHistogramWidget::BtnSolar:
        currentEnergy = ZEM::TabSolar;
        break;
    default:
        break;
    }
    // Ten years of hours take a while, and room, that a page which nobody opened does not need.
    if (isVisible()) {
        feedCurrentChart();
    }
}

void ChartsPage::handleHistory()
{
    std::vector<Energy> measured = measuredEnergies();
    if (!sameSeries(measured, energies)) {
        energies = std::move(measured);
        makeCharts();
        return;
    }
    for (Entry &entry : entries) {
        entry.isFed = false;
    }
    if (isVisible()) {
        feedCurrentChart();
    }
}

void ChartsPage::feedCurrentChart()
{
    Entry *entry = currentEntry();
    if (entry && !entry->isFed) {
        const Readings::Household &household = energySource().household();
        entry->chart->feed(Readings::Calendar(household.timeZone), datesOf(household),
                           energySource().now().date());
        entry->isFed = true;
    }
}

ChartsPage::Entry *ChartsPage::currentEntry()
{
    for (Entry &entry : entries) {
        if (entry.energy == currentEnergy && entry.period == currentPeriod) {
            return &entry;
        }
    }
    return nullptr;
}
