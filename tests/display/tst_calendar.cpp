// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"
#include "household.h"

#include <QDateTime>
#include <QTest>
#include <QTimeZone>

using namespace Readings;

namespace {

constexpr qint64 oneHour = 3600;

const QDate springDay(2023, 3, 26);
const QDate autumnDay(2023, 10, 29);
const QDate plainDay(2023, 6, 14);

Calendar amsterdam()
{
    return Calendar(QTimeZone("Europe/Amsterdam"));
}

qint64 utc(const QDate &date, int hour)
{
    return QDateTime(date, QTime(hour, 0), QTimeZone::utc()).toSecsSinceEpoch();
}

// A counter that rises by 1 each hour of real time.
Meter steadyMeter(const Interval &interval)
{
    Meter meter(Meter::Kind::Counter, 25.0);
    for (qint64 instant = interval.from; instant <= interval.to; instant += oneHour) {
        meter.addReading(instant, static_cast<double>((instant - interval.from) / oneHour));
    }
    return meter;
}

} // namespace

class tst_Calendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainDayHas24EqualHours();
    void springDayHasAnEmptySlot();
    void autumnDayHasASlotOfTwoHours();
    void hoursOfEveryDayTouch_data();
    void hoursOfEveryDayTouch();
    void weeksBeginOnMonday();
    void weeksOfTheClockChangeAreAnHourOff();
    void invalidQuestionsAreEmpty();
    void instantsAreFoundInTheirSlots();
    void hoursOfDayAnswerEachSlot();
    void daysAndWeeksAnswerEachSlot();
    void severalMetersAddUp();
    void oneMetersGapIsAGapOfAll();
};

void tst_Calendar::plainDayHas24EqualHours()
{
    const Calendar calendar = amsterdam();
    QCOMPARE(calendar.day(plainDay),
             (Interval {utc(plainDay, 0) - 2 * oneHour, utc(plainDay, 22)}));
    for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
        QCOMPARE(calendar.hour(plainDay, hour).from, utc(plainDay, 0) + (hour - 2) * oneHour);
        QCOMPARE(calendar.hour(plainDay, hour).seconds(), oneHour);
    }
}

void tst_Calendar::springDayHasAnEmptySlot()
{
    const Calendar calendar = amsterdam();
    QCOMPARE(calendar.day(springDay).seconds(), 23 * oneHour);
    const qint64 change = utc(springDay, 1);
    QCOMPARE(calendar.hour(springDay, 1), (Interval {change - oneHour, change}));
    QCOMPARE(calendar.hour(springDay, 2), (Interval {change, change}));
    QVERIFY(calendar.hour(springDay, 2).isEmpty());
    QCOMPARE(calendar.hour(springDay, 3), (Interval {change, change + oneHour}));
}

void tst_Calendar::autumnDayHasASlotOfTwoHours()
{
    const Calendar calendar = amsterdam();
    QCOMPARE(calendar.day(autumnDay).seconds(), 25 * oneHour);
    const qint64 change = utc(autumnDay, 1);
    QCOMPARE(calendar.hour(autumnDay, 1), (Interval {change - 2 * oneHour, change - oneHour}));
    QCOMPARE(calendar.hour(autumnDay, 2), (Interval {change - oneHour, change + oneHour}));
    QCOMPARE(calendar.hour(autumnDay, 3), (Interval {change + oneHour, change + 2 * oneHour}));
}

void tst_Calendar::hoursOfEveryDayTouch_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *zone : {"Europe/Amsterdam", "America/Vancouver", "Australia/Lord_Howe",
                             "America/Havana", "Asia/Beirut", "UTC"}) {
        QTest::newRow(zone) << QByteArray(zone);
    }
}

void tst_Calendar::hoursOfEveryDayTouch()
{
    QFETCH(QByteArray, zone);
    const Calendar calendar {QTimeZone(zone)};
    qint64 end = calendar.day(QDate(2016, 1, 1)).from;
    for (QDate date(2016, 1, 1); date.year() == 2016; date = date.addDays(1)) {
        QCOMPARE(calendar.day(date).from, end);
        for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
            const Interval slot = calendar.hour(date, hour);
            QCOMPARE(slot.from, end);
            QVERIFY(slot.to >= slot.from);
            end = slot.to;
        }
        QCOMPARE(calendar.day(date).to, end);
        QCOMPARE(calendar.dateAt(end - 1), date);
    }
}

void tst_Calendar::weeksBeginOnMonday()
{
    const Calendar calendar = amsterdam();
    const QDate monday(2023, 6, 12);
    for (int day = 0; day < Calendar::daysPerWeek; ++day) {
        QCOMPARE(Calendar::mondayOf(monday.addDays(day)), monday);
        QCOMPARE(calendar.week(monday.addDays(day)).from, calendar.day(monday).from);
        QCOMPARE(calendar.week(monday.addDays(day)).to, calendar.day(monday.addDays(6)).to);
    }
    QCOMPARE(Calendar::mondayOf(monday.addDays(-1)), monday.addDays(-7));
    QCOMPARE(calendar.week(monday).seconds(), 7 * 24 * oneHour);
}

void tst_Calendar::weeksOfTheClockChangeAreAnHourOff()
{
    const Calendar calendar = amsterdam();
    QCOMPARE(calendar.week(springDay).seconds(), (7 * 24 - 1) * oneHour);
    QCOMPARE(calendar.week(autumnDay).seconds(), (7 * 24 + 1) * oneHour);
}

void tst_Calendar::invalidQuestionsAreEmpty()
{
    const Calendar calendar = amsterdam();
    QVERIFY(calendar.hour(QDate(), 3).isEmpty());
    QVERIFY(calendar.hour(plainDay, -1).isEmpty());
    QVERIFY(calendar.hour(plainDay, 24).isEmpty());
    QVERIFY(calendar.day(QDate()).isEmpty());
    QVERIFY(calendar.week(QDate()).isEmpty());
    QVERIFY(!Calendar::mondayOf(QDate()).isValid());

    const Meter meter = steadyMeter(calendar.day(plainDay));
    const Calendar::Amounts amounts = calendar.hoursOfDay({&meter}, QDate());
    QCOMPARE(amounts.size(), std::size_t(24));
    for (const std::optional<double> &amount : amounts) {
        QVERIFY(!amount);
    }
    QCOMPARE(calendar.daysOfWeek({&meter}, QDate()), Calendar::Amounts(7, std::nullopt));
    QCOMPARE(calendar.hoursOfDay({}, plainDay), Calendar::Amounts(24, std::nullopt));
}

void tst_Calendar::instantsAreFoundInTheirSlots()
{
    const Calendar calendar = amsterdam();
    QCOMPARE(calendar.timeZone().id(), QByteArray("Europe/Amsterdam"));
    for (int hour = 0; hour < Calendar::hoursPerDay; ++hour) {
        const Interval slot = calendar.hour(autumnDay, hour);
        QCOMPARE(calendar.dateAt(slot.from), autumnDay);
        QCOMPARE(calendar.hourAt(slot.from), hour);
        QCOMPARE(calendar.hourAt(slot.to - 1), hour);
    }
}

void tst_Calendar::hoursOfDayAnswerEachSlot()
{
    const Calendar calendar = amsterdam();
    const Meter plain = steadyMeter(calendar.day(plainDay));
    QCOMPARE(calendar.hoursOfDay({&plain}, plainDay), Calendar::Amounts(24, 1.0));
    QCOMPARE(calendar.hoursOfDay({&plain}, plainDay.addDays(1)),
             Calendar::Amounts(24, std::nullopt));

    const Meter spring = steadyMeter(calendar.day(springDay));
    Calendar::Amounts expected(24, 1.0);
    expected[2] = std::nullopt;
    QCOMPARE(calendar.hoursOfDay({&spring}, springDay), expected);

    const Meter autumn = steadyMeter(calendar.day(autumnDay));
    expected[2] = 2.0;
    QCOMPARE(calendar.hoursOfDay({&autumn}, autumnDay), expected);
}

void tst_Calendar::daysAndWeeksAnswerEachSlot()
{
    const Calendar calendar = amsterdam();
    const Meter meter = steadyMeter({calendar.week(springDay).from, calendar.week(autumnDay).to});

    Calendar::Amounts week(7, 24.0);
    week[6] = 23.0;
    QCOMPARE(calendar.daysOfWeek({&meter}, springDay), week);
    QCOMPARE(calendar.daysOfWeek({&meter}, springDay.addDays(-6)), week);
    week[6] = 25.0;
    QCOMPARE(calendar.daysOfWeek({&meter}, autumnDay), week);

    QCOMPARE(calendar.days({&meter}, springDay, 2), (Calendar::Amounts {23.0, 24.0}));
    QCOMPARE(calendar.days({&meter}, springDay, 0), Calendar::Amounts());
    QCOMPARE(calendar.weeks({&meter}, springDay.addDays(-7), 3),
             (Calendar::Amounts {std::nullopt, 167.0, 168.0}));
    QCOMPARE(calendar.weeks({&meter}, autumnDay, 2), (Calendar::Amounts {169.0, std::nullopt}));
}

void tst_Calendar::severalMetersAddUp()
{
    const Calendar calendar = amsterdam();
    const Meter low = steadyMeter(calendar.day(plainDay));
    const Meter normal = steadyMeter(calendar.day(plainDay));
    QCOMPARE(calendar.hoursOfDay({&low, &normal}, plainDay), Calendar::Amounts(24, 2.0));
}

void tst_Calendar::oneMetersGapIsAGapOfAll()
{
    const Calendar calendar = amsterdam();
    const Meter whole = steadyMeter(calendar.day(plainDay));
    const Meter half =
        steadyMeter({calendar.hour(plainDay, 12).from, calendar.hour(plainDay, 23).to});
    Calendar::Amounts expected(24, 2.0);
    std::fill_n(expected.begin(), 12, std::nullopt);
    QCOMPARE(calendar.hoursOfDay({&whole, &half}, plainDay), expected);
}

QTEST_APPLESS_MAIN(tst_Calendar)
#include "tst_calendar.moc"
