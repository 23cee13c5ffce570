// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "monthstable.h"

#include "chartvalues.h"
#include "household.h"
#include "viewtexts.h"

#include <QLocale>

using Readings::Quantity;

namespace {

/** The columns, from left to right. */
constexpr Quantity shownQuantities[] = {Quantity::GridImport,      Quantity::GridExport,
                                        Quantity::SolarProduction, Quantity::Gas,
                                        Quantity::Heating,         Quantity::Water};

QString titleOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::GridImport:
        return MonthsTable::tr("verbruik");
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

/** Heat comes in GJ, of which a month has few. */
int decimalsOf(Quantity quantity)
{
    return quantity == Quantity::Heating ? 2 : 1;
}

} // namespace

void MonthsTable::show(const Readings::Household &household)
{
    beginResetModel();
    quantities.clear();
    rows.clear();
    for (const Quantity quantity : shownQuantities) {
        if (household.total(quantity) > 0.0) {
            quantities.push_back(quantity);
        }
    }
    const Readings::Calendar calendar(household.timeZone);
    const DateRange dates = datesOf(household);
    for (QDate month(dates.last.year(), dates.last.month(), 1);
         !quantities.empty() && month.addMonths(1) > dates.first; month = month.addMonths(-1)) {
        rows.push_back({month, {}});
        for (const Quantity quantity : quantities) {
            rows.back().totals.push_back(
                Readings::Calendar::measured(household.metersOf(quantity), calendar.month(month)));
        }
    }
    endResetModel();
}

int MonthsTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(rows.size());
}

int MonthsTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(quantities.size()) + 1;
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
        return QLocale().toString(row.month, QStringLiteral("MMM yyyy"));
    }
    const auto column = std::size_t(index.column() - 1);
    return ViewTexts::number(row.totals.at(column), decimalsOf(quantities.at(column)));
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
    if (section == 0) {
        return tr("maand");
    }
    const Quantity quantity = quantities.at(std::size_t(section - 1));
    return QStringLiteral("%1\n%2").arg(titleOf(quantity), Readings::quantityInfo(quantity).unit);
}
