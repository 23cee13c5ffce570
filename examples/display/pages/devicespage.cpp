// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "devicespage.h"

#include "deviceicons.h"
#include "pagelook.h"

#include <QLabel>
#include <QVBoxLayout>
#include <ZEMAnimatedArrows>
#include <ZEMButton>
#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusDetailsItem>
#include <ZEMTextLabel>
#include <cmath>

namespace {

constexpr int wideWidth = 560; // pixels
constexpr int tallWidth = 448;
constexpr int wideSpacing = 12; // pixels between devices
constexpr int tallSpacing = 2;
constexpr int hintGap = 18; // pixels
constexpr int iconSpacing = 3; // pixels between a device and its power

} // namespace

DevicesPage::DevicesPage(const EnergySource &source, QWidget *parent)
    : DisplayPage(tr("Apparaten"), source, parent), details(new ZEMCurrentStatusDetails)
{
    hint = PageLook::makeLabel(tr("Geen meter telt losse apparaten."), 14);
    hint->setAlignment(Qt::AlignCenter);
    hint->setWordWrap(true);
    content()->addStretch(1);
    content()->addWidget(details, 0, Qt::AlignCenter);
    content()->addSpacing(hintGap);
    content()->addWidget(hint);
    content()->addStretch(1);
    connect(&source, &EnergySource::powerChanged, this, &DevicesPage::showPower);
    connect(&source, &EnergySource::meteringChanged, this, &DevicesPage::showPower);
}

/** The picture of the panel is too wide for an upright page, and narrow for four devices. */
void DevicesPage::arrange(Shape shape)
{
    const bool isWide = shape == Shape::Wide;
    for (QWidget *part :
         {static_cast<QWidget *>(details), static_cast<QWidget *>(details->getBackgroundWidget()),
          details->findChild<QWidget *>(QStringLiteral("widget"), Qt::FindDirectChildrenOnly)}) {
        part->setFixedWidth(isWide ? wideWidth : tallWidth);
    }
    details->findChild<QWidget *>(QStringLiteral("widgetConsumption"))
        ->layout()
        ->setSpacing(isWide ? wideSpacing : tallSpacing);
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
        item->layout()->setSpacing(iconSpacing);
        details->addConsumptionItem(item);
    }
    return item;
}

void DevicesPage::showPower()
{
    // A hidden panel needs no news, and its arrows no time.
    if (!isVisible()) {
        return;
    }
    const PowerReport report = energySource().power().value_or(PowerReport());
    const bool isMetering = energySource().power() && energySource().isMetering();
    details->setMeteringStatus(isMetering);
    // The panel takes consumption minus production for the grid.
    details->setTotalProductionValue(report.leastProduction());
    details->setTotalConsumptionValue(report.grid + report.leastProduction());
    // The panel knows every power, or none.
    const auto show = [this](const char *label, const std::optional<double> &watts) {
        details->findChild<QLabel *>(QLatin1String(label))->setText(PageLook::powerText(watts));
    };
    show("lblProductionValue", report.production);
    if (isMetering) {
        show("lblConsumptionValue", report.consumption);
        show("lblPowerGridValue", std::fabs(report.grid));
    }
    for (const DevicePower &device : report.devices) {
        itemOf(device)->setValue(device.watts);
    }
    showProduction(report.production);
    hint->setVisible(items.isEmpty());
}

void DevicesPage::showProduction(const std::optional<double> &watts)
{
    const double most = energySource().mostProduction();
    if (!solar && watts && most > 0.0) {
        solar = new ZEMCurrentStatusDetailsItem;
        solar->setIcon(DeviceIcons::solar());
        solar->layout()->setSpacing(iconSpacing);
        details->addProductionItem(solar);
    }
    if (solar) {
        // Arrows that stand still are not seen, but would keep the power away from the sun.
        solar->setShowArrows(watts.value_or(0.0) > 0.0);
        solar->setMaxValue(most);
        solar->setValue(watts.value_or(0.0));
        solar->setValid(watts.has_value());
    }
}
