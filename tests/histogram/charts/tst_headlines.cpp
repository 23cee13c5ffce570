// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "headlines_p.h"

#include <QLocale>
#include <QTest>
#include <QTimeZone>

#include <limits>

using namespace Headlines;

class tst_Headlines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void slotsAreTruncatedTowardsZero();
    void viewPastAnyIntIsHarmless();
    void nullTimestampStaysNull();
    void monthsInView_data();
    void monthsInView();
    void weekTexts_data();
    void weekTexts();
};

static QDateTime midnight(int year, int month, int day)
{
    return {QDate(year, month, day), QTime(0, 0), QTimeZone::utc()};
}

void tst_Headlines::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_Headlines::slotsAreTruncatedTowardsZero()
{
    const QDateTime t = midnight(2016, 3, 7);

    const Range days = rangeOfDays(t, QwtInterval(-1.9, 5.9));
    QCOMPARE(days.start, midnight(2016, 3, 6));
    QCOMPARE(days.end, midnight(2016, 3, 11));

    const Range hours = rangeOfHours(t, QwtInterval(-0.5, 23.5));
    QCOMPARE(hours.start, t.addSecs(-1800));
    QCOMPARE(hours.end, t.addSecs(22 * 3600 + 1800));

    const Range weeks = rangeOfWeeks(t, QwtInterval(-0.2, 4.8));
    QCOMPARE(weeks.start, t.addDays(-1)); // -1.4 days
    QCOMPARE(weeks.end, t.addDays(32)); // 32.6 days
}

void tst_Headlines::viewPastAnyIntIsHarmless()
{
    const QDateTime t = midnight(2016, 3, 7);
    const qint64 most = std::numeric_limits<int>::max();
    const qint64 least = std::numeric_limits<int>::min();
    const double endless = std::numeric_limits<double>::infinity();
    for (const double limit : {1e12, endless}) {
        const QwtInterval view(-limit, limit);
        QCOMPARE(rangeOfDays(t, view).start, t.addDays(least));
        QCOMPARE(rangeOfDays(t, view).end, t.addDays(most));
        QCOMPARE(rangeOfWeeks(t, view).end, t.addDays(most));
        QCOMPARE(rangeOfHours(t, view).start, t.addSecs(least));
        QCOMPARE(rangeOfHours(t, view).end, t.addSecs(most));
    }
    const double nothing = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(rangeOfHours(t, QwtInterval(nothing, nothing)).start, t);
    QCOMPARE(rangeOfDays(t, QwtInterval(nothing, nothing)).end, t);
}

void tst_Headlines::nullTimestampStaysNull()
{
    const QwtInterval view(0.0, 5.0);
    for (const Range &range : {rangeOfHours(QDateTime(), view), rangeOfDays(QDateTime(), view),
                               rangeOfWeeks(QDateTime(), view)}) {
        QVERIFY(range.start.isNull());
        QVERIFY(range.end.isNull());
        QCOMPARE(text(range.start, QStringLiteral("ddd d MMMM")), QString());
        QCOMPARE(weekStart(range), QString());
        QCOMPARE(weekEnd(range), QString());
        QCOMPARE(monthsOf(range), Months::One);
    }
}

void tst_Headlines::monthsInView_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<int>("expected");

    const auto row = [](const char *name, const QDateTime &start, const QDateTime &end, Months m) {
        QTest::newRow(name) << start << end << int(m);
    };
    row("wholly in March", midnight(2016, 3, 1), midnight(2016, 3, 31), Months::One);
    row("28 Feb to 3 Apr", midnight(2017, 2, 28), midnight(2017, 4, 3), Months::Several);
    row("15 Mar to 20 Apr", midnight(2017, 3, 15), midnight(2017, 4, 20), Months::Two);
    row("across a year end", midnight(2016, 12, 5), midnight(2017, 1, 8), Months::Two);
    row("December to February", midnight(2016, 12, 26), midnight(2017, 2, 1), Months::Several);
    row("31 Jan to 6 Mar", midnight(2017, 1, 31), midnight(2017, 3, 6), Months::Several);
    row("30 Jan to 5 Mar, end not in next month", midnight(2017, 1, 30), midnight(2017, 3, 5),
        Months::Several);
    row("31 Jan to 28 Feb", midnight(2017, 1, 31), midnight(2017, 2, 28), Months::Two);
}

void tst_Headlines::monthsInView()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(int, expected);
    QCOMPARE(int(monthsOf({start, end})), expected);
}

void tst_Headlines::weekTexts_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<QString>("startFormat");

    for (const QLocale &locale : {QLocale(QLocale::Dutch, QLocale::Netherlands),
                                  QLocale(QLocale::English, QLocale::UnitedKingdom)}) {
        const QByteArray name = locale.name().toLatin1();
        QTest::newRow(name + ": one month")
            << locale << midnight(2016, 3, 7) << midnight(2016, 3, 13) << "d";
        QTest::newRow(name + ": month end")
            << locale << midnight(2016, 2, 29) << midnight(2016, 3, 6) << "d MMM";
        QTest::newRow(name + ": year end")
            << locale << midnight(2015, 12, 28) << midnight(2016, 1, 3) << "d MMM";
    }
}

void tst_Headlines::weekTexts()
{
    QFETCH(QLocale, locale);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QString, startFormat);

    QLocale::setDefault(locale);
    const Range range {start, end};
    QCOMPARE(weekStart(range), locale.toString(start.date(), startFormat));
    QCOMPARE(weekEnd(range), locale.toString(end.date(), QStringLiteral("d MMMM")));
}

QTEST_MAIN(tst_Headlines)
#include "tst_headlines.moc"
