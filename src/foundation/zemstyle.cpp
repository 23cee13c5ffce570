// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemstyle.h"

#include <QApplication>
#include <QBrush>
#include <QFont>
#include <QPalette>

ZEMStyle::ZEMStyle(QStyle *style) : QProxyStyle(style)
{
    colors.insert(White, QColor(255, 255, 255, 255));
    colors.insert(WhiteAlpha0, QColor(255, 255, 255, 0));
    colors.insert(WhiteAlpha5, QColor(255, 255, 255, 13));
    colors.insert(WhiteAlpha15, QColor(255, 255, 255, 38));
    colors.insert(WhiteAlpha20, QColor(255, 255, 255, 51));
    colors.insert(WhiteAlpha50, QColor(255, 255, 255, 128));
    colors.insert(WhiteAlpha80, QColor(255, 255, 255, 204));
    colors.insert(GreyAlpha35, QColor(208, 208, 208, 89));
    colors.insert(Black, QColor(0, 0, 0, 255));
    colors.insert(BlackAlpha20, QColor(0, 0, 0, 51));
    colors.insert(BlackAlpha45, QColor(0, 0, 0, 115));
    colors.insert(BlackAlpha50, QColor(0, 0, 0, 128));
    colors.insert(BlackAlpha80, QColor(0, 0, 0, 204));
    colors.insert(Magenta, QColor(227, 0, 123, 255));
    colors.insert(SkyBlue, QColor(97, 180, 220, 255));
    colors.insert(SlateBlue, QColor(70, 107, 119, 255));
    colors.insert(Lime, QColor(186, 255, 0, 255));
    colors.insert(LimeAlpha15, QColor(186, 255, 0, 38));
    colors.insert(LimeAlpha50, QColor(186, 255, 0, 128));
    colors.insert(LimeAlpha70, QColor(186, 255, 0, 179));
    colors.insert(Green, QColor(67, 230, 73, 255));
    colors.insert(Amber, QColor(232, 174, 34, 255));
    colors.insert(AmberAlpha50, QColor(232, 174, 34, 128));
    colors.insert(Red, QColor(255, 0, 0, 255));
    colors.insert(SoftRed, QColor(237, 65, 61, 255));
    colors.insert(Orange, QColor(227, 127, 39, 255));
    colors.insert(YellowGreen, QColor(195, 254, 3, 255));
    colors.insert(Blue, QColor(0, 0, 253, 255));
    colors.insert(Pink, QColor(226, 0, 123, 255));
    colors.insert(Yellow, QColor(254, 197, 0, 255));
    colors.insert(DeepOrange, QColor(254, 66, 0, 255));
    colors.insert(SpringGreen, QColor(0, 254, 114, 255));
}

ZEMStyle::~ZEMStyle() = default;

const QColor &ZEMStyle::color(ZEMColor c) const
{
    return colors.at(c);
}

void ZEMStyle::setLabelColor(QPalette &palette, ZEMColor c)
{
    palette.setBrush(QPalette::All, QPalette::WindowText, QBrush(color(c), Qt::SolidPattern));
}

void ZEMStyle::setButtonColor(QPalette &palette, ZEMColor c)
{
    palette.setBrush(QPalette::All, QPalette::ButtonText, QBrush(color(c), Qt::SolidPattern));
}

void ZEMStyle::polish(QPalette &palette)
{
    const auto set = [&](QPalette::ColorGroup group, QPalette::ColorRole role, ZEMColor c) {
        palette.setBrush(group, role, QBrush(color(c), Qt::SolidPattern));
    };
    // The disabled group comes after All, which writes it too.
    set(QPalette::All, QPalette::WindowText, White);
    set(QPalette::All, QPalette::ButtonText, White);
    set(QPalette::All, QPalette::Text, White);
    set(QPalette::Disabled, QPalette::ButtonText, WhiteAlpha50);
    set(QPalette::Disabled, QPalette::WindowText, WhiteAlpha50);
    set(QPalette::All, QPalette::Shadow, BlackAlpha50);
}

void ZEMStyle::polish(QFont &font)
{
    font.setFamily(QStringLiteral("Cabin"));
}

void ZEMStyle::setApplicationFonts()
{
    constexpr int pointSize = 11;
    const QString family = QStringLiteral("Cabin");
    // Of the page header, the menu overlay and the text of a letter.
    QFont::insertSubstitution(QStringLiteral("Quicksand Book"), QStringLiteral("Quicksand"));
    QFont::insertSubstitution(QStringLiteral("MS Shell Dlg 2"), family);
    QApplication::setFont(QFont(family, pointSize));
}
