// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "housetest.h"
#include "sun.h"

#include <QTest>

#include <cmath>

using namespace HouseTest;

/** Where the sun stands, and what of its light falls on the panels. */
class tst_Sun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sunStandsWhereItShould_data();
    void sunStandsWhereItShould();
    void sunRisesInTheEast();
    void sunlight_data();
    void sunlight();
};

void tst_Sun::sunStandsWhereItShould_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<qint64>("instant");
    QTest::addColumn<double>("elevation");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("Amsterdam, noon of midsummer")
        << 52.37 << 4.90 << utc("2024-06-21T11:42:00") << 61.07 << 0.1;
    QTest::newRow("Amsterdam, noon of midwinter")
        << 52.37 << 4.90 << utc("2024-12-21T11:39:00") << 14.19 << 0.1;
    QTest::newRow("Amsterdam, sunrise")
        << 52.37 << 4.90 << utc("2024-06-21T03:18:00") << -0.83 << 0.3;
    QTest::newRow("Amsterdam, sunset")
        << 52.37 << 4.90 << utc("2024-06-21T20:06:00") << -0.83 << 0.3;
    QTest::newRow("Amsterdam, midnight of midsummer")
        << 52.37 << 4.90 << utc("2024-06-20T23:42:00") << -14.2 << 0.1;
    QTest::newRow("equator, noon of the equinox")
        << 0.0 << 0.0 << utc("2024-03-20T12:07:00") << 89.85 << 0.2;
    QTest::newRow("Sydney, noon of its midsummer")
        << -33.87 << 151.21 << utc("2024-12-21T01:53:00") << 79.57 << 0.1;
    QTest::newRow("north pole, midsummer")
        << 90.0 << 0.0 << utc("2024-06-21T05:00:00") << 23.44 << 0.05;
}

void tst_Sun::sunStandsWhereItShould()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(qint64, instant);
    QFETCH(double, elevation);
    QFETCH(double, tolerance);
    const double found = sunElevation({latitude, longitude}, instant);
    QVERIFY2(isNear(found, elevation, tolerance), qPrintable(QString::number(found)));
}

void tst_Sun::sunRisesInTheEast()
{
    const SunDirection morning = sunDirection(utrecht, utc("2024-03-20T06:00:00"));
    const SunDirection noon = sunDirection(utrecht, utc("2024-03-20T11:47:00"));
    const SunDirection evening = sunDirection(utrecht, utc("2024-03-20T17:30:00"));
    QVERIFY(morning.east > 0.98);
    QVERIFY(evening.east < -0.98);
    QVERIFY(noon.north < -0.7 && isNear(noon.east, 0.0, 0.02));
    for (const SunDirection &sun : {morning, noon, evening}) {
        const double length = std::hypot(sun.east, sun.north, sun.up);
        QVERIFY(isNear(length, 1.0, 1e-9));
    }
}

void tst_Sun::sunlight_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("cloudiness");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::newRow("night") << 52.0 << -1.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("horizon") << 52.0 << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("just risen") << 52.0 << 0.5 << 0.0 << 1.0 << 60.0;
    QTest::newRow("summer noon") << 52.0 << 61.0 << 0.0 << 900.0 << 1100.0;
    QTest::newRow("winter noon") << 52.0 << 14.5 << 0.0 << 350.0 << 650.0;
    QTest::newRow("summer noon under clouds") << 52.0 << 61.0 << 1.0 << 120.0 << 250.0;
    QTest::newRow("winter noon under clouds") << 52.0 << 14.5 << 1.0 << 20.0 << 60.0;
}

void tst_Sun::sunlight()
{
    QFETCH(double, latitude);
    QFETCH(double, height);
    QFETCH(double, cloudiness);
    QFETCH(double, least);
    QFETCH(double, most);
    const double radians = height * M_PI / 180.0;
    const SunDirection south = {0.0, -std::cos(radians), std::sin(radians)};
    const double light = ::sunlight({latitude, 0.0}, south, 35.0, cloudiness);
    QVERIFY2(light >= least && light <= most, qPrintable(QString::number(light)));
    // On the other half of the earth panels look north.
    const SunDirection north = {0.0, std::cos(radians), std::sin(radians)};
    QCOMPARE(::sunlight({-latitude, 0.0}, north, 35.0, cloudiness), light);
}

QTEST_GUILESS_MAIN(tst_Sun)
#include "tst_sun.moc"
