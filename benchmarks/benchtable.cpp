// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "benchtable.h"

#include "benchmark.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>
#include <QSysInfo>
#include <QTextStream>
#include <QThread>

#include <qwt_global.h>

#include <QFile>

namespace BenchTable {

namespace {

constexpr double noiseOfTime = 1.05;
constexpr double noiseOfInstructions = 1.01;
constexpr int fewRounds = 1;
constexpr int moreRounds = 3;

/** Instructions of a run of this program, 0 when callgrind cannot be run. */
double instructionsOfRun(const Row &row, const QString &contender, int rounds)
{
    const QString valgrind = QStandardPaths::findExecutable(QStringLiteral("valgrind"));
    if (valgrind.isEmpty()) {
        return 0.0;
    }
    QProcess process;
    process.start(valgrind,
                  {QStringLiteral("--tool=callgrind"),
                   QStringLiteral("--callgrind-out-file=/dev/null"),
                   QCoreApplication::applicationFilePath(), QStringLiteral("--rounds"), row.key,
                   contender, QString::number(rounds)});
    constexpr int patience = 600000; // milliseconds
    process.waitForFinished(patience);
    const QString said = QString::fromLocal8Bit(process.readAllStandardError());
    static const QRegularExpression collected(QStringLiteral("Collected : (\\d+)"));
    return collected.match(said).captured(1).toDouble();
}

const Goal *goalAgainst(const Row &row, const QString &name)
{
    for (const Goal &goal : row.goals) {
        if (goal.against == name) {
            return &goal;
        }
    }
    return nullptr;
}

QString amount(const Row &row, double value)
{
    constexpr double scale = 1000.0; // us from ns, kB from bytes
    return QString::number(value / scale, 'f', 1)
        + (row.unit == Unit::Time ? QStringLiteral(" us") : QStringLiteral(" kB"));
}

QString number(double value, int digits)
{
    return value > 0.0 ? QString::number(value, 'f', digits) : QStringLiteral("-");
}

QString goalText(double limit)
{
    return limit > 0.0 ? QStringLiteral("<= ") + QString::number(limit) : QString();
}

QString verdict(const Goal &goal, const Cost &cost)
{
    const bool time = goal.ofTime <= 0.0 || cost.ratio <= goal.ofTime * noiseOfTime;
    const bool instructions = goal.ofInstructions <= 0.0 || cost.instructionRatio <= 0.0
        || cost.instructionRatio <= goal.ofInstructions * noiseOfInstructions;
    return time && instructions ? QStringLiteral("holds") : QStringLiteral("MISSED");
}

/** The cells of one line: name, cost, ratio, its goal, instructions, ratio, its goal, verdict. */
QStringList cells(const Row &row, const Contender &contender, const Cost &cost)
{
    const bool first = &contender == &row.contenders.front();
    const Goal *goal = goalAgainst(row, contender.name);
    return {contender.name,
            amount(row, cost.median),
            first ? QString() : number(cost.ratio, 3),
            goal ? goalText(goal->ofTime) : QString(),
            number(cost.instructions / 1000.0, 1),
            first ? QString() : number(cost.instructionRatio, 3),
            goal ? goalText(goal->ofInstructions) : QString(),
            goal ? verdict(*goal, cost) : QString()};
}

QString processorName()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (file.open(QIODevice::ReadOnly)) {
        const QString text = QString::fromLocal8Bit(file.readAll());
        static const QRegularExpression model(QStringLiteral("model name\\s*:\\s*(.+)"));
        const QString name = model.match(text).captured(1).trimmed();
        if (!name.isEmpty()) {
            return name;
        }
    }
    return QSysInfo::currentCpuArchitecture();
}

} // namespace

Costs measured(const Row &row)
{
    std::vector<Round> rounds;
    for (const Contender &contender : row.contenders) {
        rounds.push_back(contender.prepare());
        rounds.back()(); // what is made once is no part of the work
    }
    const std::size_t count = rounds.size();
    std::vector<std::vector<double>> values(count);
    std::vector<std::vector<double>> ratios(count);
    for (int round = 0; round < row.rounds; ++round) {
        std::vector<double> now(count);
        for (std::size_t i = 0; i < count; ++i) {
            // Each goes first in its turn.
            const std::size_t turn = (i + std::size_t(round)) % count;
            now[turn] = rounds[turn]();
        }
        for (std::size_t i = 0; i < count; ++i) {
            values[i].push_back(now[i]);
            ratios[i].push_back(now[0] / now[i]);
        }
    }
    Costs costs;
    for (std::size_t i = 0; i < count; ++i) {
        Cost cost;
        cost.median = Benchmark::median(values[i]);
        cost.ratio = Benchmark::median(ratios[i]);
        costs[row.contenders[i].name] = cost;
    }
    return costs;
}

void countInstructions(const Row &row, Costs *costs)
{
    if (row.unit != Unit::Time) {
        return;
    }
    constexpr double muchSlower = 0.1;
    for (const Contender &contender : row.contenders) {
        // Under callgrind it would take minutes.
        if ((*costs)[contender.name].ratio < muchSlower) {
            continue;
        }
        const double few = instructionsOfRun(row, contender.name, fewRounds);
        const double more = instructionsOfRun(row, contender.name, moreRounds);
        Cost &cost = (*costs)[contender.name];
        cost.instructions = (more - few) / ((moreRounds - fewRounds) * row.stepsInRound);
        const double own = (*costs)[row.contenders.front().name].instructions;
        cost.instructionRatio = cost.instructions > 0.0 ? own / cost.instructions : 0.0;
    }
}

void runRounds(const Row &row, const QString &name, int count)
{
    for (const Contender &contender : row.contenders) {
        if (contender.name == name) {
            const Round round = contender.prepare();
            for (int i = 0; i < count; ++i) {
                round();
            }
        }
    }
}

bool meetsGoals(const Row &row, const Costs &costs)
{
    bool met = true;
    for (const Goal &goal : row.goals) {
        const auto cost = costs.find(goal.against);
        met =
            met && (cost == costs.end() || verdict(goal, cost->second) != QLatin1String("MISSED"));
    }
    return met;
}

void print(QTextStream &out, const Row &row, const Costs &costs)
{
    constexpr int widths[] = {-16, 14, 8, 9, 12, 8, 9, 8};
    out << row.work << '\n';
    for (const Contender &contender : row.contenders) {
        const QStringList line = cells(row, contender, costs.at(contender.name));
        out << "  ";
        for (int i = 0; i < line.size(); ++i) {
            out << QStringLiteral("%1 ").arg(line.at(i), widths[i]);
        }
        out << '\n';
    }
    out.flush();
}

void printMarkdown(QTextStream &out, const std::vector<Row> &rows, const std::vector<Costs> &costs)
{
    out << "# Results of the benchmarks\n\n"
           "Written by scripts/bench. A cost is the median over the rounds, a ratio the median "
           "over "
           "the rounds of the\nfirst line's cost to that line's; the contenders of a table take "
           "turns in one run. A goal is a ratio; 5 %\nare allowed for noise in times, 1 % in "
           "instructions, which callgrind counts. The floor is a page that is\npainted by hand, "
           "for itself alone, with the same content. QwtPlot and QCustomPlot hold the whole "
           "history,\nQt Charts its last 744 slots. QCustomPlot and Qt Charts take part when "
           "libqcustomplot-dev and\nlibqt5charts5-dev are installed before the build is "
           "configured.\n\n";
    out << QStringLiteral("Machine: %1, %2 cores; %3, %4 %5; Qt %6, Qwt %7, ")
               .arg(processorName())
               .arg(QThread::idealThreadCount())
               .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(),
                    QSysInfo::kernelVersion().section(QLatin1Char('-'), 0, 0),
                    QString::fromLatin1(qVersion()), QStringLiteral(QWT_VERSION_STR));
    out << QStringLiteral("compiler " __VERSION__ ".\n");
    for (std::size_t i = 0; i < rows.size(); ++i) {
        out << "\n## " << rows[i].work << "\n\n"
            << "| | cost of a step | ratio | goal | thousand instructions | ratio | goal | |\n"
            << "|---|--:|--:|--:|--:|--:|--:|---|\n";
        for (const Contender &contender : rows[i].contenders) {
            const QStringList line = cells(rows[i], contender, costs[i].at(contender.name));
            out << "| " << line.join(QStringLiteral(" | ")) << " |\n";
        }
    }
}

} // namespace BenchTable
