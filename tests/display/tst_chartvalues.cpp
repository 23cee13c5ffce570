// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartvalues.h"
#include "meter.h"

#include <QTest>
#include <QTimeZone>
#include <ZEMHistogramData>

#include <memory>

using Readings::Calendar;
using Readings::Meter;

class tst_ChartValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void dayWindows();
    void weekWindows();
    void monthWindowsEndWithTheLastWeek();
    void runningSlotShowsWhatIsCounted();
    void yearWindows();
    void dayOf23HoursComesOutWhole();
    void dayOf25HoursComesOutWhole();
    void gapsAreNoBarsAndZerosAre();
    void chartDataOfWindows();
    void largestValueIgnoresGaps();
    void valueLimitsAreRound();
    void slotsHaveTheirTimes_data();
    void slotsHaveTheirTimes();

private:
    /** A counter that is read each full hour and counts 1 kWh in each, over both dates. */
    void readHourly(const QDate &from, const QDate &to);
    ChartValues values(Period period, const QDate &from, const QDate &to) const;

    const Calendar calendar {QTimeZone("Europe/Amsterdam")};
    std::unique_ptr<Meter> meter;
};

void tst_ChartValues::init()
{
    meter = std::make_unique<Meter>(Meter::Kind::Counter, 25.0);
}

void tst_ChartValues::readHourly(const QDate &from, const QDate &to)
{
    constexpr qint64 hour = 3600;
    double reading = 100.0;
    for (qint64 t = calendar.day(from).from; t <= calendar.day(to).to; t += hour) {
        meter->addReading(t, reading);
        reading += 1.0;
    }
}

ChartValues tst_ChartValues::values(Period period, const QDate &from, const QDate &to) const
{
    return chartValues(calendar, {meter.get()}, period, {from, to});
}

static double sum(const ChartValues &chart, std::size_t first, std::size_t count)
{
    double total = 0.0;
    for (std::size_t i = first; i < first + count; ++i) {
        total += chart.values[i].value_or(0.0);
    }
    return total;
}

void tst_ChartValues::dayWindows()
{
    const QDate monday(2016, 3, 7);
    readHourly(monday, monday.addDays(2));
    const ChartValues chart = values(Period::Day, monday, monday.addDays(2));
    QCOMPARE(chart.windows(), 3u);
    QCOMPARE(chart.newestWindow, monday.addDays(2));
    QCOMPARE(chart.values.size(), std::size_t(72));
    for (const std::optional<double> &value : chart.values) {
        QCOMPARE(value.value_or(-1.0), 1.0);
    }
}

void tst_ChartValues::weekWindows()
{
    const QDate wednesday(2016, 3, 9);
    readHourly(wednesday, wednesday.addDays(7));
    const ChartValues chart = values(Period::Week, wednesday, wednesday.addDays(7));
    QCOMPARE(chart.windows(), 2u);
    QCOMPARE(chart.newestWindow, QDate(2016, 3, 14));
    QVERIFY(!chart.values[1].has_value()); // Tuesday, before the first reading
    QCOMPARE(chart.values[2].value_or(-1.0), 24.0);
    QCOMPARE(chart.values[9].value_or(-1.0), 24.0);
    QVERIFY(!chart.values[10].has_value());
}

void tst_ChartValues::monthWindowsEndWithTheLastWeek()
{
    const QDate monday(2016, 3, 7);
    const QDate last = monday.addDays(7 * 6); // seven weeks: two windows of five
    readHourly(monday, last.addDays(6));
    const ChartValues chart = values(Period::Month, monday, last);
    QCOMPARE(chart.windows(), 2u);
    QCOMPARE(chart.newestWindow, last.addDays(-7 * 4));
    QVERIFY(!chart.values[2].has_value());
    QVERIFY(chart.incomplete.empty());
    QCOMPARE(chart.values[3].value_or(-1.0), 7 * 24.0);
    // The week that begins on 21 March 2016 lost an hour to summer time.
    QCOMPARE(chart.values[5].value_or(-1.0), 7 * 24.0 - 1.0);
    QCOMPARE(chart.values[9].value_or(-1.0), 7 * 24.0);
}

void tst_ChartValues::runningSlotShowsWhatIsCounted()
{
    const QDate wednesday(2016, 3, 9);
    readHourly(QDate(2016, 3, 7), QDate(2016, 3, 8));
    meter->addReading(calendar.hour(wednesday, 0).to, 149.0);
    meter->addReading(calendar.hour(wednesday, 1).from + 600, 149.25);
    const ChartValues hours = values(Period::Day, wednesday, wednesday);
    QCOMPARE(hours.values[0].value_or(-1.0), 1.0);
    QCOMPARE(hours.values[1].value_or(-1.0), 0.25);
    QVERIFY(!hours.values[2].has_value());
    const ChartValues days = values(Period::Week, wednesday, wednesday);
    QCOMPARE(days.values[1].value_or(-1.0), 24.0);
    QCOMPARE(days.values[2].value_or(-1.0), 1.25);
    QVERIFY(!days.values[3].has_value());
}

void tst_ChartValues::yearWindows()
{
    readHourly(QDate(2015, 11, 1), QDate(2016, 4, 30));
    const ChartValues chart = values(Period::Year, QDate(2015, 11, 1), QDate(2016, 4, 30));
    QCOMPARE(chart.windows(), 2u);
    QCOMPARE(chart.newestWindow, QDate(2016, 1, 1));
    QVERIFY(!chart.values[9].has_value());
    QCOMPARE(chart.values[10].value_or(-1.0), 30 * 24.0);
    QCOMPARE(chart.values[13].value_or(-1.0), 29 * 24.0); // February of a leap year
    QCOMPARE(chart.values[14].value_or(-1.0), 31 * 24.0 - 1.0); // summer time took an hour
    QVERIFY(!chart.values[16].has_value());
}

void tst_ChartValues::dayOf23HoursComesOutWhole()
{
    const QDate summerTime(2016, 3, 27);
    readHourly(summerTime, summerTime);
    const ChartValues hours = values(Period::Day, summerTime, summerTime);
    QVERIFY(!hours.values[2].has_value()); // 2:00 to 3:00 did not exist
    QCOMPARE(hours.values[1].value_or(-1.0), 1.0);
    QCOMPARE(hours.values[3].value_or(-1.0), 1.0);
    QCOMPARE(sum(hours, 0, 24), 23.0);
    QCOMPARE(values(Period::Week, summerTime, summerTime).values[6].value_or(-1.0), 23.0);
}

void tst_ChartValues::dayOf25HoursComesOutWhole()
{
    const QDate winterTime(2016, 10, 30);
    readHourly(winterTime, winterTime);
    const ChartValues hours = values(Period::Day, winterTime, winterTime);
    QCOMPARE(hours.values[2].value_or(-1.0), 2.0); // 2:00 to 3:00 came twice
    QCOMPARE(sum(hours, 0, 24), 25.0);
    QCOMPARE(values(Period::Week, winterTime, winterTime).values[6].value_or(-1.0), 25.0);
}

void tst_ChartValues::gapsAreNoBarsAndZerosAre()
{
    const QDate date(2016, 3, 7);
    const qint64 midnight = calendar.day(date).from;
    for (const int hour : {0, 1, 2, 5, 6}) {
        meter->addReading(midnight + hour * 3600, 10.0); // nothing used
    }
    const ChartValues chart = values(Period::Day, date, date);
    const std::unique_ptr<ZEMHistogramData> data(makeChartData(chart));
    data->setRectOfInterest(QRectF(0.0, 0.0, 24.0, 10.0));
    for (size_t hour = 1; hour < 24; ++hour) {
        const bool known = hour == 1 || hour == 5;
        QCOMPARE(data->sample(hour).interval.isValid(), known);
        QCOMPARE(data->sample(hour).value, 0.0);
    }
    QVERIFY(data->sample(0).interval.isValid());
}

void tst_ChartValues::chartDataOfWindows()
{
    ChartValues chart {Period::Week, QDate(2016, 3, 7), {}};
    for (int day = 0; day < 14; ++day) {
        chart.values.push_back(day == 3 ? std::nullopt : std::optional<double>(day));
    }
    const std::unique_ptr<ZEMHistogramData> data(makeChartData(chart));
    QCOMPARE(data->interval(), QwtInterval(-7.0, 7.0));
    data->setRectOfInterest(QRectF(-7.0, 0.0, 7.0, 10.0));
    QCOMPARE(data->sample(1).value, 1.0);
    QCOMPARE(data->sample(1).interval.minValue(), -6.0 + infoOf(Period::Week).inset);
    QCOMPARE(data->sample(1).interval.maxValue(), -5.0 - infoOf(Period::Week).inset);
    QVERIFY(!data->sample(3).interval.isValid());
    data->setRectOfInterest(QRectF(0.0, 0.0, 7.0, 10.0));
    QCOMPARE(data->sample(6).value, 13.0);
    QCOMPARE(data->valueLimits(), QwtInterval(0.0, 13.0));
}

void tst_ChartValues::largestValueIgnoresGaps()
{
    QCOMPARE(largestValue({Period::Day, {}, {}}), 0.0);
    QCOMPARE(largestValue({Period::Day, {}, {std::nullopt, 2.5, std::nullopt, 1.0}}), 2.5);
}

void tst_ChartValues::valueLimitsAreRound()
{
    QCOMPARE(valueLimitFor(0.0), 1.0);
    QCOMPARE(valueLimitFor(0.012), 0.02);
    QCOMPARE(valueLimitFor(double(0.1F)), 0.1);
    QCOMPARE(valueLimitFor(0.11), 0.2);
    QCOMPARE(valueLimitFor(1.0), 1.0);
    QCOMPARE(valueLimitFor(2.01), 5.0);
    QCOMPARE(valueLimitFor(5.1), 10.0);
    QCOMPARE(valueLimitFor(999.0), 1000.0);
}

void tst_ChartValues::slotsHaveTheirTimes_data()
{
    QTest::addColumn<int>("period");
    for (const Period period : allPeriods) {
        QTest::newRow(infoOf(period).key) << int(period);
    }
}

void tst_ChartValues::slotsHaveTheirTimes()
{
    QFETCH(int, period);
    // Over the nights of summer and winter time, and the turn of a year.
    const QDate first(2015, 12, 30);
    const QDate last(2016, 11, 2);
    readHourly(first, last);
    const ChartValues chart = values(Period(period), first, last);
    for (std::size_t i = 0; i < chart.values.size(); ++i) {
        const Readings::Interval interval =
            intervalOfSlot(calendar, Period(period), chart.newestWindow, chart.slotOf(i));
        const auto measured = Calendar::measured({meter.get()}, interval, 0);
        QCOMPARE(measured ? measured->amount : -1.0, chart.values[i].value_or(-1.0));
    }
}

QTEST_GUILESS_MAIN(tst_ChartValues)
#include "tst_chartvalues.moc"
