// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QIntValidator>
#include <ZEMLineEdit>

static ZEMLineEdit *makeField(const QString &text)
{
    auto *field = new ZEMLineEdit;
    field->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field->setLayoutLeft(12);
    field->setLayoutRight(12);
    field->setText(text);
    return field;
}

void Pages::zemlineedit(Stage &stage)
{
    auto *name = makeField(QStringLiteral("Keuken"));
    stage.add(QStringLiteral("a text"), name);

    auto *empty = makeField(QString());
    empty->setPlaceholderText(QStringLiteral("naam"));
    stage.add(QStringLiteral("empty, with a placeholder"), empty);

    auto *fixed = makeField(QStringLiteral("NL-2031"));
    fixed->setReadOnly(true);
    stage.add(QStringLiteral("readOnly"), fixed);

    auto *disabled = makeField(QStringLiteral("Zolder"));
    disabled->setEnabled(false);
    // Its ground is light then, on which white is not read.
    QPalette palette = disabled->palette();
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::darkGray);
    disabled->setPalette(palette);
    stage.add(QStringLiteral("disabled"), disabled);

    auto *number = makeField(QStringLiteral("42"));
    number->setValidator(new QIntValidator(0, 100, number));
    number->setMaxLength(3);
    stage.add(QStringLiteral("numbers to 100 only"), number);

    stage.playWith(name);
    stage.setRange(QStringLiteral("maxLength"), 0, 32767);
}
