// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BENCHMARK_H
#define BENCHMARK_H

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>
#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <vector>

/** What the benchmarks share. */
namespace Benchmark {

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/** Lets whatever has been asked for happen and be painted; one turn of the event loop may not do.
 */
inline void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

/** Lets the left button do something at @p position of @p window, as the platform would tell it. */
inline void sendMouse(QWidget *window, QEvent::Type type, const QPointF &position)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, position, position, position, isMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &event);
}

/** Lets a benchmark run without a screen, unless the environment names a platform. */
inline void needNoScreen()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

} // namespace Benchmark

#endif
