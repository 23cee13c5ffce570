// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "qtcompat.h"

#include <ZEMStyle>

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontInfo>
#include <QPalette>
#include <QRegularExpression>
#include <QTest>

class tst_ZEMStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorTable_data();
    void colorTable();
    void colorTableHas32Entries();
    void labelColorReachesAllGroupsAndNoOtherRole();
    void buttonColorReachesAllGroupsAndNoOtherRole();
    void polishWritesTheDefaultPalette();
    void polishLeavesOtherRolesAlone();
    void polishIsVirtual();
    void polishFontSetsTheFamilyOnly();
    void headerGivesEveryColor();
    void fontsOfTheApplication();
    void quicksandStandsIn();
};

void tst_ZEMStyle::colorTable_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("expectedValue");
    QTest::addColumn<QColor>("expected");

    int next = 0;
    const auto row = [&](const char *name, ZEMStyle::ZEMColor c, int r, int g, int b, int a) {
        QTest::newRow(name) << int(c) << next++ << QColor(r, g, b, a);
    };
    row("White", ZEMStyle::White, 255, 255, 255, 255);
    row("WhiteAlpha0", ZEMStyle::WhiteAlpha0, 255, 255, 255, 0);
    row("WhiteAlpha5", ZEMStyle::WhiteAlpha5, 255, 255, 255, 13);
    row("WhiteAlpha15", ZEMStyle::WhiteAlpha15, 255, 255, 255, 38);
    row("WhiteAlpha20", ZEMStyle::WhiteAlpha20, 255, 255, 255, 51);
    row("WhiteAlpha50", ZEMStyle::WhiteAlpha50, 255, 255, 255, 128);
    row("WhiteAlpha80", ZEMStyle::WhiteAlpha80, 255, 255, 255, 204);
    row("GreyAlpha35", ZEMStyle::GreyAlpha35, 208, 208, 208, 89);
    row("Black", ZEMStyle::Black, 0, 0, 0, 255);
    row("BlackAlpha20", ZEMStyle::BlackAlpha20, 0, 0, 0, 51);
    row("BlackAlpha45", ZEMStyle::BlackAlpha45, 0, 0, 0, 115);
    row("BlackAlpha50", ZEMStyle::BlackAlpha50, 0, 0, 0, 128);
    row("BlackAlpha80", ZEMStyle::BlackAlpha80, 0, 0, 0, 204);
    row("Magenta", ZEMStyle::Magenta, 227, 0, 123, 255);
    row("SkyBlue", ZEMStyle::SkyBlue, 97, 180, 220, 255);
    row("SlateBlue", ZEMStyle::SlateBlue, 70, 107, 119, 255);
    row("Lime", ZEMStyle::Lime, 186, 255, 0, 255);
    row("LimeAlpha15", ZEMStyle::LimeAlpha15, 186, 255, 0, 38);
    row("LimeAlpha50", ZEMStyle::LimeAlpha50, 186, 255, 0, 128);
    row("LimeAlpha70", ZEMStyle::LimeAlpha70, 186, 255, 0, 179);
    row("Green", ZEMStyle::Green, 67, 230, 73, 255);
    row("Amber", ZEMStyle::Amber, 232, 174, 34, 255);
    row("AmberAlpha50", ZEMStyle::AmberAlpha50, 232, 174, 34, 128);
    row("Red", ZEMStyle::Red, 255, 0, 0, 255);
    row("SoftRed", ZEMStyle::SoftRed, 237, 65, 61, 255);
    row("Orange", ZEMStyle::Orange, 227, 127, 39, 255);
    row("YellowGreen", ZEMStyle::YellowGreen, 195, 254, 3, 255);
    row("Blue", ZEMStyle::Blue, 0, 0, 253, 255);
    row("Pink", ZEMStyle::Pink, 226, 0, 123, 255);
    row("Yellow", ZEMStyle::Yellow, 254, 197, 0, 255);
    row("DeepOrange", ZEMStyle::DeepOrange, 254, 66, 0, 255);
    row("SpringGreen", ZEMStyle::SpringGreen, 0, 254, 114, 255);
}

void tst_ZEMStyle::colorTable()
{
    QFETCH(int, value);
    QFETCH(int, expectedValue);
    QFETCH(QColor, expected);

    QCOMPARE(value, expectedValue);
    QCOMPARE(ZEMStyle(nullptr).color(ZEMStyle::ZEMColor(value)), expected);
}

void tst_ZEMStyle::colorTableHas32Entries()
{
    QCOMPARE(int(ZEMStyle::SpringGreen), 31);
}

static QPalette paletteOfOneColor()
{
    QPalette palette;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        palette.setBrush(QPalette::All, QPalette::ColorRole(role), QColor(1, 2, 3));
    }
    return palette;
}

static void compareSingleRole(const QPalette &palette, QPalette::ColorRole changed,
                              const QColor &color)
{
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const QBrush brush =
                palette.brush(QPalette::ColorGroup(group), QPalette::ColorRole(role));
            const QColor expected = role == changed ? color : QColor(1, 2, 3);
            QCOMPARE(brush, QBrush(expected, Qt::SolidPattern));
        }
    }
}

void tst_ZEMStyle::labelColorReachesAllGroupsAndNoOtherRole()
{
    QPalette palette = paletteOfOneColor();
    ZEMStyle(nullptr).setLabelColor(palette, ZEMStyle::SkyBlue);
    compareSingleRole(palette, QPalette::WindowText, QColor(97, 180, 220));
}

void tst_ZEMStyle::buttonColorReachesAllGroupsAndNoOtherRole()
{
    QPalette palette = paletteOfOneColor();
    ZEMStyle(nullptr).setButtonColor(palette, ZEMStyle::WhiteAlpha80);
    compareSingleRole(palette, QPalette::ButtonText, QColor(255, 255, 255, 204));
}

void tst_ZEMStyle::polishWritesTheDefaultPalette()
{
    QPalette palette;
    ZEMStyle(nullptr).polish(palette);

    const QColor white(255, 255, 255);
    const QColor faintWhite(255, 255, 255, 128);
    const QColor shadow(0, 0, 0, 128);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        QCOMPARE(palette.brush(group, QPalette::WindowText), QBrush(white));
        QCOMPARE(palette.brush(group, QPalette::ButtonText), QBrush(white));
        QCOMPARE(palette.brush(group, QPalette::Text), QBrush(white));
        QCOMPARE(palette.brush(group, QPalette::Shadow), QBrush(shadow));
    }
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::WindowText), QBrush(faintWhite));
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::ButtonText), QBrush(faintWhite));
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::Text), QBrush(white));
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::Shadow), QBrush(shadow));
}

void tst_ZEMStyle::polishLeavesOtherRolesAlone()
{
    QPalette palette = paletteOfOneColor();
    ZEMStyle(nullptr).polish(palette);
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const auto colorRole = QPalette::ColorRole(role);
        if (colorRole == QPalette::WindowText || colorRole == QPalette::ButtonText
            || colorRole == QPalette::Text || colorRole == QPalette::Shadow) {
            continue;
        }
        for (int group = 0; group < QPalette::NColorGroups; ++group) {
            QCOMPARE(palette.color(QPalette::ColorGroup(group), colorRole), QColor(1, 2, 3));
        }
    }
}

void tst_ZEMStyle::polishIsVirtual()
{
    ZEMStyle style(nullptr);
    QStyle *base = &style;
    QPalette palette;
    base->polish(palette);
    QCOMPARE(palette.color(QPalette::Active, QPalette::ButtonText), QColor(Qt::white));
}

void tst_ZEMStyle::polishFontSetsTheFamilyOnly()
{
    QFont font(QStringLiteral("Sans"), 20, QFont::Bold);
    ZEMStyle(nullptr).polish(font);
    QCOMPARE(font.family(), QStringLiteral("Cabin"));
    QCOMPARE(font.pointSize(), 20);
    QVERIFY(font.bold());
}

void tst_ZEMStyle::headerGivesEveryColor()
{
    QFile header(QStringLiteral(ZEMSTYLE_HEADER));
    QVERIFY(header.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(header.readAll());
    const QRegularExpression entry(
        QStringLiteral("///< (\\d+), (\\d+), (\\d+)(?:, alpha (\\d+))?(?:;|\n)"));
    int index = 0;
    for (auto found = entry.globalMatch(text); found.hasNext(); ++index) {
        const QRegularExpressionMatch match = found.next();
        const QString alpha = match.captured(4);
        const QColor told(match.captured(1).toInt(), match.captured(2).toInt(),
                          match.captured(3).toInt(), alpha.isEmpty() ? 255 : alpha.toInt());
        QVERIFY(index <= ZEMStyle::SpringGreen);
        QCOMPARE(told, ZEMStyle(nullptr).color(ZEMStyle::ZEMColor(index)));
    }
    QCOMPARE(index, 32);
}

void tst_ZEMStyle::fontsOfTheApplication()
{
    ZEMStyle::setApplicationFonts();
    QCOMPARE(QApplication::font().family(), QStringLiteral("Cabin"));
    QCOMPARE(QApplication::font().pointSize(), 11);

    const QStringList forTitles = QFont::substitutes(QStringLiteral("Quicksand Book"));
    const QStringList forLetters = QFont::substitutes(QStringLiteral("MS Shell Dlg 2"));
    ZEMStyle::setApplicationFonts();
    QCOMPARE(QFont::substitutes(QStringLiteral("Quicksand Book")), forTitles);
    QCOMPARE(QFont::substitutes(QStringLiteral("MS Shell Dlg 2")), forLetters);
    QCOMPARE(forTitles.count(QStringLiteral("quicksand")), 1);
    QCOMPARE(forLetters.count(QStringLiteral("cabin")), 1);
}

void tst_ZEMStyle::quicksandStandsIn()
{
    const QStringList families = QtCompat::fontFamilies();
    if (!families.contains(QStringLiteral("Quicksand"))
        || families.contains(QStringLiteral("Quicksand Book"))) {
        QSKIP("There is no Quicksand here, or nothing to stand in for.");
    }
    ZEMStyle::setApplicationFonts();
    QCOMPARE(QFontInfo(QFont(QStringLiteral("Quicksand Book"))).family(),
             QStringLiteral("Quicksand"));
}

QTEST_MAIN(tst_ZEMStyle)
#include "tst_zemstyle.moc"
