// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemnotificationbutton.h"

#include "objectname_p.h"
#include "zemnotificationicon.h"

#include <QResizeEvent>

class ZEMNotificationButton::Private
{
public:
    explicit Private(ZEMNotificationButton *owner)
        : notificationIcon(new ZEMNotificationIcon(owner))
    {
    }

    ZEMNotificationIcon *notificationIcon;
};

ZEMNotificationButton::ZEMNotificationButton(QWidget *parent)
    : ZEMButton(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(d->notificationIcon->size());
    QMetaObject::connectSlotsByName(this);
}

ZEMNotificationButton::~ZEMNotificationButton() = default;

QPixmap ZEMNotificationButton::getIcon() const
{
    return d->notificationIcon->getIcon();
}

void ZEMNotificationButton::setIcon(const QPixmap &icon)
{
    d->notificationIcon->setIcon(icon);
}

QPixmap ZEMNotificationButton::getDisabledIcon() const
{
    return d->notificationIcon->getDisabledIcon();
}

void ZEMNotificationButton::setDisabledIcon(const QPixmap &icon)
{
    d->notificationIcon->setDisabledIcon(icon);
}

int ZEMNotificationButton::getNotifyCount() const
{
    return d->notificationIcon->getNotifyCount();
}

bool ZEMNotificationButton::getWarning() const
{
    return d->notificationIcon->getWarning();
}

void ZEMNotificationButton::setNotifyCount(int count)
{
    d->notificationIcon->setNotifyCount(count);
}

void ZEMNotificationButton::setWarning(bool enable)
{
    d->notificationIcon->setWarning(enable);
}

void ZEMNotificationButton::resizeEvent(QResizeEvent *event)
{
    d->notificationIcon->resize(event->size());
}
