// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sampledata.h"

#include <QRandomGenerator>
#include <QTimeZone>
#include <QtMath>
#include <cmath>

namespace {

using namespace SampleData;

constexpr quint32 seedOfHome = 1;
constexpr quint32 seedOfSun = 2;
constexpr quint32 seedOfHeating = 3;
constexpr quint32 seedOfPower = 4;
constexpr int minutesOfHour = 60;
constexpr double watts = 1000.0; // in a kilowatt

/** kWh of the hours of an ordinary day. */
constexpr double ordinaryDay[hoursOfDay] = {0.16, 0.14, 0.13, 0.13, 0.14, 0.18, 0.42, 0.68,
                                            0.51, 0.33, 0.29, 0.31, 0.44, 0.36, 0.30, 0.31,
                                            0.43, 0.82, 1.15, 0.96, 0.78, 0.66, 0.48, 0.27};

/** Whole amounts of a thousandth, as a meter counts. */
double counted(double amount)
{
    return std::round(amount * watts) / watts;
}

/** 1 in the middle of winter, 0 in the middle of summer. Day 0 is the first of the days. */
double winter(int day)
{
    const int dayOfYear = lastMidnight().date().addDays(day - days + 1).dayOfYear();
    constexpr double daysOfYear = 365.0;
    return 0.5 + 0.5 * std::cos(2.0 * M_PI * dayOfYear / daysOfYear);
}

/** How high the sun stands, 0 to 1. */
double sunAt(int day, double hour)
{
    const double halfDay = 8.0 - 4.0 * winter(day); // hours
    const double height = std::cos((hour - 12.5) / halfDay * M_PI / 2.0);
    return std::abs(hour - 12.5) < halfDay ? height * (1.0 - 0.6 * winter(day)) : 0.0;
}

template <typename Hour>
QVector<double> everyHour(quint32 seed, const Hour &hourly)
{
    QRandomGenerator dice(seed);
    QVector<double> values;
    for (int day = 0; day < days; ++day) {
        // Of the whole day: its weather, or who is at home.
        const double daily = dice.generateDouble();
        for (int hour = 0; hour < hoursOfDay; ++hour) {
            values.append(counted(hourly(day, hour, daily, dice.generateDouble())));
        }
    }
    return values;
}

} // namespace

namespace SampleData {

QDateTime lastMidnight()
{
    return QDateTime(QDate(2026, 6, 21), QTime(0, 0), QTimeZone::utc());
}

QDateTime lastMonday()
{
    return lastMidnight().addDays(1 - daysOfWeek);
}

QVector<double> consumptionByHour()
{
    return everyHour(seedOfHome, [](int day, int hour, double daily, double chance) {
        return ordinaryDay[hour] * (0.7 + 0.4 * daily + 0.5 * chance) * (0.9 + 0.3 * winter(day));
    });
}

QVector<double> productionByHour()
{
    return everyHour(seedOfSun, [](int day, int hour, double daily, double chance) {
        constexpr double highest = 2.8; // kW
        return highest * sunAt(day, hour + 0.5) * (0.25 + 0.75 * daily) * (0.8 + 0.2 * chance);
    });
}

QVector<double> gasByHour()
{
    return everyHour(seedOfHeating, [](int day, int hour, double daily, double chance) {
        const bool isWarm = hour >= 6 && hour < 23;
        const double heating = isWarm ? 0.55 * winter(day) * (0.6 + 0.8 * daily) : 0.02;
        const double shower = hour == 7 || hour == 21 ? 0.15 : 0.0;
        return (heating + shower) * (0.7 + 0.6 * chance);
    });
}

QVector<double> sums(const QVector<double> &values, int count)
{
    QVector<double> all;
    for (int i = 0; i + count <= values.size(); i += count) {
        double sum = 0.0;
        for (int j = 0; j < count; ++j) {
            sum += values.at(i + j);
        }
        all.append(counted(sum));
    }
    return all;
}

QVector<double> last(const QVector<double> &values, int count)
{
    return values.mid(values.size() - count);
}

QVector<QPointF> powerByMinute()
{
    QRandomGenerator dice(seedOfPower);
    QVector<QPointF> points;
    double power = ordinaryDay[0] * watts;
    for (int minute = 0; minute < hoursOfDay * minutesOfHour; ++minute) {
        const double meant = ordinaryDay[minute / minutesOfHour] * watts;
        // It goes half of the way to another power of that hour, but for the kettle.
        power += (meant * (0.6 + 0.8 * dice.generateDouble()) - power) * 0.2;
        const bool kettle = minute % 257 > 252;
        points.append({double(minute), std::round(power + (kettle ? 1900.0 : 0.0))});
    }
    return points;
}

QVector<QPointF> sunByMinute()
{
    QRandomGenerator dice(seedOfSun);
    QVector<QPointF> points;
    double clouds = 0.8;
    for (int minute = 0; minute < hoursOfDay * minutesOfHour; ++minute) {
        clouds = qBound(0.3, clouds + 0.12 * (dice.generateDouble() - 0.5), 1.0);
        const double height = sunAt(days - 1, double(minute) / minutesOfHour);
        points.append({double(minute), std::round(2400.0 * height * clouds)});
    }
    return points;
}

} // namespace SampleData
