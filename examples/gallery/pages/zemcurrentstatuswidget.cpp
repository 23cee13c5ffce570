// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QVBoxLayout>
#include <ZEMCurrentStatusWidget>

static ZEMCurrentStatusWidget *makeStatus(double production, double consumption)
{
    auto *status = new ZEMCurrentStatusWidget;
    status->setTitle(QStringLiteral("huidige status"));
    status->setMaxProduction(3000.0); // watts
    status->setProduction(production);
    status->setConsumption(consumption);
    return status;
}

void Pages::zemcurrentstatuswidget(Stage &stage)
{
    auto *page = new QWidget;
    auto *rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);

    // More sun than is used: what is over goes to the grid.
    auto *status = makeStatus(2100.0, 340.0);
    rows->addWidget(status);

    auto *unknown = makeStatus(400.0, 1900.0);
    unknown->setTitle(QStringLiteral("de meter zwijgt"));
    unknown->setMeteringStatus(false);
    rows->addWidget(unknown);

    stage.fill(page, Stage::height);
    stage.playWith(status);
}
