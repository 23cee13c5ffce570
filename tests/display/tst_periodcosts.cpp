// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"
#include "costhouse.h"
#include "monthlist.h"
#include "periodcosts.h"

#include <QTest>
#include <random>

using namespace CostHouse;
using namespace Costs;

// Prices are hundred-thousandths of a euro, and sums hundred-millionths: 30000 is € 0.30 for a kWh,
// and a kWh at that price 30,000,000.
constexpr Price thirtyCents = 30000;
constexpr Price fortyCents = 40000;
constexpr qint64 perEuro = 100000000;

static const QDate january(2024, 1, 1);
static const QDate february(2024, 2, 1);
static const QDate march(2024, 3, 1);

class tst_PeriodCosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void centsAreRoundedAwayFromZero_data();
    void centsAreRoundedAwayFromZero();
    void sumsTellWhatIsNotKnown();
    void amountHasItsPrice();
    void whatTheHouseGivesComesIn();
    void tariffsHaveTheirOwnPrices();
    void oneRegisterHasNoCostByTwoTariffs();
    void twoRegistersHaveACostAtOnePrice();
    void pastOfOneRegisterHasNoCostByTwoTariffs();
    void contractMayChangeWithinAMonth();
    void nothingIsKnownBeforeTheFirstContract();
    void quantityWithoutAPriceIsNotKnown();
    void whatWasNotMeasuredMakesALeastOrAMost();
    void meterThatFellSilentMakesALeast_data();
    void meterThatFellSilentMakesALeast();
    void unmeasuredQuantityMakesTheTotalALeast();
    void standingChargeGoesByDays();
    void standingChargeCountsSoFar();
    void presentMonthCountsSoFar();
    void hoursHaveTheirPrices();
    void monthsHaveTheHoursOfTheClock_data();
    void monthsHaveTheHoursOfTheClock();
    void hourWithoutAPriceIsNotKnown();
    void hourWithoutUseNeedsNoPrice();
    void hourWithoutAnAmountMakesALeast();
    void hoursAfterTheLastReadingNeedNoPrice();
    void whatIsFinerThanAThousandthIsNotLost();
    void linesOfAMonthAddUp();
    void randomContractsAreAsDayByDay();
    void columnsAreWhatIsPricedAndCounted();
};

void tst_PeriodCosts::centsAreRoundedAwayFromZero_data()
{
    QTest::addColumn<qlonglong>("known");
    QTest::addColumn<qlonglong>("cents");
    QTest::newRow("nothing") << 0LL << 0LL;
    QTest::newRow("a little less than half") << 499999LL << 0LL;
    QTest::newRow("half") << 500000LL << 1LL;
    QTest::newRow("below zero, a little less") << -499999LL << 0LL;
    QTest::newRow("below zero, half") << -500000LL << -1LL;
    QTest::newRow("euros") << 1234567890123LL << 1234568LL;
}

void tst_PeriodCosts::centsAreRoundedAwayFromZero()
{
    QFETCH(qlonglong, known);
    QFETCH(qlonglong, cents);
    const Cost cost {known, true};
    QCOMPARE(cost.cents(), cents);
    QCOMPARE(cost.rounded().known, cents * 1000000);
}

void tst_PeriodCosts::sumsTellWhatIsNotKnown()
{
    const Cost whole {100, true};
    const Cost least {10, true, true};
    const Cost most {-1, true, false, true};
    QVERIFY(whole.isTold() && least.isTold() && most.isTold());
    QVERIFY(!Cost().isTold());
    const Cost sum = whole + least;
    QCOMPARE(sum.known, 110);
    QVERIFY(sum.isTold() && sum.mayBeMore && !sum.mayBeLess);
    QVERIFY(!(least + most).isTold());
    QVERIFY((Cost() + whole).isTold());
}

void tst_PeriodCosts::amountHasItsPrice()
{
    Household house = household();
    countDays(&house, {Quantity::Gas}, january, march, 10.1);
    const CostRules rules {{onePrice(january, Quantity::Gas, 123457)}};
    const Cost cost = costOf(house, rules, Quantity::Gas, monthFrom(january));
    // 31 days of 10.1 m³ at € 1.23457: € 386.543867.
    QCOMPARE(cost.known, 38654386700);
    QCOMPARE(cost.cents(), 38654);
    QVERIFY(cost.isTold() && !cost.mayBeMore);
    QVERIFY(!costOf(house, rules, Quantity::Water, monthFrom(january)).isTold());
}

void tst_PeriodCosts::whatTheHouseGivesComesIn()
{
    Household house = household();
    countDays(&house, {Quantity::GridExport}, january, march, 2.0);
    const CostRules rules {{onePrice(january, Quantity::GridExport, 9000)}};
    // 62 kWh at € 0.09.
    QCOMPARE(costOf(house, rules, Quantity::GridExport, monthFrom(january)).cents(), -558);
}

void tst_PeriodCosts::tariffsHaveTheirOwnPrices()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport, Tariff::Low}, january, march, 1.0);
    countDays(&house, {Quantity::GridImport, Tariff::Normal}, january, march, 2.0);
    const CostRules rules {{{january, {{Quantity::GridImport, {20000, thirtyCents}}}}}};
    // 31 kWh at € 0.20 and 62 at € 0.30.
    QCOMPARE(costOf(house, rules, Quantity::GridImport, monthFrom(january)).known,
             2480 * 1000000LL);
}

void tst_PeriodCosts::oneRegisterHasNoCostByTwoTariffs()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, march, 1.0);
    countDays(&house, {Quantity::GridExport}, january, march, 0.0);
    const CostRules rules {
        {{january,
          {{Quantity::GridImport, {20000, thirtyCents}}, {Quantity::GridExport, {4000, 6000}}}}}};
    const Cost cost = costOf(house, rules, Quantity::GridImport, monthFrom(january));
    QVERIFY(!cost.isTold() && cost.mayBeMore && !cost.mayBeLess);
    // Whatever the tariff, nothing costs nothing.
    const Cost given = costOf(house, rules, Quantity::GridExport, monthFrom(january));
    QVERIFY(given.isTold() && !given.mayBeMore && !given.mayBeLess);
    QCOMPARE(given.known, 0);
}

void tst_PeriodCosts::twoRegistersHaveACostAtOnePrice()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport, Tariff::Low}, january, march, 1.0);
    countDays(&house, {Quantity::GridImport, Tariff::Normal}, january, march, 2.0);
    const CostRules rules {{onePrice(january, Quantity::GridImport, thirtyCents)}};
    QCOMPARE(costOf(house, rules, Quantity::GridImport, monthFrom(january)).cents(), 93 * 30);
}

void tst_PeriodCosts::pastOfOneRegisterHasNoCostByTwoTariffs()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport, Tariff::Low}, february, march, 1.0);
    countDays(&house, {Quantity::GridImport, Tariff::Normal}, february, march, 2.0);
    Household past = household();
    countDays(&past, {Quantity::GridImport}, january, february, 3.0);
    house.add(past);
    const CostRules byTariff {{{january, {{Quantity::GridImport, {20000, thirtyCents}}}}}};
    QVERIFY(!costOf(house, byTariff, Quantity::GridImport, monthFrom(january)).isTold());
    // 29 kWh at € 0.20 and 58 at € 0.30.
    QCOMPARE(costOf(house, byTariff, Quantity::GridImport, monthFrom(february)).cents(), 2320);
    const CostRules byOne {{onePrice(january, Quantity::GridImport, thirtyCents)}};
    QCOMPARE(costOf(house, byOne, Quantity::GridImport, monthFrom(january)).cents(), 93 * 30);
}

void tst_PeriodCosts::contractMayChangeWithinAMonth()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, march, 10.0);
    const CostRules rules {{onePrice(january, Quantity::GridImport, thirtyCents),
                            onePrice(QDate(2024, 1, 16), Quantity::GridImport, fortyCents)}};
    // 15 days of 10 kWh at € 0.30 and 16 at € 0.40.
    QCOMPARE(costOf(house, rules, Quantity::GridImport, monthFrom(january)).cents(), 10900);
    QCOMPARE(costOf(house, rules, Quantity::GridImport, monthFrom(february)).cents(), 11600);
}

void tst_PeriodCosts::nothingIsKnownBeforeTheFirstContract()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, QDate(2024, 1, 10), march, 10.0);
    const CostRules late {{onePrice(QDate(2024, 1, 20), Quantity::GridImport, thirtyCents)}};
    QVERIFY(!costOf(house, late, Quantity::GridImport, monthFrom(january)).isTold());
    // Before anybody lived there nothing was paid.
    const CostRules inTime {{onePrice(QDate(2024, 1, 10), Quantity::GridImport, thirtyCents)}};
    const Cost cost = costOf(house, inTime, Quantity::GridImport, monthFrom(january));
    QCOMPARE(cost.cents(), 22 * 300);
    QVERIFY(cost.isTold() && !cost.mayBeMore);
}

void tst_PeriodCosts::quantityWithoutAPriceIsNotKnown()
{
    Household house = household();
    countDays(&house, {Quantity::Gas}, january, QDate(2024, 4, 1), 1.0);
    const CostRules rules {
        {onePrice(january, Quantity::Gas, 100000), onePrice(february, Quantity::Water, 100000)}};
    QCOMPARE(costOf(house, rules, Quantity::Gas, monthFrom(january)).cents(), 3100);
    const Cost cost = costOf(house, rules, Quantity::Gas, monthFrom(february));
    QVERIFY(!cost.isTold() && cost.mayBeMore && cost.mayBeLess);
    QVERIFY(!costsOfMonth(house, rules, february).total.isTold());
}

void tst_PeriodCosts::whatWasNotMeasuredMakesALeastOrAMost()
{
    Household house = household();
    for (const Quantity quantity : {Quantity::GridImport, Quantity::GridExport}) {
        countDays(&house, {quantity}, QDate(2024, 1, 5), march, 1.0);
    }
    const auto costAt = [&](Quantity quantity, Price price) {
        return costOf(house, {{onePrice(january, quantity, price)}}, quantity, monthFrom(january));
    };
    const Cost taken = costAt(Quantity::GridImport, thirtyCents);
    QCOMPARE(taken.cents(), 27 * 30);
    QVERIFY(taken.mayBeMore && !taken.mayBeLess);
    const Cost takenForMoney = costAt(Quantity::GridImport, -thirtyCents);
    QVERIFY(!takenForMoney.mayBeMore && takenForMoney.mayBeLess);
    const Cost given = costAt(Quantity::GridExport, thirtyCents);
    QCOMPARE(given.cents(), -27 * 30);
    QVERIFY(!given.mayBeMore && given.mayBeLess);
    const Cost forNothing = costAt(Quantity::GridExport, 0);
    QVERIFY(forNothing.isTold() && !forNothing.mayBeMore && !forNothing.mayBeLess);
}

void tst_PeriodCosts::meterThatFellSilentMakesALeast_data()
{
    QTest::addColumn<bool>("isHourly");
    QTest::newRow("one price") << false;
    QTest::newRow("prices of hours") << true;
}

void tst_PeriodCosts::meterThatFellSilentMakesALeast()
{
    QFETCH(bool, isHourly);
    Household house = household();
    countHours(&house, {Quantity::GridImport}, at(january), 48, 0.5);
    CostRules rules {{{january, {{Quantity::GridImport, {100000, 100000, isHourly}}}}}};
    for (int hour = 0; hour < 31 * 24; ++hour) {
        rules.prices.add(at(january) + qint64(hour) * 3600, 0);
    }
    const auto cost = [&] {
        return costOf(house, rules, Quantity::GridImport, monthFrom(january));
    };
    QCOMPARE(cost().cents(), 2400);
    QVERIFY(!cost().mayBeMore);
    // Still in January, it may come back.
    countDays(&house, {Quantity::Gas}, january, QDate(2024, 1, 31), 1.0);
    QVERIFY(!cost().mayBeMore);
    countDays(&house, {Quantity::Gas}, february, march, 1.0);
    QCOMPARE(cost().cents(), 2400);
    QVERIFY(cost().mayBeMore && !cost().mayBeLess);
}

void tst_PeriodCosts::unmeasuredQuantityMakesTheTotalALeast()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, march, 1.0);
    CostRules rules {{onePrice(january, Quantity::GridImport, thirtyCents)}};
    rules.contracts.front().rates[Quantity::Gas] = {100000, 100000};
    const MonthCosts costs = costsOfMonth(house, rules, january);
    QVERIFY(!costs.lines.at(Quantity::Gas).isTold());
    QCOMPARE(costs.total.cents(), 930);
    QVERIFY(costs.total.isTold() && costs.total.mayBeMore && !costs.total.mayBeLess);
}

void tst_PeriodCosts::standingChargeGoesByDays()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, march, 1.0);
    const auto standing = [&](const std::vector<Contract> &contracts, const QDate &month) {
        return standingOf(house, {contracts}, month);
    };
    const Contract ten {january, {}, 1000000};
    QCOMPARE(standing({ten}, january).known, 10 * perEuro);
    QCOMPARE(standing({ten}, february).known, 10 * perEuro);
    // 15 days of € 10 and 16 of € 12: € 342 / 31.
    QCOMPARE(standing({ten, {QDate(2024, 1, 16), {}, 1200000}}, january).known, 1103225806);
    // The same charge again is no less than one contract.
    QCOMPARE(standing({ten, {QDate(2024, 1, 16), {}, 1000000}}, january).known, 10 * perEuro);
    // A tax that is given back: 10 days of € -50, € -500 / 31.
    QCOMPARE(standing({{QDate(2024, 1, 22), {}, -5000000}}, january).known, -1612903226);
    QVERIFY(!standing({{january}}, january).isTold());
    const Cost nothing = standing({{january, {}, 0}}, january);
    QVERIFY(nothing.isTold());
    QCOMPARE(nothing.known, 0);
}

void tst_PeriodCosts::standingChargeCountsSoFar()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, QDate(2024, 2, 10), 1.0);
    const CostRules rules {{{january, {}, 2900000}}};
    // The reading at midnight ends the 9th; one minute later the 10th has begun.
    QCOMPARE(standingOf(house, rules, february).known, 9 * perEuro);
    house.meter({Quantity::GridImport}, Meter::Kind::Counter)
        .addReading(at(QDate(2024, 2, 10), 0, 1), 1040.5);
    QCOMPARE(standingOf(house, rules, february).known, 10 * perEuro);
    QCOMPARE(standingOf(house, rules, january).known, 29 * perEuro);
}

void tst_PeriodCosts::presentMonthCountsSoFar()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, QDate(2024, 2, 10), 10.0);
    house.meter({Quantity::GridImport}, Meter::Kind::Counter)
        .addReading(at(QDate(2024, 2, 10), 12), 1403.0);
    // The next contract has not begun yet.
    const CostRules rules {{onePrice(january, Quantity::GridImport, thirtyCents),
                            onePrice(QDate(2024, 2, 20), Quantity::GridImport, fortyCents)}};
    const Cost cost = costOf(house, rules, Quantity::GridImport, monthFrom(february));
    QCOMPARE(cost.cents(), 93 * 30);
    QVERIFY(cost.isTold() && !cost.mayBeMore);
}

void tst_PeriodCosts::hoursHaveTheirPrices()
{
    Household house = household();
    const qint64 midnight = at(january);
    Meter &meter = house.meter({Quantity::GridImport}, Meter::Kind::Counter);
    const double counter[] = {100.0, 101.5, 101.5, 104.0, 104.25};
    for (int hour = 0; hour < 5; ++hour) {
        meter.addReading(midnight + hour * 3600, counter[hour]);
    }
    CostRules rules {{{january, {{Quantity::GridImport, {1000, 1000, true}}}}}};
    const Price prices[] = {10000, 50000, -3000, 20000};
    for (int hour = 0; hour < 4; ++hour) {
        rules.prices.add(midnight + hour * 3600, prices[hour]);
    }
    // 1.5 kWh at € 0.11, 2.5 at € -0.02 and 0.25 at € 0.21.
    const Cost cost = costOf(house, rules, Quantity::GridImport, monthFrom(january));
    QCOMPARE(cost.known, 16500000 - 5000000 + 5250000);
    QVERIFY(cost.isTold() && !cost.mayBeMore && !cost.mayBeLess);
}

void tst_PeriodCosts::monthsHaveTheHoursOfTheClock_data()
{
    QTest::addColumn<QDate>("month");
    QTest::addColumn<int>("hours");
    QTest::newRow("February") << february << 29 * 24;
    QTest::newRow("summer time begins") << march << 31 * 24 - 1;
    QTest::newRow("summer time ends") << QDate(2024, 10, 1) << 31 * 24 + 1;
}

void tst_PeriodCosts::monthsHaveTheHoursOfTheClock()
{
    QFETCH(QDate, month);
    QFETCH(int, hours);
    // A kWh and a price for each hour, from a day before the month to a day behind it.
    Household house = household();
    countHours(&house, {Quantity::GridImport}, at(month) - 24 * 3600, hours + 48, 1.0);
    CostRules rules {{{january, {{Quantity::GridImport, {0, 0, true}}}}}};
    qint64 sum = 0;
    for (int hour = -24; hour < hours + 24; ++hour) {
        rules.prices.add(at(month) + hour * 3600, 1000 + hour);
        sum += hour >= 0 && hour < hours ? (1000 + hour) * 1000 : 0;
    }
    const Cost cost = costOf(house, rules, Quantity::GridImport, monthFrom(month));
    QCOMPARE(cost.known, sum);
    QVERIFY(cost.isTold() && !cost.mayBeMore);
}

/** Four hours of 1 kWh, and the price of each, of which some may not be known. */
static Cost costOfFourHours(const std::vector<std::optional<Price>> &prices,
                            const std::vector<double> &counter)
{
    Household house = household();
    Meter &meter = house.meter({Quantity::GridImport}, Meter::Kind::Counter);
    for (std::size_t hour = 0; hour < counter.size(); ++hour) {
        if (counter[hour] > 0.0) {
            meter.addReading(at(january) + qint64(hour) * 3600, counter[hour]);
        }
    }
    CostRules rules {{{january, {{Quantity::GridImport, {0, 0, true}}}}}};
    for (std::size_t hour = 0; hour < prices.size(); ++hour) {
        if (prices[hour]) {
            rules.prices.add(at(january) + qint64(hour) * 3600, *prices[hour]);
        }
    }
    return costOf(house, rules, Quantity::GridImport, monthFrom(january));
}

void tst_PeriodCosts::hourWithoutAPriceIsNotKnown()
{
    const Cost cost = costOfFourHours({100, {}, 100, 100}, {1, 2, 3, 4, 5});
    QVERIFY(!cost.isTold() && cost.mayBeMore && cost.mayBeLess);
    QVERIFY(!costOfFourHours({100, 100, 100}, {1, 2, 3, 4, 5}).isTold());
    QVERIFY(!costOfFourHours({}, {1, 2, 3, 4, 5}).isTold());
}

void tst_PeriodCosts::hourWithoutUseNeedsNoPrice()
{
    const Cost cost = costOfFourHours({100, {}, 100, {}}, {1, 2, 2, 3, 3});
    QVERIFY(cost.isTold() && !cost.mayBeMore && !cost.mayBeLess);
    QCOMPARE(cost.known, 200 * 1000);
}

void tst_PeriodCosts::hourWithoutAnAmountMakesALeast()
{
    const Cost least = costOfFourHours({100, 100, 100, 100}, {1, 2, 0, 4, 5});
    QVERIFY(least.isTold() && least.mayBeMore && !least.mayBeLess);
    QCOMPARE(least.known, 200 * 1000);
    QVERIFY(!costOfFourHours({100, 100, -100, 100}, {1, 2, 0, 4, 5}).isTold());
}

void tst_PeriodCosts::hoursAfterTheLastReadingNeedNoPrice()
{
    const Cost cost = costOfFourHours({100, 100}, {1, 2, 3});
    QVERIFY(cost.isTold() && !cost.mayBeMore);
    QCOMPARE(cost.known, 200 * 1000);
    // Half an hour of the one that is running.
    Household house = household();
    countHours(&house, {Quantity::GridImport}, at(january), 1, 1.0);
    house.meter({Quantity::GridImport}, Meter::Kind::Counter)
        .addReading(at(january, 1, 30), 1001.5);
    CostRules rules {{{january, {{Quantity::GridImport, {0, 0, true}}}}}};
    rules.prices.add(at(january), 100);
    rules.prices.add(at(january, 1), 200);
    QCOMPARE(costOf(house, rules, Quantity::GridImport, monthFrom(january)).known,
             1000 * 100 + 500 * 200);
}

void tst_PeriodCosts::whatIsFinerThanAThousandthIsNotLost()
{
    Household house = household();
    countHours(&house, {Quantity::GridImport}, at(january), 24, 0.0004);
    CostRules rules {{{january, {{Quantity::GridImport, {0, 0, true}}}}}};
    for (int hour = 0; hour < 24; ++hour) {
        rules.prices.add(at(january, hour), 30000);
    }
    // 9.6 Wh, not 24 times nothing.
    QCOMPARE(costOf(house, rules, Quantity::GridImport, monthFrom(january)).known, 10 * 30000);
}

void tst_PeriodCosts::linesOfAMonthAddUp()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, march, 1.0);
    countDays(&house, {Quantity::GridExport}, january, march, 0.5);
    countDays(&house, {Quantity::Gas}, january, march, 2.0);
    const CostRules rules {{{january,
                             {{Quantity::GridImport, {30014, 30014}},
                              {Quantity::GridExport, {9001, 9001}},
                              {Quantity::Gas, {123407, 123407}}},
                             500499}}};
    const MonthCosts costs = costsOfMonth(house, rules, january);
    QCOMPARE(costs.lines.size(), std::size_t(3));
    QCOMPARE(costs.lines.at(Quantity::GridImport).cents(), 930); // 9.30434
    QCOMPARE(costs.lines.at(Quantity::GridExport).cents(), -140); // -1.395155
    QCOMPARE(costs.lines.at(Quantity::Gas).cents(), 7651); // 76.51234
    QCOMPARE(costs.standing.cents(), 500); // 5.00499
    // That of the exact lines would be 89.43.
    QCOMPARE(costs.total.cents(), 930 - 140 + 7651 + 500);
    QVERIFY(costs.total.isTold() && !costs.total.mayBeMore && !costs.total.mayBeLess);
}

void tst_PeriodCosts::randomContractsAreAsDayByDay()
{
    constexpr int days = 91; // January to March
    std::mt19937 random(20240101);
    const auto below = [&](int end) { return int(random() % unsigned(end)); };
    for (int round = 0; round < 1000; ++round) {
        Household house = household();
        std::vector<std::pair<int, int>> thousandths;
        std::pair<int, int> counters(below(1000000), below(1000000));
        for (int day = 0; day <= days; ++day) {
            const auto read = [&](Tariff tariff, int counter) {
                house.meter({Quantity::GridImport, tariff}, Meter::Kind::Counter)
                    .addReading(at(january.addDays(day)), counter / 1000.0);
            };
            read(Tariff::Low, counters.first);
            read(Tariff::Normal, counters.second);
            thousandths.emplace_back(below(30000), below(30000));
            counters.first += thousandths.back().first;
            counters.second += thousandths.back().second;
        }
        CostRules rules;
        for (QDate from = january; from <= QDate(2024, 3, 31); from = from.addDays(1 + below(40))) {
            rules.contracts.push_back(
                {from, {{Quantity::GridImport, {below(99999) - 20000, below(99999) - 20000}}}});
        }
        qint64 sum = 0;
        for (int day = 0; day < days; ++day) {
            const Contract *contract = nullptr;
            for (const Contract &known : rules.contracts) {
                contract = known.from <= january.addDays(day) ? &known : contract;
            }
            const Rate &rate = *contract->rateOf(Quantity::GridImport);
            sum += thousandths[std::size_t(day)].first * rate.low
                + thousandths[std::size_t(day)].second * rate.normal;
        }
        Cost cost;
        for (const QDate &month : {january, february, march}) {
            cost = cost + costOf(house, rules, Quantity::GridImport, monthFrom(month));
        }
        QCOMPARE(cost.known, sum);
        QVERIFY(cost.isTold() && !cost.mayBeMore && !cost.mayBeLess);
    }
}

void tst_PeriodCosts::columnsAreWhatIsPricedAndCounted()
{
    Household house = household();
    countDays(&house, {Quantity::GridImport}, january, march, 1.0);
    countDays(&house, {Quantity::GridExport}, january, march, 0.0);
    countDays(&house, {Quantity::Water}, january, march, 1.0);
    CostRules rules {{onePrice(january, Quantity::GridImport, thirtyCents),
                      onePrice(february, Quantity::GridExport, thirtyCents),
                      onePrice(march, Quantity::Gas, thirtyCents)}};
    // Water has no price, the export never was, and that the gas is not measured is to be seen.
    QCOMPARE(pricedQuantities(house, rules),
             (std::vector<Quantity> {Quantity::GridImport, Quantity::Gas}));
    QCOMPARE(countedQuantities(house),
             (std::vector<Quantity> {Quantity::GridImport, Quantity::Water}));
    QCOMPARE(monthsOf(house), (std::vector<QDate> {february, january}));
    QVERIFY(monthsOf(household()).empty());
}

QTEST_GUILESS_MAIN(tst_PeriodCosts)
#include "tst_periodcosts.moc"
