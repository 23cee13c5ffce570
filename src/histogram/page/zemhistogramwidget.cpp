// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogramwidget.h"

#include "objectname_p.h"
#include "ui_zemhistogramwidget.h"
#include "zemhistogram.h"
#include "zemstyle.h"

#include <QBrush>
#include <QButtonGroup>
#include <QDebug>
#include <QGridLayout>
#include <QHash>
#include <QList>
#include <QPalette>
#include <QPointer>

#include <algorithm>
#include <array>

namespace {

constexpr std::array periodTabs {ZEM::TabDay, ZEM::TabWeek, ZEM::TabMonth, ZEM::TabYear};
constexpr std::array energyTabs {ZEM::TabElectricity, ZEM::TabGas, ZEM::TabWater, ZEM::TabHeating,
                                 ZEM::TabSolar};
constexpr int pageCount = int(periodTabs.size() * energyTabs.size());

template <typename Tabs>
int positionIn(const Tabs &tabs, ZEM::ZEMTab tab)
{
    const auto found = std::find(tabs.begin(), tabs.end(), tab);
    return found == tabs.end() ? -1 : int(found - tabs.begin());
}

} // namespace

class ZEMHistogramWidget::Private
{
public:
    explicit Private(ZEMHistogramWidget *owner) : q(owner) { }

    ZEMButton *periodButton(ZEM::ZEMTab period) const
    {
        switch (period) {
        case ZEM::TabDay:
            return ui.btnDay;
        case ZEM::TabWeek:
            return ui.btnWeek;
        case ZEM::TabMonth:
            return ui.btnMonth;
        case ZEM::TabYear:
            return ui.btnYear;
        default:
            return nullptr;
        }
    }

    /**
     * Auto-exclusive buttons count those further down the tree among their siblings. Without a
     * group of their own the period in view could be unchecked by a click, since an energy is
     * checked.
     */
    void separatePeriodsFromEnergies()
    {
        auto *periods = new QButtonGroup(q);
        for (const ZEM::ZEMTab period : periodTabs) {
            periods->addButton(periodButton(period));
        }
    }

    void addPage()
    {
        auto *page = new QWidget;
        auto *layout = new QGridLayout;
        layout->setSpacing(0);
        layout->setContentsMargins(0, 0, 0, 0);
        page->setLayout(layout);
        ui.stackedWidget->addWidget(page);
        pageLayouts.append(layout);
    }

    void showCurrentPage()
    {
        ui.stackedWidget->setCurrentIndex(q->getHistogramIndex(currentPeriod, currentEnergy));
    }

    void selectPeriod(ZEM::ZEMTab period, ButtonType button)
    {
        const QPointer<ZEMHistogramWidget> self = q;
        currentPeriod = period;
        showCurrentPage();
        if (self) {
            Q_EMIT self->sigBtnClicked(button);
        }
    }

    void selectEnergy(ZEM::ZEMTab energy, ButtonType button)
    {
        currentEnergy = energy;
        Q_EMIT q->sigBtnClicked(button);
    }

    void btnEnergyTypeclicked(ZEMEnergyIcon::Type type)
    {
        const QPointer<ZEMHistogramWidget> self = q;
        ui.energyIcon->setEnergyType(type);
        qDebug() << "btnEnergyTypeclicked " << int(type);
        switch (type) {
        case ZEMEnergyIcon::Electricity:
            selectEnergy(ZEM::TabElectricity, BtnElectricity);
            break;
        case ZEMEnergyIcon::Gas:
            selectEnergy(ZEM::TabGas, BtnGas);
            break;
        case ZEMEnergyIcon::Water:
            selectEnergy(ZEM::TabWater, BtnWater);
            break;
        case ZEMEnergyIcon::Heating:
            selectEnergy(ZEM::TabHeating, BtnHeating);
            break;
        case ZEMEnergyIcon::SolarProduction:
            selectEnergy(ZEM::TabSolar, BtnSolar);
            break;
        }
        if (self) {
            showCurrentPage();
        }
    }

    ZEMHistogram *currentHistogram() const
    {
        return histograms.value(ui.stackedWidget->currentIndex());
    }

    ZEMHistogramWidget *q;
    Ui_ZEMHistogramWidget ui;
    ZEM::ZEMTab currentPeriod = ZEM::TabDay;
    ZEM::ZEMTab currentEnergy = ZEM::TabElectricity;
    QList<QGridLayout *> pageLayouts;
    QHash<int, QPointer<ZEMHistogram>> histograms;
};

ZEMHistogramWidget::ZEMHistogramWidget(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    qRegisterMetaType<ButtonType>(); // for queued connections
    setObjectNameFromClass(this, staticMetaObject);
    QPalette colors = palette();
    colors.setBrush(QPalette::Inactive, QPalette::ButtonText,
                    QBrush(ZEMStyle(nullptr).color(ZEMStyle::WhiteAlpha50), Qt::SolidPattern));
    setPalette(colors);
    d->ui.setupUi(this);
    d->separatePeriodsFromEnergies();
    d->showCurrentPage();

    connect(d->ui.stackedWidget, &QStackedWidget::currentChanged, this,
            QOverload<int>::of(&ZEMHistogramWidget::pageChanged));
    connect(d->ui.btnYear, &ZEMButton::clicked, this, &ZEMHistogramWidget::btnYear_clicked);
    connect(d->ui.btnMonth, &ZEMButton::clicked, this, &ZEMHistogramWidget::btnMonth_clicked);
    connect(d->ui.btnWeek, &ZEMButton::clicked, this, &ZEMHistogramWidget::btnWeek_clicked);
    connect(d->ui.btnDay, &ZEMButton::clicked, this, &ZEMHistogramWidget::btnDay_clicked);
    connect(d->ui.btnEnergyTab, &ZEMEnergyTabWidget::btn_clicked, this,
            [this](ZEMEnergyIcon::Type type) { d->btnEnergyTypeclicked(type); });

    for (int page = 0; page < pageCount; ++page) {
        d->addPage();
    }
}

ZEMHistogramWidget::~ZEMHistogramWidget() = default;

void ZEMHistogramWidget::setHistogram(ZEM::ZEMTab period, ZEM::ZEMTab energy,
                                      ZEMHistogram *histogram)
{
    const int index = getHistogramIndex(period, energy);
    qDebug() << "setHistogram()" << index << histogram;
    d->histograms[index] = histogram;
    if (QGridLayout *layout = d->pageLayouts.value(index)) {
        layout->addWidget(histogram);
    }
    connect(histogram, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed), this,
            &ZEMHistogramWidget::histogramChanged);
    connect(histogram, QOverload<bool, bool>::of(&ZEMHistogram::has_page), this,
            &ZEMHistogramWidget::has_page);
}

void ZEMHistogramWidget::selectTab(ZEM::ZEMTab period, ZEM::ZEMTab energy)
{
    if (ZEMButton *button = d->periodButton(period)) {
        button->setChecked(true);
    }
    const QPointer<ZEMHistogramWidget> self = this;
    d->ui.btnEnergyTab->selectTab(energy);
    if (!self) {
        return;
    }
    const int index = getHistogramIndex(period, energy);
    if (index >= 0) {
        d->ui.stackedWidget->setCurrentIndex(index);
        if (self && d->ui.stackedWidget->currentIndex() == index) {
            // The stack tells of no change if it was there already.
            pageChanged(index);
        }
    }
}

void ZEMHistogramWidget::showTabs(QFlags<ZEM::ZEMTab> tabs)
{
    for (const ZEM::ZEMTab period : periodTabs) {
        d->periodButton(period)->setVisible(tabs.testFlag(period));
    }
    d->ui.btnEnergyTab->showTabs(tabs);
}

int ZEMHistogramWidget::getHistogramIndex(ZEM::ZEMTab period, ZEM::ZEMTab energy) const
{
    const int p = positionIn(periodTabs, period);
    const int e = positionIn(energyTabs, energy);
    const int index = p + int(periodTabs.size()) * e;
    qDebug() << "getHistogramIndex:"
             << "p:" << p << "e:" << e << "i:" << index;
    return index;
}

void ZEMHistogramWidget::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

void ZEMHistogramWidget::has_page(bool, bool) { }

void ZEMHistogramWidget::btnYear_clicked()
{
    d->selectPeriod(ZEM::TabYear, BtnYear);
}

void ZEMHistogramWidget::btnMonth_clicked()
{
    d->selectPeriod(ZEM::TabMonth, BtnMonth);
}

void ZEMHistogramWidget::btnWeek_clicked()
{
    d->selectPeriod(ZEM::TabWeek, BtnWeek);
}

void ZEMHistogramWidget::btnDay_clicked()
{
    d->selectPeriod(ZEM::TabDay, BtnDay);
}

void ZEMHistogramWidget::btnPrevPeriod_clicked()
{
    ZEMHistogram *hist = d->currentHistogram();
    qDebug() << "btnPrevPeriod_clicked()" << d->ui.stackedWidget->currentIndex() << hist;
    if (hist) {
        const QPointer<ZEMHistogramWidget> self = this;
        hist->showPrevPeriod();
        if (self) {
            Q_EMIT sigBtnClicked(BtnPrevPeriod);
        }
    }
}

void ZEMHistogramWidget::btnNextPeriod_clicked()
{
    ZEMHistogram *hist = d->currentHistogram();
    qDebug() << "btnNextPeriod_clicked()" << d->ui.stackedWidget->currentIndex() << hist;
    if (hist) {
        const QPointer<ZEMHistogramWidget> self = this;
        hist->showNextPeriod();
        if (self) {
            Q_EMIT sigBtnClicked(BtnNextPeriod);
        }
    }
}

void ZEMHistogramWidget::histogramChanged(ZEMHistogram * /*hist*/)
{
    // Whichever chart changed, the headline is that of the one in view.
    pageChanged(d->currentHistogram());
}

void ZEMHistogramWidget::pageChanged(int index)
{
    const QPointer<ZEMHistogram> hist = d->histograms.value(index);
    qDebug() << "pageChanged()" << index << hist.data();
    if (hist) {
        const QPointer<ZEMHistogramWidget> self = this;
        const int page = d->ui.stackedWidget->currentIndex();
        hist->showFirstPeriod();
        // A slot may have gone to another page, which has a headline of its own.
        if (self && d->ui.stackedWidget->currentIndex() == page) {
            pageChanged(hist.data());
        }
    }
}

void ZEMHistogramWidget::pageChanged(ZEMHistogram *histogram)
{
    if (histogram) {
        setTitle(histogram->title());
    }
}

#include "moc_zemhistogramwidget.cpp" // the private slot is seen from here only
