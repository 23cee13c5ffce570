// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MONTHSTABLE_H
#define MONTHSTABLE_H

#include "meter.h"
#include "quantity.h"

#include <QAbstractTableModel>
#include <QDate>
#include <optional>
#include <vector>

namespace Readings {
class Household;
}

/**
 * The totals of all months, newest first: the month, and a column for each quantity that the house
 * measures. A month of which only a part was measured is told with "≥", one of which nothing is
 * known by a dash; the present one counts so far.
 */
class MonthsTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(const Readings::Household &household);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        QDate month;
        std::vector<std::optional<Readings::Measured>> totals;
    };

    std::vector<Readings::Quantity> quantities;
    std::vector<Row> rows;
};

#endif
