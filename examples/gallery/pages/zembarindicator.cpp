// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMBarIndicator>
#include <ZEMStyle>

static ZEMBarIndicator *makeBar(double value)
{
    auto *bar = new ZEMBarIndicator;
    bar->setFixedSize(360, 16);
    bar->setMaxValue(3500.0); // kWh, the budget of a year
    bar->setValue(value);
    return bar;
}

void Pages::zembarindicator(Stage &stage)
{
    const ZEMStyle style(nullptr);

    auto *plain = makeBar(1200.0);
    stage.add(QStringLiteral("1200 of 3500 kWh"), plain);

    auto *marked = makeBar(1200.0);
    marked->setEnableMidValue(true);
    marked->setMidValue(1650.0);
    marked->setMidValuePen(QPen(style.color(ZEMStyle::SoftRed), 3));
    stage.add(QStringLiteral("with a mark at 1650, where the year is"), marked);

    auto *colored = makeBar(2600.0);
    colored->setValuePen(QPen(style.color(ZEMStyle::Lime), 2));
    colored->setMaxValuePen(QPen(style.color(ZEMStyle::WhiteAlpha20), 2));
    stage.add(QStringLiteral("pens of two pixels"), colored);

    stage.add(QStringLiteral("nothing yet"), makeBar(0.0));
    stage.add(QStringLiteral("used up"), makeBar(3500.0));

    stage.playWith(marked);
    stage.addButton(QStringLiteral("setMinValue(0)"), [=] { marked->setMinValue(0.0); });
    stage.addButton(QStringLiteral("setMinValue(1000)"), [=] { marked->setMinValue(1000.0); });
}
