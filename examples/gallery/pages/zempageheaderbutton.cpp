// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMButton>
#include <ZEMPageHeaderButton>
#include <ZEMTextLabel>

static ZEMButton *makeButton(const QString &icon)
{
    auto *button = new ZEMButton;
    button->setIcon(QIcon(icon));
    return button;
}

void Pages::zempageheaderbutton(Stage &stage)
{
    const QString icons = QStringLiteral(":/zem/graphics/icons/%1.png");
    auto *empty = new ZEMPageHeaderButton;
    stage.add(QStringLiteral("empty"), empty);

    auto *tile = new ZEMPageHeaderButton;
    tile->setWidget(makeButton(icons.arg(QStringLiteral("green-ok-icon_small"))));
    stage.add(QStringLiteral("with a button"), tile);

    auto *number = new ZEMPageHeaderButton;
    auto *text = new ZEMTextLabel;
    text->setAlignment(Qt::AlignCenter);
    text->setText(QStringLiteral("340 W"));
    number->setWidget(text);
    stage.add(QStringLiteral("with a label"), number);

    // Tiles made from now on look otherwise, until the default is set again.
    ZEMPageHeaderButton::setDefaultBackgroundImage(
        QStringLiteral(":/zem/graphics/main/buttons/selector_btn.png"));
    auto *other = new ZEMPageHeaderButton;
    ZEMPageHeaderButton::setDefaultBackgroundImage(QString());
    other->setWidget(makeButton(icons.arg(QStringLiteral("icon_pencil"))));
    stage.add(QStringLiteral("of another default picture"), other);

    stage.playWith(tile);
}
