// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "deviceicons.h"

#include "lineicon.h"

#include <QLineF>

namespace DeviceIcons {

namespace {

constexpr double scale = 32.0 / LineIcon::size;

/** A fan in a box. */
QPainterPath heatPump()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(2, 4, 22, 18), 3, 3);
    path.addEllipse(QPointF(10, 13), 5, 5);
    path.moveTo(10, 8);
    path.lineTo(10, 18);
    path.moveTo(5, 13);
    path.lineTo(15, 13);
    path.moveTo(19, 9);
    path.lineTo(19, 17);
    return path;
}

QPainterPath car()
{
    QPainterPath path;
    path.moveTo(2, 18);
    path.lineTo(2, 13);
    path.lineTo(6, 12);
    path.lineTo(9, 6);
    path.lineTo(18, 6);
    path.lineTo(21, 12);
    path.lineTo(24, 13);
    path.lineTo(24, 18);
    path.closeSubpath();
    path.addEllipse(QPointF(8, 19), 3, 3);
    path.addEllipse(QPointF(18, 19), 3, 3);
    return path;
}

/** A pot with steam. */
QPainterPath kitchen()
{
    QPainterPath path;
    path.moveTo(4, 12);
    path.lineTo(22, 12);
    path.lineTo(20, 22);
    path.lineTo(6, 22);
    path.closeSubpath();
    for (const int x : {9, 13, 17}) {
        path.moveTo(x, 4);
        path.lineTo(x, 8);
    }
    return path;
}

/** A lamp. */
QPainterPath rest()
{
    QPainterPath path;
    path.addEllipse(QPointF(13, 10), 7, 7);
    path.moveTo(10, 20);
    path.lineTo(16, 20);
    path.moveTo(11, 24);
    path.lineTo(15, 24);
    return path;
}

QPainterPath sun()
{
    QPainterPath path;
    path.addEllipse(QPointF(13, 13), 5, 5);
    for (int ray = 0; ray < 8; ++ray) {
        QLineF line(13, 13, 13, 2);
        line.setAngle(45.0 * ray);
        path.moveTo(line.pointAt(0.75));
        path.lineTo(line.p2());
    }
    return path;
}

QPixmap drawn(const QPainterPath &path)
{
    return LineIcon::draw(path, scale);
}

} // namespace

QPixmap picture(Device device)
{
    switch (device) {
    case Device::HeatPump:
        return drawn(heatPump());
    case Device::Car:
        return drawn(car());
    case Device::Kitchen:
        return drawn(kitchen());
    case Device::Rest:
        break;
    }
    return drawn(rest());
}

QPixmap solar()
{
    return drawn(sun());
}

} // namespace DeviceIcons
