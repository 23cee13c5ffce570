// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "scalelabels_p.h"

#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>
#include <qwt_text_engine.h>

#include <algorithm>
#include <cmath>
#include <typeinfo>

namespace {

/** More than a year of week dates; a scale shows ten. */
constexpr int mostLabels = 100;

const QwtTextEngine *plainEngine(const QString &text)
{
    const QwtTextEngine *engine = QwtText::textEngine(text, QwtText::AutoText);
    return engine && typeid(*engine) == typeid(QwtPlainTextEngine) ? engine : nullptr;
}

} // namespace

const ScaleLabels::Label *ScaleLabels::find(const QString &text, const QFont &font)
{
    // Asked for each time: a host may put another engine in its place.
    const QwtTextEngine *engine = plainEngine(text);
    if (!engine) {
        return nullptr;
    }
    if (font != usedFont || labels.size() > mostLabels) {
        labels.clear();
        usedFont = font;
    }
    auto label = labels.find(text);
    if (label == labels.end()) {
        double left = 0.0;
        double right = 0.0;
        double top = 0.0;
        double bottom = 0.0;
        engine->textMargins(font, text, left, right, top, bottom);
        const QSizeF wholeSize = engine->textSize(font, 0, text);
        Label made;
        made.size = wholeSize - QSizeF(left + right, top + bottom);
        // Rounded as in QwtScaleDraw::drawLabel(): the last column of a glyph may be cut off.
        made.room = QRectF(QPointF(), made.size.toSize()).adjusted(-left, -top, right, bottom);
        made.isCut = !made.room.contains(QRectF(made.room.topLeft(), wholeSize));
        made.glyphs.setText(text);
        made.glyphs.setTextFormat(Qt::PlainText);
        made.glyphs.prepare(QTransform(), font);
        label = labels.insert(text, made);
    }
    return &*label;
}

QPointF labelCorner(const QwtScaleDraw &draw, const QPointF &position, const QSizeF &size)
{
    Qt::Alignment alignment = draw.labelAlignment();
    if (!alignment) {
        switch (draw.alignment()) {
        case QwtScaleDraw::RightScale:
            alignment = Qt::AlignRight | Qt::AlignVCenter;
            break;
        case QwtScaleDraw::LeftScale:
            alignment = Qt::AlignLeft | Qt::AlignVCenter;
            break;
        case QwtScaleDraw::BottomScale:
            alignment = Qt::AlignHCenter | Qt::AlignBottom;
            break;
        case QwtScaleDraw::TopScale:
            alignment = Qt::AlignHCenter | Qt::AlignTop;
            break;
        }
    }
    double x = -(0.5 * size.width());
    if (alignment & Qt::AlignLeft) {
        x = -size.width();
    } else if (alignment & Qt::AlignRight) {
        x = 0.0;
    }
    double y = -(0.5 * size.height());
    if (alignment & Qt::AlignTop) {
        y = -size.height();
    } else if (alignment & Qt::AlignBottom) {
        y = 0.0;
    }
    return QPointF(position.x() + x, position.y() + y);
}

std::optional<double> ScaleMeasure::extent() const
{
    double result = 0.0;
    if (draw.hasComponent(QwtAbstractScaleDraw::Labels)) {
        const QwtScaleDiv &scale = draw.scaleDiv();
        double largest = 0.0;
        for (const double tick : scale.ticks(QwtScaleDiv::MajorTick)) {
            if (!scale.contains(tick)) {
                continue;
            }
            const auto rect = labelRect(tick);
            if (!rect) {
                return std::nullopt;
            }
            largest = std::max(largest,
                               draw.orientation() == Qt::Vertical ? rect->width() : rect->height());
        }
        result = std::ceil(largest);
        if (result > 0.0) {
            result += draw.spacing();
        }
    }
    if (draw.hasComponent(QwtAbstractScaleDraw::Ticks)) {
        result += draw.maxTickLength();
    }
    if (draw.hasComponent(QwtAbstractScaleDraw::Backbone)) {
        result += std::max(1, draw.penWidth());
    }
    return std::max(result, draw.minimumExtent());
}

std::optional<QRectF> ScaleMeasure::labelRect(double value) const
{
    if (!canMeasureLabels()) {
        return std::nullopt;
    }
    const ScaleLabels::Label *label = labelled->findLabel(value, font);
    if (!label) {
        return std::nullopt;
    }
    if (label->size.width() == 0.0) {
        return QRectF(0.0, 0.0, 0.0, 0.0);
    }
    // Added and taken off again as Qwt does it: what is rounded up later must round alike.
    const QPointF position = draw.labelPosition(value);
    return QRectF(labelCorner(draw, position, label->size), label->size).translated(-position);
}

std::optional<ScaleBorders> ScaleMeasure::borders() const
{
    const QList<double> ticks = draw.scaleDiv().ticks(QwtScaleDiv::MajorTick);
    if (!draw.hasComponent(QwtAbstractScaleDraw::Labels) || ticks.isEmpty()) {
        return ScaleBorders {0, 1};
    }
    const QwtScaleMap &map = draw.scaleMap();
    const auto isFirst = [&map](double a, double b) { return map.transform(a) < map.transform(b); };
    // Of ticks at one place the first counts.
    const double minTick = *std::min_element(ticks.begin(), ticks.end(), isFirst);
    const double maxTick = *std::max_element(ticks.begin(), ticks.end(), isFirst);
    const auto minRect = labelRect(minTick);
    const auto maxRect = labelRect(maxTick);
    if (!minRect || !maxRect) {
        return std::nullopt;
    }
    double before = 0.0;
    double behind = 0.0;
    if (draw.orientation() == Qt::Vertical) {
        before = -minRect->top() - std::abs(map.transform(minTick) - qRound(map.p2()));
        behind = maxRect->bottom() - std::abs(map.transform(maxTick) - map.p1());
    } else {
        before = -minRect->left() - std::abs(map.transform(minTick) - map.p1());
        behind = maxRect->right() - std::abs(map.transform(maxTick) - map.p2());
    }
    return ScaleBorders {int(std::ceil(std::max(before, 0.0))),
                         int(std::ceil(std::max(behind, 0.0)))};
}
