// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMThrobber>

void Pages::zemthrobber(Stage &stage)
{
    auto *spinner = new ZEMThrobber;
    spinner->setFixedSize(64, 64);
    stage.add(QStringLiteral("it runs from its construction on"), spinner);

    auto *resting = new ZEMThrobber;
    resting->setFixedSize(64, 64);
    resting->pause();
    stage.add(QStringLiteral("at rest"), resting);

    // Any picture that is a row of frames will do.
    auto *arrows = new ZEMThrobber;
    arrows->setFixedSize(64, 64);
    arrows->setImage(QStringLiteral(":/zem/graphics/icons/throbber.png"), 6);
    stage.add(QStringLiteral("setImage(path, 6)"), arrows);

    stage.addButton(QStringLiteral("start()"), [spinner] { spinner->start(); });
    stage.addButton(QStringLiteral("pause()"), [spinner] { spinner->pause(); });
    stage.addButton(QStringLiteral("stop()"), [spinner] { spinner->stop(); });
    stage.playWith(spinner);
}
