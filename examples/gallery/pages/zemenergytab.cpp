// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QButtonGroup>
#include <ZEMEnergyTab>

static ZEMEnergyTab *makeTab(ZEMEnergyIcon::Type energy)
{
    auto *tab = new ZEMEnergyTab;
    tab->setCheckable(true);
    tab->setEnergyType(energy);
    return tab;
}

void Pages::zemenergytab(Stage &stage)
{
    auto *gas = makeTab(ZEMEnergyIcon::Gas);
    gas->setChecked(true);
    auto *water = makeTab(ZEMEnergyIcon::Water);
    auto *row = new QButtonGroup(gas); // of which one is checked
    row->addButton(gas);
    row->addButton(water);
    stage.add(QStringLiteral("checked"), gas);
    stage.add(QStringLiteral("unchecked"), water);

    auto *plain = new ZEMEnergyTab;
    plain->setEnergyType(ZEMEnergyIcon::SolarProduction);
    stage.add(QStringLiteral("not checkable"), plain);

    auto *disabled = makeTab(ZEMEnergyIcon::Heating);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);
    stage.playWith(gas);
}
