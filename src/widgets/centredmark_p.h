// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CENTREDMARK_P_H
#define CENTREDMARK_P_H

#include <QRect>
#include <QSize>

/** A mark of size @p mark in the middle of @p space, or from its top left corner if too large. */
constexpr QRect centredMark(const QSize &space, const QSize &mark)
{
    const int x = (space.width() - mark.width()) / 2;
    const int y = (space.height() - mark.height()) / 2;
    return {x > 0 ? x : 0, y > 0 ? y : 0, mark.width(), mark.height()};
}

#endif
