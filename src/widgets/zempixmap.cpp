// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempixmap.h"

#include "objectname_p.h"
#include "sharppicture_p.h"

#include <QPainter>

class ZEMPixmap::Private
{
public:
    double opacity = 1.0;
    SharpPicture pixmap;
    QColor color;
};

ZEMPixmap::ZEMPixmap(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
}

ZEMPixmap::~ZEMPixmap() = default;

QPixmap ZEMPixmap::getPixmap() const
{
    return d->pixmap.plain();
}

void ZEMPixmap::setPixmap(const QPixmap &pixmap)
{
    d->pixmap = pixmap;
    const QSize size = d->pixmap.size();
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
    repaint();
}

qreal ZEMPixmap::getOpacity() const
{
    return d->opacity;
}

void ZEMPixmap::setOpacity(double opacity)
{
    if (opacity >= 0.0 && opacity <= 1.0) {
        d->opacity = opacity;
        repaint();
    }
}

QColor ZEMPixmap::getColor() const
{
    return d->color;
}

void ZEMPixmap::setColor(const QColor &color)
{
    d->color = color;
    QPixmap filled = d->pixmap.isNull() ? QPixmap(size()) : d->pixmap.plain();
    filled.fill(color);
    d->pixmap = filled;
}

QSize ZEMPixmap::sizeHint() const
{
    return size();
}

void ZEMPixmap::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setOpacity(d->opacity);
    d->pixmap.draw(painter, rect());
    QWidget::paintEvent(event);
}
