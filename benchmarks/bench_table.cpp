// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// What the library costs beside hand-written painter code and beside other plot libraries, as one
// table: medians and ratios of interleaved rounds, and instruction counts where valgrind is
// installed.
//
// bench_table [--quick] [--markdown FILE] [ROW...]
//
// Ends with 1 if a goal is missed. --quick counts no instructions.

#include "arrowrows.h"
#include "benchmark.h"
#include "benchtable.h"
#include "chartrows.h"
#include "curverows.h"
#include "keyboardrows.h"
#include "listrows.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>

namespace {

std::vector<BenchTable::Row> allRows()
{
    std::vector<BenchTable::Row> rows = chartRows();
    for (const auto &more : {keyboardRows(), arrowRows(), listRows(), curveRows()}) {
        rows.insert(rows.end(), more.begin(), more.end());
    }
    return rows;
}

/** One contender alone, for callgrind. */
int runAlone(const QStringList &arguments)
{
    for (const BenchTable::Row &row : allRows()) {
        if (row.key == arguments.value(0)) {
            BenchTable::runRounds(row, arguments.value(1), arguments.value(2).toInt());
        }
    }
    return 0;
}

QString taken(QStringList *arguments, const QString &option)
{
    const int index = arguments->indexOf(option);
    if (index < 0) {
        return {};
    }
    arguments->removeAt(index);
    return index < arguments->size() ? arguments->takeAt(index) : QString();
}

} // namespace

int main(int argc, char *argv[])
{
    Benchmark::needNoScreen();
    qputenv("QT_FONT_DPI", "96");
    const QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Dutch));
    QStringList arguments = application.arguments().mid(1);
    if (arguments.value(0) == QLatin1String("--rounds")) {
        return runAlone(arguments.mid(1));
    }
    const bool isQuick = arguments.removeAll(QStringLiteral("--quick")) > 0;
    const QString markdown = taken(&arguments, QStringLiteral("--markdown"));

    QTextStream out(stdout);
    std::vector<BenchTable::Row> rows;
    std::vector<BenchTable::Costs> costs;
    bool met = true;
    for (const BenchTable::Row &row : allRows()) {
        if (!arguments.isEmpty() && !arguments.contains(row.key)) {
            continue;
        }
        BenchTable::Costs cost = BenchTable::measured(row);
        if (!isQuick) {
            BenchTable::countInstructions(row, &cost);
        }
        BenchTable::print(out, row, cost);
        met = met && BenchTable::meetsGoals(row, cost);
        rows.push_back(row);
        costs.push_back(cost);
    }
    if (!markdown.isEmpty()) {
        QFile file(markdown);
        if (!file.open(QIODevice::WriteOnly)) {
            qCritical("%s cannot be written", qPrintable(markdown));
            return 2;
        }
        QTextStream text(&file);
        BenchTable::printMarkdown(text, rows, costs);
    }
    return met ? 0 : 1;
}
