// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// Does a page move cost more the longer the list is? Pages to and fro, in turn and in one run, in a
// list of 20 rows and in one of 100,000, and prints what a step costs and the ratio of the two: for
// lists and for tables, between the first two pages and between the last two.
//
// Ends with 1 if a ratio is above the goal.

#include "benchmark.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QListView>
#include <QTableView>
#include <QTextStream>
#include <ZEMListViewLogic>
#include <ZEMTableViewLogic>

#include <algorithm>
#include <iterator>

namespace {

constexpr int rowsPerPage = 5;
constexpr int shortLength = 4 * rowsPerPage;
constexpr int longLength = 100000;
constexpr int rowHeight = 40; // pixels
constexpr int viewWidth = 300; // pixels
constexpr int stepsPerRound = 40;
constexpr int rounds = 301;
constexpr double goal = 1.1;

/** Rows that all look the same, so that a page costs the same to paint wherever it lies. */
class EqualRows : public QAbstractTableModel
{
public:
    explicit EqualRows(int count) : rows(count) { }

    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : rows; }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex & /*index*/, int role) const override
    {
        switch (role) {
        case Qt::DisplayRole:
            return QStringLiteral("Elektriciteit");
        case Qt::SizeHintRole:
            return QSize(viewWidth, rowHeight);
        default:
            return {};
        }
    }

private:
    int rows;
};

void prepare(QListView & /*view*/) { }

void prepare(QTableView &view)
{
    view.horizontalHeader()->hide();
    view.verticalHeader()->hide(); // its numbers are wider in a long table
    view.verticalHeader()->setDefaultSectionSize(rowHeight);
}

enum class Place { Top, End };

/** A shown list or table of so many rows, which can be paged to and fro at one of its ends. */
template <typename View, typename Logic>
class PagedRows
{
public:
    PagedRows(int count, Place place)
        : model(count), pages(new Logic(&view)), atTop(place == Place::Top)
    {
        prepare(view);
        view.setFrameShape(QFrame::NoFrame);
        view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.setAutoScroll(false);
        view.resize(viewWidth, rowsPerPage * rowHeight);
        pages->setNrPageItems(rowsPerPage);
        pages->setModel(&model);
        view.show();
        pages->setIndex(atTop ? 0 : count - rowsPerPage);
        QCoreApplication::processEvents();
    }

    /** Nanoseconds of one step, from the page move to the finished picture. */
    double pageRound()
    {
        QElapsedTimer timer;
        timer.start();
        for (int step = 0; step < stepsPerRound; ++step) {
            const bool goesOn = (step % 2 == 0) == atTop;
            goesOn ? pages->page_next() : pages->page_previous();
            QCoreApplication::processEvents();
        }
        return double(timer.nsecsElapsed()) / stepsPerRound;
    }

private:
    EqualRows model;
    View view;
    Logic *pages; // the view's
    bool atTop;
};

/** Compares a short and a long list and prints a row; returns the ratio of long to short. */
template <typename View, typename Logic>
double compare(const QString &name, Place place, QTextStream &out)
{
    PagedRows<View, Logic> shortRows(shortLength, place);
    PagedRows<View, Logic> longRows(longLength, place);
    const Benchmark::Comparison comparison = Benchmark::compareInTurn(
        rounds, [&shortRows] { return shortRows.pageRound(); },
        [&longRows] { return longRows.pageRound(); });
    Benchmark::printRow(out, name, comparison);
    return comparison.ratio;
}

} // namespace

int main(int argc, char *argv[])
{
    Benchmark::needNoScreen();
    const QApplication application(argc, argv);
    QTextStream out(stdout);
    out << QStringLiteral("A page move of %1 rows, medians of %2 rounds; goal: ratio <= %3\n")
               .arg(rowsPerPage)
               .arg(rounds)
               .arg(goal);
    Benchmark::printHeading(out, QStringLiteral("pages"),
                            QStringLiteral("%1 rows").arg(shortLength),
                            QStringLiteral("%1 rows").arg(longLength));
    const auto list = compare<QListView, ZEMListViewLogic>;
    const auto table = compare<QTableView, ZEMTableViewLogic>;
    const double ratios[] = {list(QStringLiteral("list, first"), Place::Top, out),
                             list(QStringLiteral("list, last"), Place::End, out),
                             table(QStringLiteral("table, first"), Place::Top, out),
                             table(QStringLiteral("table, last"), Place::End, out)};
    return *std::max_element(std::begin(ratios), std::end(ratios)) <= goal ? 0 : 1;
}
