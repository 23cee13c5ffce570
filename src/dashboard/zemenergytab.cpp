// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemenergytab.h"

#include "objectname_p.h"
#include "ui_zemenergytab.h"

class ZEMEnergyTab::Private
{
public:
    Ui_ZEMEnergyTab ui;
};

ZEMEnergyTab::ZEMEnergyTab(QWidget *parent) : ZEMButton(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(this, &QAbstractButton::clicked, this, &ZEMEnergyTab::slot_btn_clicked);
}

ZEMEnergyTab::~ZEMEnergyTab() = default;

ZEMEnergyIcon::Type ZEMEnergyTab::getEnergyType() const
{
    return d->ui.icon->getEnergyType();
}

void ZEMEnergyTab::setEnergyType(ZEMEnergyIcon::Type type)
{
    d->ui.icon->setEnergyType(type);
}

void ZEMEnergyTab::slot_btn_clicked()
{
    Q_EMIT clicked(getEnergyType());
}
