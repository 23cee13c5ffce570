// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTEST_H
#define ZEMTEST_H

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <Qt>

class QWidget;

/** What the tests of painting and touching widgets share. */
namespace ZemTest {

/** A picture of one colour, so that a pixel tells which picture was painted. */
QPixmap flatPixmap(const QSize &size, const QColor &color);

/**
 * What @p widget paints, its children included, on a ground of @p ground. The widget is not shown;
 * its layout is brought up to date first.
 */
QImage render(QWidget *widget, const QColor &ground = Qt::black);

/** The smallest rectangle that holds every pixel of @p image that differs from @p ground. */
QRect inkRect(const QImage &image, const QColor &ground = Qt::black);

/**
 * Mouse events on @p widget at @p position, delivered through the window as a touch screen's are.
 * The window of the widget must be shown.
 */
void press(QWidget *widget, const QPoint &position, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void moveTo(QWidget *widget, const QPoint &position);
void release(QWidget *widget, const QPoint &position, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace ZemTest

#endif
