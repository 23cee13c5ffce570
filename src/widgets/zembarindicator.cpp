// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zembarindicator.h"

#include "barcomb_p.h"
#include "objectname_p.h"
#include "sharppicture_p.h"

#include <QLine>
#include <QPaintEvent>
#include <QPainter>

namespace {

QLine upright(int x, const QRect &area)
{
    return {x, area.top(), x, area.bottom() + 1};
}

void drawUprights(QPainter &painter, const QPen &pen, const QVector<int> &places, const QRect &area)
{
    QVector<QLine> lines;
    lines.reserve(places.size());
    for (int x : places) {
        lines.append(upright(x, area));
    }
    // A line of an odd width covers the pixel at its place, of which a sharp screen has several.
    const bool isAside = ratioOf(painter) > 1.0 && qMax(pen.width(), 1) % 2 == 1;
    painter.setPen(pen);
    painter.translate(isAside ? 0.5 : 0.0, 0.0);
    painter.drawLines(lines);
    painter.translate(isAside ? -0.5 : 0.0, 0.0);
}

} // namespace

class ZEMBarIndicator::Private
{
public:
    double limited(double wanted) const { return qBound(minValue, wanted, maxValue); }

    double position(double of, const QRect &area) const
    {
        return BarComb::position(area.left(), area.width(), of, minValue, maxValue);
    }

    void drawComb(QPainter &painter, const QRect &area) const
    {
        const BarComb::Comb comb = BarComb::comb(area.left(), area.right(), position(value, area),
                                                 valuePen.width(), maxValuePen.width());
        drawUprights(painter, valuePen, comb.filled, area);
        drawUprights(painter, maxValuePen, comb.rest, area);
    }

    void drawMidValue(QPainter &painter, const QRect &area) const
    {
        const double x = position(midValue, area);
        if (BarComb::reaches(x, midValuePen.width(), area.left(), area.right())) {
            drawUprights(painter, midValuePen, {int(x)}, area);
        }
    }

    QPen valuePen = QPen(Qt::white, 1);
    QPen midValuePen = QPen(Qt::red, 1);
    QPen maxValuePen = QPen(Qt::black, 1);
    double minValue = 0.0;
    double value = 10.0;
    double midValue = 50.0;
    double maxValue = 100.0;
    bool enableMidValue = false;
};

ZEMBarIndicator::ZEMBarIndicator(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    QMetaObject::connectSlotsByName(this);
}

ZEMBarIndicator::~ZEMBarIndicator() = default;

double ZEMBarIndicator::getMinValue() const
{
    return d->minValue;
}

void ZEMBarIndicator::setMinValue(double minValue)
{
    if (minValue < d->maxValue) {
        d->minValue = minValue;
        update();
    }
}

double ZEMBarIndicator::getValue() const
{
    return d->value;
}

void ZEMBarIndicator::setValue(double value)
{
    if (!qIsNaN(value)) {
        d->value = d->limited(value);
        update();
    }
}

double ZEMBarIndicator::getMaxValue() const
{
    return d->maxValue;
}

void ZEMBarIndicator::setMaxValue(double maxValue)
{
    if (maxValue > d->minValue) {
        d->maxValue = maxValue;
        update();
    }
}

QPen ZEMBarIndicator::getValuePen() const
{
    return d->valuePen;
}

void ZEMBarIndicator::setValuePen(const QPen &pen)
{
    d->valuePen = pen;
    update();
}

QPen ZEMBarIndicator::getMaxValuePen() const
{
    return d->maxValuePen;
}

void ZEMBarIndicator::setMaxValuePen(const QPen &pen)
{
    d->maxValuePen = pen;
    update();
}

bool ZEMBarIndicator::getEnableMidValue() const
{
    return d->enableMidValue;
}

void ZEMBarIndicator::setEnableMidValue(bool enable)
{
    d->enableMidValue = enable;
}

double ZEMBarIndicator::getMidValue() const
{
    return d->midValue;
}

void ZEMBarIndicator::setMidValue(double midValue)
{
    if (!qIsNaN(midValue)) {
        d->midValue = d->limited(midValue);
        update();
    }
}

QPen ZEMBarIndicator::getMidValuePen() const
{
    return d->midValuePen;
}

void ZEMBarIndicator::setMidValuePen(const QPen &pen)
{
    d->midValuePen = pen;
    update();
}

QSize ZEMBarIndicator::sizeHint() const
{
    return size();
}

void ZEMBarIndicator::paintEvent(QPaintEvent *event)
{
    if (!event) {
        return;
    }
    QPainter painter(this);
    d->drawComb(painter, event->rect());
    if (d->enableMidValue) {
        d->drawMidValue(painter, event->rect());
    }
    QWidget::paintEvent(event);
}
