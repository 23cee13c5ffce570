// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "lineicon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>

namespace LineIcon {

namespace {

constexpr double lineWidth = 2.0;

void drawLines(QPainter *painter, const QPainterPath &path)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(Qt::white, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(path);
}

class LineIconEngine : public QIconEngine
{
public:
    LineIconEngine(const QPainterPath &itsPath, double itsScale)
        : path(itsPath), scale(itsScale) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override
    {
        painter->save();
        painter->translate(rect.topLeft());
        painter->scale(double(rect.width()) / size, double(rect.height()) / size);
        drawLines(painter, path);
        painter->restore();
    }

    QSize actualSize(const QSize &room, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return (QSize(size, size) * scale).boundedTo(room);
    }

    QPixmap pixmap(const QSize &room, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(actualSize(room, mode, state));
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine *clone() const override { return new LineIconEngine(path, scale); }

private:
    const QPainterPath path;
    const double scale;
};

} // namespace

QPixmap draw(const QPainterPath &path, double scale)
{
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap picture(QSize(size, size) * scale * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    drawLines(&painter, path);
    return picture;
}

QIcon icon(const QPainterPath &path, double scale)
{
    return QIcon(new LineIconEngine(path, scale));
}

} // namespace LineIcon
