// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BENCHTABLE_H
#define BENCHTABLE_H

#include <QString>

#include <functional>
#include <map>
#include <vector>

class QTextStream;

/** What is measured side by side, and how: rows of contenders for one piece of work. */
namespace BenchTable {

/** Does one round and answers what one step of it took: nanoseconds, or bytes. */
using Round = std::function<double()>;

/** Somebody who does the work of a row. */
struct Contender
{
    QString name;
    /** Sets everything up; what it made lives as long as the answer. */
    std::function<Round()> prepare;
};

/** The most that the first contender of a row may cost, as a ratio to another one. */
struct Goal
{
    QString against;
    double ofTime; ///< 0 for no goal
    double ofInstructions; ///< 0 for no goal
};

enum class Unit { Time, Bytes };

/** One piece of work. The first contender is the one whose ratios to the others are told. */
struct Row
{
    QString key; ///< without blanks, for the command line
    QString work;
    int stepsInRound;
    int rounds;
    std::vector<Contender> contenders;
    std::vector<Goal> goals;
    Unit unit = Unit::Time;
};

/** What one contender of a row cost for a step. */
struct Cost
{
    double median = 0.0; ///< nanoseconds or bytes
    double ratio = 0.0; ///< of the first contender to this one, median over the rounds
    double instructions = 0.0; ///< 0 when they were not counted
    double instructionRatio = 0.0;
};

/** Costs by name of the contender. */
using Costs = std::map<QString, Cost>;

/** Measures all contenders of a row in turn, round by round. */
Costs measured(const Row &row);

/**
 * Adds instruction counts to @p costs: runs this program again under callgrind, for each contender
 * once with few and once with more rounds, so that starting up cancels out. Does nothing where
 * valgrind is not installed.
 */
void countInstructions(const Row &row, Costs *costs);

/** The side of countInstructions() that runs under callgrind. */
void runRounds(const Row &row, const QString &contender, int rounds);

/** True when all goals of @p row are met, with what noise is allowed: 5 % in time, 1 % else. */
bool meetsGoals(const Row &row, const Costs &costs);

void print(QTextStream &out, const Row &row, const Costs &costs);
void printMarkdown(QTextStream &out, const std::vector<Row> &rows, const std::vector<Costs> &costs);

} // namespace BenchTable

#endif
