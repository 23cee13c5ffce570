// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemcurrentstatusdetailsitem.h"

#include "flow_p.h"
#include "objectname_p.h"
#include "ui_zemcurrentstatusdetailsitem.h"
#include "zemutils.h"

class ZEMCurrentStatusDetailsItem::Private
{
public:
    Ui_ZEMCurrentStatusDetailsItem ui;
    double value = 0.0;
    double maxValue = 0.0;
    bool valid = true;
    ZEMAnimatedArrows::Direction positiveDirection = ZEMAnimatedArrows::Right;
    ZEMAnimatedArrows::Direction negativeDirection = ZEMAnimatedArrows::Left;
};

ZEMCurrentStatusDetailsItem::ZEMCurrentStatusDetailsItem(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    // The arrows point at the pictures beside them.
    setLayoutDirection(Qt::LeftToRight);
    d->ui.arrows->hide();
    d->ui.arrows->setSize(ZEMAnimatedArrows::Small);
    setValue(0.0);
}

ZEMCurrentStatusDetailsItem::~ZEMCurrentStatusDetailsItem() = default;

QPixmap ZEMCurrentStatusDetailsItem::getIcon() const
{
    return d->ui.zemPixmapFront->getPixmap();
}

void ZEMCurrentStatusDetailsItem::setIcon(const QPixmap &icon)
{
    d->ui.zemPixmapFront->setPixmap(icon);
}

QPixmap ZEMCurrentStatusDetailsItem::getIconPowerSource() const
{
    return d->ui.zemPixmapBack->getPixmap();
}

void ZEMCurrentStatusDetailsItem::setIconPowerSource(const QPixmap &icon)
{
    d->ui.zemPixmapBack->setPixmap(icon);
}

double ZEMCurrentStatusDetailsItem::getValue() const
{
    return d->value;
}

void ZEMCurrentStatusDetailsItem::setValue(double value)
{
    d->value = value;
    ZEMAnimatedArrows *arrows = d->ui.arrows;
    if (!d->valid) {
        d->ui.label->setText(Flow::unknownPower());
        arrows->setSpeed(ZEMAnimatedArrows::Stopped);
        return;
    }
    d->ui.label->setText(ZEMUtils::wattToStringAutoScale(value));
    if (!arrows->isVisible()) {
        return;
    }
    arrows->setDirection(value > 0.0 ? d->positiveDirection : d->negativeDirection);
    Flow::run(arrows, ZEMUtils::calculateSpeed(d->maxValue, value));
}

double ZEMCurrentStatusDetailsItem::getMaxValue() const
{
    return d->maxValue;
}

void ZEMCurrentStatusDetailsItem::setMaxValue(double value)
{
    d->maxValue = value;
    const int speed = ZEMUtils::calculateSpeed(value, d->value);
    d->ui.arrows->setSpeed(ZEMAnimatedArrows::Speed(speed));
}

bool ZEMCurrentStatusDetailsItem::getValid() const
{
    return d->valid;
}

void ZEMCurrentStatusDetailsItem::setValid(bool valid)
{
    d->valid = valid;
    setValue(d->value);
}

bool ZEMCurrentStatusDetailsItem::getShowArrows() const
{
    return d->ui.arrows->isVisible();
}

void ZEMCurrentStatusDetailsItem::setShowArrows(bool show)
{
    d->ui.arrows->setVisible(show);
}

void ZEMCurrentStatusDetailsItem::setPositiveValueDirection(ZEMAnimatedArrows::Direction direction)
{
    d->positiveDirection = direction;
    d->negativeDirection =
        direction == ZEMAnimatedArrows::Right ? ZEMAnimatedArrows::Left : ZEMAnimatedArrows::Right;
}

ZEMAnimatedArrows *ZEMCurrentStatusDetailsItem::getArrowsInterface() const
{
    return d->ui.arrows;
}

void ZEMCurrentStatusDetailsItem::showEvent(QShowEvent * /*event*/)
{
    // The arrows are visible from here on, and have missed the values since they were last seen.
    setValue(d->value);
}
