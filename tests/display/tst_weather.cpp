// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "housetest.h"
#include "weather.h"

#include <QTest>

#include <cmath>

using namespace HouseTest;

/** The clouds and the warmth of a simulated year. */
class tst_Weather : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void weatherIsSmooth();
    void seasonsFollowThePlace();
};

void tst_Weather::weatherIsSmooth()
{
    const Weather weather(7, utrecht.latitude);
    const qint64 start = utc("2023-01-01T00:00:00");
    double cloudsBefore = weather.cloudiness(start);
    double warmthBefore = weather.meanTemperature(start);
    double cloudSum = 0.0;
    constexpr int days = 90;
    for (qint64 at = start + minute; at < start + days * day; at += minute) {
        const double clouds = weather.cloudiness(at);
        const double warmth = weather.meanTemperature(at);
        QVERIFY(clouds >= 0.0 && clouds <= 1.0);
        QVERIFY2(std::abs(clouds - cloudsBefore) < 0.1, qPrintable(QString::number(clouds)));
        QVERIFY2(std::abs(warmth - warmthBefore) < 0.02, qPrintable(QString::number(warmth)));
        cloudsBefore = clouds;
        warmthBefore = warmth;
        cloudSum += clouds;
    }
    const double mean = cloudSum / (days * 1440);
    QVERIFY2(mean > 0.55 && mean < 0.9, qPrintable(QString::number(mean)));
}

void tst_Weather::seasonsFollowThePlace()
{
    const Weather north(7, 52.0);
    const Weather south(7, -34.0);
    double northern = 0.0;
    double southern = 0.0;
    for (int i = 0; i < 31; ++i) {
        const qint64 winter = utc("2024-01-05T12:00:00") + i * day;
        const qint64 summer = utc("2024-07-05T12:00:00") + i * day;
        northern += (north.meanTemperature(summer) - north.meanTemperature(winter)) / 31.0;
        southern += (south.meanTemperature(summer) - south.meanTemperature(winter)) / 31.0;
    }
    QVERIFY2(northern > 9.0 && northern < 21.0, qPrintable(QString::number(northern)));
    QVERIFY2(southern < -9.0 && southern > -21.0, qPrintable(QString::number(southern)));
    const qint64 at = utc("2024-05-05T12:00:00");
    QVERIFY(north.temperature(at, 15 * 3600) > north.temperature(at, 3 * 3600) + 2.0);
}

QTEST_GUILESS_MAIN(tst_Weather)
#include "tst_weather.moc"
