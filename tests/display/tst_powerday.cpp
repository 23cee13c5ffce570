// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"
#include "powerday.h"
#include "readingsfile.h"
#include "simulatedhouse.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>
#include <cmath>
#include <limits>
#include <numeric>

using namespace Readings;

namespace {

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
constexpr qint64 minute = 60;
constexpr qint64 hour = 3600;
constexpr double tolerance = 1e-6; // W
const QTimeZone dutchZone("Europe/Amsterdam");
const QDate winterDay(2024, 2, 20);

Meter &counterOf(Household *household, Quantity quantity, Tariff tariff = Tariff::Single)
{
    return household->meter({quantity, tariff}, Meter::Kind::Counter);
}

Household emptyHousehold()
{
    Household household;
    household.timeZone = dutchZone;
    return household;
}

qint64 startOf(const QDate &date)
{
    return Calendar(dutchZone).day(date).from;
}

/** Reads a counter so often over a day; it counts @p watts, and so many more with each step. */
void readDay(Meter *meter, const QDate &date, qint64 step, double watts, double rise = 0.0)
{
    const Interval day = Calendar(dutchZone).day(date);
    double reading = 1000.0;
    for (qint64 t = day.from; t <= day.to; t += step) {
        meter->addReading(t, reading);
        reading += watts / 1000.0 * double(step) / hour;
        watts += rise;
    }
}

std::vector<PowerKind> kindsOf(const PowerDay &day)
{
    std::vector<PowerKind> kinds;
    for (const PowerCurve &curve : day.curves) {
        kinds.push_back(curve.kind);
    }
    return kinds;
}

const std::vector<double> &wattsOf(const PowerDay &day, PowerKind kind)
{
    for (const PowerCurve &curve : day.curves) {
        if (curve.kind == kind) {
            return curve.watts;
        }
    }
    qFatal("there is no such curve");
}

int knownIn(const std::vector<double> &watts)
{
    return int(
        std::count_if(watts.begin(), watts.end(), [](double w) { return std::isfinite(w); }));
}

/** In kWh; of a day without gaps. */
double energyOf(const std::vector<double> &watts)
{
    return std::accumulate(watts.begin(), watts.end(), 0.0) / 60.0 / 1000.0;
}

bool isNear(double left, double right, double allowed = tolerance)
{
    return std::abs(left - right) <= allowed;
}

} // namespace

class tst_PowerDay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metersDecideWhichCurvesThereAre();
    void hourlyMeterGivesTheMeanOfItsHours();
    void minuteMeterGivesEachMinute();
    void readingsBetweenMinutesAreWeighted();
    void missingReadingIsAGap();
    void longIntervalIsAGap();
    void rowsOfAmountsHaveGaps();
    void curveEndsWithTheLastReading();
    void stepOverMidnightBelongsToBothDays();
    void metersReadAtOtherTimesShareOnlyCommonReadings();
    void tariffsAreOneCurve();
    void hoursWithAGapHaveNoBar();
    void daysOf23And25Hours_data();
    void daysOf23And25Hours();
    void singleReadingOfTheDoubledHourWillDo();
    void simulatedHouseAddsUpToItsCounters_data();
    void simulatedHouseAddsUpToItsCounters();
    void simulatedDayEndsNow();
    void realMinutes();
    void realMinutesHaveTheirGap();
};

void tst_PowerDay::metersDecideWhichCurvesThereAre()
{
    using Kinds = std::vector<PowerKind>;
    Household house = emptyHousehold();
    QVERIFY(powerDay(house, winterDay).curves.empty());
    QVERIFY(powerDay(house, winterDay).gridByHour.empty());
    QVERIFY(powerDay(house, winterDay).isEmpty());

    readDay(&counterOf(&house, Quantity::GridImport), winterDay, hour, 500.0);
    QVERIFY(kindsOf(powerDay(house, winterDay)) == Kinds {PowerKind::Consumption});

    // An export meter that never counted is one of a house without panels.
    Household without = house;
    const Interval whole = Calendar(dutchZone).day(winterDay);
    for (const qint64 t : {whole.from, whole.to}) {
        counterOf(&without, Quantity::GridExport, Tariff::Low).addReading(t, 0.0);
    }
    QVERIFY(kindsOf(powerDay(without, winterDay)) == Kinds {PowerKind::Consumption});

    // One that counted before has panels, though they gave nothing on that day.
    readDay(&counterOf(&house, Quantity::GridExport, Tariff::Low), winterDay, hour, 0.0);
    QVERIFY((kindsOf(powerDay(house, winterDay))
             == Kinds {PowerKind::GridImport, PowerKind::GridExport}));

    readDay(&counterOf(&house, Quantity::GridExport, Tariff::Normal), winterDay, hour, 200.0);
    QVERIFY((kindsOf(powerDay(house, winterDay))
             == Kinds {PowerKind::GridImport, PowerKind::GridExport}));
    QVERIFY(isNear(wattsOf(powerDay(house, winterDay), PowerKind::GridExport)[700], 200.0));

    readDay(&counterOf(&house, Quantity::SolarProduction), winterDay, hour, 900.0);
    const PowerDay day = powerDay(house, winterDay);
    QVERIFY((kindsOf(day) == Kinds {PowerKind::Consumption, PowerKind::Production}));
    QVERIFY(isNear(wattsOf(day, PowerKind::Consumption)[700], 500.0 - 200.0 + 900.0));
    QVERIFY(isNear(wattsOf(day, PowerKind::Production)[700], 900.0));
    QVERIFY(isNear(day.gridByHour[11], 500.0));
    QVERIFY(!day.isEmpty());
    QVERIFY(powerDay(house, winterDay.addDays(3)).isEmpty());
}

void tst_PowerDay::hourlyMeterGivesTheMeanOfItsHours()
{
    Household house = emptyHousehold();
    readDay(&counterOf(&house, Quantity::GridImport), winterDay, hour, 100.0, 50.0);
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QCOMPARE(watts.size(), std::size_t(1440));
    QCOMPARE(day.gridByHour.size(), std::size_t(24));
    for (std::size_t i = 0; i < watts.size(); ++i) {
        QVERIFY(isNear(watts[i], 100.0 + 50.0 * double(i / 60)));
        QVERIFY(isNear(day.gridByHour[i / 60], watts[i]));
    }
}

void tst_PowerDay::minuteMeterGivesEachMinute()
{
    Household house = emptyHousehold();
    readDay(&counterOf(&house, Quantity::GridImport), winterDay, minute, 10.0, 2.0);
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    for (std::size_t i = 0; i < watts.size(); ++i) {
        QVERIFY(isNear(watts[i], 10.0 + 2.0 * double(i), 1e-4));
    }
    QVERIFY(isNear(day.gridByHour[3], 10.0 + 2.0 * (180.0 + 29.5), 1e-4));
}

void tst_PowerDay::readingsBetweenMinutesAreWeighted()
{
    Household house = emptyHousehold();
    Meter &meter = counterOf(&house, Quantity::GridImport);
    const qint64 noon = startOf(winterDay) + 12 * hour;
    meter.addReading(noon + 20, 100.0);
    meter.addReading(noon + 75, 100.0 + 55 * 3.6e-4); // 1296 W
    meter.addReading(noon + 120, 100.0 + 55 * 3.6e-4 + 45 * 7.2e-4); // 2592 W
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QVERIFY(std::isnan(watts[720])); // its first 20 seconds are not known
    QVERIFY(isNear(watts[721], (15 * 1296.0 + 45 * 2592.0) / 60.0));
    QCOMPARE(knownIn(watts), 1);
}

void tst_PowerDay::missingReadingIsAGap()
{
    Household house = emptyHousehold();
    Meter &meter = counterOf(&house, Quantity::GridImport);
    for (int h = 0; h <= 24; ++h) {
        if (h != 7) {
            meter.addReading(startOf(winterDay) + h * hour, 100.0 + 0.5 * h);
        }
    }
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    for (std::size_t i = 0; i < watts.size(); ++i) {
        const bool isGap = i >= 6 * 60 && i < 8 * 60;
        QCOMPARE(std::isfinite(watts[i]), !isGap);
        QVERIFY(isGap || isNear(watts[i], 500.0));
    }
}

void tst_PowerDay::longIntervalIsAGap()
{
    Household house = emptyHousehold();
    Meter &meter = counterOf(&house, Quantity::GridImport);
    const qint64 midnight = startOf(winterDay);
    meter.addReading(midnight, 100.0);
    meter.addReading(midnight + hour, 101.0);
    meter.addReading(midnight + 2 * hour + 1, 102.0);
    meter.addReading(midnight + 2 * hour + 61, 102.1);
    const PowerDay day = powerDay(house, winterDay);
    QCOMPARE(knownIn(wattsOf(day, PowerKind::Consumption)), 60);
}

void tst_PowerDay::rowsOfAmountsHaveGaps()
{
    Household house = emptyHousehold();
    Meter &meter = house.meter({Quantity::GridImport, Tariff::Single}, Meter::Kind::Amounts);
    const qint64 midnight = startOf(winterDay);
    meter.addAmount({midnight, midnight + 900}, 0.1);
    meter.addAmount({midnight + 1800, midnight + 2700}, 0.2);
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QCOMPARE(knownIn(watts), 30);
    QVERIFY(isNear(watts[0], 400.0));
    QVERIFY(std::isnan(watts[15]));
    QVERIFY(std::isnan(watts[29]));
    QVERIFY(isNear(watts[30], 800.0));
    QVERIFY(isNear(watts[44], 800.0));
    QVERIFY(std::isnan(watts[45]));
}

void tst_PowerDay::curveEndsWithTheLastReading()
{
    Household house = emptyHousehold();
    Meter &meter = counterOf(&house, Quantity::GridImport);
    const qint64 midnight = startOf(winterDay);
    for (int i = 0; i <= 20; ++i) {
        meter.addReading(midnight + i * 300, 50.0);
    }
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QCOMPARE(watts.size(), std::size_t(1440));
    QCOMPARE(knownIn(watts), 100);
    QCOMPARE(watts[99], 0.0); // a zero that was counted
    QVERIFY(std::isnan(watts[100]));
    QVERIFY(std::isfinite(day.gridByHour[0]));
    QVERIFY(std::isnan(day.gridByHour[1]));
}

void tst_PowerDay::stepOverMidnightBelongsToBothDays()
{
    Household house = emptyHousehold();
    Meter &meter = counterOf(&house, Quantity::GridImport);
    const qint64 midnight = startOf(winterDay);
    meter.addReading(midnight - 900, 10.0);
    meter.addReading(midnight + 900, 10.4); // 800 W
    meter.addReading(midnight + 24 * hour - 900, 12.0);
    meter.addReading(midnight + 24 * hour + 900, 12.3); // 600 W
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QCOMPARE(knownIn(watts), 30);
    QVERIFY(isNear(watts.front(), 800.0));
    QVERIFY(isNear(watts.back(), 600.0));
    QCOMPARE(knownIn(wattsOf(powerDay(house, winterDay.addDays(1)), PowerKind::Consumption)), 15);
}

void tst_PowerDay::metersReadAtOtherTimesShareOnlyCommonReadings()
{
    Household house = emptyHousehold();
    readDay(&counterOf(&house, Quantity::GridImport), winterDay, minute, 0.0, 1.0);
    readDay(&counterOf(&house, Quantity::GridExport), winterDay, minute, 300.0);
    readDay(&counterOf(&house, Quantity::SolarProduction), winterDay, hour, 1000.0);
    const PowerDay day = powerDay(house, winterDay);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QVERIFY(isNear(watts[61], 89.5 - 300.0 + 1000.0, 1e-4)); // the mean from 1:00 to 2:00
    QVERIFY(isNear(watts[119], watts[61]));
    QVERIFY(isNear(day.gridByHour[1], 89.5, 1e-4));
}

void tst_PowerDay::tariffsAreOneCurve()
{
    Household house = emptyHousehold();
    readDay(&counterOf(&house, Quantity::GridImport, Tariff::Low), winterDay, minute, 100.0);
    readDay(&counterOf(&house, Quantity::GridImport, Tariff::Normal), winterDay, minute, 250.0);
    const PowerDay day = powerDay(house, winterDay);
    QCOMPARE(day.curves.size(), std::size_t(1));
    QVERIFY(isNear(day.curves.front().watts[3], 350.0));
}

void tst_PowerDay::hoursWithAGapHaveNoBar()
{
    Household house = emptyHousehold();
    Meter &meter = house.meter({Quantity::GridImport, Tariff::Single}, Meter::Kind::Amounts);
    for (int i = 0; i < 24 * 60; ++i) {
        if (i != 200) {
            const qint64 from = startOf(winterDay) + i * minute;
            meter.addAmount({from, from + minute}, 0.01);
        }
    }
    const PowerDay day = powerDay(house, winterDay);
    QCOMPARE(knownIn(day.gridByHour), 23);
    QVERIFY(std::isnan(day.gridByHour[3]));
    QVERIFY(isNear(day.gridByHour[4], 600.0));
}

void tst_PowerDay::daysOf23And25Hours_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("hours");
    QTest::newRow("summer time begins") << QDate(2024, 3, 31) << 23;
    QTest::newRow("winter time begins") << QDate(2024, 10, 27) << 25;
    QTest::newRow("any other day") << QDate(2024, 10, 28) << 24;
}

void tst_PowerDay::daysOf23And25Hours()
{
    QFETCH(QDate, date);
    QFETCH(int, hours);
    Household house = emptyHousehold();
    readDay(&counterOf(&house, Quantity::GridImport), date, hour, 100.0, 10.0);
    const PowerDay day = powerDay(house, date);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QCOMPARE(day.minutes(), hours * 60.0);
    QCOMPARE(int(watts.size()), hours * 60);
    QCOMPARE(knownIn(watts), hours * 60);
    QCOMPARE(int(day.gridByHour.size()), hours);
    QVERIFY(isNear(watts.back(), 100.0 + 10.0 * (hours - 1)));
    const double counted = house.amount(Quantity::GridImport, day.interval).value_or(-1.0);
    QVERIFY(isNear(energyOf(watts), counted));
}

void tst_PowerDay::singleReadingOfTheDoubledHourWillDo()
{
    Household house = emptyHousehold();
    Meter &meter = counterOf(&house, Quantity::GridImport);
    const qint64 midnight = startOf(QDate(2024, 10, 27));
    for (const int h : {0, 1, 2, 4, 5}) { // 2:00 to 3:00 comes twice
        meter.addReading(midnight + h * hour, 0.3 * h);
    }
    const PowerDay day = powerDay(house, QDate(2024, 10, 27));
    QCOMPARE(knownIn(wattsOf(day, PowerKind::Consumption)), 300);
    QVERIFY(isNear(wattsOf(day, PowerKind::Consumption)[200], 300.0));
}

void tst_PowerDay::simulatedHouseAddsUpToItsCounters_data()
{
    QTest::addColumn<QDate>("date");
    QTest::newRow("winter") << QDate(2024, 1, 17);
    QTest::newRow("summer") << QDate(2024, 6, 21);
    QTest::newRow("23 hours") << QDate(2024, 3, 31);
    QTest::newRow("25 hours") << QDate(2024, 10, 27);
}

void tst_PowerDay::simulatedHouseAddsUpToItsCounters()
{
    QFETCH(QDate, date);
    const qint64 midnight = startOf(date);
    const SimulatedHouse house(7, {52.09, 5.12}, dutchZone, midnight - 48 * hour);
    const qint64 until = midnight + 50 * hour;
    const Household counted = house.history(until);

    const PowerDay minutes = powerDay(house, date, until);
    const PowerDay hours = powerDay(counted, date);
    QVERIFY(kindsOf(minutes) == kindsOf(hours));
    QVERIFY(minutes.interval == hours.interval);
    for (const PowerKind kind : kindsOf(minutes)) {
        QCOMPARE(wattsOf(minutes, kind).size(), wattsOf(hours, kind).size());
        QVERIFY(isNear(energyOf(wattsOf(minutes, kind)), energyOf(wattsOf(hours, kind))));
    }
    QVERIFY(isNear(energyOf(wattsOf(minutes, PowerKind::Consumption)),
                   counted.consumption(minutes.interval).value_or(-1.0)));
    QVERIFY(isNear(energyOf(wattsOf(minutes, PowerKind::Production)),
                   counted.amount(Quantity::SolarProduction, minutes.interval).value_or(-1.0)));
    QCOMPARE(minutes.gridByHour.size(), hours.gridByHour.size());
    for (std::size_t i = 0; i < hours.gridByHour.size(); ++i) {
        QVERIFY(isNear(minutes.gridByHour[i], hours.gridByHour[i]));
    }
}

void tst_PowerDay::simulatedDayEndsNow()
{
    const qint64 midnight = startOf(winterDay);
    const SimulatedHouse house(7, {52.09, 5.12}, dutchZone, midnight + 2 * hour);
    const PowerDay day = powerDay(house, winterDay, midnight + 10 * hour + 59);
    const std::vector<double> &watts = wattsOf(day, PowerKind::Consumption);
    QCOMPARE(knownIn(watts), 8 * 60);
    QVERIFY(std::isnan(watts[119]));
    QCOMPARE(watts[120], double(house.powerAt(midnight + 2 * hour).consumption()));
    QVERIFY(std::isnan(watts[600]));
}

static Household realHousehold()
{
    const QDir data(QStringLiteral(HOUSEHOLD_DATA_DIR));
    const QString file = data.filePath(QStringLiteral("nl_p1_household_minute_2024-02.csv"));
    return QFileInfo::exists(file) ? loadReadings({file}) : Household();
}

void tst_PowerDay::realMinutes()
{
    const Household house = realHousehold();
    if (!house.firstInstant()) {
        QSKIP("the readings are not at hand");
    }
    const PowerDay day = powerDay(house, winterDay);
    QVERIFY(
        (kindsOf(day) == std::vector<PowerKind> {PowerKind::GridImport, PowerKind::GridExport}));
    for (const auto &[kind, quantity] : {std::pair(PowerKind::GridImport, Quantity::GridImport),
                                         std::pair(PowerKind::GridExport, Quantity::GridExport)}) {
        QCOMPARE(knownIn(wattsOf(day, kind)), 1440);
        const double counted = house.amount(quantity, day.interval).value_or(-1.0);
        QVERIFY(isNear(energyOf(wattsOf(day, kind)), counted));
    }
    // The counters stand at 15449.436 kWh at 0:01 and 15449.642 at 0:02 of the first day.
    const PowerDay first = powerDay(house, QDate(2024, 2, 19));
    QVERIFY(std::isnan(wattsOf(first, PowerKind::GridImport)[0]));
    QVERIFY(isNear(wattsOf(first, PowerKind::GridImport)[1], 12360.0, 1e-3));
}

void tst_PowerDay::realMinutesHaveTheirGap()
{
    const Household house = realHousehold();
    if (!house.firstInstant()) {
        QSKIP("the readings are not at hand");
    }
    const PowerDay day = powerDay(house, QDate(2024, 2, 25)); // no rows from 0:02 to 11:09
    const std::vector<double> &watts = wattsOf(day, PowerKind::GridImport);
    for (int i = 2; i < 11 * 60 + 11; ++i) {
        QVERIFY2(std::isnan(watts[std::size_t(i)]), qPrintable(QString::number(i)));
    }
    QVERIFY(std::isfinite(watts[11 * 60 + 11]));
    QCOMPARE(knownIn(day.gridByHour), 12);
}

QTEST_GUILESS_MAIN(tst_PowerDay)
#include "tst_powerday.moc"
