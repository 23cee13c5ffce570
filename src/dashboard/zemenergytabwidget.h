// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMENERGYTABWIDGET_H
#define ZEMENERGYTABWIDGET_H

#include "zem.h"
#include "zemenergyicon.h"
#include "zemkit_export.h"

#include <QWidget>

#include <memory>

/**
 * A row of five energy tabs, of which one is checked: electricity, gas, heating, water and solar
 * from left to right. The row of a ZEMHistogramWidget.
 *
 * @code
 * #include <QDebug>
 * #include <ZEM>
 * #include <ZEMEnergyTabWidget>
 *
 * ZEMEnergyTabWidget tabs;
 * tabs.showTabs(ZEM::TabElectricity | ZEM::TabGas);
 * QObject::connect(&tabs, &ZEMEnergyTabWidget::btn_clicked,
 *                  [](ZEMEnergyIcon::Type energy) { qDebug() << energy; });
 * tabs.show();
 * @endcode
 * A new row shows all five; electricity is checked. It is 289 by 50 pixels; a layout gives it the
 * width of its tabs, 295 for all five, and the height of one.
 */
class ZEM_EXPORT ZEMEnergyTabWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZEMEnergyTabWidget(QWidget *parent = nullptr);
    ~ZEMEnergyTabWidget() override;

    /**
     * Shows the tabs whose flags are set and hides the others; the row closes the gaps. Which tab
     * is checked stays, even if that tab is hidden. Flags of periods are not read.
     */
    void showTabs(QFlags<ZEM::ZEMTab> tabs);

    /**
     * Checks the tab of one energy, hidden or not, and emits btn_clicked(), as if it had been
     * clicked, even if it was checked already. Anything but a single energy does nothing.
     */
    void selectTab(ZEM::ZEMTab tab);

Q_SIGNALS:
    /** A tab was clicked, be it the checked one, or selected with selectTab(). */
    void btn_clicked(ZEMEnergyIcon::Type type);

private:
    Q_DISABLE_COPY(ZEMEnergyTabWidget)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
