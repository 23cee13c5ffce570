// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEM_H
#define ZEM_H

#include "zemkit_export.h"

#include <QFlags>
#include <QObject>

/** What widgets of several subsystems name alike. */
namespace ZEM {
Q_NAMESPACE_EXPORT(ZEM_EXPORT)

/**
 * The tabs of a chart page. Used singly, a period or an energy, to name one tab; or-ed together to
 * name those to show:
 * @code
 * #include <ZEMEnergyTabWidget>
 *
 * ZEMEnergyTabWidget tabs;
 * tabs.showTabs(ZEM::TabElectricity | ZEM::TabGas);
 * tabs.selectTab(ZEM::TabGas);
 * tabs.show();
 * @endcode
 */
enum ZEMTab {
    TabDay = 0x1,
    TabWeek = 0x2,
    TabMonth = 0x4,
    TabYear = 0x8,
    TabElectricity = 0x10, ///< ZEMEnergyIcon::Electricity
    TabGas = 0x20, ///< ZEMEnergyIcon::Gas
    TabWater = 0x40, ///< ZEMEnergyIcon::Water
    TabHeating = 0x80, ///< ZEMEnergyIcon::Heating
    TabSolar = 0x100 ///< ZEMEnergyIcon::SolarProduction
};
Q_DECLARE_FLAGS(ZEMTabs, ZEMTab)
Q_FLAG_NS(ZEMTabs)
Q_DECLARE_OPERATORS_FOR_FLAGS(ZEM::ZEMTabs)

} // namespace ZEM

#endif
