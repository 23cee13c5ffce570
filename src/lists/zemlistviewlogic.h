// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLISTVIEWLOGIC_H
#define ZEMLISTVIEWLOGIC_H

#include "zemkit_export.h"
#include "zemlistviewinterface.h"

#include <QObject>

#include <memory>

class QListView;

ZEM_BEGIN_INTERFACES // the interface has no destructor

/**
 * Moves a list view by whole pages, for lists that have two buttons and no scroll bar.
 *
 * @code
 * #include <QListView>
 * #include <QStringListModel>
 * #include <QVBoxLayout>
 * #include <ZEMButton>
 * #include <ZEMListViewLogic>
 *
 * QStringListModel towns({QStringLiteral("Delft"), QStringLiteral("Gouda")});
 * QWidget page;
 * auto *up = new ZEMButton;
 * auto *list = new QListView;
 * auto *down = new ZEMButton;
 * auto *layout = new QVBoxLayout(&page);
 * for (QWidget *widget : QList<QWidget *> {up, list, down}) {
 *     layout->addWidget(widget);
 * }
 * up->setText(QStringLiteral("op"));
 * down->setText(QStringLiteral("neer"));
 *
 * auto *pages = new ZEMListViewLogic(list);
 * QObject::connect(up, &ZEMButton::clicked, pages, &ZEMListViewLogic::page_previous);
 * QObject::connect(down, &ZEMButton::clicked, pages, &ZEMListViewLogic::page_next);
 * QObject::connect(pages, &ZEMListViewLogic::has_page, [=](bool previous, bool next) {
 *     up->setEnabled(previous);
 *     down->setEnabled(next);
 * });
 * pages->setModel(&towns);
 * pages->setNrPageItems(1);
 * pages->setIndex(0);
 * page.show();
 * @endcode
 *
 * Pages of nrPageItems() rows lie end to end from row 0 on, and the last one may be short. The page
 * size is a plain number: make the view high enough for it, or use ZEMListView, which does. A page
 * move makes the first row of the new page current, whichever row of the old page was, and does not
 * change index(). It costs the same for twenty rows and for a hundred thousand.
 *
 * See ZEMListViewInterface for the operations, and ZEMTableViewLogic for tables.
 */
class ZEM_EXPORT ZEMListViewLogic : public QObject, public ZEMListViewInterface
{
    Q_OBJECT

public:
    /** Pages @p view, which owns the new object. */
    explicit ZEMListViewLogic(QListView *view);
    ~ZEMListViewLogic() override;

    void setModel(QAbstractItemModel *model) override;
    void setItemDelegate(QAbstractItemDelegate *delegate) override;
    void setSelectionFlags(QItemSelectionModel::SelectionFlags flags) override;
    void setScrollHint(QAbstractItemView::ScrollHint hint) override;
    void setNrPageItems(int count) override;
    int nrPageItems() const override;
    /**
     * As in the interface, and emits has_page() for the page of @p index: for a row that does not
     * exist too, with the page where it would be.
     */
    void setIndex(int index) override;
    int index() const override;
    QVariant data(int index) override;

public Q_SLOTS:
    /**
     * Shows the page before or after the one of the current row, makes its first row current and
     * emits has_page(). On the first or last page its own first row becomes current. Does nothing
     * while no row is current.
     */
    void page_previous();
    void page_next();

Q_SIGNALS:
    /**
     * Whether a page lies before and after the one that is shown. Comes after every setIndex(),
     * every page move and every reset of the model, changed or not, when the view has moved; not
     * after setModel() and setNrPageItems(). When rows have come, gone or moved it comes at once,
     * for the page of the current row, and again when the view has moved; when the model was
     * deleted it comes from the event loop.
     */
    void has_page(bool prev_hasPage, bool next_hasPage);

private Q_SLOTS:
    void reset();

private:
    Q_DISABLE_COPY(ZEMListViewLogic)

    void tellPages(int top, int rowCount);

    class Private;
    std::unique_ptr<Private> d;
};

ZEM_END_INTERFACES

#endif
