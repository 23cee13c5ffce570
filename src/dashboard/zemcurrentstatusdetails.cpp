// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemcurrentstatusdetails.h"

#include "flow_p.h"
#include "objectname_p.h"
#include "ui_zemcurrentstatusdetails.h"
#include "zemcurrentstatusdetailsitem.h"
#include "zemutils.h"

#include <QBrush>
#include <QHBoxLayout>
#include <QList>
#include <QPalette>
#include <QPointer>

#include <utility>

namespace {

constexpr int itemSpacing = 12; // pixels

QHBoxLayout *makeRow(QWidget *widget)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(itemSpacing);
    row->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    widget->setLayout(row);
    return row;
}

void setLineColor(QFrame *line)
{
    const QColor faintWhite(255, 255, 255, 26);
    QPalette palette = line->palette();
    palette.setBrush(QPalette::All, QPalette::WindowText, QBrush(faintWhite, Qt::SolidPattern));
    line->setPalette(palette);
}

ZEMTextLabel *makePlusSign()
{
    auto *plus = new ZEMTextLabel;
    plus->setText(QStringLiteral("+"));
    plus->setShadow(true);
    return plus;
}

} // namespace

class ZEMCurrentStatusDetails::Private
{
public:
    Ui_ZEMCurrentStatusDetails ui;
    QHBoxLayout *consumptionLayout = nullptr;
    QHBoxLayout *productionLayout = nullptr;
    QHBoxLayout *totalsLayout = nullptr;
    QList<QPointer<ZEMCurrentStatusDetailsItem>> consumptionItems;
    bool meteringStatus = true;
    double totalConsumption = 0.0;
    double totalProduction = 0.0;
};

ZEMCurrentStatusDetails::ZEMCurrentStatusDetails(QWidget *parent)
    : ZEMLabeledButton(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    setLineColor(d->ui.line);
    d->consumptionLayout = makeRow(d->ui.widgetConsumption);
    d->ui.lblConsumptionValue->setAlignment(Qt::AlignCenter);
    // A unit follows its number.
    for (QLabel *value :
         {d->ui.lblConsumptionValue, d->ui.lblProductionValue, d->ui.lblPowerGridValue}) {
        value->setLayoutDirection(Qt::LeftToRight);
    }
    d->productionLayout = makeRow(d->ui.widgetProduction);
    d->totalsLayout = makeRow(d->ui.widgetTotals);
    updateUI();
}

ZEMCurrentStatusDetails::~ZEMCurrentStatusDetails() = default;

void ZEMCurrentStatusDetails::addConsumptionItem(ZEMCurrentStatusDetailsItem *item)
{
    if (d->consumptionLayout->count() > 0) {
        d->consumptionLayout->addWidget(makePlusSign());
    }
    d->consumptionLayout->addWidget(item);
    d->consumptionItems.append(item);
}

void ZEMCurrentStatusDetails::deleteConsumptionItem(ZEMCurrentStatusDetailsItem *item)
{
    d->consumptionItems.removeAll(item);
    d->consumptionLayout->removeWidget(item);

    const int count = d->consumptionLayout->count();
    if (count > 1) {
        QWidget *last = d->consumptionLayout->itemAt(count - 1)->widget();
        d->consumptionLayout->removeWidget(last);
        delete last;
    }
}

void ZEMCurrentStatusDetails::addProductionItem(ZEMCurrentStatusDetailsItem *item)
{
    d->productionLayout->addWidget(item);
}

void ZEMCurrentStatusDetails::addTotalsItem(ZEMCurrentStatusDetailsItem *item)
{
    d->totalsLayout->addWidget(item);
}

bool ZEMCurrentStatusDetails::getMeteringStatus() const
{
    return d->meteringStatus;
}

void ZEMCurrentStatusDetails::setMeteringStatus(bool ok)
{
    d->meteringStatus = ok;
    for (const auto &item : std::as_const(d->consumptionItems)) {
        if (item) {
            item->setValid(ok);
        }
    }
    updateUI();
}

void ZEMCurrentStatusDetails::updateUI()
{
    if (d->meteringStatus) {
        const double powerGrid = d->totalConsumption - d->totalProduction;
        d->ui.lblConsumptionValue->setText(ZEMUtils::wattToStringAutoScale(d->totalConsumption));
        d->ui.lblPowerGridValue->setText(ZEMUtils::wattToStringAutoScale(powerGrid));
    } else {
        d->ui.lblConsumptionValue->setText(Flow::unknownPower());
        d->ui.lblPowerGridValue->setText(Flow::unknownPower());
    }
    d->ui.lblProductionValue->setText(ZEMUtils::wattToStringAutoScale(d->totalProduction));
}

void ZEMCurrentStatusDetails::setTotalConsumptionValue(double watt)
{
    d->totalConsumption = watt;
    updateUI();
}

void ZEMCurrentStatusDetails::setTotalProductionValue(double watt)
{
    d->totalProduction = watt;
    updateUI();
}
