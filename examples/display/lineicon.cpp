// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "lineicon.h"

#include <QGuiApplication>
#include <QPainter>

namespace LineIcon {

namespace {

constexpr double lineWidth = 2.0;

} // namespace

QPixmap draw(const QPainterPath &path, double scale)
{
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap picture(QSize(size, size) * scale * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.setPen(QPen(Qt::white, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    return picture;
}

} // namespace LineIcon
