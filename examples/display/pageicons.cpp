// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pageicons.h"

#include "lineicon.h"

#include <QLineF>

namespace PageIcons {

namespace {

constexpr double tileScale = 32.0 / LineIcon::size;
constexpr double gridScale = 52.0 / LineIcon::size;

void addLine(QPainterPath *path, const QPointF &from, const QPointF &to)
{
    path->moveTo(from);
    path->lineTo(to);
}

} // namespace

QIcon menu()
{
    QPainterPath path;
    for (const int y : {7, 13, 19}) {
        addLine(&path, QPointF(5, y), QPointF(21, y));
    }
    return LineIcon::icon(path, tileScale);
}

QIcon back()
{
    QPainterPath path;
    path.moveTo(16, 6);
    path.lineTo(9, 13);
    path.lineTo(16, 20);
    return LineIcon::icon(path, tileScale);
}

QPixmap bell()
{
    QPainterPath path;
    path.moveTo(5, 19);
    path.cubicTo(9, 15, 6, 5, 13, 5);
    path.cubicTo(20, 5, 17, 15, 21, 19);
    path.closeSubpath();
    path.moveTo(11, 22);
    path.cubicTo(12, 23.5, 14, 23.5, 15, 22);
    return LineIcon::draw(path, tileScale);
}

QPixmap charts()
{
    QPainterPath path;
    addLine(&path, QPointF(3, 22), QPointF(23, 22));
    path.addRect(5, 13, 3, 9);
    path.addRect(11.5, 6, 3, 16);
    path.addRect(18, 10, 3, 12);
    return LineIcon::draw(path, gridScale);
}

/** A plug. */
QPixmap devices()
{
    QPainterPath path;
    addLine(&path, QPointF(9, 3), QPointF(9, 9));
    addLine(&path, QPointF(17, 3), QPointF(17, 9));
    path.moveTo(6, 9);
    path.lineTo(20, 9);
    path.lineTo(20, 12);
    path.cubicTo(20, 20, 6, 20, 6, 12);
    path.closeSubpath();
    addLine(&path, QPointF(13, 18), QPointF(13, 23));
    return LineIcon::draw(path, gridScale);
}

QPixmap analysis()
{
    QPainterPath path;
    path.moveTo(3, 4);
    path.lineTo(3, 22);
    path.lineTo(23, 22);
    path.moveTo(7, 17);
    path.lineTo(11, 10);
    path.lineTo(15, 14);
    path.lineTo(21, 5);
    return LineIcon::draw(path, gridScale);
}

/** A leaf of a calendar. */
QPixmap months()
{
    QPainterPath path;
    path.addRoundedRect(QRectF(4, 6, 18, 17), 2, 2);
    addLine(&path, QPointF(4, 11), QPointF(22, 11));
    addLine(&path, QPointF(9, 3), QPointF(9, 7));
    addLine(&path, QPointF(17, 3), QPointF(17, 7));
    for (const int x : {9, 13, 17}) {
        addLine(&path, QPointF(x, 15), QPointF(x, 15.1));
        addLine(&path, QPointF(x, 19), QPointF(x, 19.1));
    }
    return LineIcon::draw(path, gridScale);
}

/** A target. */
QPixmap goals()
{
    QPainterPath path;
    for (const double radius : {10.0, 6.0, 1.5}) {
        path.addEllipse(QPointF(13, 13), radius, radius);
    }
    return LineIcon::draw(path, gridScale);
}

/** Three sliders. */
QPixmap settings()
{
    constexpr double radius = 2.5;
    QPainterPath path;
    const QPointF knobs[] = {{9, 6}, {17, 13}, {11, 20}};
    for (const QPointF &knob : knobs) {
        addLine(&path, QPointF(3, knob.y()), knob - QPointF(radius, 0));
        path.addEllipse(knob, radius, radius);
        addLine(&path, knob + QPointF(radius, 0), QPointF(23, knob.y()));
    }
    return LineIcon::draw(path, gridScale);
}

} // namespace PageIcons
