// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QHBoxLayout>
#include <ZEMPageBackground>
#include <ZEMPageIndicator>

/** The dots are made for the light ground of a page header. */
static QWidget *onLightGround(QWidget *dots)
{
    auto *ground = new ZEMPageBackground;
    ground->setMinimumSize(0, 0);
    ground->setBackgroundColor(QColor(225, 230, 233));
    (new QHBoxLayout(ground))->addWidget(dots);
    return ground;
}

static ZEMPageIndicator *makeDots(int pages, int current)
{
    auto *dots = new ZEMPageIndicator;
    dots->setNrPages(pages);
    dots->setCurrentPage(current);
    return dots;
}

void Pages::zempageindicator(Stage &stage)
{
    auto *dots = makeDots(4, 1);
    stage.add(QStringLiteral("the second of four pages"), onLightGround(dots));
    stage.add(QStringLiteral("the last of nine pages"), onLightGround(makeDots(9, 8)));
    stage.add(QStringLiteral("the first of two pages"), onLightGround(makeDots(2, 0)));
    auto *gone = makeDots(4, 3);
    gone->setNrPages(3);
    stage.add(QStringLiteral("a page that is gone"), onLightGround(gone));
    stage.playWith(dots);
}
