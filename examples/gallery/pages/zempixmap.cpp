// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMPixmap>

static ZEMPixmap *makeHouse(double opacity)
{
    auto *house = new ZEMPixmap;
    house->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/icons/icons_14.png")));
    house->setOpacity(opacity);
    return house;
}

void Pages::zempixmap(Stage &stage)
{
    auto *house = makeHouse(1.0);
    stage.add(QStringLiteral("a picture"), house);
    stage.add(QStringLiteral("half seen"), makeHouse(0.5));
    stage.add(QStringLiteral("hardly seen"), makeHouse(0.2));

    auto *colored = makeHouse(1.0);
    colored->setColor(QColor(97, 180, 220));
    stage.add(QStringLiteral("filled with a colour"), colored);

    auto *disabled = makeHouse(1.0);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    stage.playWith(house);
    // A new colour is seen from the next paint on.
    stage.addButton(QStringLiteral("update()"), [house] { house->update(); });
}
