// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMWidgetLabel>

static ZEMWidgetLabel *makeStrip(const QString &title)
{
    auto *strip = new ZEMWidgetLabel;
    strip->setTitle(title);
    strip->setFixedWidth(180);
    return strip;
}

void Pages::zemwidgetlabel(Stage &stage)
{
    auto *strip = makeStrip(QStringLiteral("totaal vandaag"));
    stage.add(QStringLiteral("a title"), strip);
    auto *disabled = makeStrip(QStringLiteral("huidige status"));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);
    stage.playWith(strip);
}
