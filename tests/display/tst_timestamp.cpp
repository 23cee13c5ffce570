// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "timestamp.h"

#include <QTest>

using namespace Readings;

Q_DECLARE_METATYPE(Readings::TimeFormat)

namespace {

constexpr qint64 bad = -1;

} // namespace

class tst_Timestamp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stamps_data();
    void stamps();
    void onlyTimesWithoutOffsetNeedAClock();
};

void tst_Timestamp::stamps_data()
{
    QTest::addColumn<TimeFormat>("format");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<qint64>("seconds");

    const auto row = [](TimeFormat format, const QByteArray &text, qint64 seconds) {
        QTest::addRow("%d: %s", static_cast<int>(format), text.constData())
            << format << text << seconds;
    };
    constexpr qint64 newYear2016 = 1451606400;
    row(TimeFormat::IsoWallClock, "2016-01-01T00:00:00", newYear2016);
    row(TimeFormat::IsoWallClock, "2016-01-01T23:59:59", newYear2016 + 86399);
    row(TimeFormat::IsoWallClock, "2016-02-29T00:00:00", newYear2016 + 59 * 86400);
    row(TimeFormat::IsoWallClock, "2015-02-29T00:00:00", bad);
    row(TimeFormat::IsoWallClock, "2016-13-01T00:00:00", bad);
    row(TimeFormat::IsoWallClock, "2016-00-01T00:00:00", bad);
    row(TimeFormat::IsoWallClock, "2016-01-01T24:00:00", bad);
    row(TimeFormat::IsoWallClock, "2016-01-01T00:60:00", bad);
    row(TimeFormat::IsoWallClock, "2016-01-01T00:00:60", bad);
    row(TimeFormat::IsoWallClock, "2016-01-01T00:00", bad);
    row(TimeFormat::IsoWallClock, "2016-01-01T00:00:00Z", bad);
    row(TimeFormat::IsoWallClock, "2016-01-01 00:00:00", bad);
    row(TimeFormat::IsoWallClock, "2016-1-01T00:00:00", bad);
    row(TimeFormat::IsoWallClock, "20x6-01-01T00:00:00", bad);
    row(TimeFormat::IsoWallClock, "2016-01-01T00:00:-1", bad);
    row(TimeFormat::IsoWallClock, "", bad);
    row(TimeFormat::IsoWallClock, "2016", bad);

    row(TimeFormat::WallClock, "2016-01-01 01:02:03", newYear2016 + 3723);
    row(TimeFormat::WallClock, "2016-01-01T01:02:03", bad);
    row(TimeFormat::WallClock, "2016-01-01 01:02:03 ", bad);

    row(TimeFormat::DayFirstWithOffset, "01-01-2016 01:00:00 +0100", newYear2016);
    row(TimeFormat::DayFirstWithOffset, "31-12-2015 20:30:00 -0330", newYear2016);
    row(TimeFormat::DayFirstWithOffset, "02-01-2016 00:00:00 +0000", newYear2016 + 86400);
    row(TimeFormat::DayFirstWithOffset, "01-01-2016 01:00:00 +01:00", newYear2016);
    row(TimeFormat::DayFirstWithOffset, "01-01-2016 01:00:00", bad);
    row(TimeFormat::DayFirstWithOffset, "01-01-2016 01:00:00 0100", bad);
    row(TimeFormat::DayFirstWithOffset, "01-01-2016 01:00:00 +2400", bad);
    row(TimeFormat::DayFirstWithOffset, "01-01-2016 01:00:00 +0160", bad);
    row(TimeFormat::DayFirstWithOffset, "2016-01-01 01:00:00 +0100", bad);
    row(TimeFormat::DayFirstWithOffset, "32-01-2016 01:00:00 +0100", bad);

    row(TimeFormat::UnixSeconds, "0", 0);
    row(TimeFormat::UnixSeconds, "1451606400", newYear2016);
    row(TimeFormat::UnixSeconds, "-1", bad);
    row(TimeFormat::UnixSeconds, "+1451606400", bad);
    row(TimeFormat::UnixSeconds, "1451606400.5", bad);
    row(TimeFormat::UnixSeconds, "1451606400000", bad);
    row(TimeFormat::UnixSeconds, "99999999999999999999999999", bad);
    row(TimeFormat::UnixSeconds, "", bad);

    row(TimeFormat::IsoWithOffset, "2016-01-01T01:00:00+01:00", newYear2016);
    row(TimeFormat::IsoWithOffset, "2016-01-01T01:00:00+0100", newYear2016);
    row(TimeFormat::IsoWithOffset, "2016-01-01T01:00+01:00", newYear2016);
    row(TimeFormat::IsoWithOffset, "2015-12-31T19:00:00-05:00", newYear2016);
    row(TimeFormat::IsoWithOffset, "2016-01-01T00:00:00Z", newYear2016);
    row(TimeFormat::IsoWithOffset, "2016-01-01T00:00Z", newYear2016);
    row(TimeFormat::IsoWithOffset, "2016-01-01T00:00:00", bad);
    row(TimeFormat::IsoWithOffset, "2016-01-01T00:00:00+1", bad);
    row(TimeFormat::IsoWithOffset, "2016-01-01T00:00:00Zulu", bad);
    row(TimeFormat::IsoWithOffset, "2016-01-01T00:00:00+99:00", bad);
}

void tst_Timestamp::stamps()
{
    QFETCH(TimeFormat, format);
    QFETCH(QByteArray, text);
    QFETCH(qint64, seconds);
    QCOMPARE(parseStamp({text.constData(), std::size_t(text.size())}, format).value_or(bad),
             seconds);
}

void tst_Timestamp::onlyTimesWithoutOffsetNeedAClock()
{
    QVERIFY(isWallClock(TimeFormat::IsoWallClock));
    QVERIFY(isWallClock(TimeFormat::WallClock));
    QVERIFY(!isWallClock(TimeFormat::DayFirstWithOffset));
    QVERIFY(!isWallClock(TimeFormat::UnixSeconds));
    QVERIFY(!isWallClock(TimeFormat::IsoWithOffset));
}

QTEST_APPLESS_MAIN(tst_Timestamp)
#include "tst_timestamp.moc"
