// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "costhouse.h"
#include "monthsfile.h"

#include <QBuffer>
#include <QTest>

using namespace CostHouse;

class tst_MonthsFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amountsAlone();
    void costsStandBesideAmounts();
    void whatIsNotWholeIsNamed();
    void emptyHouse();

private:
    static QByteArray written(const Household &house, const Costs::CostRules *rules = nullptr)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        const int rows = Costs::writeMonths(house, rules, &buffer);
        return buffer.data() + QByteArray::number(rows) + " rows";
    }
};

void tst_MonthsFile::amountsAlone()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport, Tariff::Low}, QDate(2023, 12, 1), QDate(2024, 2, 11),
              1.001);
    countDays(&house, {Quantity::GridImport, Tariff::Normal}, QDate(2023, 12, 1),
              QDate(2024, 2, 11), 2.0);
    countDays(&house, {Quantity::Heating}, QDate(2023, 12, 1), QDate(2024, 2, 11), 0.125);
    QCOMPARE(written(house),
             QByteArray("month,electricity_import_kwh,heating_gj,at_least,at_most\n"
                        "2023-12,93.031,3.875,,\n"
                        "2024-01,93.031,3.875,,\n"
                        "2024-02,30.010,1.250,,\n"
                        "3 rows"));
}

void tst_MonthsFile::costsStandBesideAmounts()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, QDate(2024, 1, 1), QDate(2024, 2, 1), 10.0);
    countDays(&house, {Quantity::GridExport}, QDate(2024, 1, 1), QDate(2024, 2, 1), 1.0);
    countDays(&house, {Quantity::Water}, QDate(2024, 1, 1), QDate(2024, 2, 1), 0.5);
    Costs::CostRules rules {{onePrice(QDate(2024, 1, 1), Quantity::GridImport, 30000)}};
    rules.contracts.front().rates[Quantity::GridExport] = {10000, 10000};
    QCOMPARE(written(house, &rules),
             QByteArray("month,electricity_import_kwh,electricity_export_kwh,water_m3,"
                        "electricity_import_eur,electricity_export_eur,total_eur,at_least,at_most\n"
                        "2024-01,310.000,31.000,15.500,93.00,-3.10,89.90,,\n"
                        "1 rows"));
    rules.contracts.front().standing = 1250000;
    QVERIFY(written(house, &rules).contains(",standing_charge_eur,total_eur,"));
    QVERIFY(written(house, &rules).contains(",93.00,-3.10,12.50,102.40,,\n"));
}

void tst_MonthsFile::whatIsNotWholeIsNamed()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, QDate(2024, 1, 5), QDate(2024, 2, 1), 1.0);
    countDays(&house, {Quantity::GridExport}, QDate(2024, 1, 1), QDate(2024, 2, 1), 1.0);
    Costs::CostRules rules {{onePrice(QDate(2024, 1, 1), Quantity::GridImport, 30000)}};
    rules.contracts.front().rates[Quantity::Gas] = {100000, 100000};
    QCOMPARE(written(house, &rules),
             QByteArray("month,electricity_import_kwh,electricity_export_kwh,"
                        "electricity_import_eur,gas_eur,total_eur,at_least,at_most\n"
                        "2024-01,27.000,31.000,8.10,,8.10,"
                        "electricity_import_kwh|electricity_import_eur|total_eur,\n"
                        "1 rows"));
    // What is missing of the export makes the total less.
    Household giving = household();
    countDays(&giving, {Quantity::GridExport}, QDate(2024, 1, 5), QDate(2024, 2, 1), 1.0);
    const Costs::CostRules gifts {{onePrice(QDate(2024, 1, 1), Quantity::GridExport, 30000)}};
    QVERIFY2(written(giving, &gifts)
                 .contains("2024-01,27.000,-8.10,-8.10,electricity_export_kwh,"
                           "electricity_export_eur|total_eur\n"),
             written(giving, &gifts).constData());
}

void tst_MonthsFile::emptyHouse()
{
    QCOMPARE(written(household()), QByteArray("month,at_least,at_most\n0 rows"));
}

QTEST_GUILESS_MAIN(tst_MonthsFile)
#include "tst_monthsfile.moc"
