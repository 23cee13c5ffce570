// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemactionlistmodel.h"

#include <QAction>
#include <QFont>
#include <QPointer>
#include <QVector>

#include <algorithm>

namespace {

struct Row
{
    // The pointer finds the row even of an action that has been deleted; only the guard is
    // followed.
    const QAction *identity;
    QPointer<QAction> action;
};

Row rowOf(QAction *action)
{
    return {action, action};
}

} // namespace

class ZEMActionListModel::Private
{
public:
    QAction *actionAt(int row) const
    {
        return row >= 0 && row < actions.count() ? actions.at(row).action.data() : nullptr;
    }

    int firstRowOf(const QAction *action) const
    {
        const auto found = std::find_if(actions.cbegin(), actions.cend(), [action](const Row &row) {
            return row.identity == action;
        });
        return found == actions.cend() ? -1 : int(found - actions.cbegin());
    }

    QVector<Row> actions;
    QString title;
};

ZEMActionListModel::ZEMActionListModel(QObject *parent)
    : QAbstractListModel(parent), d(std::make_unique<Private>())
{
}

ZEMActionListModel::~ZEMActionListModel() = default;

void ZEMActionListModel::setTitle(const QString &title)
{
    d->title = title;
}

void ZEMActionListModel::setActionList(const QList<QAction *> &actions)
{
    beginResetModel();
    d->actions.clear();
    std::transform(actions.cbegin(), actions.cend(), std::back_inserter(d->actions), rowOf);
    endResetModel();
}

void ZEMActionListModel::appendAction(QAction *action)
{
    insertAction(d->actions.count(), action);
}

void ZEMActionListModel::insertAction(int row, QAction *action)
{
    const int place = qBound(0, row, d->actions.count());
    beginInsertRows(QModelIndex(), place, place);
    d->actions.insert(place, rowOf(action));
    endInsertRows();
}

void ZEMActionListModel::removeAction(QAction *action)
{
    const int row = d->firstRowOf(action);
    if (row < 0) {
        return;
    }
    beginRemoveRows(QModelIndex(), row, row);
    d->actions.remove(row);
    endRemoveRows();
}

QModelIndex ZEMActionListModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, quintptr(parent.isValid() ? parent.row() : -1));
}

QModelIndex ZEMActionListModel::parent(const QModelIndex & /*child*/) const
{
    return {};
}

int ZEMActionListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->actions.count();
}

int ZEMActionListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant ZEMActionListModel::data(const QModelIndex &index, int role) const
{
    const QAction *const action = d->actionAt(index.row());
    if (!action || index.parent().isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return action->text();
    case Qt::DecorationRole:
        return action->icon();
    case Qt::FontRole:
        return action->font();
    default:
        return {};
    }
}

QVariant ZEMActionListModel::headerData(int /*section*/, Qt::Orientation /*orientation*/,
                                        int role) const
{
    return role == Qt::DisplayRole ? QVariant(d->title) : QVariant();
}

Qt::ItemFlags ZEMActionListModel::flags(const QModelIndex &index) const
{
    const QAction *const action = index.isValid() ? d->actionAt(index.row()) : nullptr;
    return action && !action->isSeparator() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled
                                            : Qt::NoItemFlags;
}
