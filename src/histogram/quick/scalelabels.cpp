// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "scalelabels_p.h"

#include "qwtcompat_p.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHash>
#include <QMarginsF>
#include <QPointer>
#include <QTextOption>
#include <QtMath>

#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>
#include <qwt_text_engine.h>

#include <algorithm>
#include <cmath>
#include <list>
#include <typeinfo>

namespace {

/** The charts of a page have three. */
constexpr std::size_t mostFonts = 6;

struct LabelsOfFont
{
    QFont font;
    QMarginsF margins; ///< what textSize() has around the minimum layout
    QHash<QString, ScaleLabels::Label> labels;
};

/** The labels of the fonts used last, those of the last one first. */
class Store
{
public:
    static Store &instance()
    {
        static Store store;
        store.followApplication();
        return store;
    }

    int currentGeneration() const { return generation; }

    LabelsOfFont &of(const QFont &font, const QwtTextEngine &engine)
    {
        const auto known = std::find_if(fonts.begin(), fonts.end(), [&](const LabelsOfFont &each) {
            return each.font == font;
        });
        if (known != fonts.end()) {
            fonts.splice(fonts.begin(), fonts, known);
            return fonts.front();
        }
        if (fonts.size() == mostFonts) {
            fonts.pop_back();
        }
        double left = 0.0;
        double right = 0.0;
        double top = 0.0;
        double bottom = 0.0;
        engine.textMargins(font, QString(), left, right, top, bottom);
        fonts.push_front({font, QMarginsF(left, top, right, bottom), {}});
        return fonts.front();
    }

private:
    /** Neither do glyphs outlive the application, nor sizes the fonts that they are of. */
    void followApplication()
    {
        if (application == qApp) {
            return;
        }
        application = qApp;
        qAddPostRoutine([] { instance().clear(); });
        QObject::connect(qApp, &QGuiApplication::fontDatabaseChanged, [] { instance().clear(); });
    }

    void clear()
    {
        fonts.clear();
        ++generation;
    }

    QPointer<QCoreApplication> application;
    std::list<LabelsOfFont> fonts;
    int generation = 1;
};

const QwtTextEngine *plainEngine(const QString &text)
{
    const QwtTextEngine *engine = QwtText::textEngine(text, QwtText::AutoText);
    return engine && typeid(*engine) == typeid(QwtPlainTextEngine) ? engine : nullptr;
}

ScaleLabels::Label newLabel(const QString &text, const QSizeF &wholeSize, const QMarginsF &margins)
{
    ScaleLabels::Label label;
    label.size =
        wholeSize - QSizeF(margins.left() + margins.right(), margins.top() + margins.bottom());
    // Rounded as in QwtScaleDraw::drawLabel(): the last column of a glyph may be cut off.
    label.room = QRectF(QPointF(), label.size.toSize()).marginsAdded(margins);
    label.isCut = !label.room.contains(QRectF(label.room.topLeft(), wholeSize));
    label.glyphs.setText(text);
    label.glyphs.setTextFormat(Qt::PlainText);
    // A painter, other than a static text, does not choose a direction by the text.
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    label.glyphs.setTextOption(option);
    return label;
}

} // namespace

const ScaleLabels::Label *ScaleLabels::find(const QString &text, const QFont &font)
{
    // Asked for each time: a host may put another engine in its place.
    const QwtTextEngine *engine = plainEngine(text);
    if (!engine) {
        return nullptr;
    }
    LabelsOfFont &known = Store::instance().of(font, *engine);
    if (known.labels.size() > mostLabels) {
        known.labels.clear();
    }
    auto label = known.labels.find(text);
    if (label == known.labels.end()) {
        label = known.labels.insert(text,
                                    newLabel(text, engine->textSize(font, 0, text), known.margins));
    }
    return &*label;
}

int ScaleLabels::generation()
{
    return Store::instance().currentGeneration();
}

ScaleBorders ScaleBorders::expandedTo(const ScaleBorders &other) const
{
    return {std::max(start, other.start), std::max(end, other.end)};
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

ScaleMeasure::ScaleMeasure(const QwtScaleWidget &widget)
    : ScaleMeasure(*widget.scaleDraw(), dynamic_cast<const LabelledScale *>(widget.scaleDraw()),
                   widget.font())
{
}

std::optional<QSizeF> ScaleMeasure::largestLabel() const
{
    const QwtScaleDiv &scale = draw.scaleDiv();
    QSizeF largest(0.0, 0.0);
    for (const double tick : scale.ticks(QwtScaleDiv::MajorTick)) {
        if (!scale.contains(tick)) {
            continue;
        }
        const auto rect = labelRect(tick);
        if (!rect) {
            return std::nullopt;
        }
        largest = largest.expandedTo(rect->size());
    }
    return largest;
}

std::optional<int> ScaleMeasure::maxLabelWidth() const
{
    const auto largest = largestLabel();
    return largest ? std::optional<int>(qCeil(largest->width())) : std::nullopt;
}

std::optional<double> ScaleMeasure::extent() const
{
    double result = 0.0;
    if (draw.hasComponent(QwtAbstractScaleDraw::Labels)) {
        const auto largest = largestLabel();
        if (!largest) {
            return std::nullopt;
        }
        const bool isVertical = draw.orientation() == Qt::Vertical;
        result = std::ceil(isVertical ? largest->width() : largest->height());
        if (result > 0.0) {
            result += draw.spacing();
        }
    }
    if (draw.hasComponent(QwtAbstractScaleDraw::Ticks)) {
        result += draw.maxTickLength();
    }
    if (draw.hasComponent(QwtAbstractScaleDraw::Backbone)) {
        result += std::max(1.0, QwtCompat::penWidth(draw));
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
    const bool isVertical = draw.orientation() == Qt::Vertical;
    const double before = isVertical
        ? -minRect->top() - std::abs(map.transform(minTick) - qRound(map.p2()))
        : -minRect->left() - std::abs(map.transform(minTick) - map.p1());
    const double behind = isVertical
        ? maxRect->bottom() - std::abs(map.transform(maxTick) - map.p1())
        : maxRect->right() - std::abs(map.transform(maxTick) - map.p2());
    return ScaleBorders {int(std::ceil(std::max(before, 0.0))),
                         int(std::ceil(std::max(behind, 0.0)))};
}

std::optional<ScaleBorders> ScaleMeasure::borders(const QwtScaleWidget &widget) const
{
    const auto hint = borders();
    if (!hint) {
        return std::nullopt;
    }
    ScaleBorders least;
    widget.getMinBorderDist(least.start, least.end);
    return hint->expandedTo(least);
}

/** As QwtScaleDraw::minLabelDist(). */
std::optional<int> ScaleMeasure::minLabelDist() const
{
    const QList<double> ticks = draw.scaleDiv().ticks(QwtScaleDiv::MajorTick);
    if (!draw.hasComponent(QwtAbstractScaleDraw::Labels) || ticks.isEmpty()) {
        return 0;
    }
    const QFontMetrics metrics(font);
    // Labels above each other need no more than a line each.
    constexpr int blankOfLine = 2; // pixels
    if (draw.orientation() == Qt::Vertical) {
        return metrics.ascent() - blankOfLine;
    }
    double largest = 0.0;
    std::optional<QRectF> previous;
    for (const double tick : ticks) {
        const auto rect = labelRect(tick);
        if (!rect) {
            return std::nullopt;
        }
        if (previous) {
            largest = std::max(largest,
                               metrics.leading() + std::max(0.0, previous->right())
                                   + std::max(0.0, -rect->left()));
        }
        previous = rect;
    }
    return qCeil(largest);
}

std::optional<int> ScaleMeasure::minLength() const
{
    const auto ends = borders();
    const auto distance = minLabelDist();
    if (!ends || !distance) {
        return std::nullopt;
    }
    const QwtScaleDiv &scale = draw.scaleDiv();
    const int majorTicks = scale.ticks(QwtScaleDiv::MajorTick).count();
    const int otherTicks =
        scale.ticks(QwtScaleDiv::MinorTick).count() + scale.ticks(QwtScaleDiv::MediumTick).count();
    const double widthOfTick = std::max(1.0, QwtCompat::penWidth(draw)) + 1.0;
    const int forTicks = draw.hasComponent(QwtAbstractScaleDraw::Ticks)
        ? qCeil((majorTicks + otherTicks) * widthOfTick)
        : 0;
    return ends->start + ends->end + std::max(*distance * majorTicks, forTicks);
}
