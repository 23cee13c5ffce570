// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMCURRENTSTATUSDETAILSITEM_H
#define ZEMCURRENTSTATUSDETAILSITEM_H

#include "zemanimatedarrows.h"
#include "zemkit_export.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * One device or source in a ZEMCurrentStatusDetails: an icon, its power, and behind it optionally
 * the icon of the source that the power comes from, with arrows for the flow.
 *
 * @code
 * #include <QApplication>
 * #include <ZEMCurrentStatusDetails>
 * #include <ZEMCurrentStatusDetailsItem>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground page;
 * auto *details = new ZEMCurrentStatusDetails(&page);
 * auto *house = new ZEMCurrentStatusDetailsItem;
 * house->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/icons_14.png")));
 * house->setMaxValue(2000.0); // watts
 * house->setShowArrows(true);
 * details->addConsumptionItem(house); // the panel owns it from now on
 * house->setValue(1500.0);
 * page.show();
 * @endcode
 * Without arrows and icons of its own, which is how it is new, an item is a number, in 11 point
 * "Cabin", a font of the host's; see ZEMStyle::setApplicationFonts().
 *
 * Its parts keep their order where the application is laid out from right to left; the panel puts
 * the items in the order of the application.
 */
class ZEM_EXPORT ZEMCurrentStatusDetailsItem : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap icon READ getIcon WRITE setIcon)
    Q_PROPERTY(double value READ getValue WRITE setValue)
    Q_PROPERTY(double maxValue READ getMaxValue WRITE setMaxValue)
    Q_PROPERTY(bool showArrows READ getShowArrows WRITE setShowArrows)

public:
    explicit ZEMCurrentStatusDetailsItem(QWidget *parent = nullptr);
    ~ZEMCurrentStatusDetailsItem() override;

    /**
     * The icon in front of the power; null by default. It is shown in its own size, divided by its
     * ratio: at once, or, if it needs other room, when the layout has made that.
     */
    QPixmap getIcon() const;
    void setIcon(const QPixmap &icon);

    /** The icon behind the power; null by default. It is shown as the one in front is. */
    QPixmap getIconPowerSource() const;
    void setIconPowerSource(const QPixmap &icon);

    /** The power in watts, signed; 0 by default. */
    double getValue() const;
    /**
     * Shows @p value as ZEMUtils::wattToStringAutoScale() words it. Arrows that are visible turn,
     * change their speed and start as the value asks; hidden ones do so when the item is shown.
     */
    void setValue(double value);

    /**
     * The power in watts that counts as full, see ZEMUtils::calculateSpeed(); with 0, the default,
     * any flow is Medium.
     */
    double getMaxValue() const;
    /** Sets the speed of the arrows, visible or not, valid or not; it does not start them. */
    void setMaxValue(double value);

    /** Whether the power is known; true by default. */
    bool getValid() const;
    /** With false "?" is shown and the arrows stop; with true the value comes back. */
    void setValid(bool valid);

    /** Whether the arrows are visible: false as long as the item itself is not on the screen. */
    bool getShowArrows() const;
    /** Shows or hides the arrows; hidden by default. Shown ones follow from the next setValue() on.
     */
    void setShowArrows(bool show);

    /**
     * Where the arrows point for a value above 0, ZEMAnimatedArrows::Right by default; for all
     * other values they point the other way. Takes effect with the next setValue().
     */
    void setPositiveValueDirection(ZEMAnimatedArrows::Direction direction);

    /** The arrows themselves, for what this class does not offer. They belong to the item. */
    ZEMAnimatedArrows *getArrowsInterface() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMCurrentStatusDetailsItem)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
