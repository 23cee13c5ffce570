// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef REALREADINGS_H
#define REALREADINGS_H

#include "calendar.h"
#include "readingsfolder.h"

#include <QDir>
#include <QFileInfo>

/** The readings of real households, which a folder beside the sources may hold. */
namespace RealReadings {

using namespace Readings;

inline const auto germanFile = QStringLiteral("de_pv_household_hourly_2016.csv");
inline const auto hourlyFile = QStringLiteral("nl_p1_household_hourly_2023.csv");
inline const auto minuteFile = QStringLiteral("nl_p1_household_minute_2024-02.csv");
inline const auto quarterFile = QStringLiteral("nl_gas_household_electricity_15min_2023.csv");
inline const auto gasFile = QStringLiteral("nl_gas_household_gas_hourly_2023.csv");
inline const auto canadianFile = QStringLiteral("ca_household_water_gas_15min_2013.csv");

inline constexpr Register importLow {Quantity::GridImport, Tariff::Low};
inline constexpr Register importNormal {Quantity::GridImport, Tariff::Normal};
inline constexpr Register exportLow {Quantity::GridExport, Tariff::Low};
inline constexpr Register exportNormal {Quantity::GridExport, Tariff::Normal};

inline QString pathOf(const QString &name)
{
    return QDir(QStringLiteral(HOUSEHOLD_DATA_DIR)).filePath(name);
}

inline Household load(const QStringList &names)
{
    QStringList paths;
    for (const QString &name : names) {
        paths.append(pathOf(name));
    }
    return loadReadings(paths);
}

inline QString rounded(double number, int decimals)
{
    return QString::number(number, 'f', decimals);
}

inline QString rounded(const std::optional<double> &number, int decimals)
{
    return number ? rounded(*number, decimals) : QStringLiteral("gap");
}

/** The lines without the folder of the data. */
inline QStringList problemsOf(const Household &household)
{
    QStringList lines = household.problems;
    for (QString &line : lines) {
        line.remove(0, pathOf(QString()).size() + 1);
    }
    return lines;
}

inline Interval yearOf(const Calendar &calendar, int year)
{
    return {calendar.day(QDate(year, 1, 1)).from, calendar.day(QDate(year + 1, 1, 1)).from};
}

inline int knownIn(const Calendar::Amounts &amounts)
{
    int known = 0;
    for (const std::optional<double> &amount : amounts) {
        known += amount ? 1 : 0;
    }
    return known;
}

inline double sumOf(const Calendar::Amounts &amounts)
{
    double sum = 0.0;
    for (const std::optional<double> &amount : amounts) {
        sum += amount.value_or(0.0);
    }
    return sum;
}

inline bool areThere()
{
    return QFileInfo::exists(pathOf(germanFile));
}

} // namespace RealReadings

#endif
