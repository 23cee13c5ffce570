// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "qwtlegenditem.h"

#include "histogramgeometry_p.h"
#include "sharppicture_p.h"

#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr int defaultMargin = 2;
constexpr int defaultSpacing = 2;
constexpr QSize defaultIdentifierSize(8, 8);

} // namespace

class QwtLegendItem::Private
{
public:
    QSize identifierSize = defaultIdentifierSize;
    SharpPicture identifier;
    int spacing = defaultSpacing;
};

QwtLegendItem::QwtLegendItem(QWidget *parent) : QwtTextLabel(parent), d(std::make_unique<Private>())
{
    setMargin(defaultMargin);
    updateIndent();
    // The base's other setText() keeps the flags of the text that is there.
    QwtLegendItem::setText(QwtText());
}

QwtLegendItem::~QwtLegendItem() = default;

void QwtLegendItem::setIdentifierSize(const QSize &size)
{
    d->identifierSize = size.expandedTo(QSize(0, 0));
    updateIndent();
}

QSize QwtLegendItem::identifierSize() const
{
    return d->identifierSize;
}

void QwtLegendItem::setIdentifier(const QPixmap &identifier)
{
    d->identifier = identifier;
    update();
}

QPixmap QwtLegendItem::identifier() const
{
    return d->identifier.plain();
}

void QwtLegendItem::setSpacing(int spacing)
{
    d->spacing = qMax(spacing, 0);
    updateIndent();
}

int QwtLegendItem::spacing() const
{
    return d->spacing;
}

void QwtLegendItem::setText(const QwtText &text)
{
    QwtText shown = text;
    shown.setRenderFlags(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextExpandTabs | Qt::TextWordWrap);
    QwtTextLabel::setText(shown);
}

void QwtLegendItem::paintEvent(QPaintEvent *event)
{
    QwtTextLabel::paintEvent(event);
    if (d->identifier.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.setClipRegion(event->region() & contentsRect());
    d->identifier.draw(
        painter, HistogramGeometry::identifierRect(contentsRect(), margin(), d->identifier.size()));
}

void QwtLegendItem::updateIndent()
{
    setIndent(margin() + d->identifierSize.width() + 2 * d->spacing);
}
