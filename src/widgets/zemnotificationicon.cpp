// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemnotificationicon.h"

#include "centredmark_p.h"
#include "notificationbadge_p.h"
#include "objectname_p.h"
#include "sharppicture_p.h"
#include "zemstyle.h"

#include <QColor>
#include <QFont>
#include <QPainter>

namespace {

constexpr QSize designSize(45, 45);
constexpr int fontSize = 9; // points

} // namespace

class ZEMNotificationIcon::Private
{
public:
    void drawBadge(QPainter &painter, int width, const QFont &font) const
    {
        const auto content = NotificationBadge::content(notifyCount, warning);
        if (content == NotificationBadge::Content::Nothing) {
            return;
        }
        const QRect place = NotificationBadge::place(width, badge.size());
        badge.draw(painter, place);
        painter.setPen(badgeTextColor);
        painter.setFont(NotificationBadge::font(font, content));
        painter.drawText(place, Qt::AlignCenter, NotificationBadge::text(content, notifyCount));
    }

    int notifyCount = 0;
    bool warning = false;
    QColor badgeTextColor = ZEMStyle(nullptr).color(ZEMStyle::Magenta);
    SharpPicture icon;
    SharpPicture iconDisabled;
    SharpPicture badge = QPixmap(QStringLiteral(":/zem/graphics/header/header_num_bg_03.png"));
};

ZEMNotificationIcon::ZEMNotificationIcon(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    QFont badgeFont = font();
    badgeFont.setPointSize(fontSize);
    badgeFont.setWeight(QFont::Bold);
    setFont(badgeFont);
    QMetaObject::connectSlotsByName(this);
}

ZEMNotificationIcon::~ZEMNotificationIcon() = default;

QPixmap ZEMNotificationIcon::getIcon() const
{
    return d->icon.plain();
}

void ZEMNotificationIcon::setIcon(const QPixmap &icon)
{
    d->icon = icon;
    update();
}

QPixmap ZEMNotificationIcon::getDisabledIcon() const
{
    return d->iconDisabled.plain();
}

void ZEMNotificationIcon::setDisabledIcon(const QPixmap &icon)
{
    d->iconDisabled = icon;
    update();
}

int ZEMNotificationIcon::getNotifyCount() const
{
    return d->notifyCount;
}

void ZEMNotificationIcon::setNotifyCount(int count)
{
    if (count >= 0) {
        d->notifyCount = count;
        update();
    }
}

bool ZEMNotificationIcon::getWarning() const
{
    return d->warning;
}

void ZEMNotificationIcon::setWarning(bool warning)
{
    d->warning = warning;
    update();
}

void ZEMNotificationIcon::paintEvent(QPaintEvent *event)
{
    const SharpPicture &picture = isEnabled() ? d->icon : d->iconDisabled;
    QPainter painter(this);
    picture.draw(painter, centredMark(size(), picture.size()));
    if (!picture.isNull()) {
        d->drawBadge(painter, width(), font());
    }
    QWidget::paintEvent(event);
}
