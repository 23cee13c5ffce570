// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QMetaEnum>
#include <ZEMEnergyIcon>

void Pages::zemenergyicon(Stage &stage)
{
    const auto types = QMetaEnum::fromType<ZEMEnergyIcon::Type>();
    ZEMEnergyIcon *first = nullptr;
    for (const bool big : {true, false}) {
        for (int i = 0; i < types.keyCount(); ++i) {
            auto *icon = new ZEMEnergyIcon;
            icon->setUseBigIcon(big);
            icon->setEnergyType(ZEMEnergyIcon::Type(types.value(i)));
            stage.add(QString::fromLatin1(types.key(i)), icon);
            if (!first) {
                first = icon;
            }
        }
    }
    stage.playWith(first);
}
