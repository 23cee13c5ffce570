// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DEVICESPAGE_H
#define DEVICESPAGE_H

#include "displaypage.h"
#include "energysource.h"

#include <QMap>
#include <optional>

class ZEMCurrentStatusDetails;
class ZEMCurrentStatusDetailsItem;
class ZEMTextLabel;

/** The page of devices: what each of them takes now, what the panels give, and what is left. */
class DevicesPage : public DisplayPage
{
    Q_OBJECT

public:
    explicit DevicesPage(const EnergySource &source, QWidget *parent = nullptr);

protected:
    void arrange(Shape shape) override;
    void showEvent(QShowEvent *event) override;

private:
    ZEMCurrentStatusDetailsItem *itemOf(const DevicePower &device);
    void showPower();
    void showProduction(const std::optional<double> &watts);

    ZEMTextLabel *hint = nullptr;
    ZEMCurrentStatusDetails *details = nullptr;
    QMap<Device, ZEMCurrentStatusDetailsItem *> items;
    ZEMCurrentStatusDetailsItem *solar = nullptr;
};

#endif
