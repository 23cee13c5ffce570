// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LISTTEST_H
#define LISTTEST_H

#include <QAbstractItemView>
#include <QAbstractTableModel>
#include <QFont>
#include <QPair>
#include <QSet>
#include <QSize>
#include <QStringList>
#include <QTest>
#include <QVector>
#include <QtGlobal>

#include <cstddef>
#include <cstring>

/** What the tests of paged lists and tables share. */
namespace ListTest {

/** What has_page() told: whether there is a page before and after. */
using Pages = QPair<bool, bool>;

/** Rows of texts "row:column", which counts what it is asked. */
class RowModel : public QAbstractTableModel
{
public:
    explicit RowModel(int rowTotal, int columnTotal = 1, QObject *parent = nullptr)
        : QAbstractTableModel(parent), rows(rowTotal), columns(columnTotal)
    {
    }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        ++questions;
        return parent.isValid() ? 0 : rows;
    }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override
    {
        ++questions;
        return parent.isValid() ? 0 : columns;
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        ++questions;
        if (role == Qt::SizeHintRole && itemSize.isValid()) {
            return itemSize;
        }
        const QString text = QStringLiteral("%1:%2").arg(index.row()).arg(index.column());
        return role == Qt::DisplayRole ? QVariant(text) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        const bool isTitle = orientation == Qt::Horizontal && section == 0;
        return isTitle && role == Qt::DisplayRole ? QVariant(title) : QVariant();
    }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return disabledRows.contains(index.row()) ? Qt::NoItemFlags
                                                  : QAbstractTableModel::flags(index);
    }

    void resetTo(int count)
    {
        beginResetModel();
        rows = count;
        endResetModel();
    }
    /** Takes the last rows away without a reset. */
    void removeLast(int count)
    {
        beginRemoveRows(QModelIndex(), rows - count, rows - 1);
        rows -= count;
        endRemoveRows();
    }

    int rows;
    int columns;
    QSet<int> disabledRows;
    QSize itemSize; // an invalid one leaves the size to the view
    QString title;
    mutable int questions = 0;
};

/** A view that notes where it is told to scroll: row, column and hint. */
template <typename View>
class ScrollLog : public View
{
public:
    struct Scroll
    {
        int row;
        int column;
        QAbstractItemView::ScrollHint hint;

        bool operator==(const Scroll &other) const
        {
            return row == other.row && column == other.column && hint == other.hint;
        }
    };

    void scrollTo(const QModelIndex &index, QAbstractItemView::ScrollHint hint) override
    {
        scrolls.append({index.row(), index.column(), hint});
        View::scrollTo(index, hint);
    }

    QVector<Scroll> scrolls;
};

/** The rows that are selected in @p view. */
inline QSet<int> selectedRows(const QAbstractItemView &view)
{
    QSet<int> rows;
    if (view.selectionModel()) {
        const QModelIndexList indexes = view.selectionModel()->selectedIndexes();
        for (const QModelIndex &index : indexes) {
            rows.insert(index.row());
        }
    }
    return rows;
}

/** Keeps back what any view of Qt says, from the event loop, after its model was deleted. */
class DeletedModelsAreNoNews
{
public:
    DeletedModelsAreNoNews() { former() = qInstallMessageHandler(handle); }
    ~DeletedModelsAreNoNews() { qInstallMessageHandler(former()); }
    Q_DISABLE_COPY(DeletedModelsAreNoNews)

private:
    static QtMessageHandler &former()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (!text.startsWith(QLatin1String("QItemSelectionModel: Selecting when no model"))) {
            former()(type, context, text);
        }
    }
};

#ifdef Q_PROCESSOR_X86_64
/**
 * The place of a virtual operation in the virtual table: a pointer to a virtual member begins with
 * it, in bytes and plus one. For an operation that is not virtual it is -1.
 */
template <typename Operation>
std::ptrdiff_t place(Operation operation)
{
    std::ptrdiff_t offset = 0;
    std::memcpy(&offset, &operation, sizeof(offset));
    return offset % 2 == 1 ? (offset - 1) / std::ptrdiff_t(sizeof(void *)) : -1;
}
#define SKIP_UNLESS_PLACES_ARE_KNOWN() (void)0
#else
template <typename Operation>
std::ptrdiff_t place(Operation)
{
    return -1;
}
#define SKIP_UNLESS_PLACES_ARE_KNOWN() QSKIP("knows the layout of member pointers on x86-64 only")
#endif

} // namespace ListTest

#endif
