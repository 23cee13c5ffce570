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
 * The colours of the library: a table of 32 named colours and, for a host that installs it, the
 * default palette and font family of an energy display.
 *
 * The library never installs a style. A host that wants the palette does so once:
 * @code
 * QApplication::setStyle(new ZEMStyle(QStyleFactory::create("Fusion")));
 * @endcode
 * As a plain colour table it needs no application-wide set-up:
 * @code
 * QPalette palette = label->palette();
 * ZEMStyle(nullptr).setLabelColor(palette, ZEMStyle::SkyBlue);
 * label->setPalette(palette);
 * @endcode
 */
class ZEM_EXPORT ZEMStyle : public QProxyStyle
{
public:
    /**
     * Index of a colour in the table. A digit group behind "Alpha" is the opacity in percent. Near
     * twins are entries of their own: Magenta and Pink differ by 1 in red, Blue has a blue of 253.
     */
    enum ZEMColor {
        White, ///< 255, 255, 255
        WhiteAlpha0,
        WhiteAlpha5,
        WhiteAlpha15,
        WhiteAlpha20,
        WhiteAlpha50, ///< disabled text
        WhiteAlpha80,
        GreyAlpha35,
        Black, ///< 0, 0, 0; text on light keys and menus
        BlackAlpha20,
        BlackAlpha45,
        BlackAlpha50, ///< text shadow
        BlackAlpha80,
        Magenta, ///< 227, 0, 123; page titles
        SkyBlue, ///< 97, 180, 220; page subtitles
        SlateBlue,
        Lime,
        LimeAlpha15,
        LimeAlpha50,
        LimeAlpha70,
        Green,
        Amber,
        AmberAlpha50,
        Red,
        SoftRed,
        Orange,
        YellowGreen,
        Blue,
        Pink,
        Yellow,
        DeepOrange,
        SpringGreen
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

private:
    QList<QColor> colors;
};

#endif
