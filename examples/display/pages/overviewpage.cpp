// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "overviewpage.h"

#include "amountseries.h"
#include "energysource.h"
#include "fittedhistogram.h"
#include "pagelook.h"
#include "quantitylook.h"

#include <QBrush>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLocale>
#include <QTimeZone>
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
#include <qwt_scale_widget.h>

using Readings::Quantity;

namespace {

constexpr int wideGap = 24; // pixels between tiles beside each other
constexpr int tallGap = 18; // so that two small tiles are as wide as a large one
constexpr int valueSteps = 4; // of the week; the labels would touch with more
constexpr int dayWidth = 32; // pixels of a day in the tile of the week
constexpr int dayGap = 3; // pixels between the names of days
constexpr int leastDaySize = 7; // points
constexpr double leastLimit = 0.1; // of the value axis, in the unit of the quantity

/** Makes the names of the days smaller until there is a gap between them. */
void fitDayNames(QwtPlot *plot)
{
    QwtScaleWidget *scale = plot->axisWidget(QwtPlot::xBottom);
    QFont font = scale->font();
    const auto fits = [&font] {
        const QFontMetrics metrics(font);
        const auto widthOf = [&metrics](int day) {
            return metrics.horizontalAdvance(QLocale().dayName(day, QLocale::ShortFormat));
        };
        for (int day = Qt::Monday; day < Qt::Sunday; ++day) {
            if (widthOf(day) + widthOf(day + 1) > 2 * (dayWidth - dayGap)) {
                return false;
            }
        }
        return true;
    };
    while (!fits() && font.pointSize() > leastDaySize) {
        font.setPointSize(font.pointSize() - 1);
    }
    scale->setFont(font);
}

/** The dates of the newest window of a chart. */
DateRange newestOnly(Period period, DateRange dates)
{
    dates.first = period == Period::Week ? Readings::Calendar::mondayOf(dates.last) : dates.last;
    return dates;
}

} // namespace

OverviewPage::OverviewPage(const EnergySource &source, QWidget *parent)
    : DisplayPage(tr("Overzicht"), source, parent), tiles(new QGridLayout),
      status(new ZEMCurrentStatusWidget)
{
    status->setMaxProduction(source.mostProduction());
    connect(status, &ZEMCurrentStatusWidget::clicked, this, &OverviewPage::devicesClicked);

    tiles->setVerticalSpacing(18);
    tiles->setAlignment(Qt::AlignCenter);
    makeTotals();
    makeWeekButton();
    makePageButtons();
    OverviewPage::arrange(Shape::Wide);
    content()->addLayout(tiles, 1);

    connect(&source, &EnergySource::powerChanged, this, &OverviewPage::showPower);
    connect(&source, &EnergySource::meteringChanged, this, &OverviewPage::showPower);
    connect(&source, &EnergySource::historyChanged, this, &OverviewPage::handleHistory);
}

void OverviewPage::arrange(Shape shape)
{
    for (QWidget *tile : {static_cast<QWidget *>(status), static_cast<QWidget *>(totals),
                          static_cast<QWidget *>(weekButton), pageButtons}) {
        tiles->removeWidget(tile);
    }
    tiles->setHorizontalSpacing(shape == Shape::Wide ? wideGap : tallGap);
    // Where there is one meter alone, the totals are half as high.
    if (shape == Shape::Wide) {
        tiles->addWidget(status, 0, 0);
        tiles->addWidget(totals, 0, 1, Qt::AlignTop);
        tiles->addWidget(weekButton, 1, 0);
        tiles->addWidget(pageButtons, 1, 1, Qt::AlignBottom);
    } else {
        tiles->addWidget(status, 0, 0, 1, 2);
        tiles->addWidget(weekButton, 1, 0, 1, 2);
        tiles->addWidget(totals, 2, 0, Qt::AlignTop);
        tiles->addWidget(pageButtons, 2, 1, Qt::AlignBottom | Qt::AlignRight);
    }
}

void OverviewPage::showEvent(QShowEvent *event)
{
    DisplayPage::showEvent(event);
    feedCharts();
    showPower();
}

void OverviewPage::makeTotals()
{
    totals = new ZEMTotalsTodayWidget;
    connect(totals, &ZEMTotalsTodayWidget::btn_top_histogram_clicked, this,
            &OverviewPage::chartsClicked);
    connect(totals, &ZEMTotalsTodayWidget::btn_bottom_histogram_clicked, this,
            &OverviewPage::chartsClicked);
    upperDay = makeSmallChart(totals->getTopHistogram(), Period::Day);
    lowerDay = makeSmallChart(totals->getBottomHistogram(), Period::Day);
}

void OverviewPage::makeWeekButton()
{
    using Chart = FittedHistogram<ZEMSmartWeekHistogram>;
    auto *chart = new Chart(Chart::Place::Lower);
    chart->init();
    chart->setScalePeriod(slotsOf(Period::Week));
    chart->setTouchable(false);
    week = makeSmallChart(chart, Period::Week);
    weekPlot = chart->thePlot();
    weekPlot->setAxisMaxMajor(QwtPlot::yLeft, valueSteps);
    fitDayNames(weekPlot);

    weekButton = new ZEMHistogramButton;
    weekButton->setHistogram(chart);
    connect(weekButton, &ZEMHistogramButton::clicked, this, &OverviewPage::chartsClicked);
}

void OverviewPage::makePageButtons()
{
    ZEMButton *analysis = PageLook::makeTextButton(tr("Analyse"));
    analysis->setObjectName(QStringLiteral("analysis"));
    connect(analysis, &ZEMButton::clicked, this, &OverviewPage::analysisClicked);
    ZEMButton *goals = PageLook::makeTextButton(tr("Doelen"));
    goals->setObjectName(QStringLiteral("goals"));
    connect(goals, &ZEMButton::clicked, this, &OverviewPage::goalsClicked);

    pageButtons = new QWidget;
    auto *rows = new QVBoxLayout(pageButtons);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2);
    rows->addWidget(analysis);
    rows->addWidget(goals);
}

OverviewPage::SmallChart OverviewPage::makeSmallChart(ZEMHistogram *chart, Period period)
{
    auto *series = new AmountSeries(QString(), false);
    chart->addSeries(series);
    return {chart, series, period};
}

std::optional<Quantity> OverviewPage::firstMeasured(Quantities quantities,
                                                    std::optional<Quantity> butNot) const
{
    const Readings::Household &household = energySource().household();
    std::optional<Quantity> silent;
    for (const Quantity each : quantities) {
        if (each == butNot || household.metersOf(each).empty()) {
            continue;
        }
        // The export meter of a house without panels is there, but never counts.
        if (household.total(each) > 0.0) {
            return each;
        }
        silent = silent.value_or(each);
    }
    return silent;
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
    // Until a meter is heard the page is one of electricity.
    const Quantity upper =
        firstMeasured({Quantity::GridImport, Quantity::Gas, Quantity::Heating, Quantity::Water,
                       Quantity::SolarProduction, Quantity::GridExport},
                      std::nullopt)
            .value_or(Quantity::GridImport);
    totals->setTitle(tr("totaal %1").arg(dayName(dates().last)));
    totals->setTopTitle(lookOf(upper).caption);
    totals->setTopEnergyType(lookOf(upper).icon);
    feed(upperDay, upper);
    feedWeek(upper);

    const std::optional<Quantity> lower =
        firstMeasured({Quantity::SolarProduction, Quantity::GridExport, Quantity::Gas,
                       Quantity::Heating, Quantity::Water},
                      upper);
    totals->findChild<QWidget *>(QStringLiteral("btnBottom"))->setVisible(lower.has_value());
    if (lower) {
        totals->setBottomTitle(lookOf(*lower).caption);
        totals->setBottomEnergyType(lookOf(*lower).icon);
        feed(lowerDay, *lower);
    }
}

ChartValues OverviewPage::feed(const SmallChart &small, Quantity quantity)
{
    const Readings::Household &household = energySource().household();
    const Readings::Calendar calendar(household.timeZone);
    const ChartValues values = chartValues(calendar, household.metersOf(quantity), small.period,
                                           newestOnly(small.period, dates()));
    small.series->setColor(ZEMStyle(nullptr).color(lookOf(quantity).color));
    small.series->setValues(values);
    small.chart->setValueLimits(QwtInterval(0.0, std::max(largestValue(values), leastLimit)));
    small.chart->setDataChangedTimestamp(
        QDateTime(values.newestWindow, QTime(0, 0), QTimeZone::utc()));
    small.chart->replot();
    return values;
}

void OverviewPage::feedWeek(Quantity quantity)
{
    weekPlot->setAxisTitle(QwtPlot::yLeft, Readings::quantityInfo(quantity).unit);
    const ChartValues values = feed(week, quantity);
    const QString caption = lookOf(quantity).caption;
    const QDate thisWeek = Readings::Calendar::mondayOf(energySource().now().date());
    const QString title = values.newestWindow == thisWeek
        ? tr("%1 deze week").arg(caption)
        : tr("%1, week van %2").arg(caption, dayName(values.newestWindow));
    weekButton->setTitle(values.incomplete.empty() ? title : tr("%1 (onvolledig)").arg(title));
}
