// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QGridLayout>
#include <ZEMPageBackground>
#include <ZEMPixmap>
#include <ZEMStyle>
#include <ZEMTextLabel>

namespace {

const char *const names[] = {
    "White",        "WhiteAlpha0", "WhiteAlpha5", "WhiteAlpha15", "WhiteAlpha20", "WhiteAlpha50",
    "WhiteAlpha80", "GreyAlpha35", "Black",       "BlackAlpha20", "BlackAlpha45", "BlackAlpha50",
    "BlackAlpha80", "Magenta",     "SkyBlue",     "SlateBlue",    "Lime",         "LimeAlpha15",
    "LimeAlpha50",  "LimeAlpha70", "Green",       "Amber",        "AmberAlpha50", "Red",
    "SoftRed",      "Orange",      "YellowGreen", "Blue",         "Pink",         "Yellow",
    "DeepOrange",   "SpringGreen"};

QWidget *makePatch(const QColor &color)
{
    QPixmap picture(30, 30);
    picture.fill(Qt::transparent);
    auto *patch = new ZEMPixmap;
    patch->setPixmap(picture);
    patch->setColor(color);
    return patch;
}

} // namespace

void Pages::zemstyle(Stage &stage)
{
    // A program installs the style once, before its first widget:
    // QApplication::setStyle(new ZEMStyle(QStyleFactory::create("Fusion")));
    // ZEMStyle::setApplicationFonts();
    ZEMStyle style(nullptr);
    constexpr int columns = 4;
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(style.color(ZEMStyle::SlateBlue));
    auto *grid = new QGridLayout(page);
    for (int i = 0; i < 32; ++i) {
        const auto color = ZEMStyle::ZEMColor(i);
        auto *label = new ZEMTextLabel;
        QPalette palette = label->palette();
        style.setLabelColor(palette, ZEMStyle::White);
        label->setPalette(palette);
        label->setText(QString::fromLatin1(names[i]));
        grid->addWidget(makePatch(style.color(color)), i / columns, i % columns * 2);
        grid->addWidget(label, i / columns, i % columns * 2 + 1);
    }
    stage.cover(page);
    stage.playWith(page);
}
