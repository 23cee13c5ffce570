// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef TEXTSHADOW_P_H
#define TEXTSHADOW_P_H

#include <QPoint>
#include <QRect>
#include <Qt>

/** Where a text with a shadow stands in its label. All lengths are in pixels. */
namespace TextShadow {

/** From the text to its shadow. */
constexpr QPoint offset(1, 1);

/**
 * The indent that counts: @p indent itself, or, when that is negative and the label has a frame,
 * half of @p xWidth, the width of an "x", less @p margin.
 */
constexpr int effectiveIndent(int indent, int frameWidth, int xWidth, int margin)
{
    return indent < 0 && frameWidth != 0 ? xWidth / 2 - margin : indent;
}

/**
 * The rectangle of the text: @p contents without @p margin on all sides and without @p indent, if
 * that is positive, on each side that @p alignment names.
 */
constexpr QRect textRect(const QRect &contents, int margin, Qt::Alignment alignment, int indent)
{
    QRect rect = contents.adjusted(margin, margin, -margin, -margin);
    if (indent > 0) {
        const auto step = [&](Qt::AlignmentFlag side) { return alignment & side ? indent : 0; };
        rect.adjust(step(Qt::AlignLeft), step(Qt::AlignTop), -step(Qt::AlignRight),
                    -step(Qt::AlignBottom));
    }
    return rect;
}

/** What QPainter::drawText() is told. */
constexpr int textFlags(Qt::Alignment alignment, bool wordWrap)
{
    return int(alignment) | (wordWrap ? int(Qt::TextWordWrap) : 0);
}

} // namespace TextShadow

#endif
