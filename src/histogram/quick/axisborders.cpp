// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "axisborders_p.h"

#include "quickpaths_p.h"

#include <QResizeEvent>

#include <qwt_scale_draw.h>

#include <optional>

namespace AxisBorders {

namespace {

/** Does one step that asks for the borders, without a label measured by Qwt where that can be. */
void withKnownBorders(QwtScaleWidget *widget, void (*step)(QwtScaleWidget *))
{
    const auto wanted =
        QuickPaths::areOpen() ? ScaleMeasure(*widget).borders(*widget) : std::nullopt;
    std::optional<Fixed> fixed;
    if (wanted) {
        fixed.emplace(widget, *wanted);
    }
    step(widget);
}

} // namespace

ScaleBorders of(const QwtScaleWidget *widget)
{
    return {widget->startBorderDist(), widget->endBorderDist()};
}

void take(QwtScaleWidget *widget)
{
    int start = 0;
    int end = 0;
    widget->getBorderDistHint(start, end);
    widget->setBorderDist(start, end);
}

void layOut(QwtScaleWidget *widget)
{
    QResizeEvent resize(widget->size(), widget->size());
    QCoreApplication::sendEvent(widget, &resize);
}

void settle(QwtScaleWidget *widget)
{
    {
        const Fixed none(widget, {0, 0});
        widget->setBorderDist(0, 0);
        layOut(widget);
    }
    constexpr int rounds = 2; // the place of the labels depends on the borders
    for (int i = 0; i < rounds; ++i) {
        withKnownBorders(widget, take);
        withKnownBorders(widget, layOut);
    }
}

Fixed::Fixed(QwtScaleWidget *quietWidget, const ScaleBorders &borders)
    : Fixed(quietWidget, borders,
            // A scale without labels asks for a pixel at its end.
            borders.end == 0 ? dynamic_cast<LabelledScale *>(quietWidget->scaleDraw()) : nullptr)
{
}

Fixed::Fixed(QwtScaleWidget *quietWidget, const ScaleBorders &borders, LabelledScale *silentScale)
    : widget(quietWidget),
      hadLabels(quietWidget->scaleDraw()->hasComponent(QwtAbstractScaleDraw::Labels)),
      silent(hadLabels ? silentScale : nullptr)
{
    widget->getMinBorderDist(least.start, least.end);
    widget->setMinBorderDist(borders.start, borders.end);
    if (silent) {
        silent->setSilent(true);
    } else {
        widget->scaleDraw()->enableComponent(QwtAbstractScaleDraw::Labels, false);
    }
}

Fixed::~Fixed()
{
    if (silent) {
        silent->setSilent(false);
    } else {
        widget->scaleDraw()->enableComponent(QwtAbstractScaleDraw::Labels, hadLabels);
    }
    widget->setMinBorderDist(least.start, least.end);
}

} // namespace AxisBorders
