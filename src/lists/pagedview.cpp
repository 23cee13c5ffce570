// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagedview_p.h"

#include "listpaging_p.h"

#include <QAbstractItemModel>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <iterator>
#include <utility>

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
    isInUse = false;
    isPageDue = false;
    listener.reset();
    if (!view) {
        return;
    }
    giveToView(model);
    if (model) {
        followRowsOf(model);
    }
}

/** A view and its headers make a selection for each model, and leave the former to the host. */
void PagedView::giveToView(QAbstractItemModel *model)
{
    const auto known = view->findChildren<QItemSelectionModel *>();
    const QSet<QItemSelectionModel *> before(known.begin(), known.end());
    view->setModel(model);
    QVector<QPointer<QItemSelectionModel>> made;
    const auto after = view->findChildren<QItemSelectionModel *>();
    std::copy_if(after.begin(), after.end(), std::back_inserter(made),
                 [&before](QItemSelectionModel *one) { return !before.contains(one); });
    if (!made.isEmpty()) {
        selections.swap(made);
        for (const auto &former : std::as_const(made)) {
            if (former) {
                former->deleteLater();
            }
        }
    }
}

void PagedView::followRowsOf(QAbstractItemModel *model)
{
    listener = std::make_unique<QObject>();
    const auto follow = [this] { rowsChanged(); };
    // After the view and its selection, which find their places first.
    QObject::connect(model, &QAbstractItemModel::rowsInserted, listener.get(), follow);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, listener.get(), follow);
    QObject::connect(model, &QAbstractItemModel::rowsMoved, listener.get(), follow);
    QObject::connect(model, &QAbstractItemModel::layoutChanged, listener.get(), follow);
    // A model may go together with the view, halfway through its end: no moment to tell anything.
    QObject::connect(model, &QObject::destroyed, listener.get(), [this] {
        if (isInUse) {
            showPageLater();
        }
    });
}

void PagedView::rowsChanged()
{
    isInUse = isInUse || currentIndex().isValid();
    if (!isInUse) {
        return;
    }
    const int rows = rowCount();
    if (rows > 0 && !currentIndex().isValid()) {
        view->setCurrentIndex(indexAt(qBound(0, index, rows - 1)));
    }
    showPageLater();
    tellRow(currentIndex().row());
}

/** A model may change row by row, and each scroll lays a view out anew. */
void PagedView::showPageLater()
{
    // Whoever heard of the current row may have taken the model away.
    if (isPageDue || !listener) {
        return;
    }
    isPageDue = true;
    QTimer::singleShot(0, listener.get(), [this] {
        isPageDue = false;
        const int row = currentIndex().row();
        if (row >= 0) {
            scrollTo(pageTop(row));
        }
        tellRow(row);
    });
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
    // The first row of a list that is still empty counts, as it is the chosen one from the start.
    isInUse = isInUse || chosen.isValid() || row == index;
    if (chosen.isValid()) {
        index = row;
        view->setCurrentIndex(chosen);
    }
    return chosen.isValid();
}

bool PagedView::moveTo(int row)
{
    isInUse = true;
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
    isInUse = true;
    index = ListPaging::keptRow(index, rowCount);
    const QModelIndex chosen = indexAt(index);
    if (chosen.isValid()) {
        view->setCurrentIndex(chosen);
    }
}
