// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMLineEditButton>

static ZEMLineEditButton *makeField(const QString &text)
{
    auto *field = new ZEMLineEditButton;
    field->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setBackgroundOff(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide_disabled.png")));
    field->setLayoutLeft(12);
    field->setLayoutRight(12);
    field->setText(text);
    return field;
}

void Pages::zemlineeditbutton(Stage &stage)
{
    // A touch opens an input dialog, such as ZEMLineEditDialog.
    auto *name = makeField(QStringLiteral("Keuken"));
    QObject::connect(name, &ZEMLineEditButton::clicked, name,
                     [name] { name->setText(QStringLiteral("aangeraakt")); });
    stage.add(QStringLiteral("a text"), name);

    auto *centred = makeField(QStringLiteral("midden"));
    centred->setAlignment(Qt::AlignCenter);
    stage.add(QStringLiteral("centred"), centred);

    auto *right = makeField(QStringLiteral("0,25 €/kWh"));
    right->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    stage.add(QStringLiteral("right"), right);

    auto *disabled = makeField(QStringLiteral("Zolder"));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    stage.add(QStringLiteral("empty"), makeField(QString()));
    stage.playWith(name);
}
