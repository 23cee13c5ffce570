// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "monthstable.h"

#include "calendar.h"
#include "household.h"
#include "monthlist.h"
#include "periodcosts.h"
#include "viewtexts.h"

#include <QLocale>

using Readings::Quantity;

namespace {

QString titleOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::GridImport:
        return MonthsTable::tr("van het net");
    case Quantity::GridExport:
        return MonthsTable::tr("terug");
    case Quantity::SolarProduction:
        return MonthsTable::tr("zon");
    case Quantity::Gas:
        return MonthsTable::tr("gas");
    case Quantity::Heating:
        return MonthsTable::tr("warmte");
    default:
        return MonthsTable::tr("water");
    }
}

QString heading(const QString &title, const QString &unit)
{
    return QStringLiteral("%1\n%2").arg(title, unit);
}

QString euroHeading(const QString &title)
{
    return heading(title, QStringLiteral("€"));
}

/** Heat comes in GJ, of which a month has few. */
int decimalsOf(Quantity quantity)
{
    return quantity == Quantity::Heating ? 2 : 1;
}

} // namespace

void MonthsTable::show(const Readings::Household &household)
{
    beginResetModel();
    headings.clear();
    rows.clear();
    const std::vector<Quantity> quantities = Costs::countedQuantities(household);
    for (const Quantity quantity : quantities) {
        headings.append(heading(titleOf(quantity), Readings::quantityInfo(quantity).unit));
    }
    const Readings::Calendar calendar(household.timeZone);
    for (const QDate &month : Costs::monthsOf(household)) {
        QStringList cells;
        for (const Quantity quantity : quantities) {
            cells.append(ViewTexts::number(household.measured(quantity, calendar.month(month)),
                                           decimalsOf(quantity)));
        }
        rows.push_back({month, cells});
    }
    endResetModel();
}

void MonthsTable::showCosts(const Readings::Household &household, const Costs::CostRules &rules,
                            int decimals)
{
    beginResetModel();
    headings.clear();
    rows.clear();
    const std::vector<Quantity> quantities = Costs::pricedQuantities(household, rules);
    for (const Quantity quantity : quantities) {
        headings.append(euroHeading(titleOf(quantity)));
    }
    if (rules.hasStanding()) {
        headings.append(euroHeading(tr("vast")));
    }
    headings.append(euroHeading(tr("totaal")));
    for (const QDate &month : Costs::monthsOf(household)) {
        const Costs::MonthCosts costs = Costs::costsOfMonth(household, rules, month);
        QStringList cells;
        for (const Quantity quantity : quantities) {
            cells.append(ViewTexts::euro(costs.lines.at(quantity), decimals));
        }
        if (rules.hasStanding()) {
            cells.append(ViewTexts::euro(costs.standing, decimals));
        }
        cells.append(ViewTexts::euro(costs.total, decimals));
        rows.push_back({month, cells});
    }
    endResetModel();
}

int MonthsTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || headings.isEmpty() ? 0 : int(rows.size());
}

int MonthsTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : headings.size() + 1;
}

QVariant MonthsTable::data(const QModelIndex &index, int role) const
{
    const bool isMonth = index.column() == 0;
    if (role == Qt::TextAlignmentRole) {
        return int(Qt::AlignVCenter | (isMonth ? Qt::AlignLeft : Qt::AlignRight));
    }
    if (role != Qt::DisplayRole || !index.isValid()) {
        return {};
    }
    const Row &row = rows.at(std::size_t(index.row()));
    if (isMonth) {
        return QLocale().toString(row.month, tr("MMM yyyy"));
    }
    return row.cells.at(index.column() - 1);
}

QVariant MonthsTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section < 0 || section >= columnCount()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return int(Qt::AlignVCenter | (section == 0 ? Qt::AlignLeft : Qt::AlignRight));
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    return section == 0 ? tr("maand") : headings.at(section - 1);
}
