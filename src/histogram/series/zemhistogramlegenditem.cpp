// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogramlegenditem.h"

#include "histogramgeometry_p.h"
#include "objectname_p.h"
#include "picturesize_p.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPalette>

class ZEMHistogramLegendItem::Private
{
public:
    QPixmap background;
    int identifierIndent = 0;
};

ZEMHistogramLegendItem::ZEMHistogramLegendItem(QWidget *parent)
    : QwtLegendItem(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->identifierIndent = margin();
}

ZEMHistogramLegendItem::~ZEMHistogramLegendItem() = default;

void ZEMHistogramLegendItem::setTextColor(const QColor &color)
{
    QPalette changed = palette();
    changed.setBrush(QPalette::All, QPalette::Text, QBrush(color));
    setPalette(changed);
}

QPixmap ZEMHistogramLegendItem::getBackground()
{
    return d->background;
}

void ZEMHistogramLegendItem::setBackground(const QPixmap &pixmap)
{
    d->background = pixmap;
    const QSize size = pictureSize(pixmap);
    setMinimumSize(size);
    setMaximumSize(size);
    resize(size);
    repaint();
}

void ZEMHistogramLegendItem::setIdentifierIndent(int indent)
{
    d->identifierIndent = qMax(indent, 0);
    setIndent(d->identifierIndent + margin() + identifierSize().width() + 2 * spacing());
}

void ZEMHistogramLegendItem::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(QRectF(0, 0, width(), height()), d->background, QRectF());

    const QRect contents = contentsRect();
    painter.setClipRect(contents);
    drawContents(&painter);

    if (identifier().isNull()) {
        return;
    }
    const QRect place =
        HistogramGeometry::identifierRect(contents, d->identifierIndent, pictureSize(identifier()));
    painter.drawPixmap(QRectF(place), identifier(), QRectF());
}
