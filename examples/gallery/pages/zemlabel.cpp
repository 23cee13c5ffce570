// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMLabel>

static ZEMLabel *makeValue(const QString &text)
{
    auto *label = new ZEMLabel;
    label->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    label->setText(text);
    return label;
}

void Pages::zemlabel(Stage &stage)
{
    auto *value = makeValue(QStringLiteral("1,5 kW"));
    stage.add(QStringLiteral("on a picture"), value);

    auto *flat = makeValue(QStringLiteral("1,5 kW"));
    flat->setShadow(false);
    stage.add(QStringLiteral("without shadow"), flat);

    auto *disabled = makeValue(QStringLiteral("1,5 kW"));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    auto *left = makeValue(QStringLiteral("links"));
    left->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    left->setIndent(8);
    stage.add(QStringLiteral("left, indent of 8"), left);

    auto *right = makeValue(QStringLiteral("rechts"));
    right->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    right->setMargin(6);
    stage.add(QStringLiteral("right, margin of 6"), right);

    auto *rich = makeValue(QStringLiteral("<b>1,5</b> <i>kW</i>"));
    rich->setShadow(false);
    rich->setTextFormat(Qt::RichText);
    stage.add(QStringLiteral("rich text, without shadow"), rich);

    auto *plain = new ZEMLabel;
    plain->setText(QStringLiteral("without a picture"));
    stage.add(QStringLiteral("as large as its text"), plain);

    stage.playWith(value);
}
