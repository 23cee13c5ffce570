// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemtextlabel.h"

#include "objectname_p.h"
#include "textshadow_p.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPalette>

class ZEMTextLabel::Private
{
public:
    bool shadow = false;
};

ZEMTextLabel::ZEMTextLabel(QWidget *parent) : QLabel(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
}

ZEMTextLabel::~ZEMTextLabel() = default;

bool ZEMTextLabel::getShadow() const
{
    return d->shadow;
}

void ZEMTextLabel::setShadow(bool shadow)
{
    d->shadow = shadow;
}

QSize ZEMTextLabel::sizeHint() const
{
    return QLabel::sizeHint() + QSize(TextShadow::offset.x(), TextShadow::offset.y());
}

void ZEMTextLabel::paintEvent(QPaintEvent *event)
{
    if (d->shadow) {
        drawShadowLabel(event);
    } else {
        QLabel::paintEvent(event);
    }
}

void ZEMTextLabel::drawShadowLabel(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    // A painter has the direction of the application, whatever that of the widget is.
    painter.setLayoutDirection(layoutDirection());
    painter.setFont(font());

    const int xWidth = QFontMetrics(font()).horizontalAdvance(QLatin1Char('x'));
    const int indentWidth = TextShadow::effectiveIndent(indent(), frameWidth(), xWidth, margin());
    const QRect place = TextShadow::textRect(contentsRect(), margin(), alignment(), indentWidth);
    const int flags = TextShadow::textFlags(alignment(), wordWrap());

    const QPalette colors = palette();
    painter.setPen(colors.color(QPalette::Shadow));
    painter.drawText(place.translated(TextShadow::offset), flags, text());
    painter.setPen(colors.color(foregroundRole()));
    painter.drawText(place, flags, text());
}
