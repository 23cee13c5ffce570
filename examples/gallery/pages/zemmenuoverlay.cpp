// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMButton>
#include <ZEMMenuOverlay>
#include <ZEMTextLabel>

void Pages::zemmenuoverlay(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(96, 112, 128));
    auto *power = new ZEMButton(page);
    power->setIcon(QIcon(QStringLiteral(":/tango/graphics/tango/actions/process-stop-icon.png")));
    power->move(295, 30);
    auto *chosen = new ZEMTextLabel(page);
    chosen->setGeometry(270, 100, 200, 30);

    auto *menu = new ZEMMenuOverlay(page);
    menu->setText1(QStringLiteral("afsluiten"));
    menu->setText2(QStringLiteral("standby"));
    menu->setText3(QStringLiteral("annuleren"));
    menu->showButton4(true);
    menu->setText4(QStringLiteral("status"));
    QObject::connect(power, &ZEMButton::clicked, menu, &QWidget::show);
    QObject::connect(power, &ZEMButton::clicked, menu, &QWidget::raise);
    QObject::connect(menu, &ZEMMenuOverlay::button1_clicked, chosen,
                     [=] { chosen->setText(menu->getText1()); });
    QObject::connect(menu, &ZEMMenuOverlay::button2_clicked, chosen,
                     [=] { chosen->setText(menu->getText2()); });

    stage.cover(page);
    stage.playWith(menu);
    stage.addButton(QStringLiteral("show()"), [=] { menu->show(); });
    stage.addButton(QStringLiteral("showButton4(false)"), [=] { menu->showButton4(false); });
    stage.addButton(QStringLiteral("showButton4(true)"), [=] { menu->showButton4(true); });
}
