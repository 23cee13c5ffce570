// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartspage.h"

#include "energychart.h"
#include "household.h"
#include "pagelook.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QStackedWidget>
#include <ZEMButton>
#include <ZEMHistogram>
#include <ZEMLabel>
#include <ZEMTextLabel>
#include <ZEMUtils>

namespace {

constexpr QSize periodButtonSize(59, 38); // pixels

DateRange datesOf(const Readings::Household &household)
{
    const Readings::Calendar calendar(household.timeZone);
    const qint64 first = household.firstInstant().value_or(0);
    // What ends at midnight belongs to the day before.
    const qint64 last = household.lastInstant().value_or(0) - 1;
    return {calendar.dateAt(first), calendar.dateAt(last)};
}

} // namespace

ChartsPage::ChartsPage(const Readings::Household &theHousehold, QWidget *parent)
    : ZEMPageBackground(parent), household(theHousehold), energies(energiesOf(theHousehold))
{
    setBackground(PageLook::background());

    stack = new QStackedWidget;
    auto *rows = new QVBoxLayout;
    rows->setContentsMargins(16, 8, 16, 8);
    rows->setSpacing(2);
    rows->addWidget(makeTopRow());
    rows->addWidget(makeHeadlineRow());
    rows->addSpacing(6);
    rows->addWidget(stack, 1);

    // The tabs stand beside the legend, which is the last row of every chart.
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addLayout(rows, 0, 0);
    grid->addWidget(makeEnergyTabs(), 0, 0, Qt::AlignRight | Qt::AlignBottom);

    showLivePower();
    showChart(0, Period::Day);
}

QStringList ChartsPage::energyKeys() const
{
    QStringList keys;
    for (const Energy &energy : energies) {
        keys << energy.key;
    }
    return keys;
}

void ChartsPage::showChart(int energy, Period period)
{
    currentEnergy = energy;
    currentPeriod = period;
    stack->setCurrentWidget(chartOf(energy, period));
    title->setText(energies[std::size_t(energy)].title);
    periodButtons.value(period)->setChecked(true);
    energyTabs[energy]->setChecked(true);
    chart()->showFirstPeriod();
    showHeadline();
}

ZEMHistogram *ChartsPage::chart() const
{
    return qobject_cast<ZEMHistogram *>(stack->currentWidget());
}

QWidget *ChartsPage::makeTopRow()
{
    title = new ZEMTextLabel;
    title->setFont(PageLook::titleFont());
    title->setShadow(true);

    powerCaption = new ZEMTextLabel;
    powerCaption->setFont(PageLook::textFont(12));

    power = new ZEMLabel;
    power->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    power->setFont(PageLook::textFont(14));

    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(title, 1);
    layout->addWidget(powerCaption);
    layout->addWidget(power);
    return row;
}

QWidget *ChartsPage::makeHeadlineRow()
{
    previous = makePagingButton(QStringLiteral(":/zem/graphics/icons/arrow_left.png"),
                                &ZEMHistogram::showPrevPeriod);
    next = makePagingButton(QStringLiteral(":/zem/graphics/icons/arrow_right.png"),
                            &ZEMHistogram::showNextPeriod);
    headline = new ZEMTextLabel;
    headline->setFont(PageLook::textFont(14));
    headline->setShadow(true);
    headline->setAlignment(Qt::AlignCenter);

    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(previous);
    layout->addWidget(headline, 1);
    layout->addWidget(next);
    layout->addSpacing(24);
    layout->addWidget(makePeriodButton(tr("maand"), Period::Month));
    layout->addWidget(makePeriodButton(tr("week"), Period::Week));
    layout->addWidget(makePeriodButton(tr("dag"), Period::Day));
    return row;
}

QWidget *ChartsPage::makeEnergyTabs()
{
    auto *tabs = new QWidget;
    auto *layout = new QHBoxLayout(tabs);
    layout->setContentsMargins(0, 0, 16, 12);
    layout->setSpacing(2);
    for (int i = 0; i < int(energies.size()); ++i) {
        auto *tab = new ZEMButton;
        tab->setCheckable(true);
        tab->setAutoExclusive(true);
        tab->setBackground(QPixmap(QStringLiteral(":/zem/graphics/gwe/icons/gwe_btn_act.png")));
        tab->setBackgroundOff(QPixmap(QStringLiteral(":/zem/graphics/gwe/icons/gwe_btn_ina.png")));
        const QPixmap picture(energies[std::size_t(i)].icon);
        QIcon icon;
        icon.addPixmap(picture, QIcon::Normal, QIcon::On);
        icon.addPixmap(picture, QIcon::Disabled, QIcon::Off);
        tab->setIcon(icon);
        connect(tab, &ZEMButton::clicked, this, [this, i] { showChart(i, currentPeriod); });
        layout->addWidget(tab);
        energyTabs << tab;
    }
    tabs->setVisible(energies.size() > 1);
    return tabs;
}

ZEMButton *ChartsPage::makePagingButton(const QString &picture, void (ZEMHistogram::*page)())
{
    auto *button = new ZEMButton;
    button->setIcon(QIcon(picture));
    button->setHideWhenDisabled(true);
    button->setFixedSize(periodButtonSize);
    connect(button, &ZEMButton::clicked, this, [this, page] { (chart()->*page)(); });
    return button;
}

ZEMButton *ChartsPage::makePeriodButton(const QString &text, Period period)
{
    auto *button = new ZEMButton;
    button->setFont(PageLook::textFont(11));
    button->setText(text);
    button->setCheckable(true);
    button->setAutoExclusive(true);
    button->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/tab_selected_bg.png")));
    button->setBackgroundOff(QPixmap(QStringLiteral(":/zem/graphics/main/tab_bg.png")));
    button->setFixedSize(periodButtonSize);
    connect(button, &ZEMButton::clicked, this,
            [this, period] { showChart(currentEnergy, period); });
    periodButtons.insert(period, button);
    return button;
}

ZEMHistogram *ChartsPage::chartOf(int energy, Period period)
{
    ZEMHistogram *&chart = charts[{energy, int(period)}];
    if (!chart) {
        const Readings::Calendar calendar(household.timeZone);
        chart =
            makeEnergyChart(energies[std::size_t(energy)], period, calendar, datesOf(household));
        connect(chart, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), this,
                &ChartsPage::showHeadline);
        stack->addWidget(chart);
    }
    return chart;
}

void ChartsPage::showHeadline()
{
    if (!chart()) {
        return;
    }
    headline->setText(chart()->title());
    bool hasPrevious = false;
    bool hasNext = false;
    chart()->has_page(&hasPrevious, &hasNext);
    previous->setEnabled(hasPrevious);
    next->setEnabled(hasNext);
}

void ChartsPage::showLivePower()
{
    const std::optional<Readings::GridPower> latest = household.latestPower();
    power->setVisible(latest.has_value());
    powerCaption->setVisible(latest.has_value());
    if (latest) {
        // The texts of power have no sign; the caption tells the direction.
        powerCaption->setText(latest->watts < 0.0 ? tr("naar het net") : tr("van het net"));
        const double watts = latest->watts < 0.0 ? -latest->watts : latest->watts;
        power->setText(ZEMUtils::wattToStringAutoScale(watts));
    }
}
