// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogramlegenditem.h"

#include "histogramgeometry_p.h"
#include "objectname_p.h"
#include "sharppicture_p.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPalette>

class ZEMHistogramLegendItem::Private
{
public:
    SharpPicture background;
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
    return d->background.plain();
}

void ZEMHistogramLegendItem::setBackground(const QPixmap &pixmap)
{
    d->background = pixmap;
    const QSize size = d->background.size();
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
    d->background.draw(painter, rect());

    const QRect contents = contentsRect();
    painter.setClipRect(contents);
    drawContents(&painter);

    if (identifier().isNull()) {
        return;
    }
    const SharpPicture mark = identifier();
    mark.draw(painter,
              HistogramGeometry::identifierRect(contents, d->identifierIndent, mark.size()));
}
