// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGINGFIXTURE_H
#define PAGINGFIXTURE_H

#include "listtest.h"

#include <QListView>
#include <QScrollBar>
#include <QTableView>

namespace ListTest {

inline int rowHeight(const QListView &view)
{
    return view.sizeHintForRow(0);
}

inline int rowHeight(const QTableView &view)
{
    return view.rowHeight(0);
}

/** A view of 20 rows, of which 8 make a page, its paging engine and what that tells. */
template <typename View, typename Logic>
struct PagingFixture
{
    explicit PagingFixture(int rows = 20) : model(rows, 3), logic(new Logic(&view))
    {
        view.setSelectionMode(QAbstractItemView::SingleSelection);
        view.setAutoScroll(false);
        QObject::connect(logic, &Logic::has_page, [this](bool previous, bool next) {
            told.append({previous, next});
            events.append(QStringLiteral("told %1 %2").arg(int(previous)).arg(int(next)));
        });
        logic->setModel(&model);
    }

    void makeCurrent(int row, int column = 0) { view.setCurrentIndex(model.index(row, column)); }
    int currentRow() const { return view.currentIndex().row(); }

    /** Notes changes of the current row and of the place of the view, in order, in events. */
    void noteEvents()
    {
        QObject::connect(
            view.selectionModel(), &QItemSelectionModel::currentChanged,
            [this](const QModelIndex &current) {
                events.append(
                    QStringLiteral("current %1, chosen %2").arg(current.row()).arg(logic->index()));
            });
        QObject::connect(view.verticalScrollBar(), &QScrollBar::valueChanged, [this](int value) {
            events.append(QStringLiteral("scrolled %1").arg(value));
        });
        view.resize(100, 8 * rowHeight(view));
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.show(); // a hidden view has not taken its size
    }

    RowModel model;
    ScrollLog<View> view;
    Logic *logic;
    QVector<Pages> told;
    QStringList events;
};

} // namespace ListTest

#endif
