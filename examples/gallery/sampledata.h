// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLEDATA_H
#define SAMPLEDATA_H

#include <QDateTime>
#include <QPointF>
#include <QVector>

/**
 * A household that was made up: the same each time, whatever day it is. All rows begin with the
 * oldest value and are in kWh, but for gas.
 */
namespace SampleData {

constexpr int hoursOfDay = 24;
constexpr int daysOfWeek = 7;
constexpr int weeks = 52;
constexpr int days = weeks * daysOfWeek;

/** The midnight before the last of the days, a Sunday. */
QDateTime lastMidnight();
/** The midnight before the last Monday. */
QDateTime lastMonday();

QVector<double> consumptionByHour();
QVector<double> productionByHour();
/** In m3. */
QVector<double> gasByHour();

/** The sums of each @p count values of @p values. */
QVector<double> sums(const QVector<double> &values, int count);
/** The last @p count values of @p values. */
QVector<double> last(const QVector<double> &values, int count);

/** The power that is used on a day: x in minutes since midnight, y in watts. */
QVector<QPointF> powerByMinute();
/** The power of the sun on a day, in the same units. */
QVector<QPointF> sunByMinute();

} // namespace SampleData

#endif
