// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartpage.h"

#include <QLinearGradient>
#include <QPainter>
#include <QTimeZone>

namespace Charts {

int slotsInView(Period period)
{
    switch (period) {
    case Period::Day:
        return 24;
    case Period::Week:
        return 7;
    case Period::Month:
        return 5;
    }
    return 0;
}

Readings readings(Period period, int days)
{
    const int slotCount = slotsInView(period);
    const int windows = period == Period::Day ? days : days / 7;
    Readings result;
    result.period = period;
    // A Monday, at which a week chart begins.
    result.newest = QDateTime(QDate(2026, 3, 2), QTime(0, 0), QTimeZone::utc());
    for (int i = 0; i < slotCount * windows; ++i) {
        result.consumption.push_back(1.0 + i * 7 % 13 * 0.5);
        result.production.push_back(0.25 + i * 5 % 9 * 0.25);
    }
    return result;
}

QPixmap groundPicture()
{
    QPixmap picture(pageSize);
    picture.fill(QColor(0x20, 0x28, 0x30));
    QPainter painter(&picture);
    QLinearGradient gradient(0.0, 0.0, 0.0, pageSize.height());
    gradient.setColorAt(0.0, QColor(0x38, 0x48, 0x58));
    gradient.setColorAt(1.0, QColor(0x10, 0x18, 0x20));
    painter.fillRect(picture.rect(), gradient);
    return picture;
}

} // namespace Charts
