// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTABLEVIEWINTERFACE_H
#define ZEMTABLEVIEWINTERFACE_H

#include "zemkit_export.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QVariant>

class QAbstractItemDelegate;
class QAbstractItemModel;

ZEM_BEGIN_INTERFACES // no destructor, as told below

/**
 * What a host can ask of a table that moves by pages; ZEMTableViewLogic is one.
 *
 * A table keeps two rows apart. The chosen row is the one given to setIndex(); the current row is
 * the one of the view, which taps and paging move as well. Rows and columns are counted from 0, at
 * the top level of the model.
 *
 * @code
 * #include <QStandardItemModel>
 * #include <QTableView>
 * #include <ZEMTableViewLogic>
 *
 * const auto fill = [](ZEMTableViewInterface &table, QAbstractItemModel *model) {
 *     table.setModel(model);
 *     table.setNrPageItems(6);
 *     table.setIndex(0);
 * };
 * QStandardItemModel readings(31, 2);
 * QTableView view;
 * fill(*new ZEMTableViewLogic(&view), &readings);
 * @endcode
 * The interface has no destructor: delete an object as what it is, never through this class.
 */
class ZEM_EXPORT ZEMTableViewInterface
{
public:
    /**
     * Shows @p model, which stays the caller's and may be deleted any time; a table without one is
     * as an empty table. The chosen row becomes 0, but no row becomes current, and a table cannot
     * be paged until one is: call setIndex() next. (A table that gets the keyboard focus makes its
     * first row current if none is.)
     *
     * From then on every reset of @p model chooses the chosen row again, or the last row if there
     * are fewer now, or -1 if there are none; the view is not scrolled. A model that was set before
     * is still listened to: its resets restore the chosen row too, and a model that is set twice
     * does so twice.
     *
     * When rows come, go or move without a reset, as by a filter, the table goes on from its
     * current row: its page is shown as soon as the event loop runs. A table that was emptied makes
     * the chosen row current again when rows come: the last row if there are fewer, the first for
     * -1. All this is for a table in which a row was chosen or is current; setIndex(0) on a table
     * that is still empty chooses the first row that comes.
     *
     * Left to the host: to call setIndex() for a new model, and after a reset that should scroll;
     * the chosen row keeps its number when rows come or go above it.
     *
     * The selection models that the view made for the model before are deleted from the event loop.
     */
    virtual void setModel(QAbstractItemModel *model) = 0;

    /** Paints the items with @p delegate, which stays the caller's and must outlive the table. */
    virtual void setItemDelegate(QAbstractItemDelegate *delegate) = 0;

    /**
     * How a page move selects the item that it makes current. Default:
     * QItemSelectionModel::NoUpdate, which leaves the selection where it was;
     * QItemSelectionModel::ClearAndSelect with QItemSelectionModel::Rows lets it follow.
     */
    virtual void setSelectionFlags(QItemSelectionModel::SelectionFlags flags) = 0;

    /** Where a page is brought to in the view. Default: QAbstractItemView::PositionAtTop. */
    virtual void setScrollHint(QAbstractItemView::ScrollHint hint) = 0;

    /**
     * The rows of a page, 8 by default. A @p count that is not above 0 is ignored. What is shown
     * stays until the next call that moves the table.
     */
    virtual void setNrPageItems(int count) = 0;

    /**
     * Chooses the row @p index: makes its item in column 0 current, selects it as the view's
     * selection mode tells, and scrolls to the top of its page. A row that does not exist changes
     * nothing. A row that is disabled in the model becomes the chosen one, but not the current one.
     */
    virtual void setIndex(int index) = 0;
    /** The chosen row: 0 at first, -1 after a reset that left no rows. */
    virtual int index() const = 0;

    /** The Qt::DisplayRole at @p row and @p column; invalid if there is no such place. */
    virtual QVariant data(int row, int column) = 0;
};

ZEM_END_INTERFACES

#endif
