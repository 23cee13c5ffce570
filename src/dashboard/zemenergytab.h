// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMENERGYTAB_H
#define ZEMENERGYTAB_H

#include "zembutton.h"
#include "zemenergyicon.h"

/**
 * A tab for an energy: a button with a big ZEMEnergyIcon on it, 47 by 40 pixels. In a layout it is
 * as high as its icon and the style's margins need, 43 pixels with Fusion.
 *
 * It is not checkable when new. Tabs of one parent that are checkable and auto-exclusive form a
 * row; ZEMEnergyTabWidget is one with all five energies.
 * @code
 * #include <QDebug>
 * #include <ZEMEnergyTab>
 * #include <ZEMPageBackground>
 *
 * ZEMPageBackground row;
 * auto *gas = new ZEMEnergyTab(&row);
 * gas->setCheckable(true);
 * gas->setAutoExclusive(true);
 * gas->setEnergyType(ZEMEnergyIcon::Gas);
 * QObject::connect(gas, QOverload<ZEMEnergyIcon::Type>::of(&ZEMEnergyTab::clicked), &row,
 *                  [](ZEMEnergyIcon::Type energy) { qDebug() << energy; });
 * row.show();
 * @endcode
 */
class ZEM_EXPORT ZEMEnergyTab : public ZEMButton
{
    Q_OBJECT
    Q_PROPERTY(ZEMEnergyIcon::Type energyType READ getEnergyType WRITE setEnergyType)

public:
    explicit ZEMEnergyTab(QWidget *parent = nullptr);
    ~ZEMEnergyTab() override;

    /** The energy of the icon; ZEMEnergyIcon::Electricity by default. */
    ZEMEnergyIcon::Type getEnergyType() const;
    /** Sets the energy and paints the icon at once. */
    void setEnergyType(ZEMEnergyIcon::Type type);

    using ZEMButton::clicked;

Q_SIGNALS:
    /**
     * Follows each clicked(bool), also of a tab that was checked already. To connect to either of
     * the two takes QOverload, as in the example.
     */
    void clicked(ZEMEnergyIcon::Type type);

private Q_SLOTS:
    void slot_btn_clicked();

private:
    Q_DISABLE_COPY(ZEMEnergyTab)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
