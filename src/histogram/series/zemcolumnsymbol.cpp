// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemcolumnsymbol.h"

#include "histogramgeometry_p.h"
#include "quickpaths_p.h"
#include "sharppicture_p.h"
#include "zempixmapcache.h"

#include <QBrush>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <qwt_painter.h>

class ZEMColumnSymbol::Private
{
public:
    /**
     * Fills a frameless box of one colour as QwtColumnSymbol::drawBox() does, without the detour
     * over a saved painter and a brush. Answers false for every other box.
     */
    static bool fillPlainBox(const ZEMColumnSymbol &symbol, QPainter *painter,
                             const QwtColumnRect &rect)
    {
        const QBrush &brush = symbol.palette().window();
        if (symbol.style() != QwtColumnSymbol::Box || brush.style() != Qt::SolidPattern
            || symbol.frameStyle() != QwtColumnSymbol::NoFrame
            || !QwtPainter::roundingAlignment(painter)
            || painter->testRenderHint(QPainter::Antialiasing)) {
            return false;
        }
        const QRectF box = HistogramGeometry::rounded(rect.toRect()).adjusted(0, 0, 1, 1);
        painter->fillRect(box, brush.color());
        return true;
    }

    SharpPicture icon;
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
    if (QuickPaths::areOpen() && d->fillPlainBox(*this, painter, rect)) {
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

void ZEMColumnSymbol::setIcon(QString path)
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
        painter->drawPixmap(*position, d->icon.forRatio(ratioOf(*painter)));
    }
}
