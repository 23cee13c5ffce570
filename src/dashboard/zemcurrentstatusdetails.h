// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMCURRENTSTATUSDETAILS_H
#define ZEMCURRENTSTATUSDETAILS_H

#include "zemlabeledbutton.h"

class ZEMCurrentStatusDetailsItem;

/**
 * The panel "totaal nu": consumption, production and grid, each with its total and under it a row
 * of items, one for each device or source.
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
 * for (const double watt : {340.0, 2700.0}) {
 *     auto *device = new ZEMCurrentStatusDetailsItem;
 *     device->setValue(watt);
 *     details->addConsumptionItem(device); // 340 W + 2,7 kW
 * }
 * details->setTotalConsumptionValue(3040.0);
 * details->setTotalProductionValue(250.0);
 * page.show();
 * @endcode
 * The host gives the totals; they are not summed up from the items. The total of the grid is
 * consumption minus production. All are shown as ZEMUtils::wattToStringAutoScale() words them.
 *
 * The panel owns the items that are added. It is 493 by 262 pixels and a layout does not stretch
 * it; there its height follows that of the title, and is 265 pixels in "Cabin". The fonts are the
 * host's, see ZEMStyle::setApplicationFonts(); all texts have the colour of QPalette::WindowText.
 */
class ZEM_EXPORT ZEMCurrentStatusDetails : public ZEMLabeledButton
{
    Q_OBJECT

public:
    explicit ZEMCurrentStatusDetails(QWidget *parent = nullptr);
    ~ZEMCurrentStatusDetails() override;

    /** Adds an item at the end of its row, after a plus sign if there is one before it already. */
    void addConsumptionItem(ZEMCurrentStatusDetailsItem *item);
    /**
     * Takes the newest item out of the row of consumption, and the plus sign before it. @p item is
     * neither hidden nor deleted and stays the panel's; the caller disposes of it.
     *
     * Only for the newest one: whatever @p item is, the last entry of a row that still has several
     * is deleted, which after an earlier item is the newest item itself.
     */
    void deleteConsumptionItem(ZEMCurrentStatusDetailsItem *item);
    /** Adds an item at the end of its row. */
    void addProductionItem(ZEMCurrentStatusDetailsItem *item);
    /** Adds an item at the end of its row. */
    void addTotalsItem(ZEMCurrentStatusDetailsItem *item);

    /** Whether the grid meter gives valid data; true by default. */
    bool getMeteringStatus() const;
    /**
     * With false the totals of consumption and grid show "?". It is passed on to the items that
     * consumption has now, see ZEMCurrentStatusDetailsItem::setValid(); the others keep their own.
     */
    void setMeteringStatus(bool ok);

    /** Brings the three totals up to date; the setters do so by themselves. */
    void updateUI();

public Q_SLOTS:
    /** Both totals are in watts and 0 by default. */
    void setTotalConsumptionValue(double watt);
    void setTotalProductionValue(double watt);

private:
    Q_DISABLE_COPY(ZEMCurrentStatusDetails)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
