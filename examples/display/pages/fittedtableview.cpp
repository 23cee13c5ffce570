// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "fittedtableview.h"

#include <QHeaderView>
#include <algorithm>
#include <vector>

void FittedTableView::reset()
{
    QTableView::reset();
    fitColumns();
}

void FittedTableView::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    fitColumns();
}

void FittedTableView::fitColumns()
{
    const int columns = model() ? model()->columnCount() : 0;
    int room = viewport()->width();
    std::vector<int> widths;
    for (int column = 0; column < columns; ++column) {
        widths.push_back(
            std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column)));
        room -= widths.back();
    }
    isRoomEnough = room >= 0;
    for (int column = 0; column < columns; ++column) {
        const int share = room / (columns - column);
        room -= share;
        horizontalHeader()->resizeSection(column, widths[std::size_t(column)] + share);
    }
}
