// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SCALELABELS_P_H
#define SCALELABELS_P_H

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QStaticText>
#include <QString>

#include <optional>

#include <qwt_scale_draw.h>

class QwtScaleWidget;

/**
 * Remembers how large the texts of the charts' scales are, and their glyphs. Qwt asks for a size
 * again and again, and each answer writes the font out as a text; Qt shapes a text again for each
 * time that it is drawn.
 *
 * It depends on nothing but text, font and the fonts of the application, and is forgotten when
 * those change.
 */
namespace ScaleLabels {

struct Label
{
    QSizeF size; ///< as of QwtText::textSize() with the minimum layout
    QRectF room; ///< what Qwt lets the text be drawn in, from the corner of the label
    bool isCut; ///< the text does not fit into its room
    QStaticText glyphs; ///< shaped when they are drawn first
};

/**
 * Null for a text that is not drawn by Qwt's own engine of plain texts. The answer is valid until
 * the next call.
 */
const Label *find(const QString &text, const QFont &font);

/** Another number when what find() has answered before holds no longer. */
int generation();

/** So many are remembered of a font or a scale, which shows ten; more than a year of week dates. */
constexpr int mostLabels = 100;

} // namespace ScaleLabels

/** The distances of a scale's ends from the edges of its widget, in pixels. */
struct ScaleBorders
{
    int start = 0;
    int end = 0;

    ScaleBorders expandedTo(const ScaleBorders &other) const;
    bool operator==(const ScaleBorders &other) const
    {
        return start == other.start && end == other.end;
    }
};

/** A scale draw that remembers its labels. */
class LabelledScale
{
public:
    virtual const ScaleLabels::Label *findLabel(double value, const QFont &font) const = 0;
    /** Empty labels for as long as it is silent, which spares measuring them. */
    virtual void setSilent(bool silent) = 0;

protected:
    ~LabelledScale() = default;
};

/**
 * The top left corner of a label of @p size that belongs to @p position, as @p draw aligns its
 * labels. Without rotation.
 */
QPointF labelCorner(const QwtScaleDraw &draw, const QPointF &position, const QSizeF &size);

/**
 * Measures a scale draw as Qwt does, with the labels that it has now. Nothing is answered where
 * only Qwt can tell: for rotated labels, and for those that are no plain texts.
 */
class ScaleMeasure
{
public:
    /** @p labelled is @p draw itself, or null for one that is not the library's own. */
    ScaleMeasure(const QwtScaleDraw &measuredDraw, const LabelledScale *ownDraw,
                 const QFont &usedFont)
        : draw(measuredDraw), labelled(ownDraw), font(usedFont)
    {
    }

    /** Measures the scale that @p widget shows, in the font of the widget. */
    explicit ScaleMeasure(const QwtScaleWidget &widget);

    /** As QwtScaleDraw::maxLabelWidth(). */
    std::optional<int> maxLabelWidth() const;
    /** As QwtScaleDraw::extent(). */
    std::optional<double> extent() const;
    /** As QwtScaleDraw::getBorderDistHint(). */
    std::optional<ScaleBorders> borders() const;
    /** As QwtScaleWidget::getBorderDistHint() of @p widget, which shows the scale. */
    std::optional<ScaleBorders> borders(const QwtScaleWidget &widget) const;
    /** As QwtScaleDraw::minLength(). */
    std::optional<int> minLength() const;

private:
    bool canMeasureLabels() const { return labelled && draw.labelRotation() == 0.0; }
    std::optional<QRectF> labelRect(double value) const;
    std::optional<QSizeF> largestLabel() const;
    std::optional<int> minLabelDist() const;

    const QwtScaleDraw &draw;
    const LabelledScale *labelled;
    const QFont &font;
};

#endif
