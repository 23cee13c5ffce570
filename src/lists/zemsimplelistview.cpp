// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemsimplelistview.h"

#include "listpage_p.h"
#include "listsize_p.h"
#include "objectname_p.h"
#include "ui_zemsimplelistview.h"
#include "zemlistviewlogic.h"

class ZEMSimpleListView::Private
{
public:
    /** The size of one item: a cell of the grid, or without a grid what the items ask for. */
    QSize itemSize() const
    {
        const QSize grid = ui.listView->gridSize();
        if (!grid.isEmpty()) {
            return grid;
        }
        return {ui.listView->sizeHintForColumn(0), ui.listView->sizeHintForRow(0)};
    }

    Ui_ZEMSimpleListView ui;
    ZEMListViewLogic *logic = nullptr; // the list view's
};

ZEMSimpleListView::ZEMSimpleListView(QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.listView, &QListView::clicked, this, &ZEMSimpleListView::slotClicked);
    // An icon view drags items that the model allows to, so a tap with a wobble would be lost.
    d->ui.listView->setDragDropMode(QAbstractItemView::NoDragDrop);
    ListPage::makeSeeThrough(d->ui.listView);
    ListPage::makeSharp(d->ui.listView);
    d->logic = new ZEMListViewLogic(d->ui.listView);
}

ZEMSimpleListView::~ZEMSimpleListView() = default;

void ZEMSimpleListView::setModel(QAbstractItemModel *model)
{
    d->logic->setModel(model);
    if (!model) {
        return;
    }
    const QString title = model->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString();
    if (!title.isEmpty()) {
        setTitle(title);
    }
}

void ZEMSimpleListView::setItemDelegate(QAbstractItemDelegate *delegate)
{
    d->logic->setItemDelegate(delegate);
}

void ZEMSimpleListView::setSelectionFlags(QItemSelectionModel::SelectionFlags flags)
{
    d->logic->setSelectionFlags(flags);
}

void ZEMSimpleListView::setScrollHint(QAbstractItemView::ScrollHint hint)
{
    d->logic->setScrollHint(hint);
}

void ZEMSimpleListView::setNrPageItems(int count)
{
    d->logic->setNrPageItems(count);
    ListPage::reserveRows(d->ui.listView, nrPageItems());
}

int ZEMSimpleListView::nrPageItems() const
{
    return d->logic->nrPageItems();
}

void ZEMSimpleListView::setIndex(int index)
{
    d->logic->setIndex(index);
}

int ZEMSimpleListView::index() const
{
    return d->logic->index();
}

void ZEMSimpleListView::setTitle(const QString &title)
{
    d->ui.lblTitle->setText(title);
}

QVariant ZEMSimpleListView::data(int index)
{
    return d->logic->data(index);
}

void ZEMSimpleListView::fitContents(int count)
{
    const QSize item = d->itemSize();
    const int rows = ListSize::gridRows(count > 0 ? count : nrPageItems());
    const int height = ListSize::span(rows, item.height());
    d->ui.listView->setMinimumWidth(ListSize::gridWidth(item.width()));
    d->ui.listView->setMinimumHeight(height);
    d->ui.listView->setMaximumHeight(height);
}

void ZEMSimpleListView::mousePressEvent(QMouseEvent * /*event*/)
{
    Q_EMIT sigCancel();
}

void ZEMSimpleListView::slotClicked(const QModelIndex &index)
{
    d->logic->setIndex(index.row());
    const int row = ListPage::pickRow(d->ui.listView, d->logic);
    d->ui.listView->afterTap([this, row] { Q_EMIT sigSelect(row); });
}
