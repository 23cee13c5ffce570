// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LISTPAGING_P_H
#define LISTPAGING_P_H

#include <QtGlobal>

/**
 * Rows and pages of a list. Pages of @c pageSize rows, at least 1, lie end to end from row 0 on;
 * the last one may be short. Every answer costs the same, however long the list is.
 */
namespace ListPaging {

/** Whether a page lies before and after the place asked about. */
struct Neighbours
{
    bool previous;
    bool next;
};

/**
 * The first row of the page that @p row lies on. Of the rows below 0 those within one page count to
 * page 0.
 */
inline int pageTop(int row, int pageSize)
{
    return row / pageSize * pageSize;
}

/** The row one page before @p row, at least row 0. */
inline int pageBefore(int row, int pageSize)
{
    return pageSize < row ? row - pageSize : 0;
}

/** The row one page after @p row, at most the last of @p rowCount rows: -1 if there are none. */
inline int pageAfter(int row, int pageSize, int rowCount)
{
    const qint64 target = qint64(row) + pageSize;
    return rowCount <= target ? rowCount - 1 : int(target);
}

/**
 * What lies before and after a stretch of one page that begins at @p row. A stretch that ends with
 * the last row has nothing after it.
 */
inline Neighbours neighbours(int row, int pageSize, int rowCount)
{
    return {row >= pageSize, rowCount > qint64(row) + pageSize};
}

/** @p row, or the last row of a list that has become too short for it: -1 if it is empty. */
inline int keptRow(int row, int rowCount)
{
    return rowCount <= row ? rowCount - 1 : row;
}

} // namespace ListPaging

#endif
