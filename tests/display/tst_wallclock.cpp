// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "wallclock.h"

#include <QDateTime>
#include <QTest>

using namespace Readings;

namespace {

qint64 wall(const char *iso)
{
    return QDateTime::fromString(QLatin1String(iso) + QLatin1Char('Z'), Qt::ISODate)
        .toSecsSinceEpoch();
}

} // namespace

class tst_WallClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void moments_data();
    void moments();
    void everyInstantOfAYearIsFoundAgain_data();
    void everyInstantOfAYearIsFoundAgain();
    void invalidZoneIsUtc();
    void wallSecondsCountFromTheEpoch();
};

void tst_WallClock::moments_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QByteArray>("time");
    QTest::addColumn<int>("occurrences");
    QTest::addColumn<QByteArray>("earlier");
    QTest::addColumn<QByteArray>("later");

    const auto row = [](const char *name, const char *zone, const char *time, int occurrences,
                        const char *earlier, const char *later) {
        QTest::newRow(name) << QByteArray(zone) << QByteArray(time) << occurrences
                            << QByteArray(earlier) << QByteArray(later);
    };
    const char *berlin = "Europe/Berlin";
    row("winter", berlin, "2016-01-01T00:00:00", 1, "2015-12-31T23:00:00", "2015-12-31T23:00:00");
    row("summer", berlin, "2016-07-01T00:00:00", 1, "2016-06-30T22:00:00", "2016-06-30T22:00:00");
    row("before spring", berlin, "2016-03-27T01:59:59", 1, "2016-03-27T00:59:59",
        "2016-03-27T00:59:59");
    row("skipped, first", berlin, "2016-03-27T02:00:00", 0, "2016-03-27T01:00:00",
        "2016-03-27T01:00:00");
    row("skipped, last", berlin, "2016-03-27T02:59:59", 0, "2016-03-27T01:00:00",
        "2016-03-27T01:00:00");
    row("after spring", berlin, "2016-03-27T03:00:00", 1, "2016-03-27T01:00:00",
        "2016-03-27T01:00:00");
    row("before autumn", berlin, "2016-10-30T01:59:59", 1, "2016-10-29T23:59:59",
        "2016-10-29T23:59:59");
    row("doubled, first", berlin, "2016-10-30T02:00:00", 2, "2016-10-30T00:00:00",
        "2016-10-30T01:00:00");
    row("doubled, last", berlin, "2016-10-30T02:59:59", 2, "2016-10-30T00:59:59",
        "2016-10-30T01:59:59");
    row("after autumn", berlin, "2016-10-30T03:00:00", 1, "2016-10-30T02:00:00",
        "2016-10-30T02:00:00");
    row("decades ahead", berlin, "2061-07-01T12:00:00", 1, "2061-07-01T10:00:00",
        "2061-07-01T10:00:00");
    row("west", "America/Vancouver", "2013-01-01T00:00:00", 1, "2013-01-01T08:00:00",
        "2013-01-01T08:00:00");
    row("west, doubled", "America/Vancouver", "2013-11-03T01:30:00", 2, "2013-11-03T08:30:00",
        "2013-11-03T09:30:00");
    row("half an hour skipped", "Australia/Lord_Howe", "2016-10-02T02:15:00", 0,
        "2016-10-01T15:30:00", "2016-10-01T15:30:00");
    row("half an hour doubled", "Australia/Lord_Howe", "2016-04-03T01:45:00", 2,
        "2016-04-02T14:45:00", "2016-04-02T15:15:00");
    row("midnight skipped", "Asia/Beirut", "2016-03-27T00:30:00", 0, "2016-03-26T22:00:00",
        "2016-03-26T22:00:00");
    row("no summer time", "UTC", "2016-03-27T02:00:00", 1, "2016-03-27T02:00:00",
        "2016-03-27T02:00:00");
    row("before the epoch", "UTC", "1969-12-31T23:59:59", 1, "1969-12-31T23:59:59",
        "1969-12-31T23:59:59");
}

void tst_WallClock::moments()
{
    QFETCH(QByteArray, zone);
    QFETCH(QByteArray, time);
    QFETCH(int, occurrences);
    QFETCH(QByteArray, earlier);
    QFETCH(QByteArray, later);

    const WallClock clock {QTimeZone(zone)};
    const WallClock::Moment moment = clock.moment(wall(time));
    QCOMPARE(moment.occurrences, occurrences);
    QCOMPARE(moment.earlier, wall(earlier));
    QCOMPARE(moment.later, wall(later));
}

void tst_WallClock::everyInstantOfAYearIsFoundAgain_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *zone : {"Europe/Amsterdam", "America/Vancouver", "Australia/Lord_Howe",
                             "Asia/Kathmandu", "America/Havana", "Pacific/Apia"}) {
        QTest::newRow(zone) << QByteArray(zone);
    }
}

void tst_WallClock::everyInstantOfAYearIsFoundAgain()
{
    QFETCH(QByteArray, zone);
    const QTimeZone timeZone(zone);
    const WallClock clock(timeZone);
    constexpr qint64 quarterHour = 900;
    const qint64 end = wall("2012-01-02T00:00:00");
    for (qint64 instant = wall("2011-01-01T00:00:00"); instant < end; instant += quarterHour) {
        const int offset = timeZone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(instant).toUTC());
        const WallClock::Moment moment = clock.moment(instant + offset);
        QVERIFY(moment.occurrences >= 1);
        QVERIFY(moment.earlier == instant || moment.later == instant);
    }
}

void tst_WallClock::invalidZoneIsUtc()
{
    const WallClock clock {QTimeZone("No/Where")};
    QCOMPARE(clock.timeZone().id(), QByteArray("UTC"));
    QCOMPARE(clock.moment(12345).earlier, qint64(12345));
}

void tst_WallClock::wallSecondsCountFromTheEpoch()
{
    QCOMPARE(WallClock::wallSeconds(QDate(1970, 1, 1), 0), qint64(0));
    QCOMPARE(WallClock::wallSeconds(QDate(1970, 1, 2), 61), qint64(86461));
    QCOMPARE(WallClock::wallSeconds(QDate(1969, 12, 31), 0), qint64(-86400));
}

QTEST_APPLESS_MAIN(tst_WallClock)
#include "tst_wallclock.moc"
