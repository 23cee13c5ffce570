// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "look.h"
#include "pages.h"
#include "stage.h"

#include <ZEMCurrentStatusDetailsItem>

static ZEMCurrentStatusDetailsItem *makeItem(double watt)
{
    auto *item = new ZEMCurrentStatusDetailsItem;
    item->setFixedSize(180, 40);
    item->setIcon(
        Look::picture(QStringLiteral(":/zem/graphics/icons/icons_14.png"), QSize(36, 36)));
    item->setMaxValue(3000.0); // W
    item->setValue(watt);
    return item;
}

void Pages::zemcurrentstatusdetailsitem(Stage &stage)
{
    auto *item = makeItem(340.0);
    item->setIconPowerSource(
        Look::picture(QStringLiteral(":/zem/graphics/icons/icons_11.png"), QSize(36, 36)));
    item->setShowArrows(true);
    item->setValue(2100.0);
    stage.add(QStringLiteral("arrows and a power source"), item);

    stage.add(QStringLiteral("icon and power"), makeItem(2700.0));
    auto *bare = makeItem(340.0);
    bare->setIcon(QPixmap());
    stage.add(QStringLiteral("without an icon"), bare);

    auto *unknown = makeItem(340.0);
    unknown->setValid(false);
    stage.add(QStringLiteral("not valid"), unknown);

    auto *disabled = makeItem(340.0);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    stage.playWith(item);
    stage.addButton(QStringLiteral("setValid(false)"), [=] { item->setValid(false); });
    stage.addButton(QStringLiteral("setValid(true)"), [=] { item->setValid(true); });
    stage.addButton(QStringLiteral("PositiveValueDirection: Left"), [=] {
        item->setPositiveValueDirection(ZEMAnimatedArrows::Left);
        item->setValue(item->getValue());
    });
}
