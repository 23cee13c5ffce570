// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "ownformat.h"

#include "household.h"
#include "profile.h"
#include "thinning.h"

#include <QDateTime>
#include <QIODevice>
#include <map>
#include <set>

namespace Readings {

namespace {

constexpr int decimals = 3;

const Profile &ownProfile()
{
    return profiles().front();
}

/** The columns of all meters, and the rows that are to be written. */
class Table
{
public:
    explicit Table(const Household &household);

    void write(QIODevice *device) const;
    int rowCount() const { return int(rows.size()); }

private:
    /** Rows are told apart by their instant and the length of their interval. */
    using Key = std::pair<qint64, qint64>;

    void addReadings(const Register &meterRegister, const Meter &meter);
    void addAmounts(const Register &meterRegister, const Meter &meter);
    void addHours(int column, const Meter &meter, const std::vector<IntervalAmount> &amounts);
    Interval hourOf(const IntervalAmount &row) const;
    int addColumn(Column::Role role, const Register &meterRegister);
    void set(const Key &row, int column, double value);
    QByteArray header() const;
    QByteArray textOf(const Key &key, const std::map<int, double> &cells) const;

    const qint64 step;
    const QTimeZone zone;
    std::vector<QByteArray> columns;
    std::map<Key, std::map<int, double>> rows;
};

Table::Table(const Household &household)
    : step(keptStep(household.timeZone)), zone(household.timeZone)
{
    for (const auto &[meterRegister, meter] : household.meters) {
        addReadings(meterRegister, meter);
        addAmounts(meterRegister, meter);
    }
}

void Table::addReadings(const Register &meterRegister, const Meter &meter)
{
    const std::vector<Reading> readings = meter.readings();
    if (readings.empty()) {
        return;
    }
    const int column = addColumn(Column::Role::Counter, meterRegister);
    const std::vector<bool> isDispensable =
        dispensable(readings, step, quantityInfo(meterRegister.quantity).mostPerHour);
    const std::set<qint64> borders = bordersOf(meter.amountRows());
    for (std::size_t i = 0; i < readings.size(); ++i) {
        // Amounts and readings meet where both tell of an instant.
        if (!isDispensable[i] || borders.count(readings[i].instant) > 0) {
            set({readings[i].instant, step}, column, readings[i].value);
        }
    }
}

void Table::addAmounts(const Register &meterRegister, const Meter &meter)
{
    if (!meter.firstInstant()) {
        return;
    }
    const int column = addColumn(Column::Role::Amount, meterRegister);
    const std::vector<IntervalAmount> amounts = meter.amountRows();
    addHours(column, meter, amounts);
    for (const IntervalAmount &row : amounts) {
        set({row.interval.to, row.interval.seconds()}, column, row.amount);
    }
}

void Table::addHours(int column, const Meter &meter, const std::vector<IntervalAmount> &amounts)
{
    // What files told is told again as it was: the sum of an hour would overlap it.
    std::set<qint64> told;
    for (const IntervalAmount &row : amounts) {
        for (qint64 end = hourOf(row).to; end > row.interval.from; end -= step) {
            told.insert(end);
        }
    }
    const qint64 last = *meter.lastInstant();
    for (qint64 end = (*meter.firstInstant() / step + 1) * step; end <= last; end += step) {
        const std::optional<double> amount = meter.amount(end - step, end);
        if (amount && told.count(end) == 0) {
            set({end, step}, column, *amount);
        }
    }
}

/** The hour in which a row ends. */
Interval Table::hourOf(const IntervalAmount &row) const
{
    const qint64 end = (row.interval.to + step - 1) / step * step;
    return {end - step, end};
}

int Table::addColumn(Column::Role role, const Register &meterRegister)
{
    for (const Column &column : ownProfile().columns) {
        if (column.role == role && column.meterRegister == meterRegister) {
            columns.push_back(column.name);
        }
    }
    return int(columns.size()) - 1;
}

void Table::set(const Key &row, int column, double value)
{
    rows[row][column] = value;
}

QByteArray Table::header() const
{
    QByteArray line = ownProfile().timeColumn;
    for (const QByteArray &column : columns) {
        line += ',' + column;
    }
    return line + ',' + ownProfile().lengthColumn + ',' + ownProfile().zoneColumn + '\n';
}

QByteArray Table::textOf(const Key &key, const std::map<int, double> &cells) const
{
    QByteArray line =
        QDateTime::fromSecsSinceEpoch(key.first, zone).toString(Qt::ISODate).toLatin1();
    for (int column = 0; column < int(columns.size()); ++column) {
        line += ',';
        const auto cell = cells.find(column);
        if (cell != cells.end()) {
            line += QByteArray::number(cell->second, 'f', decimals);
        }
    }
    line += ',';
    return key.second == ownProfile().step ? line : line + QByteArray::number(key.second);
}

void Table::write(QIODevice *device) const
{
    device->write(header());
    bool isFirst = true;
    for (const auto &[key, cells] : rows) {
        device->write(textOf(key, cells) + ',' + (isFirst ? zone.id() : QByteArray()) + '\n');
        isFirst = false;
    }
}

} // namespace

std::set<qint64> bordersOf(const std::vector<IntervalAmount> &rows)
{
    std::set<qint64> borders;
    for (const IntervalAmount &row : rows) {
        borders.insert(row.interval.from);
        borders.insert(row.interval.to);
    }
    return borders;
}

int writeOwnFormat(const Household &household, QIODevice *device)
{
    const Table table(household);
    table.write(device);
    return table.rowCount();
}

} // namespace Readings
