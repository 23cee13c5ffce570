// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "monthsfile.h"

#include "calendar.h"
#include "household.h"
#include "monthlist.h"
#include "periodcosts.h"
#include "profile.h"

#include <QIODevice>

using Readings::Household;
using Readings::Measured;
using Readings::Quantity;

namespace Costs {

namespace {

constexpr int amountDecimals = 3;
constexpr int euroDecimals = 2;
constexpr double centsPerEuro = 100.0;
const QByteArray standingColumn = QByteArrayLiteral("standing_charge_eur");
const QByteArray totalColumn = QByteArrayLiteral("total_eur");

/** The column of a quantity in the program's own format. */
QByteArray amountColumn(Quantity quantity)
{
    for (const Readings::Column &column : Readings::profiles().front().columns) {
        if (column.role == Readings::Column::Role::Counter
            && column.meterRegister == Readings::Register {quantity}) {
            return column.name;
        }
    }
    return {};
}

/** The same with the euro as the unit. */
QByteArray costColumn(Quantity quantity)
{
    const QByteArray name = amountColumn(quantity);
    return name.left(name.lastIndexOf('_')) + "_eur";
}

/** One row, cell by cell. */
class Row
{
public:
    explicit Row(const QDate &month)
        : line(month.toString(QStringLiteral("yyyy-MM")).toLatin1()) { }

    void add(const QByteArray &column, const std::optional<Measured> &measured)
    {
        line += ',';
        if (measured) {
            line += QByteArray::number(measured->amount, 'f', amountDecimals);
        }
        if (measured && !measured->isComplete) {
            leasts.append(column);
        }
    }

    void add(const QByteArray &column, const Cost &cost)
    {
        line += ',';
        if (!cost.isTold()) {
            return;
        }
        line += QByteArray::number(double(cost.cents()) / centsPerEuro, 'f', euroDecimals);
        if (cost.mayBeMore) {
            leasts.append(column);
        }
        if (cost.mayBeLess) {
            mosts.append(column);
        }
    }

    QByteArray text() const { return line + ',' + leasts.join('|') + ',' + mosts.join('|'); }

private:
    QByteArray line;
    QByteArrayList leasts;
    QByteArrayList mosts;
};

/** Writes the header and the rows of a household. */
class MonthsFile
{
public:
    MonthsFile(const Household &shownHousehold, const CostRules *costRules)
        : household(shownHousehold), rules(costRules), amounts(countedQuantities(household))
    {
        if (rules) {
            costs = pricedQuantities(household, *rules);
        }
    }

    QByteArray header() const;
    QByteArray row(const QDate &month) const;

private:
    const Household &household;
    const CostRules *const rules;
    const std::vector<Quantity> amounts;
    std::vector<Quantity> costs;
};

QByteArray MonthsFile::header() const
{
    QByteArrayList columns {"month"};
    for (const Quantity quantity : amounts) {
        columns.append(amountColumn(quantity));
    }
    for (const Quantity quantity : costs) {
        columns.append(costColumn(quantity));
    }
    if (rules && rules->hasStanding()) {
        columns.append(standingColumn);
    }
    if (rules) {
        columns.append(totalColumn);
    }
    return columns.join(',') + ",at_least,at_most";
}

QByteArray MonthsFile::row(const QDate &month) const
{
    Row row(month);
    const Readings::Calendar calendar(household.timeZone);
    for (const Quantity quantity : amounts) {
        row.add(amountColumn(quantity), household.measured(quantity, calendar.month(month)));
    }
    if (rules) {
        const MonthCosts paid = costsOfMonth(household, *rules, month);
        for (const Quantity quantity : costs) {
            row.add(costColumn(quantity), paid.lines.at(quantity));
        }
        if (rules->hasStanding()) {
            row.add(standingColumn, paid.standing);
        }
        row.add(totalColumn, paid.total);
    }
    return row.text();
}

} // namespace

int writeMonths(const Household &household, const CostRules *rules, QIODevice *device)
{
    const MonthsFile file(household, rules);
    device->write(file.header() + '\n');
    const std::vector<QDate> months = monthsOf(household);
    for (auto month = months.crbegin(); month != months.crend(); ++month) {
        device->write(file.row(*month) + '\n');
    }
    return int(months.size());
}

} // namespace Costs
