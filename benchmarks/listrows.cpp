// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listrows.h"

#include "benchmark.h"

#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QListView>
#include <QTableView>
#include <ZEMListViewLogic>
#include <ZEMTableViewLogic>

#include <memory>

namespace {

constexpr int rowsPerPage = 5;
constexpr int shortLength = 4 * rowsPerPage;
constexpr int longLength = 100000;
constexpr int rowHeight = 40; // pixels
constexpr int viewWidth = 300; // pixels
constexpr int stepsPerRound = 40;
constexpr int rounds = 101;
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
        Benchmark::settle();
    }

    /** Nanoseconds of one step, from the page move to the finished picture. */
    double pageRound()
    {
        QElapsedTimer timer;
        timer.start();
        for (int step = 0; step < stepsPerRound; ++step) {
            const bool goesOn = (step % 2 == 0) == atTop;
            goesOn ? pages->page_next() : pages->page_previous();
            Benchmark::settle();
        }
        return double(timer.nsecsElapsed()) / stepsPerRound;
    }

private:
    EqualRows model;
    View view;
    Logic *pages; // the view's
    bool atTop;
};

template <typename View, typename Logic>
BenchTable::Row pageRow(const char *key, const char *work, Place place)
{
    const auto contender = [place](int count) -> BenchTable::Contender {
        return {QStringLiteral("%1 rows").arg(count), [place, count]() -> BenchTable::Round {
                    const auto pages = std::make_shared<PagedRows<View, Logic>>(count, place);
                    return [pages] { return pages->pageRound(); };
                }};
    };
    const BenchTable::Contender few = contender(shortLength);
    return {QString::fromLatin1(key),
            QStringLiteral("A page move, ") + QString::fromLatin1(work),
            stepsPerRound,
            rounds,
            {contender(longLength), few},
            {{few.name, goal, goal}}};
}

} // namespace

std::vector<BenchTable::Row> listRows()
{
    return {
        pageRow<QListView, ZEMListViewLogic>("list-top", "list at its top", Place::Top),
        pageRow<QListView, ZEMListViewLogic>("list-end", "list at its end", Place::End),
        pageRow<QTableView, ZEMTableViewLogic>("table-top", "table at its top", Place::Top),
        pageRow<QTableView, ZEMTableViewLogic>("table-end", "table at its end", Place::End),
    };
}
