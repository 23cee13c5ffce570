// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <ZEMButton>

namespace {

const QString buttons = QStringLiteral(":/zem/graphics/main/buttons/%1.png");
const QString icons = QStringLiteral(":/zem/graphics/icons/%1.png");

ZEMButton *makeButton(const QString &text)
{
    auto *button = new ZEMButton;
    button->setBackground(QPixmap(buttons.arg(QStringLiteral("btn_rect_xs_small"))));
    button->setText(text);
    return button;
}

ZEMButton *makeToggle(const QString &text, bool checked)
{
    ZEMButton *toggle = makeButton(text);
    toggle->setBackgroundOff(QPixmap(buttons.arg(QStringLiteral("btn_rect_xs_small_disabled"))));
    toggle->setCheckable(true);
    toggle->setChecked(checked);
    return toggle;
}

} // namespace

void Pages::zembutton(Stage &stage)
{
    auto *ok = new ZEMButton;
    ok->setBackground(QPixmap(buttons.arg(QStringLiteral("btn_square_small"))));
    ok->setBackgroundOff(QPixmap(buttons.arg(QStringLiteral("btn_square_small_disabled"))));
    ok->setIcon(QIcon(icons.arg(QStringLiteral("green-ok-icon_small"))));
    stage.add(QStringLiteral("picture and icon"), ok);

    auto *off = new ZEMButton;
    off->setBackground(ok->getBackground());
    off->setBackgroundOff(ok->getBackgroundOff());
    off->setIcon(ok->icon());
    off->setEnabled(false);
    stage.add(QStringLiteral("disabled"), off);

    auto *bare = new ZEMButton;
    bare->setIcon(QIcon(icons.arg(QStringLiteral("icon_pencil"))));
    stage.add(QStringLiteral("icon alone"), bare);

    auto *onlyText = new ZEMButton;
    onlyText->setText(QStringLiteral("menu"));
    stage.add(QStringLiteral("text alone"), onlyText);

    stage.add(QStringLiteral("picture and text"), makeButton(QStringLiteral("opslaan")));

    auto *disabled = makeButton(QStringLiteral("opslaan"));
    disabled->setBackgroundOff(QPixmap(buttons.arg(QStringLiteral("btn_rect_xs_small_disabled"))));
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled"), disabled);

    auto *checked = makeToggle(QStringLiteral("aan"), true);
    stage.add(QStringLiteral("toggle, checked"), checked);
    stage.add(QStringLiteral("toggle, unchecked"), makeToggle(QStringLiteral("uit"), false));

    auto *disabledToggle = makeToggle(QStringLiteral("vast"), true);
    disabledToggle->setBackgroundDisabled(
        QPixmap(buttons.arg(QStringLiteral("btn_rect_xs_small_disabled"))));
    disabledToggle->setEnabled(false);
    stage.add(QStringLiteral("toggle, disabled"), disabledToggle);

    auto *hidden = makeToggle(QStringLiteral("uit"), false);
    hidden->setHideWhenDisabled(true);
    stage.add(QStringLiteral("hideWhenDisabled, unchecked"), hidden);

    stage.playWith(ok);
}
