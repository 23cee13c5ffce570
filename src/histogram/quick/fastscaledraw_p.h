// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FASTSCALEDRAW_P_H
#define FASTSCALEDRAW_P_H

#include "quickpaths_p.h"
#include "qwtcompat_p.h"
#include "scalelabels_p.h"
#include "scaletexts_p.h"

#include <QFont>
#include <QGuiApplication>
#include <QHash>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QScreen>

#include <qwt_painter.h>
#include <qwt_scale_draw.h>
#include <qwt_text.h>

#include <cmath>
#include <optional>

namespace FastScale {

/** True when @p painter only moves what it draws, so that pixels stay pixels. */
inline bool keepsPixels(QPainter *painter)
{
    return QwtPainter::roundingAlignment(painter)
        && painter->deviceTransform().type() <= QTransform::TxTranslate
        && !painter->testRenderHint(QPainter::Antialiasing);
}

/**
 * True when @p painter draws the glyphs of a label as Qwt does: neither from right to left, nor on
 * a device of another density, for which Qwt makes a font of its own.
 */
inline bool drawsGlyphs(const QPainter *painter)
{
    const QPaintDevice *device = painter->device();
    const QScreen *screen = QGuiApplication::primaryScreen();
    return painter->layoutDirection() == Qt::LeftToRight
        && painter->deviceTransform().type() <= QTransform::TxTranslate
        && painter->paintEngine()->type() == QPaintEngine::Raster && screen
        && device->logicalDpiX() == qRound(screen->logicalDotsPerInchX())
        && device->logicalDpiY() == qRound(screen->logicalDotsPerInchY());
}

/** True when lines belong to the text: with mere glyphs they have another place. */
inline bool hasLines(const QFont &font)
{
    return font.underline() || font.overline() || font.strikeOut();
}

/**
 * True when a label at @p corner comes to lie on the same pixels however its place is added up.
 * Just beside the middle of two pixels it does not.
 */
inline bool roundsAlike(const QPainter *painter, const QPointF &corner)
{
    const auto isClear = [](double position, double shift) {
        constexpr double uncertain = 1.0 / 32.0; // pixels; glyphs are placed to 1/64
        const double sum = position + shift;
        const double fromMiddle = std::abs(sum - std::floor(sum) - 0.5);
        // A sum may be rounded to the middle from just beside it.
        return fromMiddle > uncertain || (fromMiddle == 0.0 && sum - shift == position);
    };
    const QTransform &transform = painter->deviceTransform();
    return isClear(corner.x(), transform.dx()) && isClear(corner.y(), transform.dy());
}

} // namespace FastScale

/**
 * A scale draw that shows just what @p Base shows, and measures and paints it with remembered
 * labels. Its ticks are filled: stroking a line of five pixels takes several times as long.
 */
template <typename Base>
class FastScaleDraw : public Base, public LabelledScale
{
public:
    using Base::Base;

    QwtText label(double value) const override { return isSilent ? QwtText() : Base::label(value); }

    const ScaleLabels::Label *findLabel(double value, const QFont &font) const override
    {
        const ScaleTexts::Source now = ScaleTexts::source(*this);
        if (!(now == source) || font != labelFont || labels.size() > ScaleLabels::mostLabels
            || generation != ScaleLabels::generation()) {
            source = now;
            labelFont = font;
            generation = ScaleLabels::generation();
            labels.clear();
        }
        auto label = labels.constFind(value);
        if (label == labels.constEnd()) {
            const auto *found = ScaleLabels::find(ScaleTexts::text(*this, value), font);
            if (!found) {
                return nullptr;
            }
            label = labels.insert(value, *found);
        }
        return &*label;
    }

    void setSilent(bool silent) override
    {
        isSilent = silent;
        // Qwt keeps what label() answered.
        this->invalidateCache();
    }

    double extent(const QFont &font) const override
    {
        std::optional<double> measured;
        if (QuickPaths::areOpen()) {
            measured = ScaleMeasure(*this, this, font).extent();
        }
        return measured ? *measured : Base::extent(font);
    }

protected:
    void drawLabel(QPainter *painter, double value) const override
    {
        const bool isQuick = QuickPaths::areOpen() && this->labelRotation() == 0.0
            && FastScale::drawsGlyphs(painter) && !FastScale::hasLines(painter->font());
        const ScaleLabels::Label *label = isQuick ? findLabel(value, painter->font()) : nullptr;
        const QPointF corner =
            label ? labelCorner(*this, this->labelPosition(value), label->size) : QPointF();
        if (!label || !FastScale::roundsAlike(painter, corner)) {
            Base::drawLabel(painter, value);
            return;
        }
        const QRectF room = label->room.translated(corner);
        if (label->isCut) {
            painter->save();
            painter->setClipRect(room, Qt::IntersectClip);
        }
        painter->drawStaticText(room.topLeft(), label->glyphs);
        if (label->isCut) {
            painter->restore();
        }
    }

    void drawTick(QPainter *painter, double value, double length) const override
    {
        const bool isThin =
            QwtCompat::penWidth(*this) <= 0.0 && painter->pen().style() == Qt::SolidLine;
        if (QuickPaths::areOpen() && isThin && FastScale::keepsPixels(painter)) {
            if (const auto rect = QwtCompat::thinTick(*this, value, length)) {
                painter->fillRect(*rect, painter->pen().color());
                return;
            }
        }
        Base::drawTick(painter, value, length);
    }

private:
    mutable ScaleTexts::Source source;
    mutable QFont labelFont;
    mutable int generation = 0;
    mutable QHash<double, ScaleLabels::Label> labels;
    bool isSilent = false;
};

#endif
