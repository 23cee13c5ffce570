// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "devicespage.h"

#include "deviceicons.h"

#include <QVBoxLayout>
#include <ZEMAnimatedArrows>
#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusDetailsItem>

DevicesPage::DevicesPage(const EnergySource &source, QWidget *parent)
    : DisplayPage(tr("Apparaten"), source, parent), details(new ZEMCurrentStatusDetails)
{
    content()->addWidget(details, 1, Qt::AlignCenter);
    connect(&source, &EnergySource::powerChanged, this, &DevicesPage::showPower);
    connect(&source, &EnergySource::meteringChanged, this, &DevicesPage::showPower);
    showPower();
}

void DevicesPage::showEvent(QShowEvent *event)
{
    DisplayPage::showEvent(event);
    showPower();
}

ZEMCurrentStatusDetailsItem *DevicesPage::itemOf(const DevicePower &device)
{
    ZEMCurrentStatusDetailsItem *&item = items[device.device];
    if (!item) {
        item = new ZEMCurrentStatusDetailsItem;
        item->setIcon(DeviceIcons::picture(device.device));
        item->setMaxValue(device.most);
        details->addConsumptionItem(item);
    }
    return item;
}

void DevicesPage::showPower()
{
    const std::optional<PowerReport> report = energySource().power();
    details->setMeteringStatus(report.has_value() && energySource().isMetering());
    details->setTotalConsumptionValue(report ? report->consumption : 0.0);
    details->setTotalProductionValue(report ? report->production : 0.0);
    if (!report) {
        return;
    }
    for (const DevicePower &device : report->devices) {
        itemOf(device)->setValue(device.watts);
    }
    showProduction(report->production);
}

void DevicesPage::showProduction(double watts)
{
    const double most = energySource().mostProduction();
    if (!solar && most > 0.0) {
        solar = new ZEMCurrentStatusDetailsItem;
        solar->setIcon(DeviceIcons::solar());
        details->addProductionItem(solar);
        solar->setShowArrows(true);
    }
    if (solar) {
        solar->setMaxValue(most);
        solar->setValue(watts);
    }
}
