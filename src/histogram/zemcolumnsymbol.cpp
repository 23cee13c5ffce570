// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemcolumnsymbol.h"

#include "histogramgeometry_p.h"
#include "zempixmapcache.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <qwt_painter.h>

class ZEMColumnSymbol::Private
{
public:
    QPixmap icon;
};

ZEMColumnSymbol::ZEMColumnSymbol(QwtColumnSymbol::Style style)
    : QwtColumnSymbol(style), d(std::make_unique<Private>())
{
}

ZEMColumnSymbol::~ZEMColumnSymbol() = default;

void ZEMColumnSymbol::draw(QPainter *painter, const QwtColumnRect &rect) const
{
    if (!rect.hInterval.isValid()) {
        return;
    }
    painter->save();
    switch (style()) {
    case QwtColumnSymbol::Box:
        drawBox(painter, rect);
        break;
    case QwtColumnSymbol::UserStyle:
        drawIconBox(painter, rect);
        break;
    default:
        break;
    }
    painter->restore();
}

void ZEMColumnSymbol::setIcon(const QString &path)
{
    QPixmap pixmap;
    ZEMPixmapCache::load(pixmap, path);
    d->icon = pixmap;
}

void ZEMColumnSymbol::drawIconBox(QPainter *painter, const QwtColumnRect &rect) const
{
    QRectF column = rect.toRect();
    if (QwtPainter::roundingAlignment(painter)) {
        column = HistogramGeometry::rounded(column);
    }
    const auto visible =
        HistogramGeometry::visibleColumn(column, painter->clipRegion().boundingRect());
    if (!visible) {
        return;
    }
    painter->fillRect(*visible, palette().brush(QPalette::Current, QPalette::Window));
    if (const auto position = HistogramGeometry::iconPosition(*visible, d->icon.size())) {
        painter->drawPixmap(*position, d->icon);
    }
}
