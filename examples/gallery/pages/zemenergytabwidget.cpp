// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QMetaEnum>
#include <ZEM>
#include <ZEMEnergyTabWidget>
#include <ZEMTextLabel>

void Pages::zemenergytabwidget(Stage &stage)
{
    auto *tabs = new ZEMEnergyTabWidget;
    auto *chosen = new ZEMTextLabel;
    chosen->setText(QStringLiteral("Electricity"));
    chosen->setFixedWidth(160);
    QObject::connect(tabs, &ZEMEnergyTabWidget::btn_clicked, chosen,
                     [chosen](ZEMEnergyIcon::Type energy) {
                         const auto names = QMetaEnum::fromType<ZEMEnergyIcon::Type>();
                         chosen->setText(QString::fromLatin1(names.valueToKey(energy)));
                     });
    stage.add(QStringLiteral("all five"), tabs);
    stage.add(QStringLiteral("btn_clicked()"), chosen);

    auto *disabled = new ZEMEnergyTabWidget;
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    stage.playWith(tabs);
    const auto hidden = ZEM::TabElectricity | ZEM::TabGas;
    stage.addButton(QStringLiteral("showTabs(Electricity | Gas)"), [=] { tabs->showTabs(hidden); });
    stage.addButton(QStringLiteral("showTabs(all five)"), [=] {
        tabs->showTabs(hidden | ZEM::TabWater | ZEM::TabHeating | ZEM::TabSolar);
    });
    stage.addButton(QStringLiteral("selectTab(TabGas)"), [=] { tabs->selectTab(ZEM::TabGas); });
}
