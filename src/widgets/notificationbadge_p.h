// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef NOTIFICATIONBADGE_P_H
#define NOTIFICATIONBADGE_P_H

#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>

/** The badge of a notification icon, without a painter. */
namespace NotificationBadge {

constexpr int largestCount = 9; // the disc has room for one digit
constexpr int edge = 1; // pixels between the badge and the top and right edge of the widget

enum class Content { Nothing, Warning, Count, ManyCount };

constexpr Content content(int count, bool warning)
{
    if (warning) {
        return Content::Warning;
    }
    if (count < 1) {
        return Content::Nothing;
    }
    return count <= largestCount ? Content::Count : Content::ManyCount;
}

inline QString text(Content content, int count)
{
    switch (content) {
    case Content::Nothing:
        break;
    case Content::Warning:
        return QStringLiteral("!");
    case Content::Count:
        return QString::number(count);
    case Content::ManyCount:
        return QStringLiteral("%1+").arg(largestCount);
    }
    return {};
}

/** @p base enlarged by @p points, if it has a size in points and keeps one. */
inline QFont enlarged(QFont base, int points)
{
    if (base.pointSize() > 0 && base.pointSize() + points > 0) {
        base.setPointSize(base.pointSize() + points);
    }
    return base;
}

inline QFont font(const QFont &base, Content content)
{
    constexpr qreal squeezed = 80.0; // percent, so that two characters fit onto the disc
    switch (content) {
    case Content::Nothing:
    case Content::Count:
        break;
    case Content::Warning:
        return enlarged(base, 1);
    case Content::ManyCount:
        QFont font = enlarged(base, -1);
        font.setLetterSpacing(QFont::PercentageSpacing, squeezed);
        return font;
    }
    return base;
}

/** Where a badge of size @p badge stands in a widget @p width pixels wide. */
constexpr QRect place(int width, const QSize &badge)
{
    const int x = width - badge.width() - edge;
    return {x > 0 ? x : 0, edge, badge.width(), badge.height()};
}

} // namespace NotificationBadge

#endif
