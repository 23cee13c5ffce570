// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlistviewlogic.h"

#include "listpaging_p.h"
#include "pagedview_p.h"

#include <QAbstractItemModel>
#include <QListView>

class ZEMListViewLogic::Private : public PagedView
{
public:
    using PagedView::PagedView;
};

ZEMListViewLogic::ZEMListViewLogic(QListView *view)
    : QObject(view), d(std::make_unique<Private>(
                         view, [this](int row) { tellPages(d->pageTop(row), d->rowCount()); }))
{
}

ZEMListViewLogic::~ZEMListViewLogic() = default;

void ZEMListViewLogic::setModel(QAbstractItemModel *model)
{
    d->setModel(model);
    if (model) {
        // After the view, which forgets the current row when it hears of a reset.
        connect(model, &QAbstractItemModel::modelReset, this, &ZEMListViewLogic::reset);
    }
}

void ZEMListViewLogic::setItemDelegate(QAbstractItemDelegate *delegate)
{
    d->setItemDelegate(delegate);
}

void ZEMListViewLogic::setSelectionFlags(QItemSelectionModel::SelectionFlags flags)
{
    d->selectionFlags = flags;
}

void ZEMListViewLogic::setScrollHint(QAbstractItemView::ScrollHint hint)
{
    d->scrollHint = hint;
}

void ZEMListViewLogic::setNrPageItems(int count)
{
    d->setPageSize(count);
}

int ZEMListViewLogic::nrPageItems() const
{
    return d->nrPageItems;
}

void ZEMListViewLogic::setIndex(int index)
{
    const int top = d->pageTop(index);
    if (d->choose(index)) {
        d->scrollTo(top);
    }
    tellPages(top, d->rowCount());
}

int ZEMListViewLogic::index() const
{
    return d->index;
}

QVariant ZEMListViewLogic::data(int index)
{
    return d->text(index, 0);
}

void ZEMListViewLogic::page_previous()
{
    const QModelIndex current = d->currentIndex();
    if (!current.isValid()) {
        return;
    }
    const int top = d->pageTop(ListPaging::pageBefore(current.row(), d->nrPageItems));
    if (d->moveTo(top)) {
        d->scrollTo(top);
    }
    tellPages(top, d->rowCount());
}

void ZEMListViewLogic::page_next()
{
    const QModelIndex current = d->currentIndex();
    if (!current.isValid()) {
        return;
    }
    const int rowCount = d->rowCount();
    const int top = d->pageTop(ListPaging::pageAfter(current.row(), d->nrPageItems, rowCount));
    if (d->moveTo(top)) {
        d->scrollTo(top);
    }
    tellPages(top, rowCount);
}

void ZEMListViewLogic::reset()
{
    const int rowCount = d->rowCount();
    d->restore(rowCount);
    tellPages(d->pageTop(d->index), rowCount);
}

void ZEMListViewLogic::tellPages(int top, int rowCount)
{
    const ListPaging::Neighbours pages = ListPaging::neighbours(top, d->nrPageItems, rowCount);
    Q_EMIT has_page(pages.previous, pages.next);
}
