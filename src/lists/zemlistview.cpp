// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemlistview.h"

#include "listpage_p.h"
#include "listsize_p.h"
#include "objectname_p.h"
#include "ui_zemlistview.h"
#include "zemlistviewlogic.h"

class ZEMListView::Private
{
public:
    Ui_ZEMListView ui;
    ZEMListViewLogic *logic = nullptr; // the list view's
};

ZEMListView::ZEMListView(QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    d->ui.setupUi(this);
    connect(d->ui.listView, &QListView::clicked, this, &ZEMListView::slotClicked);
    ListPage::makeSeeThrough(d->ui.listView);
    ListPage::makeSharp(d->ui.listView);

    d->logic = new ZEMListViewLogic(d->ui.listView);
    connect(d->logic, &ZEMListViewLogic::has_page, this, &ZEMListView::has_page);
    connect(d->ui.btnUp, &ZEMButton::clicked, d->logic, &ZEMListViewLogic::page_previous);
    connect(d->ui.btnDown, &ZEMButton::clicked, d->logic, &ZEMListViewLogic::page_next);
    connect(d->ui.btnSelect, &ZEMButton::clicked, this, &ZEMListView::btnSelect_clicked);
    connect(d->ui.btnCancel, &ZEMButton::clicked, this, &ZEMListView::sigCancel);
}

ZEMListView::~ZEMListView() = default;

void ZEMListView::setModel(QAbstractItemModel *model)
{
    d->logic->setModel(model);
}

void ZEMListView::setItemDelegate(QAbstractItemDelegate *delegate)
{
    d->logic->setItemDelegate(delegate);
}

void ZEMListView::setSelectionFlags(QItemSelectionModel::SelectionFlags flags)
{
    d->logic->setSelectionFlags(flags);
}

void ZEMListView::setScrollHint(QAbstractItemView::ScrollHint hint)
{
    d->logic->setScrollHint(hint);
}

void ZEMListView::setNrPageItems(int count)
{
    d->logic->setNrPageItems(count);
    ListPage::reserveRows(d->ui.listView, nrPageItems());
}

int ZEMListView::nrPageItems() const
{
    return d->logic->nrPageItems();
}

void ZEMListView::setIndex(int index)
{
    d->logic->setIndex(index);
}

int ZEMListView::index() const
{
    return d->logic->index();
}

QVariant ZEMListView::data(int index)
{
    return d->logic->data(index);
}

void ZEMListView::setHeader(const QString &text)
{
    d->ui.lblHeader->setText(text);
}

void ZEMListView::showPageButtons(bool show)
{
    d->ui.btnUp->setVisible(show);
    d->ui.btnDown->setVisible(show);
}

void ZEMListView::fitContents(int count)
{
    QListView *const list = d->ui.listView;
    list->setMinimumWidth(ListSize::span(1, list->sizeHintForColumn(0)));
    ListPage::reserveRows(list, count > 0 ? count : nrPageItems());
}

void ZEMListView::btnSelect_clicked()
{
    Q_EMIT sigSelect(ListPage::pickRow(d->ui.listView, d->logic));
}

void ZEMListView::has_page(bool prev_hasPage, bool next_hasPage)
{
    d->ui.btnUp->setEnabled(prev_hasPage);
    d->ui.btnDown->setEnabled(next_hasPage);
}

void ZEMListView::slotClicked(const QModelIndex &index)
{
    d->logic->setIndex(index.row());
}
