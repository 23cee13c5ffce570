// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listpage_p.h"

#include "icondelegate_p.h"
#include "listsize_p.h"
#include "zemlistviewlogic.h"

#include <QBrush>
#include <QColor>
#include <QListView>
#include <QPalette>

namespace ListPage {

void makeSeeThrough(QListView *list)
{
    const QBrush clear(QColor(255, 255, 255, 0));
    QPalette palette = list->palette();
    palette.setBrush(QPalette::Active, QPalette::Base, clear);
    palette.setBrush(QPalette::Inactive, QPalette::Base, clear);
    palette.setBrush(QPalette::All, QPalette::Window, clear);
    list->setPalette(palette);
}

void makeSharp(QListView *list)
{
    const QAbstractItemDelegate *const plain = list->itemDelegate();
    list->setItemDelegate(new IconDelegate(list));
    delete plain;
}

void reserveRows(QListView *list, int count)
{
    const int rowHeight = list->sizeHintForRow(0);
    if (rowHeight > 0) {
        list->setMinimumHeight(ListSize::span(count, rowHeight));
    }
}

int pickRow(const QListView *list, ZEMListViewLogic *logic)
{
    const int chosen = logic->index();
    const QModelIndex current = list->currentIndex();
    if (!current.isValid()) {
        return chosen;
    }
    logic->setIndex(current.row());
    return current.row();
}

} // namespace ListPage
