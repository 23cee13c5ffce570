// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <ZEMPageBackground>
#include <ZEMRadioButton>

void Pages::zemradiobutton(Stage &stage)
{
    // The dots are made for the light ground of a page header.
    auto *indicator = new ZEMPageBackground;
    indicator->setMinimumSize(0, 0);
    indicator->setBackgroundColor(QColor(225, 230, 233));
    auto *row = new QHBoxLayout(indicator);
    auto *dots = new QButtonGroup(indicator);
    for (int page = 0; page < 5; ++page) {
        auto *dot = new ZEMRadioButton;
        dots->addButton(dot, page);
        row->addWidget(dot);
    }
    dots->button(1)->setChecked(true);
    stage.add(QStringLiteral("five, of which one is checked"), indicator);

    auto *large = new ZEMRadioButton;
    large->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small.png")));
    large->setCheckedIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/check.png")));
    large->setChecked(true);
    stage.add(QStringLiteral("other pictures, checked"), large);

    auto *off = new ZEMRadioButton;
    off->setBackground(large->getBackground());
    off->setCheckedIcon(large->getCheckedIcon());
    stage.add(QStringLiteral("unchecked"), off);

    auto *disabled = new ZEMRadioButton;
    disabled->setBackground(large->getBackground());
    disabled->setCheckedIcon(large->getCheckedIcon());
    disabled->setChecked(true);
    disabled->setEnabled(false);
    stage.add(QStringLiteral("disabled, which looks the same"), disabled);
    stage.playWith(large);
}
