// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LISTSIZE_P_H
#define LISTSIZE_P_H

#include <QWidget>

/** How large a list must be for a number of items, in pixels. */
namespace ListSize {

constexpr int gridColumns = 2;

/** The largest limit of a size that a widget takes as one; QWIDGETSIZE_MAX itself lifts the limit.
 */
constexpr int largest = QWIDGETSIZE_MAX - 1;

/** What a widget accepts as a limit of its size without a message. */
inline int limit(qint64 pixels)
{
    return int(qBound(qint64(0), pixels, qint64(largest)));
}

/** The extent of @p count rows or columns of @p extent each. */
inline int span(int count, int extent)
{
    return limit(qint64(count) * extent);
}

/** The rows of a grid that holds @p count items; an odd last one takes a row of its own. */
inline int gridRows(int count)
{
    return int((qint64(count) + gridColumns - 1) / gridColumns);
}

/** The width of a grid. At exactly two columns a list would already wrap after the first. */
inline int gridWidth(int columnWidth)
{
    return limit(qint64(gridColumns) * columnWidth + 1);
}

} // namespace ListSize

#endif
