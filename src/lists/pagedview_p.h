// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGEDVIEW_P_H
#define PAGEDVIEW_P_H

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QVariant>
#include <QVector>

#include <functional>
#include <memory>
#include <utility>

class QAbstractItemDelegate;
class QAbstractItemModel;

/**
 * What the paging engines of lists and tables share: the view, the row chosen in it, and the steps
 * that move it. A view that is gone, or has no model, is as one with an empty model.
 *
 * Whoever hears of a change of the current row may change the rows, the page size or the model in
 * the middle of a step. So the model is asked anew for each place, while the engines keep the
 * number of rows and the top of a page for as long as a step needs them.
 */
class PagedView
{
public:
    /** Calls @p tell with the row that is current after rows have come, gone or moved. */
    PagedView(QAbstractItemView *pagedView, std::function<void(int row)> tell)
        : view(pagedView), tellRow(std::move(tell))
    {
    }
    Q_DISABLE_COPY(PagedView)

    QAbstractItemModel *model() const;
    int rowCount() const;
    QModelIndex indexAt(int row, int column = 0) const;
    QModelIndex currentIndex() const;
    QVariant text(int row, int column) const;

    void setModel(QAbstractItemModel *model);
    void setItemDelegate(QAbstractItemDelegate *delegate);
    void setPageSize(int count);

    /** The first row of the page that @p row lies on. */
    int pageTop(int row) const;

    /** Chooses a row that exists and leaves all as it is for another; whether it existed. */
    bool choose(int row);
    /** Makes a row that exists current in the host's way; whether it existed. */
    bool moveTo(int row);
    /** Brings a row to its place in the view. */
    void scrollTo(int row);
    /** Chooses the row in @c index again, or the last one of the @p rowCount rows there are now. */
    void restore(int rowCount);

    QPointer<QAbstractItemView> view;
    int nrPageItems = 8;
    int index = 0;
    QItemSelectionModel::SelectionFlags selectionFlags = QItemSelectionModel::NoUpdate;
    QAbstractItemView::ScrollHint scrollHint = QAbstractItemView::PositionAtTop;

private:
    void giveToView(QAbstractItemModel *model);
    void followRowsOf(QAbstractItemModel *model);
    void rowsChanged();
    void showPageLater();

    std::function<void(int row)> tellRow;
    std::unique_ptr<QObject> listener; // hears of the rows of the present model
    QVector<QPointer<QItemSelectionModel>> selections; // made by the view for its model
    bool isInUse = false; // a row was chosen or current since the model was set
    bool isPageDue = false;
};

#endif
