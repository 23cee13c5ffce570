// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMHistogramLegendItem>
#include <ZEMStyle>
#include <qwt_text.h>

static ZEMHistogramLegendItem *makeItem(const QString &title, ZEMStyle::ZEMColor color)
{
    QPixmap square(12, 12);
    square.fill(ZEMStyle(nullptr).color(color));
    auto *item = new ZEMHistogramLegendItem;
    item->setText(title);
    item->setTextColor(ZEMStyle(nullptr).color(ZEMStyle::White));
    item->setIdentifierSize(square.size());
    item->setIdentifier(square);
    item->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    item->setIdentifierIndent(10); // after size and spacing
    return item;
}

void Pages::zemhistogramlegenditem(Stage &stage)
{
    auto *used = makeItem(QStringLiteral("Verbruik"), ZEMStyle::Amber);
    stage.add(QStringLiteral("as a chart has it"), used);

    auto *blue = makeItem(QStringLiteral("Productie"), ZEMStyle::Lime);
    blue->setTextColor(ZEMStyle(nullptr).color(ZEMStyle::SkyBlue));
    stage.add(QStringLiteral("another colour of the text"), blue);

    auto *button = makeItem(QStringLiteral("Gas"), ZEMStyle::Orange);
    button->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_small.png")));
    stage.add(QStringLiteral("another background"), button);

    stage.addButton(QStringLiteral("setIdentifierIndent(2)"),
                    [=] { used->setIdentifierIndent(2); });
    stage.addButton(QStringLiteral("setIdentifierIndent(30)"),
                    [=] { used->setIdentifierIndent(30); });
    stage.addButton(QStringLiteral("setTextColor(Lime)"), [=] {
        used->setTextColor(ZEMStyle(nullptr).color(ZEMStyle::Lime));
        used->update();
    });
}
