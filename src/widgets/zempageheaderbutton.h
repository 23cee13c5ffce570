// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPAGEHEADERBUTTON_H
#define ZEMPAGEHEADERBUTTON_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

/**
 * The square tile of a page header that holds a button or another widget.
 *
 * ZEMPageHeader makes its tiles itself; a host meets this class to give all of them another look,
 * which it does before it makes the first header:
 * @code
 * #include <ZEMPageHeader>
 * #include <ZEMPageHeaderButton>
 *
 * ZEMPageHeaderButton::setDefaultBackgroundImage(
 *     QStringLiteral(":/zem/graphics/main/buttons/selector_btn.png"));
 * ZEMPageHeader header;
 * header.show();
 * @endcode
 * In a layout a tile is at least as large as its picture, 54 by 54 pixels by default.
 */
class ZEM_EXPORT ZEMPageHeaderButton : public ZEMPageBackground
{
    Q_OBJECT

public:
    explicit ZEMPageHeaderButton(QWidget *parent = nullptr);
    ~ZEMPageHeaderButton() override;

    /**
     * Sets the picture of the tiles made from now on; those that exist keep theirs. A null string,
     * the default, stands for ":/zem/graphics/header/header_btn_bg.png". A file that cannot be read
     * leaves the tiles without a picture, and then black.
     */
    static void setDefaultBackgroundImage(const QString &path);

    /**
     * Adds @p widget to the tile, in the middle of its width, and takes ownership. A second widget
     * stands under the first, which stays; to exchange one for another, delete the first or use a
     * QStackedWidget. Null is ignored.
     */
    void setWidget(QWidget *widget);

private:
    Q_DISABLE_COPY(ZEMPageHeaderButton)

    static QString s_defaultBackGroundName;

    class Private;
    std::unique_ptr<Private> d;
};

#endif
