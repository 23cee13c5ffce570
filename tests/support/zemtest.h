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

/**
 * After so many milliseconds what a test waits for does not come any more: the limit of every wait
 * for something that must happen, be it a signal, a window or another program. It is long, since a
 * machine may be slow and busy, and costs nothing where nothing is wrong.
 */
constexpr int hangs = 600000;

/** QTRY_VERIFY and QTRY_COMPARE with that limit; Qt's own is five seconds. */
#define ZEM_TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), ZemTest::hangs)
#define ZEM_TRY_COMPARE(actual, expected)                                                          \
    QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), ZemTest::hangs)

/**
 * Runs the event loop until every timer of up to @p milliseconds that was started before has fired,
 * however slow the machine is: timers fire in the order of their ends.
 */
void outlast(int milliseconds);

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
