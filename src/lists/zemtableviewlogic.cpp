// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemtableviewlogic.h"

#include "listpaging_p.h"
#include "pagedview_p.h"

#include <QAbstractItemModel>
#include <QTableView>

class ZEMTableViewLogic::Private : public PagedView
{
public:
    using PagedView::PagedView;
};

ZEMTableViewLogic::ZEMTableViewLogic(QTableView *view)
    : QObject(view),
      d(std::make_unique<Private>(view, [this](int row) { tellPages(row, d->rowCount()); }))
{
}

ZEMTableViewLogic::~ZEMTableViewLogic() = default;

void ZEMTableViewLogic::setModel(QAbstractItemModel *model)
{
    d->setModel(model);
    if (model) {
        // After the view, which forgets the current row when it hears of a reset.
        connect(model, &QAbstractItemModel::modelReset, this, &ZEMTableViewLogic::reset);
    }
}

void ZEMTableViewLogic::setItemDelegate(QAbstractItemDelegate *delegate)
{
    d->setItemDelegate(delegate);
}

void ZEMTableViewLogic::setSelectionFlags(QItemSelectionModel::SelectionFlags flags)
{
    d->selectionFlags = flags;
}

void ZEMTableViewLogic::setScrollHint(QAbstractItemView::ScrollHint hint)
{
    d->scrollHint = hint;
}

void ZEMTableViewLogic::setNrPageItems(int count)
{
    d->setPageSize(count);
}

int ZEMTableViewLogic::getNrPageItems() const
{
    return d->nrPageItems;
}

void ZEMTableViewLogic::setIndex(int index)
{
    if (d->choose(index)) {
        d->scrollTo(d->pageTop(index));
    }
    tellPages(d->index, d->rowCount());
}

int ZEMTableViewLogic::index() const
{
    return d->index;
}

QVariant ZEMTableViewLogic::data(int row, int column)
{
    return d->text(row, column);
}

void ZEMTableViewLogic::page_previous()
{
    const QModelIndex current = d->currentIndex();
    if (!current.isValid()) {
        return;
    }
    const int target = ListPaging::pageBefore(current.row(), d->nrPageItems);
    if (d->moveTo(target)) {
        d->scrollTo(d->pageTop(target));
    }
    tellPages(target, d->rowCount());
}

void ZEMTableViewLogic::page_next()
{
    const QModelIndex current = d->currentIndex();
    if (!current.isValid()) {
        return;
    }
    const int rowCount = d->rowCount();
    const int target = ListPaging::pageAfter(current.row(), d->nrPageItems, rowCount);
    if (d->moveTo(target)) {
        d->scrollTo(d->pageTop(target));
    }
    tellPages(target, rowCount);
}

void ZEMTableViewLogic::reset()
{
    const int rowCount = d->rowCount();
    d->restore(rowCount);
    tellPages(d->index, rowCount);
}

void ZEMTableViewLogic::tellPages(int row, int rowCount)
{
    const ListPaging::Neighbours pages = ListPaging::neighbours(row, d->nrPageItems, rowCount);
    Q_EMIT has_page(pages.previous, pages.next);
}
