// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMThreeStars>

static ZEMThreeStars *makeRating(int stars)
{
    auto *rating = new ZEMThreeStars;
    rating->setFixedSize(90, 80); // room for the large stars
    rating->setStars(stars);
    return rating;
}

void Pages::zemthreestars(Stage &stage)
{
    auto *rating = makeRating(2);
    stage.add(QStringLiteral("2"), rating);
    for (const int stars : {0, 1, 3}) {
        stage.add(QString::number(stars), makeRating(stars));
    }
    auto *small = makeRating(2);
    small->setFixedSize(46, 42);
    small->setSmallVersion(true);
    stage.add(QStringLiteral("smallVersion"), small);
    stage.playWith(rating);
}
