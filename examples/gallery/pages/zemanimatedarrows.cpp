// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMAnimatedArrows>

static ZEMAnimatedArrows *makeArrows(ZEMAnimatedArrows::Direction direction,
                                     ZEMAnimatedArrows::Speed speed)
{
    auto *arrows = new ZEMAnimatedArrows;
    arrows->setFixedSize(60, 24);
    arrows->setDirection(direction);
    arrows->setSpeed(speed);
    arrows->start();
    return arrows;
}

void Pages::zemanimatedarrows(Stage &stage)
{
    auto *arrows = makeArrows(ZEMAnimatedArrows::Right, ZEMAnimatedArrows::Medium);
    stage.add(QStringLiteral("Right, Medium"), arrows);
    stage.add(QStringLiteral("Left, Slow"),
              makeArrows(ZEMAnimatedArrows::Left, ZEMAnimatedArrows::Slow));
    stage.add(QStringLiteral("Left, Fast"),
              makeArrows(ZEMAnimatedArrows::Left, ZEMAnimatedArrows::Fast));

    auto *small = makeArrows(ZEMAnimatedArrows::Right, ZEMAnimatedArrows::Fast);
    small->setSize(ZEMAnimatedArrows::Small);
    stage.add(QStringLiteral("Small"), small);

    auto *stopped = makeArrows(ZEMAnimatedArrows::Right, ZEMAnimatedArrows::Medium);
    stopped->stop();
    stage.add(QStringLiteral("stopped"), stopped);

    stage.playWith(arrows);
    stage.addButton(QStringLiteral("toggleDirection()"), [=] { arrows->toggleDirection(); });
    stage.addButton(QStringLiteral("setTimelineSpeed(Slow)"),
                    [=] { arrows->setTimelineSpeed(ZEMAnimatedArrows::Slow); });
}
