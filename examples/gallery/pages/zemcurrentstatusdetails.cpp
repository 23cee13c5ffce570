// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "look.h"
#include "pages.h"
#include "stage.h"

#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusDetailsItem>
#include <ZEMPageBackground>

static ZEMCurrentStatusDetailsItem *makeItem(const QString &icon, double watt)
{
    auto *item = new ZEMCurrentStatusDetailsItem;
    item->setIcon(
        Look::picture(QStringLiteral(":/zem/graphics/icons/%1.png").arg(icon), QSize(30, 30)));
    item->setValue(watt);
    return item;
}

void Pages::zemcurrentstatusdetails(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *details = new ZEMCurrentStatusDetails(page);
    details->move(73, 100);
    details->addConsumptionItem(makeItem(QStringLiteral("star_icon"), 340.0));
    details->addConsumptionItem(makeItem(QStringLiteral("icons_14"), 2700.0));
    details->addProductionItem(makeItem(QStringLiteral("icons_11"), 1250.0));
    details->addTotalsItem(makeItem(QStringLiteral("icons_03"), 1790.0));
    // The host gives the totals; that of the grid is their difference.
    details->setTotalConsumptionValue(3040.0);
    details->setTotalProductionValue(1250.0);

    stage.cover(page);
    stage.playWith(details);
    stage.addButton(QStringLiteral("setMeteringStatus(false)"),
                    [=] { details->setMeteringStatus(false); });
    stage.addButton(QStringLiteral("setMeteringStatus(true)"),
                    [=] { details->setMeteringStatus(true); });
    stage.addButton(QStringLiteral("setTotalConsumptionValue(240)"),
                    [=] { details->setTotalConsumptionValue(240.0); });
    stage.addButton(QStringLiteral("setTotalProductionValue(2900)"),
                    [=] { details->setTotalProductionValue(2900.0); });
}
