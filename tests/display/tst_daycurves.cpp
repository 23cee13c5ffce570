// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "calendar.h"
#include "dayscale.h"
#include "gappedcurve.h"
#include "levelcurve.h"
#include "powerday.h"

#include <QLocale>
#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <limits>
#include <qwt_scale_map.h>

namespace {

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
const QDate winterDay(2024, 2, 20);

DayClock clockOf(const QDate &date)
{
    PowerDay day;
    day.date = date;
    day.timeZone = QTimeZone("Europe/Amsterdam");
    day.interval = Readings::Calendar(day.timeZone).day(date);
    return DayClock(day);
}

} // namespace

class tst_DayCurves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clockOfADay_data();
    void clockOfADay();
    void ticksAreAtRoundTimes_data();
    void ticksAreAtRoundTimes();
    void powerLabels();
    void runsOfKnownSamples();
    void levelsOfFewSamples();
    void levelsOfManySamplesKeepWhatIsSeen();
};

void tst_DayCurves::clockOfADay_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<double>("minute");
    QTest::addColumn<QString>("text");
    QTest::newRow("midnight") << winterDay << 0.0 << "00:00";
    QTest::newRow("within a minute") << winterDay << 754.99 << "12:34";
    QTest::newRow("end") << winterDay << 1440.0 << "24:00";
    QTest::newRow("before the clock goes forward") << QDate(2024, 3, 31) << 119.0 << "01:59";
    QTest::newRow("after the clock went forward") << QDate(2024, 3, 31) << 120.0 << "03:00";
    QTest::newRow("end of 23 hours") << QDate(2024, 3, 31) << 1380.0 << "24:00";
    QTest::newRow("before the clock goes back") << QDate(2024, 10, 27) << 179.0 << "02:59";
    QTest::newRow("after the clock went back") << QDate(2024, 10, 27) << 180.0 << "02:00";
    QTest::newRow("end of 25 hours") << QDate(2024, 10, 27) << 1500.0 << "24:00";
}

void tst_DayCurves::clockOfADay()
{
    QFETCH(QDate, date);
    QFETCH(double, minute);
    QFETCH(QString, text);
    QCOMPARE(clockOf(date).textAt(minute), text);
}

void tst_DayCurves::ticksAreAtRoundTimes_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<QString>("labels");
    QTest::newRow("day") << winterDay << 0.0 << 1440.0
                         << "00:00 03:00 06:00 09:00 12:00 15:00 18:00 21:00 24:00";
    QTest::newRow("23 hours") << QDate(2024, 3, 31) << 0.0 << 1380.0
                              << "00:00 03:00 06:00 09:00 12:00 15:00 18:00 21:00 24:00";
    QTest::newRow("25 hours") << QDate(2024, 10, 27) << 0.0 << 1500.0
                              << "00:00 06:00 12:00 18:00 24:00";
    QTest::newRow("hours") << winterDay << 361.5 << 600.0
                           << "06:30 07:00 07:30 08:00 08:30 09:00 "
                              "09:30 10:00";
    QTest::newRow("the skipped hour")
        << QDate(2024, 3, 31) << 60.0 << 240.0 << "01:00 01:30 03:00 03:30 04:00 04:30 05:00";
    QTest::newRow("minutes") << winterDay << 600.0 << 610.0
                             << "10:00 10:02 10:04 10:06 10:08 "
                                "10:10";
}

void tst_DayCurves::ticksAreAtRoundTimes()
{
    QFETCH(QDate, date);
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(QString, labels);
    const DayClock clock = clockOf(date);
    const QwtScaleDiv scale = DayScaleEngine(&clock).divideScale(from, to, 8, 5, 0.0);
    QCOMPARE(scale.lowerBound(), from);
    QCOMPARE(scale.upperBound(), to);
    QStringList found;
    const QList<double> ticks = scale.ticks(QwtScaleDiv::MajorTick);
    for (const double tick : ticks) {
        found.append(DayScaleDraw(&clock).label(tick).text());
    }
    QCOMPARE(found.join(QLatin1Char(' ')), labels);
}

void tst_DayCurves::powerLabels()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    PowerScaleDraw draw;
    draw.setScaleDiv(QwtScaleDiv(0.0, 900.0));
    QVERIFY(!draw.isInKilowatts());
    QCOMPARE(draw.label(250.0).text(), QStringLiteral("250"));
    draw.setScaleDiv(QwtScaleDiv(0.0, 3000.0));
    QVERIFY(draw.isInKilowatts());
    QCOMPARE(draw.label(2500.0).text(), QStringLiteral("2,5"));
    QCOMPARE(draw.label(0.0).text(), QStringLiteral("0"));
    QLocale::setDefault(QLocale::c());
}

void tst_DayCurves::runsOfKnownSamples()
{
    const EvenSeries series(0.0, 2.0, {unknown, 1.0, 2.0, unknown, unknown, 3.0});
    const auto next = [&](int from) {
        const SampleRun run = nextKnownRun(series, {from, 5});
        return QPoint(run.first, run.last);
    };
    QCOMPARE(next(0), QPoint(1, 2));
    QCOMPARE(next(2), QPoint(2, 2));
    QCOMPARE(next(3), QPoint(5, 5));
    QVERIFY(nextKnownRun(series, {3, 4}).isEmpty());
    QVERIFY(nextKnownRun(series, {6, 5}).isEmpty());
    QCOMPARE(series.boundingRect(), QRectF(QPointF(2.0, 1.0), QPointF(10.0, 3.0)));

    const auto between = [&](double left, double right) {
        const SampleRun run = samplesBetween(series, {0, 5}, left, right);
        return QPoint(run.first, run.last);
    };
    QCOMPARE(between(-5.0, 50.0), QPoint(0, 5));
    QCOMPARE(between(4.0, 5.9), QPoint(1, 4));
    QCOMPARE(between(4.1, 5.9), QPoint(2, 4));
}

void tst_DayCurves::levelsOfFewSamples()
{
    QwtScaleMap xMap;
    xMap.setScaleInterval(0.0, 10.0);
    xMap.setPaintInterval(0.0, 100.0);
    QwtScaleMap yMap;
    yMap.setScaleInterval(0.0, 100.0);
    yMap.setPaintInterval(100.0, 0.0);
    const EvenSeries series(0.0, 1.0, {30.0, 50.0, unknown, 20.0});
    QCOMPARE(levelPolygon(series, 0, 1, 1.0, xMap, yMap),
             QPolygonF() << QPointF(0.0, 70.0) << QPointF(10.0, 70.0) << QPointF(10.0, 50.0)
                         << QPointF(20.0, 50.0));
    QCOMPARE(levelPolygon(series, 3, 3, 1.0, xMap, yMap),
             QPolygonF() << QPointF(30.0, 80.0) << QPointF(40.0, 80.0));
    QVERIFY(levelPolygon(series, 1, 0, 1.0, xMap, yMap).isEmpty());

    // A single level that is narrower than a pixel is seen all the same.
    xMap.setPaintInterval(0.0, 1.0);
    const QPolygonF narrow = levelPolygon(series, 3, 3, 1.0, xMap, yMap);
    QVERIFY(narrow.last().x() - narrow.first().x() >= 1.0);
}

void tst_DayCurves::levelsOfManySamplesKeepWhatIsSeen()
{
    constexpr int columns = 100;
    QRandomGenerator random(20240220);
    std::vector<double> values(20000);
    for (double &value : values) {
        value = random.bounded(1000.0);
    }
    QwtScaleMap xMap;
    xMap.setScaleInterval(0.0, double(values.size()));
    xMap.setPaintInterval(0.0, columns);
    QwtScaleMap yMap;
    yMap.setScaleInterval(0.0, 1000.0);
    yMap.setPaintInterval(1000.0, 0.0);
    const EvenSeries series(0.0, 1.0, values);
    const QPolygonF polygon = levelPolygon(series, 0, int(values.size()) - 1, 1.0, xMap, yMap);
    QVERIFY(polygon.size() <= columns * 4 + 1);

    std::vector<double> low(columns, 1e9), high(columns, -1e9);
    std::vector<double> lowDrawn(columns, 1e9), highDrawn(columns, -1e9);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto column = std::size_t(xMap.transform(double(i)));
        low[column] = std::min(low[column], yMap.transform(values[i]));
        high[column] = std::max(high[column], yMap.transform(values[i]));
    }
    for (int i = 0; i < polygon.size(); i += 4) {
        const auto column = std::size_t(polygon[i].x());
        for (int j = i; j < i + 4; ++j) {
            lowDrawn[column] = std::min(lowDrawn[column], polygon[j].y());
            highDrawn[column] = std::max(highDrawn[column], polygon[j].y());
        }
    }
    QVERIFY(low == lowDrawn);
    QVERIFY(high == highDrawn);
}

QTEST_GUILESS_MAIN(tst_DayCurves)
#include "tst_daycurves.moc"
