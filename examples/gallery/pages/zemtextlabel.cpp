// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMStyle>
#include <ZEMTextLabel>
#include <ZEMUtils>

static ZEMTextLabel *makeLabel(const QString &text)
{
    auto *label = new ZEMTextLabel;
    label->setFont(QFont(QStringLiteral("Cabin"), 20));
    label->setText(text);
    return label;
}

void Pages::zemtextlabel(Stage &stage)
{
    auto *power = makeLabel(ZEMUtils::wattToStringAutoScale(1480.0));
    power->setShadow(true);
    stage.add(QStringLiteral("with a shadow"), power);
    stage.add(QStringLiteral("without"), makeLabel(QStringLiteral("1,5 kW")));

    auto *disabled = makeLabel(QStringLiteral("1,5 kW"));
    disabled->setShadow(true);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    auto *colored = makeLabel(QStringLiteral("instellingen"));
    colored->setShadow(true);
    QPalette palette = colored->palette();
    ZEMStyle(nullptr).setLabelColor(palette, ZEMStyle::Magenta);
    colored->setPalette(palette);
    stage.add(QStringLiteral("in a colour of ZEMStyle"), colored);

    stage.add(QStringLiteral("rich text, which has no shadow"),
              makeLabel(QStringLiteral("<b>1,5</b> <small>kW</small>")));

    // With a shadow a text is drawn as it stands.
    auto *literal = makeLabel(QStringLiteral("<b>1,5</b> kW"));
    literal->setTextFormat(Qt::PlainText); // by which it is measured
    literal->setShadow(true);
    stage.add(QStringLiteral("the same with a shadow"), literal);
    stage.playWith(power);
}
