// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "contract.h"
#include "dutchmonths.h"
#include "household.h"
#include "monthstable.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QTest>

using Readings::Household;
using Readings::Meter;
using Readings::Quantity;
using Readings::Tariff;

class tst_MonthsTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void emptyHouse();
    void newestMonthComesFirst();
    void unknownMonthIsADash();
    void monthOfWhichAPartWasMeasuredIsALeast();
    void columnsAreWhatIsMeasured();
    void tariffsAreOneColumn();
    void costsHaveColumnsOfTheirOwn();
    void standingChargeIsAColumnWhereThereIsOne();

private:
    static void count(Household *household, const Readings::Register &meterRegister,
                      const QDate &first, const QDate &end, double perDay);
};

void tst_MonthsTable::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_MonthsTable::count(Household *household, const Readings::Register &meterRegister,
                            const QDate &first, const QDate &end, double perDay)
{
    household->timeZone = QTimeZone("Europe/Amsterdam");
    Meter &meter = household->meter(meterRegister, Meter::Kind::Counter);
    for (QDate date = first; date <= end; date = date.addDays(1)) {
        meter.addReading(QDateTime(date, QTime(0, 0), household->timeZone).toSecsSinceEpoch(),
                         perDay * double(first.daysTo(date)));
    }
}

void tst_MonthsTable::emptyHouse()
{
    MonthsTable table;
    const QAbstractItemModelTester tester(&table);
    table.show(Household());
    QCOMPARE(table.rowCount(), 0);
}

void tst_MonthsTable::newestMonthComesFirst()
{
    Household household;
    count(&household, {Quantity::GridImport}, QDate(2023, 12, 1), QDate(2024, 2, 11), 10.0);
    MonthsTable table;
    const QAbstractItemModelTester tester(&table);
    table.show(household);
    QCOMPARE(table.rowCount(), 3);
    const auto text = [&](int row, int column) {
        return table.index(row, column).data().toString();
    };
    QCOMPARE(text(0, 0), withMonthsOfQt(QStringLiteral("feb. 2024")));
    QCOMPARE(text(0, 1), QStringLiteral("100,0")); // so far
    QCOMPARE(text(1, 0), withMonthsOfQt(QStringLiteral("jan. 2024")));
    QCOMPARE(text(1, 1), QStringLiteral("310,0"));
    QCOMPARE(text(2, 0), withMonthsOfQt(QStringLiteral("dec. 2023")));
    QCOMPARE(text(2, 1), QStringLiteral("310,0"));
}

void tst_MonthsTable::unknownMonthIsADash()
{
    Household household;
    count(&household, {Quantity::GridImport}, QDate(2024, 1, 5), QDate(2024, 3, 1), 1.0);
    count(&household, {Quantity::Gas}, QDate(2024, 2, 1), QDate(2024, 3, 1), 1.0);
    MonthsTable table;
    table.show(household);
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.index(0, 2).data().toString(), QStringLiteral("29,0"));
    QCOMPARE(table.index(1, 2).data().toString(), QStringLiteral("–"));
}

void tst_MonthsTable::monthOfWhichAPartWasMeasuredIsALeast()
{
    Household household;
    count(&household, {Quantity::GridImport}, QDate(2024, 1, 5), QDate(2024, 3, 1), 1.0);
    MonthsTable table;
    table.show(household);
    QCOMPARE(table.index(0, 1).data().toString(), QStringLiteral("29,0"));
    QCOMPARE(table.index(1, 1).data().toString(), QStringLiteral("≥ 27,0"));
}

void tst_MonthsTable::columnsAreWhatIsMeasured()
{
    Household household;
    count(&household, {Quantity::Heating}, QDate(2024, 1, 1), QDate(2024, 2, 1), 0.125);
    count(&household, {Quantity::GridImport}, QDate(2024, 1, 1), QDate(2024, 2, 1), 8.0);
    count(&household, {Quantity::GridExport}, QDate(2024, 1, 1), QDate(2024, 2, 1), 0.0);
    MonthsTable table;
    table.show(household);
    QCOMPARE(table.columnCount(), 3);
    const auto title = [&](int column) {
        return table.headerData(column, Qt::Horizontal).toString();
    };
    QCOMPARE(title(0), QStringLiteral("maand"));
    QCOMPARE(title(1), QStringLiteral("van het net\nkWh"));
    QCOMPARE(title(2), QStringLiteral("warmte\nGJ"));
    QCOMPARE(table.index(0, 2).data().toString(), QStringLiteral("3,88"));
    QCOMPARE(table.index(0, 0).data(Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(table.index(0, 2).data(Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignRight | Qt::AlignVCenter));
}

void tst_MonthsTable::tariffsAreOneColumn()
{
    Household household;
    count(&household, {Quantity::GridImport, Tariff::Low}, QDate(2024, 1, 1), QDate(2024, 2, 1),
          1.0);
    count(&household, {Quantity::GridImport, Tariff::Normal}, QDate(2024, 1, 1), QDate(2024, 2, 1),
          2.0);
    MonthsTable table;
    table.show(household);
    QCOMPARE(table.columnCount(), 2);
    QCOMPARE(table.index(0, 1).data().toString(), QStringLiteral("93,0"));
}

void tst_MonthsTable::costsHaveColumnsOfTheirOwn()
{
    Household household;
    count(&household, {Quantity::GridImport}, QDate(2024, 1, 1), QDate(2024, 2, 1), 10.0);
    count(&household, {Quantity::GridExport}, QDate(2024, 1, 5), QDate(2024, 2, 1), 1.0);
    count(&household, {Quantity::Water}, QDate(2024, 1, 1), QDate(2024, 2, 1), 1.0);
    const Costs::CostRules rules {{{QDate(2024, 1, 1),
                                    {{Quantity::GridImport, {30000, 30000}},
                                     {Quantity::GridExport, {10000, 10000}},
                                     {Quantity::Gas, {100000, 100000}}}}}};
    MonthsTable table;
    const QAbstractItemModelTester tester(&table);
    table.show(household);
    QCOMPARE(table.columnCount(), 4);
    table.showCosts(household, rules);
    QStringList titles;
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        titles.append(table.headerData(column, Qt::Horizontal).toString());
        texts.append(table.index(0, column).data().toString());
    }
    QCOMPARE(titles,
             (QStringList {QStringLiteral("maand"), QStringLiteral("van het net\n€"),
                           QStringLiteral("terug\n€"), QStringLiteral("gas\n€"),
                           QStringLiteral("totaal\n€")}));
    // That the gas costs something and the rest of the export brings something in, leaves no total.
    QCOMPARE(texts,
             (QStringList {withMonthsOfQt(QStringLiteral("jan. 2024")), QStringLiteral("93,00"),
                           QStringLiteral("≤ -2,70"), QStringLiteral("–"), QStringLiteral("–")}));
    table.show(household);
    QCOMPARE(table.columnCount(), 4);
}

void tst_MonthsTable::standingChargeIsAColumnWhereThereIsOne()
{
    Household household;
    count(&household, {Quantity::GridImport}, QDate(2024, 1, 1), QDate(2024, 2, 1), 10.0);
    const Costs::CostRules rules {
        {{QDate(2024, 1, 1), {{Quantity::GridImport, {30000, 30000}}}, 1250000}}};
    MonthsTable table;
    table.showCosts(household, rules);
    QCOMPARE(table.columnCount(), 4);
    QCOMPARE(table.headerData(2, Qt::Horizontal).toString(), QStringLiteral("vast\n€"));
    QCOMPARE(table.index(0, 2).data().toString(), QStringLiteral("12,50"));
    QCOMPARE(table.index(0, 3).data().toString(), QStringLiteral("105,50"));
}

QTEST_GUILESS_MAIN(tst_MonthsTable)
#include "tst_monthstable.moc"
