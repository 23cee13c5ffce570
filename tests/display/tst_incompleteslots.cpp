// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartvalues.h"
#include "household.h"

#include <QTest>
#include <algorithm>
#include <random>

using namespace Readings;

namespace {

constexpr qint64 hour = 3600;
constexpr qint64 step = 300;

/** A reading in whole thousandths, so that sums are exact. */
struct Shown
{
    qint64 instant;
    qint64 value;
};

/** The readings of a meter that is followed from some moment on, with silences. */
std::vector<Shown> randomReadings(qint64 from, qint64 to, std::mt19937 *random)
{
    const auto below = [random](qint64 limit) {
        return std::uniform_int_distribution<qint64>(0, limit - 1)(*random);
    };
    std::vector<Shown> readings;
    qint64 value = below(5000000);
    for (qint64 at = from + below(5 * 24 * hour); at < to;) {
        readings.push_back({at, value});
        const bool isSilent = below(300) == 0;
        const qint64 next = isSilent ? at + 1 + below(below(4) == 0 ? 200 * hour : 5 * hour)
                                     : (at / step + 1) * step;
        value += below(1 + (next - at) / 3);
        at = next;
    }
    return readings;
}

/** What a slot is to show, summed up reading by reading. */
struct Expected
{
    bool isKnown = false;
    bool isComplete = true;
    qint64 sum = 0;

    void add(const std::vector<Shown> &readings, const Interval &slot, qint64 readUntil)
    {
        const Shown *previous = nullptr;
        bool atStart = false;
        bool atEnd = false;
        for (const Shown &reading : readings) {
            if (reading.instant < slot.from || reading.instant > slot.to) {
                continue;
            }
            if (previous) {
                sum += reading.value - previous->value;
                isKnown = true;
            }
            previous = &reading;
            atStart = atStart || reading.instant == slot.from;
            atEnd =
                reading.instant == slot.to || (&reading == &readings.back() && slot.to > readUntil);
        }
        isComplete = isComplete && atStart && atEnd && previous->instant > slot.from;
    }
};

} // namespace

/** Bars of times of which only a part was measured. */
class tst_IncompleteSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySlotShowsWhatWasMeasured_data();
    void everySlotShowsWhatWasMeasured();
    void amountsOfAPartAreShown();

private:
    void check(const ChartValues &chart, const std::vector<Interval> &slots, qint64 readUntil);

    const Calendar calendar {QTimeZone("Europe/Amsterdam")};
    std::vector<std::vector<Shown>> counted;
    int incomplete = 0;
    int complete = 0;
    int gaps = 0;
};

void tst_IncompleteSlots::everySlotShowsWhatWasMeasured_data()
{
    QTest::addColumn<QDate>("first");
    QTest::addColumn<int>("registers");
    for (const QDate &first : {QDate(2024, 3, 1), QDate(2024, 10, 1), QDate(2024, 1, 1)}) {
        for (int registers = 1; registers <= 2; ++registers) {
            QTest::addRow("%d/%d", first.month(), registers) << first << registers;
        }
    }
}

void tst_IncompleteSlots::check(const ChartValues &chart, const std::vector<Interval> &slots,
                                qint64 readUntil)
{
    QCOMPARE(chart.values.size(), slots.size());
    for (std::size_t i = 0; i < slots.size(); ++i) {
        Expected expected;
        for (const std::vector<Shown> &readings : counted) {
            expected.add(readings, slots[i], readUntil);
        }
        QCOMPARE(chart.values[i].has_value(), expected.isKnown);
        QCOMPARE(chart.incomplete.count(chart.slotOf(i)) > 0,
                 expected.isKnown && !expected.isComplete);
        if (expected.isKnown) {
            QCOMPARE(qRound64(*chart.values[i] * 1000.0), expected.sum);
        }
        ++(!expected.isKnown ? gaps : expected.isComplete ? complete : incomplete);
    }
}

void tst_IncompleteSlots::everySlotShowsWhatWasMeasured()
{
    QFETCH(QDate, first);
    QFETCH(int, registers);
    std::mt19937 random(quint32(first.month() * 10 + registers));
    DateRange month {first, first.addMonths(1).addDays(-1)};
    for (int round = 0; round < 4; ++round) {
        counted.clear();
        std::vector<Meter> meters;
        for (int i = 0; i < registers; ++i) {
            counted.push_back(randomReadings(calendar.day(month.first).from,
                                             calendar.day(month.last).to, &random));
            meters.emplace_back(Meter::Kind::Counter, 25.0);
            // The last one goes silent, and the others go on.
            if (i == registers - 1) {
                counted.back().resize(counted.back().size() - random() % 2000);
            }
            for (const Shown &reading : counted.back()) {
                meters.back().addReading(reading.instant, double(reading.value) / 1000.0);
            }
        }
        Calendar::Meters asked;
        month.readUntil = calendar.day(month.last).to - qint64(random() % 100000);
        for (const Meter &meter : meters) {
            asked.push_back(&meter);
            month.readUntil = std::max(month.readUntil, *meter.lastInstant());
        }
        std::vector<Interval> hours;
        for (QDate date = month.first; date <= month.last; date = date.addDays(1)) {
            for (int slot = 0; slot < 24; ++slot) {
                hours.push_back(calendar.hour(date, slot));
            }
        }
        check(chartValues(calendar, asked, Period::Day, month), hours, month.readUntil);
        std::vector<Interval> days;
        const QDate end = Calendar::mondayOf(month.last).addDays(7);
        for (QDate date = Calendar::mondayOf(month.first); date < end; date = date.addDays(1)) {
            days.push_back(calendar.day(date));
        }
        check(chartValues(calendar, asked, Period::Week, month), days, month.readUntil);
        std::vector<Interval> months;
        for (int number = 1; number <= 12; ++number) {
            months.push_back(calendar.month(QDate(first.year(), number, 1)));
        }
        check(chartValues(calendar, asked, Period::Year, month), months, month.readUntil);
    }
    QVERIFY(incomplete > 20 && complete > 200 && gaps > 100);
}

void tst_IncompleteSlots::amountsOfAPartAreShown()
{
    const QDate date(2024, 5, 1);
    Meter meter(Meter::Kind::Amounts, 25.0);
    const qint64 nine = calendar.hour(date, 9).from;
    meter.addAmount({nine + 900, nine + 1800}, 0.25);
    meter.addAmount({nine + 1800, nine + hour}, 0.5);
    meter.addAmount({nine + hour, nine + 2 * hour}, 1.0);
    const ChartValues chart = chartValues(calendar, {&meter}, Period::Day, {date, date});
    QCOMPARE(chart.values[9].value_or(-1.0), 0.75);
    QCOMPARE(chart.values[10].value_or(-1.0), 1.0);
    QVERIFY(!chart.values[8] && !chart.values[11]);
    QCOMPARE(chart.incomplete, std::set<int>({9}));
}

QTEST_GUILESS_MAIN(tst_IncompleteSlots)
#include "tst_incompleteslots.moc"
