// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagedview_p.h"

#include "listpaging_p.h"

#include <QAbstractItemModel>

QAbstractItemModel *PagedView::model() const
{
    return view ? view->model() : nullptr;
}

int PagedView::rowCount() const
{
    const QAbstractItemModel *const rows = model();
    return rows ? rows->rowCount() : 0;
}

QModelIndex PagedView::indexAt(int row, int column) const
{
    const QAbstractItemModel *const rows = model();
    return rows ? rows->index(row, column) : QModelIndex();
}

QModelIndex PagedView::currentIndex() const
{
    return view ? view->currentIndex() : QModelIndex();
}

QVariant PagedView::text(int row, int column) const
{
    const QModelIndex place = indexAt(row, column);
    return place.isValid() ? model()->data(place, Qt::DisplayRole) : QVariant();
}

void PagedView::setModel(QAbstractItemModel *model)
{
    index = 0;
    if (view) {
        view->setModel(model);
    }
}

void PagedView::setItemDelegate(QAbstractItemDelegate *delegate)
{
    if (view) {
        view->setItemDelegate(delegate);
    }
}

void PagedView::setPageSize(int count)
{
    if (count > 0) {
        nrPageItems = count;
    }
}

int PagedView::pageTop(int row) const
{
    return ListPaging::pageTop(row, nrPageItems);
}

bool PagedView::choose(int row)
{
    const QModelIndex chosen = indexAt(row);
    if (chosen.isValid()) {
        index = row;
        view->setCurrentIndex(chosen);
    }
    return chosen.isValid();
}

bool PagedView::moveTo(int row)
{
    const QModelIndex target = indexAt(row);
    if (target.isValid()) {
        view->selectionModel()->setCurrentIndex(target, selectionFlags);
    }
    return target.isValid();
}

void PagedView::scrollTo(int row)
{
    if (view) {
        view->scrollTo(indexAt(row), scrollHint);
    }
}

void PagedView::restore(int rowCount)
{
    index = ListPaging::keptRow(index, rowCount);
    const QModelIndex chosen = indexAt(index);
    if (chosen.isValid()) {
        view->setCurrentIndex(chosen);
    }
}
