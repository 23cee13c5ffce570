// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempagebackground.h"

#include "objectname_p.h"
#include "sharppicture_p.h"

#include <QBrush>
#include <QPainter>

namespace {

constexpr QSize designSize(640, 480);

} // namespace

class ZEMPageBackground::Private
{
public:
    SharpPicture background;
    QColor backgroundColor;
};

ZEMPageBackground::ZEMPageBackground(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    resize(designSize);
    setMinimumSize(designSize);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
}

ZEMPageBackground::~ZEMPageBackground() = default;

QPixmap ZEMPageBackground::getBackground() const
{
    return d->background.plain();
}

void ZEMPageBackground::setBackground(const QPixmap &background, bool repaint)
{
    d->background = background;
    setMinimumSize(d->background.size());
    if (repaint) {
        QWidget::repaint();
    }
}

QColor ZEMPageBackground::getBackgroundColor() const
{
    return d->backgroundColor;
}

void ZEMPageBackground::setBackgroundColor(const QColor &color)
{
    d->backgroundColor = color;
    repaint();
}

void ZEMPageBackground::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (d->background.isNull()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(d->backgroundColor, Qt::SolidPattern));
        painter.drawRect(rect());
    } else {
        d->background.draw(painter, rect());
    }
    QWidget::paintEvent(event);
}
