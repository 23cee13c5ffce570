// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PANGESTURE_P_H
#define PANGESTURE_P_H

#include <QPoint>
#include <QtGlobal>

#include <qwt_interval.h>

#include <cstdlib>

/** What a finger's positions and times mean. */
namespace PanGesture {

/** @p position with the coordinates that must not change taken from @p origin. */
inline QPoint constrained(const QPoint &position, const QPoint &origin,
                          Qt::Orientations orientations)
{
    return {orientations.testFlag(Qt::Horizontal) ? position.x() : origin.x(),
            orientations.testFlag(Qt::Vertical) ? position.y() : origin.y()};
}

/** Whether a move by @p distance passes one of the thresholds; to reach it is not enough. */
inline bool passesThreshold(const QPoint &distance, uint dxThreshold, uint dyThreshold)
{
    return static_cast<uint>(std::abs(distance.x())) > dxThreshold
        || static_cast<uint>(std::abs(distance.y())) > dyThreshold;
}

/** Whether a touch of @p milliseconds that did not move is a click. */
inline bool isClick(qint64 milliseconds, const QwtInterval &clickInterval)
{
    return clickInterval.contains(static_cast<double>(milliseconds));
}

} // namespace PanGesture

#endif
