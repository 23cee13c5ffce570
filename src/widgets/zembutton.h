// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMBUTTON_H
#define ZEMBUTTON_H

#include "zemkit_export.h"

#include <QAbstractButton>
#include <QPixmap>

#include <memory>

/**
 * A picture button for a touch screen: one of three pictures by its state, and on it, centred, an
 * icon and a text. The base of the library's keys, tabs and header buttons.
 *
 * @code
 * #include <ZEMButton>
 * #include <ZEMPageBackground>
 *
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(96, 112, 128));
 * auto *ok = new ZEMButton(&page);
 * ok->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small.png")));
 * ok->setIcon(QIcon(QStringLiteral(":/zem/graphics/icons/green-ok-icon_small.png")));
 * QObject::connect(ok, &ZEMButton::clicked, &page, &QWidget::close);
 * page.show();
 * @endcode
 *
 * A button is on while it is enabled and, if it is checkable, also checked; in all other states it
 * is off. This decides everything:
 * - Background: on, getBackground(); off, getBackgroundOff(), or getBackgroundDisabled() for a
 *   checkable button that is disabled. Where the picture is not set, the disabled one falls back to
 *   the off one and that to getBackground(). A button that is not checkable never shows
 *   getBackgroundDisabled(). The picture is stretched over the whole button.
 * - Icon: in the mode and state QIcon::Normal and QIcon::On when on, QIcon::Disabled and QIcon::Off
 *   when off, in its largest size that fits; QAbstractButton::iconSize plays no part.
 * - Text: in the colour of QPalette::ButtonText, active group when on, disabled group when off.
 *
 * A picture counts by its size divided by its ratio. On a screen of a higher ratio than 1 a picture
 * of the library is shown sharp, as a picture and as an icon, in the same size. An icon is as large
 * as it is without its files for sharp screens, those with "@2x" in their names; for the pixmaps
 * that an icon is made of Qt keeps no ratio, so those count by their pixels.
 *
 * There is no pressed look. A new button is 50 by 50 pixels, is not stretched by layouts and takes
 * its size from setBackground().
 *
 * A slot of toggled() that has done with the button calls deleteLater(): as every button of Qt, it
 * goes on after that signal. A slot of the other signals may delete it.
 */
class ZEM_EXPORT ZEMButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QPixmap backgroundOff READ getBackgroundOff WRITE setBackgroundOff)
    Q_PROPERTY(QPixmap backgroundDisabled READ getBackgroundDisabled WRITE setBackgroundDisabled)
    Q_PROPERTY(bool hideWhenDisabled READ getHideWhenDisabled WRITE setHideWhenDisabled)
    Q_PROPERTY(bool hideUncheckedIcon READ getHideUncheckedIcon WRITE setHideUncheckedIcon)

public:
    explicit ZEMButton(QWidget *parent = nullptr);
    ~ZEMButton() override;

    /** The picture of the on state, and of every other that has none; null by default. */
    QPixmap getBackground() const;
    /**
     * Sets the picture of the on state, makes its size the minimum and the present size of the
     * button, and paints at once. There is no maximum. Subclasses that do more with a new size
     * override it and call it first.
     */
    virtual void setBackground(const QPixmap &background);

    /** The picture of the off state; null by default. */
    QPixmap getBackgroundOff() const;
    /** Sets the picture of the off state and paints at once. The size of the button stays. */
    virtual void setBackgroundOff(const QPixmap &background);

    /** The picture of a checkable button that is disabled; null by default. */
    QPixmap getBackgroundDisabled() const;
    /** Sets the picture of the disabled toggle and paints at once. The size of the button stays. */
    virtual void setBackgroundDisabled(const QPixmap &background);

    /** Whether the off state has neither background nor icon; false by default. */
    bool getHideWhenDisabled() const;
    /**
     * Hides background and icon in the off state and paints at once. Note that a toggle is off
     * while it is unchecked, so that is hidden too, enabled or not; the text stays.
     */
    void setHideWhenDisabled(bool hide);

    /** Whether an unchecked toggle has no icon; false by default. */
    bool getHideUncheckedIcon() const;
    /** Hides the icon of an unchecked toggle; it is seen from the next paint on. */
    void setHideUncheckedIcon(bool hide);

    /** The present size. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
