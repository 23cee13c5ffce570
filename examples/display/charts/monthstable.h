// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MONTHSTABLE_H
#define MONTHSTABLE_H

#include <QAbstractTableModel>
#include <QDate>
#include <QStringList>
#include <vector>

namespace Readings {
class Household;
}

namespace Costs {
struct CostRules;
}

/**
 * What all months come to, newest first: the month, and a column for each quantity that the house
 * measures, or for each that it pays for. A month of which only a part is known is told with "≥"
 * (or "≤", where what is missing makes it less), one of which nothing can be told by a dash; the
 * present one counts so far.
 */
class MonthsTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /** Shows the amounts. */
    void show(const Readings::Household &household);
    /** Shows what they cost, in euro with so many decimals. */
    void showCosts(const Readings::Household &household, const Costs::CostRules &rules,
                   int decimals = 2);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        QDate month;
        QStringList cells;
    };

    /** Without the month. */
    QStringList headings;
    std::vector<Row> rows;
};

#endif
