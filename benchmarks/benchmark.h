// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BENCHMARK_H
#define BENCHMARK_H

#include <QString>
#include <QTextStream>
#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <vector>

/** What the benchmarks share: two cases of one step are timed in turn, in one run, and compared. */
namespace Benchmark {

/** What a step costs in two cases, in nanoseconds, and the ratio of the second to the first. */
struct Comparison
{
    double first;
    double second;
    double ratio;
};

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/**
 * Times two cases, each given as a function that does one round and answers what a step of it took
 * in nanoseconds. All results are medians over the rounds, the ratio is that of the single rounds.
 */
template <typename First, typename Second>
Comparison compareInTurn(int rounds, First first, Second second)
{
    std::vector<double> firstTimes;
    std::vector<double> secondTimes;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        // Each goes first every other round.
        double firstTime = 0.0;
        double secondTime = 0.0;
        if (round % 2 == 0) {
            firstTime = first();
            secondTime = second();
        } else {
            secondTime = second();
            firstTime = first();
        }
        firstTimes.push_back(firstTime);
        secondTimes.push_back(secondTime);
        ratios.push_back(secondTime / firstTime);
    }
    return {median(firstTimes), median(secondTimes), median(ratios)};
}

constexpr int nameWidth = 12;
constexpr int timeWidth = 14;
constexpr int ratioWidth = 8;

inline void printHeading(QTextStream &out, const QString &name, const QString &first,
                         const QString &second)
{
    out << QStringLiteral("%1 %2 %3 %4\n")
               .arg(name, -nameWidth)
               .arg(first + QStringLiteral(", us"), timeWidth)
               .arg(second + QStringLiteral(", us"), timeWidth)
               .arg(QStringLiteral("ratio"), ratioWidth);
}

inline void printRow(QTextStream &out, const QString &name, const Comparison &comparison)
{
    constexpr double nanosecondsPerMicrosecond = 1000.0;
    out << QStringLiteral("%1 %2 %3 %4\n")
               .arg(name, -nameWidth)
               .arg(comparison.first / nanosecondsPerMicrosecond, timeWidth, 'f', 1)
               .arg(comparison.second / nanosecondsPerMicrosecond, timeWidth, 'f', 1)
               .arg(comparison.ratio, ratioWidth, 'f', 3);
    out.flush();
}

/** Lets a benchmark run without a screen, unless the environment names a platform. */
inline void needNoScreen()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

} // namespace Benchmark

#endif
