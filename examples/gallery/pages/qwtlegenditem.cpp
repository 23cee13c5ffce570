// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QwtLegendItem>
#include <ZEMStyle>
#include <qwt_text.h>

static QwtLegendItem *makeItem(const QString &title, ZEMStyle::ZEMColor color)
{
    QwtText text(title);
    text.setColor(ZEMStyle(nullptr).color(ZEMStyle::White));
    QPixmap square(12, 12);
    square.fill(ZEMStyle(nullptr).color(color));
    auto *item = new QwtLegendItem;
    item->setText(text);
    item->setIdentifierSize(square.size());
    item->setIdentifier(square);
    item->setSpacing(4);
    item->setFixedSize(120, 30);
    return item;
}

void Pages::qwtlegenditem(Stage &stage)
{
    auto *used = makeItem(QStringLiteral("Verbruik"), ZEMStyle::Amber);
    stage.add(QStringLiteral("a square of 12 pixels"), used);
    auto *wide = makeItem(QStringLiteral("Productie"), ZEMStyle::Lime);
    QPixmap bar(30, 6);
    bar.fill(ZEMStyle(nullptr).color(ZEMStyle::Lime));
    wide->setIdentifierSize(bar.size());
    wide->setIdentifier(bar);
    stage.add(QStringLiteral("a bar of 30 by 6"), wide);
    auto *spaced = makeItem(QStringLiteral("Gas"), ZEMStyle::Orange);
    spaced->setSpacing(16);
    stage.add(QStringLiteral("spacing of 16"), spaced);

    stage.addButton(QStringLiteral("setSpacing(2)"), [=] { used->setSpacing(2); });
    stage.addButton(QStringLiteral("setSpacing(20)"), [=] { used->setSpacing(20); });
    stage.playWith(used);
}
