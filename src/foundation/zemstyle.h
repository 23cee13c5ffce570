// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSTYLE_H
#define ZEMSTYLE_H

#include "zemkit_export.h"

#include <QColor>
#include <QList>
#include <QProxyStyle>

class QFont;
class QPalette;

/**
 * The look of the library: a table of 32 named colours and, for a host that installs them, the
 * palette and fonts of an energy display.
 *
 * The library never installs a style. Its texts follow the palette, most of them on dark grounds:
 * without this style, or another palette of light texts, they are black on black. A host that
 * wants palette and fonts does so once, before its first widget:
 * @code
 * #include <QApplication>
 * #include <QStyleFactory>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
 * ZEMStyle::setApplicationFonts();
 * @endcode
 * As a plain colour table it needs no application-wide set-up:
 * @code
 * #include <QLabel>
 * #include <ZEMStyle>
 *
 * QLabel label(QStringLiteral("1,5 kW"));
 * QPalette palette = label.palette();
 * ZEMStyle(nullptr).setLabelColor(palette, ZEMStyle::Magenta);
 * label.setPalette(palette);
 * label.show();
 * @endcode
 */
class ZEM_EXPORT ZEMStyle : public QProxyStyle
{
public:
    /**
     * Index of a colour in the table, given as red, green, blue and, where it is not opaque, alpha,
     * each 0 to 255. The number in a name is the opacity in percent.
     */
    enum ZEMColor {
        White, ///< 255, 255, 255; text
        WhiteAlpha0, ///< 255, 255, 255, alpha 0
        WhiteAlpha5, ///< 255, 255, 255, alpha 13
        WhiteAlpha15, ///< 255, 255, 255, alpha 38
        WhiteAlpha20, ///< 255, 255, 255, alpha 51
        WhiteAlpha50, ///< 255, 255, 255, alpha 128; disabled text
        WhiteAlpha80, ///< 255, 255, 255, alpha 204
        GreyAlpha35, ///< 208, 208, 208, alpha 89
        Black, ///< 0, 0, 0; text on light keys and menus
        BlackAlpha20, ///< 0, 0, 0, alpha 51
        BlackAlpha45, ///< 0, 0, 0, alpha 115
        BlackAlpha50, ///< 0, 0, 0, alpha 128; text shadow
        BlackAlpha80, ///< 0, 0, 0, alpha 204
        Magenta, ///< 227, 0, 123; page titles
        SkyBlue, ///< 97, 180, 220; page subtitles
        SlateBlue, ///< 70, 107, 119
        Lime, ///< 186, 255, 0
        LimeAlpha15, ///< 186, 255, 0, alpha 38
        LimeAlpha50, ///< 186, 255, 0, alpha 128
        LimeAlpha70, ///< 186, 255, 0, alpha 179
        Green, ///< 67, 230, 73
        Amber, ///< 232, 174, 34
        AmberAlpha50, ///< 232, 174, 34, alpha 128
        Red, ///< 255, 0, 0
        SoftRed, ///< 237, 65, 61
        Orange, ///< 227, 127, 39
        YellowGreen, ///< 195, 254, 3
        Blue, ///< 0, 0, 253
        Pink, ///< 226, 0, 123
        Yellow, ///< 254, 197, 0
        DeepOrange, ///< 254, 66, 0
        SpringGreen ///< 0, 254, 114
    };

    /** Takes ownership of @p style, as QProxyStyle does; null stands for the platform's style. */
    explicit ZEMStyle(QStyle *style);
    ~ZEMStyle() override;

    /** The table entry of @p c, which must be one of the enumerators. */
    const QColor &color(ZEMColor c) const;

    /** Sets the text colour of labels in all colour groups of @p palette, and nothing else. */
    void setLabelColor(QPalette &palette, ZEMColor c);
    /** Sets the text colour of buttons in all colour groups of @p palette, and nothing else. */
    void setButtonColor(QPalette &palette, ZEMColor c);

    using QProxyStyle::polish;
    /**
     * Makes label, button and entered text white, disabled label and button text half transparent,
     * and the shadow role a half transparent black. All other roles stay as they are.
     */
    void polish(QPalette &palette) override;
    /** Sets the family "Cabin" and keeps size and weight. For hosts; Qt never calls it. */
    void polish(QFont &font);

    /**
     * Makes "Cabin" in 11 points the font of the application, and has "Quicksand" and "Cabin" stand
     * in for the library's other families, "Quicksand Book" and "MS Shell Dlg 2", where the system
     * lacks those.
     *
     * No font is part of the library: the host's system supplies them, on Debian by
     * "apt install fonts-cabin fonts-quicksand". For a family that is missing Qt takes another.
     */
    static void setApplicationFonts();

private:
    QList<QColor> colors;
};

#endif
