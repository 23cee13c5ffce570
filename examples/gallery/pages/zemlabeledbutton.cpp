// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMButton>
#include <ZEMLabeledButton>

static ZEMLabeledButton *makeTile(const QString &title)
{
    auto *tile = new ZEMLabeledButton;
    tile->setTitle(title);
    tile->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_small.png")));
    tile->setIcon(QIcon(QStringLiteral(":/zem/graphics/icons/icons_14.png")));
    return tile;
}

void Pages::zemlabeledbutton(Stage &stage)
{
    auto *tile = makeTile(QStringLiteral("huidige status"));
    tile->setBackgroundOff(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_small_disabled.png")));
    stage.add(QStringLiteral("title, picture and icon"), tile);
    QObject::connect(tile, &ZEMLabeledButton::clicked, tile,
                     [tile] { tile->setTitle(QStringLiteral("aangeraakt")); });

    auto *bare = makeTile(QString());
    bare->setTitleHidden(true);
    stage.add(QStringLiteral("titleHidden"), bare);

    auto *disabled = makeTile(QStringLiteral("niet nu"));
    disabled->setBackgroundOff(tile->getBackgroundOff());
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    auto *text = makeTile(QStringLiteral("zonder icoon"));
    text->setIcon(QIcon());
    text->getBackgroundWidget()->setText(QStringLiteral("tekst"));
    stage.add(QStringLiteral("a text of getBackgroundWidget()"), text);

    stage.playWith(tile);
}
