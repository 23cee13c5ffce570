// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "periodcosts.h"
#include "realreadings.h"

#include <QTest>

using namespace Costs;
using namespace RealReadings;

/** The costs of real households beside sums that are made of the text of their files. */
class tst_RealCosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void monthsByTariffAreThoseOfTheCounters();
    void hoursAreThoseOfTheCounters_data();
    void hoursAreThoseOfTheCounters();
    void yearOfAmountsByTariff();
    void missingHourOfGasMakesALeast();
    void oneRegisterHasNoCostByTwoTariffs();
};

namespace {

constexpr std::size_t registers = 4; // import low and normal, export low and normal
using Counters = std::array<qint64, registers>; // Wh

/** "10646.114" as 10646114. */
qint64 thousandths(const QByteArray &text)
{
    const QByteArrayList parts = text.split('.');
    return parts.at(0).toLongLong() * 1000
        + (parts.size() > 1 ? parts.at(1).leftJustified(3, '0', true).toLongLong() : 0);
}

/** What the counters of the hourly file showed at the end of each of its hours, by its stamp. */
std::map<QByteArray, Counters> countersOf(const QString &name)
{
    QFile file(pathOf(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("the file of readings cannot be read");
    }
    file.readLine();
    std::map<QByteArray, Counters> all;
    while (!file.atEnd()) {
        const QByteArrayList fields = file.readLine().split(',');
        Counters &counters = all[fields.at(0)];
        for (std::size_t i = 0; i < registers; ++i) {
            counters[i] = thousandths(fields.at(int(i) + 1));
        }
    }
    return all;
}

QByteArray stampOf(const QDate &date, int hour)
{
    return QDateTime(date, QTime(hour, 0), QTimeZone::utc())
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
        .toLatin1();
}

/** The counters at the midnight with which a date begins. */
Counters atMidnight(const std::map<QByteArray, Counters> &counters, const QDate &date)
{
    return counters.at(stampOf(date.addDays(-1), 23));
}

/** A price that differs from hour to hour, below 0 in some. */
Price priceOf(int hour)
{
    return (hour * 7919) % 45000 - 5000;
}

} // namespace

void tst_RealCosts::initTestCase()
{
    if (!areThere()) {
        QTest::qSkip("there are no household data beside the sources", __FILE__, __LINE__);
    }
}

void tst_RealCosts::monthsByTariffAreThoseOfTheCounters()
{
    const Household household = load({hourlyFile});
    const auto counters = countersOf(hourlyFile);
    const Rate taken {28134, 33207};
    const Rate given {8900, 10150};
    const CostRules rules {
        {{QDate(2023, 1, 1), {{Quantity::GridImport, taken}, {Quantity::GridExport, given}}, 999}}};
    for (QDate month(2023, 3, 1); month < QDate(2024, 3, 1); month = month.addMonths(1)) {
        const Counters from = atMidnight(counters, month);
        const Counters to = atMidnight(counters, month.addMonths(1));
        const Days days {month, month.addMonths(1)};
        const Cost import = costOf(household, rules, Quantity::GridImport, days);
        QCOMPARE(import.known, (to[0] - from[0]) * taken.low + (to[1] - from[1]) * taken.normal);
        QVERIFY(import.isTold() && !import.mayBeMore && !import.mayBeLess);
        const Cost exported = costOf(household, rules, Quantity::GridExport, days);
        QCOMPARE(exported.known, -(to[2] - from[2]) * given.low - (to[3] - from[3]) * given.normal);
        QVERIFY(exported.isTold() && !exported.mayBeMore && !exported.mayBeLess);
    }
    // The file begins in the first hour of February.
    const Cost first =
        costOf(household, rules, Quantity::GridImport, {QDate(2023, 2, 1), QDate(2023, 3, 1)});
    QVERIFY(first.isTold() && first.mayBeMore && !first.mayBeLess);
}

void tst_RealCosts::hoursAreThoseOfTheCounters_data()
{
    QTest::addColumn<QDate>("month");
    QTest::addColumn<int>("hours");
    QTest::addColumn<bool>("isComplete");
    QTest::newRow("April") << QDate(2023, 4, 1) << 720 << true;
    QTest::newRow("summer time begins") << QDate(2023, 3, 1) << 743 << true;
    // One row stands for the two hours of the same name.
    QTest::newRow("summer time ends") << QDate(2023, 10, 1) << 745 << false;
}

void tst_RealCosts::hoursAreThoseOfTheCounters()
{
    QFETCH(QDate, month);
    QFETCH(int, hours);
    QFETCH(bool, isComplete);
    const Household household = load({hourlyFile});
    const auto counters = countersOf(hourlyFile);
    const qint64 start = Calendar(household.timeZone).month(month).from;
    CostRules rules {{{QDate(2023, 1, 1), {{Quantity::GridImport, {5100, 5100, true}}}}}};
    for (int hour = 0; hour < hours; ++hour) {
        // The two hours of the same name at a price above 0, so that their cost is a least.
        const bool isDouble = !isComplete && (hour == 28 * 24 + 2 || hour == 28 * 24 + 3);
        rules.prices.add(start + hour * 3600, isDouble ? 0 : priceOf(hour));
    }

    qint64 sum = 0;
    Counters before = atMidnight(counters, month);
    int hour = 0;
    for (QDate date = month; date < month.addMonths(1); date = date.addDays(1)) {
        for (int onClock = 0; onClock < 24; ++onClock) {
            const auto row = counters.find(stampOf(date, onClock));
            if (row == counters.end()) {
                continue; // the hour that is skipped
            }
            const qint64 used = row->second[0] - before[0] + row->second[1] - before[1];
            before = row->second;
            const bool isDouble = !isComplete && date.day() == 29 && onClock == 2;
            sum += isDouble ? 0 : used * (priceOf(hour) + 5100);
            hour += isDouble ? 2 : 1;
        }
    }
    QCOMPARE(hour, hours);
    const Cost cost = costOf(household, rules, Quantity::GridImport, {month, month.addMonths(1)});
    QCOMPARE(cost.known, sum);
    QVERIFY(cost.isTold() && !cost.mayBeLess);
    QCOMPARE(cost.mayBeMore, !isComplete);
}

void tst_RealCosts::yearOfAmountsByTariff()
{
    const Household household = load({quarterFile});
    const CostRules rules {{{QDate(2023, 1, 1), {{Quantity::GridImport, {25550, 32145}}}}}};
    const Cost year =
        costOf(household, rules, Quantity::GridImport, {QDate(2023, 1, 1), QDate(2024, 1, 1)});
    // 2,455.23 kWh at the low tariff and 6,328.42 at the normal one.
    QCOMPARE(year.known, 2455230LL * 25550 + 6328420LL * 32145);
    QVERIFY(year.isTold() && !year.mayBeMore);
    Cost months;
    for (QDate month(2023, 1, 1); month.year() == 2023; month = month.addMonths(1)) {
        months =
            months + costOf(household, rules, Quantity::GridImport, {month, month.addMonths(1)});
    }
    QCOMPARE(months.known, year.known);
}

void tst_RealCosts::missingHourOfGasMakesALeast()
{
    const Household household = load({gasFile});
    const CostRules rules {{{QDate(2023, 1, 1), {{Quantity::Gas, {123457, 123457}}}}}};
    const Cost year =
        costOf(household, rules, Quantity::Gas, {QDate(2023, 1, 1), QDate(2024, 1, 1)});
    QCOMPARE(year.known, 3550100LL * 123457);
    QVERIFY(year.isTold() && year.mayBeMore && !year.mayBeLess);
    const Cost september =
        costOf(household, rules, Quantity::Gas, {QDate(2023, 9, 1), QDate(2023, 10, 1)});
    QVERIFY(september.isTold() && !september.mayBeMore);
}

void tst_RealCosts::oneRegisterHasNoCostByTwoTariffs()
{
    const Household household = load({germanFile});
    const CostRules rules {{{QDate(2016, 1, 1), {{Quantity::GridImport, {25550, 32145}}}}}};
    QVERIFY(!costOf(household, rules, Quantity::GridImport, {QDate(2016, 5, 1), QDate(2016, 6, 1)})
                 .isTold());
}

QTEST_GUILESS_MAIN(tst_RealCosts)
#include "tst_realcosts.moc"
