// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTABLEVIEWLOGIC_H
#define ZEMTABLEVIEWLOGIC_H

#include "zemkit_export.h"
#include "zemtableviewinterface.h"

#include <QObject>

#include <memory>

class QTableView;

ZEM_BEGIN_INTERFACES // the interface has no destructor

/**
 * Moves a table view by whole pages, for tables that have two buttons and no scroll bar.
 *
 * @code
 * #include <QStandardItemModel>
 * #include <QTableView>
 * #include <QVBoxLayout>
 * #include <ZEMButton>
 * #include <ZEMTableViewLogic>
 *
 * QStandardItemModel readings(31, 2);
 * QWidget page;
 * auto *up = new ZEMButton;
 * auto *table = new QTableView;
 * auto *down = new ZEMButton;
 * auto *layout = new QVBoxLayout(&page);
 * for (QWidget *widget : QList<QWidget *> {up, table, down}) {
 *     layout->addWidget(widget);
 * }
 * up->setText(QStringLiteral("op"));
 * down->setText(QStringLiteral("neer"));
 *
 * auto *pages = new ZEMTableViewLogic(table);
 * QObject::connect(up, &ZEMButton::clicked, pages, &ZEMTableViewLogic::page_previous);
 * QObject::connect(down, &ZEMButton::clicked, pages, &ZEMTableViewLogic::page_next);
 * pages->setModel(&readings);
 * pages->setIndex(0);
 * page.show();
 * @endcode
 *
 * A page move is a jump by the length of a page, at most to the first or last row: the current row
 * keeps its place within the page, where that of ZEMListViewLogic goes to the top. The view shows
 * the whole page of the row, pages lying end to end from row 0 on, but has_page() tells of the row.
 * The current column becomes 0, and index() does not change. A move costs the same for twenty rows
 * and for a hundred thousand.
 *
 * See ZEMTableViewInterface for the operations.
 */
class ZEM_EXPORT ZEMTableViewLogic : public QObject, public ZEMTableViewInterface
{
    Q_OBJECT

public:
    /** Pages @p view, which owns the new object. */
    explicit ZEMTableViewLogic(QTableView *view);
    ~ZEMTableViewLogic() override;

    void setModel(QAbstractItemModel *model) override;
    void setItemDelegate(QAbstractItemDelegate *delegate) override;
    void setSelectionFlags(QItemSelectionModel::SelectionFlags flags) override;
    void setScrollHint(QAbstractItemView::ScrollHint hint) override;
    void setNrPageItems(int count) override;
    /** The rows of a page. */
    int getNrPageItems() const;
    /**
     * As in the interface, and emits has_page() for the chosen row: for a row that does not exist
     * that is the one chosen before.
     */
    void setIndex(int index) override;
    int index() const override;
    QVariant data(int row, int column) override;

public Q_SLOTS:
    /**
     * Makes the row one page before or after the current one current, at most the first or last
     * row, scrolls to the top of its page and emits has_page(). Does nothing while no row is
     * current.
     */
    void page_previous();
    void page_next();

Q_SIGNALS:
    /**
     * Whether there is a row one page before and one page after the current row. The first is also
     * whether a page lies before the one that is shown; the second can be false while the last
     * rows still lie on a page of their own. Comes after every setIndex(), every page move and
     * every reset of the model, changed or not, when the view has moved; not after setModel() and
     * setNrPageItems(). When rows have come, gone or moved it comes at once, and again when the
     * view has moved; when the model was deleted it comes from the event loop.
     */
    void has_page(bool prev_hasPage, bool next_hasPage);

private Q_SLOTS:
    void reset();

private:
    Q_DISABLE_COPY(ZEMTableViewLogic)

    void tellPages(int row, int rowCount);

    class Private;
    std::unique_ptr<Private> d;
};

ZEM_END_INTERFACES

#endif
