// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemtest.h"

#include <QEventLoop>
#include <QLayout>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace ZemTest {

namespace {

QPoint inWindow(const QWidget *widget, const QPoint &position)
{
    return widget->mapTo(widget->window(), position);
}

} // namespace

void outlast(int milliseconds)
{
    // Coarse timers may be late by a twentieth.
    const int later = milliseconds + milliseconds / 10 + 1;
    QEventLoop loop;
    QTimer::singleShot(later, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

QPixmap flatPixmap(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

QImage render(QWidget *widget, const QColor &ground)
{
    if (widget->layout()) {
        widget->layout()->activate();
    }
    QImage image(widget->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QRect inkRect(const QImage &image, const QColor &ground)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

void press(QWidget *widget, const QPoint &position, Qt::MouseButton button,
           Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(widget->window()->windowHandle(), button, modifiers,
                      inWindow(widget, position));
}

void moveTo(QWidget *widget, const QPoint &position)
{
    QTest::mouseMove(widget->window()->windowHandle(), inWindow(widget, position));
}

void release(QWidget *widget, const QPoint &position, Qt::MouseButton button,
             Qt::KeyboardModifiers modifiers)
{
    QTest::mouseRelease(widget->window()->windowHandle(), button, modifiers,
                        inWindow(widget, position));
}

} // namespace ZemTest
