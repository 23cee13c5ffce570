// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEM>
#include <ZEMEnergyTabWidget>

void Pages::zem(Stage &stage)
{
    auto *all = new ZEMEnergyTabWidget;
    stage.add(QStringLiteral("all five, as when new"), all);

    auto *some = new ZEMEnergyTabWidget;
    some->showTabs(ZEM::TabElectricity | ZEM::TabGas | ZEM::TabSolar);
    some->selectTab(ZEM::TabGas);
    stage.add(QStringLiteral("TabElectricity | TabGas | TabSolar, and TabGas selected"), some);

    auto *two = new ZEMEnergyTabWidget;
    two->showTabs(ZEM::TabWater | ZEM::TabHeating);
    two->selectTab(ZEM::TabHeating);
    stage.add(QStringLiteral("TabWater | TabHeating, and TabHeating selected"), two);

    stage.addButton(QStringLiteral("showTabs(TabGas)"), [some] { some->showTabs(ZEM::TabGas); });
    stage.addButton(QStringLiteral("showTabs(TabGas | TabWater)"),
                    [some] { some->showTabs(ZEM::TabGas | ZEM::TabWater); });
    stage.addButton(QStringLiteral("selectTab(TabWater)"),
                    [some] { some->selectTab(ZEM::TabWater); });
    stage.playWith(some);
}
