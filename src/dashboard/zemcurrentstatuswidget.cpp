// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemcurrentstatuswidget.h"

#include "flow_p.h"
#include "objectname_p.h"
#include "ui_zemcurrentstatuswidget.h"
#include "zemutils.h"

class ZEMCurrentStatusWidget::Private
{
public:
    void updateUI()
    {
        Flow::run(ui.arrowsPowerGrid, meteringStatus ? updatePowerGrid() : hidePowerGrid());

        ui.lblProduction->setText(ZEMUtils::wattToStringAutoScale(production));
        Flow::run(ui.arrowsPV, ZEMUtils::calculateSpeed(maxProduction, production));
    }

    Ui_ZEMCurrentStatusWidget ui;
    double production = 0.0;
    double maxProduction = 0.0;
    double consumption = 0.0;
    double powerGrid = 0.0;
    bool meteringStatus = true;

private:
    /** Both return the speed of the grid's arrows. */
    int updatePowerGrid()
    {
        powerGrid = consumption - production;
        ui.lblConsumption->setText(ZEMUtils::wattToStringAutoScale(consumption));
        ui.lblPowerGrid->setText(ZEMUtils::wattToStringAutoScale(powerGrid));
        ui.arrowsPowerGrid->setDirection(powerGrid > 0.0 ? ZEMAnimatedArrows::Left
                                                         : ZEMAnimatedArrows::Right);
        return ZEMUtils::calculateSpeed(consumption, powerGrid);
    }

    int hidePowerGrid()
    {
        ui.lblConsumption->setText(Flow::unknownPower());
        ui.lblPowerGrid->setText(Flow::unknownPower());
        return ZEMAnimatedArrows::Stopped;
    }
};

ZEMCurrentStatusWidget::ZEMCurrentStatusWidget(QWidget *parent)
    : ZEMLabeledButton(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    d->ui.arrowsPV->setDirection(ZEMAnimatedArrows::Right);
    d->ui.arrowsPV->setSize(ZEMAnimatedArrows::Normal);
    d->ui.arrowsPowerGrid->setDirection(ZEMAnimatedArrows::Left);
    d->ui.arrowsPowerGrid->setSize(ZEMAnimatedArrows::Normal);
    // A touch on a picture means the button beneath.
    d->ui.widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    // The arrows point at the pictures beside them.
    d->ui.widget->setLayoutDirection(Qt::LeftToRight);
    d->updateUI();
}

ZEMCurrentStatusWidget::~ZEMCurrentStatusWidget() = default;

double ZEMCurrentStatusWidget::getProduction() const
{
    return d->production;
}

void ZEMCurrentStatusWidget::setProduction(double watt)
{
    d->production = watt;
    d->updateUI();
}

double ZEMCurrentStatusWidget::getMaxProduction() const
{
    return d->maxProduction;
}

void ZEMCurrentStatusWidget::setMaxProduction(double watt)
{
    d->maxProduction = watt;
    d->updateUI();
}

double ZEMCurrentStatusWidget::getConsumption() const
{
    return d->consumption;
}

void ZEMCurrentStatusWidget::setConsumption(double watt)
{
    d->consumption = watt;
    d->updateUI();
}

bool ZEMCurrentStatusWidget::getMeteringStatus() const
{
    return d->meteringStatus;
}

void ZEMCurrentStatusWidget::setMeteringStatus(bool ok)
{
    d->meteringStatus = ok;
    d->updateUI();
}
