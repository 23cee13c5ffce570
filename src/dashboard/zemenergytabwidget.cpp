// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemenergytabwidget.h"

#include "objectname_p.h"
#include "ui_zemenergytabwidget.h"

#include <QDebug>

class ZEMEnergyTabWidget::Private
{
public:
    Ui_ZEMEnergyTabWidget ui;
};

ZEMEnergyTabWidget::ZEMEnergyTabWidget(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    for (ZEMEnergyTab *tab :
         {d->ui.tabElectricity, d->ui.tabGas, d->ui.tabHeating, d->ui.tabWater, d->ui.tabSolar}) {
        connect(tab, QOverload<ZEMEnergyIcon::Type>::of(&ZEMEnergyTab::clicked), this,
                &ZEMEnergyTabWidget::btn_clicked);
    }
}

ZEMEnergyTabWidget::~ZEMEnergyTabWidget() = default;

void ZEMEnergyTabWidget::showTabs(QFlags<ZEM::ZEMTab> tabs)
{
    d->ui.tabElectricity->setVisible(tabs.testFlag(ZEM::TabElectricity));
    d->ui.tabGas->setVisible(tabs.testFlag(ZEM::TabGas));
    d->ui.tabWater->setVisible(tabs.testFlag(ZEM::TabWater));
    d->ui.tabHeating->setVisible(tabs.testFlag(ZEM::TabHeating));
    d->ui.tabSolar->setVisible(tabs.testFlag(ZEM::TabSolar));
}

void ZEMEnergyTabWidget::selectTab(ZEM::ZEMTab tab)
{
    switch (tab) {
    case ZEM::TabElectricity:
        d->ui.tabElectricity->setChecked(true);
        qDebug("ElectricityTab selected");
        Q_EMIT btn_clicked(ZEMEnergyIcon::Electricity);
        break;
    case ZEM::TabGas:
        d->ui.tabGas->setChecked(true);
        qDebug("Gas Tab selected");
        Q_EMIT btn_clicked(ZEMEnergyIcon::Gas);
        break;
    case ZEM::TabWater:
        d->ui.tabWater->setChecked(true);
        Q_EMIT btn_clicked(ZEMEnergyIcon::Water);
        break;
    case ZEM::TabHeating:
        d->ui.tabHeating->setChecked(true);
        Q_EMIT btn_clicked(ZEMEnergyIcon::Heating);
        break;
    case ZEM::TabSolar:
        d->ui.tabSolar->setChecked(true);
        Q_EMIT btn_clicked(ZEMEnergyIcon::SolarProduction);
        break;
    default:
        break;
    }
}
