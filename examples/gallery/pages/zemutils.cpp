// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMAnimatedArrows>
#include <ZEMLabel>
#include <ZEMTextLabel>
#include <ZEMUtils>

static ZEMLabel *makeValue(double watt)
{
    auto *value = new ZEMLabel;
    value->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    value->setText(ZEMUtils::wattToStringAutoScale(watt));
    return value;
}

void Pages::zemutils(Stage &stage)
{
    for (const double watt : {0.0, 340.0, 999.4, 1480.0, 22100.0, -650.0}) {
        stage.add(QStringLiteral("%1 W").arg(watt), makeValue(watt));
    }

    auto *half = new ZEMTextLabel;
    half->setText(ZEMUtils::wattToString(480.0, true));
    stage.add(QStringLiteral("480 W, wattToString() in kW"), half);

    constexpr double most = 3000.0; // W
    auto *arrows = new ZEMAnimatedArrows;
    const auto flow = [arrows](double watt) {
        const int speed = ZEMUtils::calculateSpeed(most, watt);
        arrows->setSpeed(ZEMAnimatedArrows::Speed(speed));
        if (speed != ZEMAnimatedArrows::Stopped && !arrows->getRunning()) {
            arrows->start();
        }
    };
    flow(2500.0);
    stage.add(QStringLiteral("the speed of a flow, of 3000 W at most"), arrows);
    for (const double watt : {0.0, 500.0, 1500.0, 2500.0}) {
        stage.addButton(QStringLiteral("calculateSpeed(3000, %1)").arg(watt), [=] { flow(watt); });
    }

    auto *version = new ZEMTextLabel;
    version->setText(ZEMUtils::getVersion());
    stage.add(QStringLiteral("getVersion()"), version);
}
