// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGINGWALK_H
#define PAGINGWALK_H

#include "listtest.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QRandomGenerator>
#include <QString>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

namespace ListTest {

/** What a walk compares: the state of a list and what it did since the last call. */
template <typename View>
struct Outcome
{
    int index = 0;
    int pageSize = 8;
    int current = -1;
    QSet<int> selected;
    QVector<Pages> told;
    QVector<typename ScrollLog<View>::Scroll> scrolls;

    bool operator==(const Outcome &other) const
    {
        return index == other.index && pageSize == other.pageSize && current == other.current
            && selected == other.selected && told == other.told && scrolls == other.scrolls;
    }

    QString text() const
    {
        QString result = QStringLiteral("index %1 of pages of %2, current %3, selected")
                             .arg(index)
                             .arg(pageSize)
                             .arg(current);
        QList<int> sorted = selected.values();
        std::sort(sorted.begin(), sorted.end());
        for (int row : sorted) {
            result += QStringLiteral(" %1").arg(row);
        }
        for (const Pages &pages : told) {
            result += QStringLiteral(", told %1%2").arg(int(pages.first)).arg(int(pages.second));
        }
        for (const auto &scroll : scrolls) {
            result += QStringLiteral(", scrolled %1").arg(scroll.row);
        }
        return result;
    }
};

/** The top of the page of @p row, found by going there page by page. */
inline qint64 walkedTop(qint64 row, qint64 pageSize)
{
    qint64 top = 0;
    while (top + pageSize <= row) {
        top += pageSize;
    }
    while (top - pageSize >= row) {
        top -= pageSize;
    }
    return top;
}

/**
 * Random calls of a paging engine, each also made on a plain description of what the engine ought
 * to do. Rules is what tells lists from tables: the row where a page move to a target lands, and
 * the row of which the signal tells after a choice.
 */
template <typename View, typename Logic, typename Rules>
class PagingWalk
{
public:
    explicit PagingWalk(quint32 seed) : random(seed), logic(new Logic(&view))
    {
        view.setSelectionMode(QAbstractItemView::SingleSelection);
        view.setAutoScroll(false);
        QObject::connect(logic, &Logic::has_page, [this](bool previous, bool next) {
            actual.told.append({previous, next});
        });
        for (auto &source : sources) {
            source.model = std::make_unique<RowModel>(between(0, 40));
        }
    }
    Q_DISABLE_COPY(PagingWalk)

    /** Makes one call; whether engine and description agree after it. */
    bool step()
    {
        actual.told.clear();
        view.scrolls.clear();
        expected.told.clear();
        expected.scrolls.clear();
        call();
        actual.index = logic->index();
        actual.pageSize = Rules::pageSize(*logic);
        actual.current = view.currentIndex().row();
        actual.selected = selectedRows(view);
        actual.scrolls = view.scrolls;
        return actual == expected;
    }

    QByteArray report() const
    {
        return (lastCall + QStringLiteral(": ") + actual.text() + QStringLiteral("; expected ")
                + expected.text())
            .toUtf8();
    }

private:
    struct Source
    {
        std::unique_ptr<RowModel> model;
        int timesSet = 0;
    };

    int between(int low, int high) { return random.bounded(low, high + 1); }
    int rows() const { return shown < 0 ? 0 : sources[shown].model->rows; }
    bool exists(qint64 row) const { return row >= 0 && row < rows(); }

    void call()
    {
        const int die = between(0, 99);
        if (die < 25) {
            next();
        } else if (die < 50) {
            previous();
        } else if (die < 65) {
            setIndex(between(-12, rows() + 12));
        } else if (die < 72) {
            tap();
        } else if (die < 82) {
            resetModel();
        } else if (die < 87) {
            setPageSize();
        } else if (die < 91) {
            setModel(between(0, int(sources.size()) - 1));
        } else if (die < 94) {
            shrink();
        } else if (die < 96) {
            deleteModel();
        } else {
            setWayOfMoving();
        }
    }

    void next()
    {
        lastCall = QStringLiteral("page_next");
        logic->page_next();
        move(qMin<qint64>(qint64(expected.current) + expected.pageSize, rows() - 1));
    }

    void previous()
    {
        lastCall = QStringLiteral("page_previous");
        logic->page_previous();
        move(qMax<qint64>(qint64(expected.current) - expected.pageSize, 0));
    }

    void setIndex(int row)
    {
        isInUse = isInUse || exists(row) || row == expected.index;
        lastCall = QStringLiteral("setIndex %1 of %2").arg(row).arg(rows());
        logic->setIndex(row);
        if (exists(row)) {
            expected.index = row;
            choose(row);
            scroll(row);
        }
        tell(Rules::toldAfterChoice(row, expected.index, expected.pageSize));
    }

    void tap()
    {
        if (rows() > 0) {
            const int row = between(0, rows() - 1);
            lastCall = QStringLiteral("tap %1").arg(row);
            view.setCurrentIndex(view.model()->index(row, view.model()->columnCount() - 1));
            choose(row);
        }
    }

    void resetModel()
    {
        const int which = between(0, int(sources.size()) - 1);
        Source &source = sources[which];
        const int count = between(0, 9) == 0 ? 0 : between(0, 40);
        lastCall = QStringLiteral("reset model %1 to %2").arg(which).arg(count);
        source.model->resetTo(count);
        if (which == shown) {
            expected.current = -1;
            expected.selected.clear();
        }
        for (int i = 0; i < source.timesSet; ++i) {
            isInUse = true;
            expected.index = qMin(expected.index, rows() - 1);
            if (exists(expected.index)) {
                choose(expected.index);
            }
            tell(Rules::toldAfterChoice(expected.index, expected.index, expected.pageSize));
        }
    }

    void setPageSize()
    {
        const int count = between(0, 19) == 0 ? std::numeric_limits<int>::max() : between(-3, 12);
        lastCall = QStringLiteral("setNrPageItems %1").arg(count);
        logic->setNrPageItems(count);
        expected.pageSize = count > 0 ? count : expected.pageSize;
    }

    void setModel(int which)
    {
        lastCall = QStringLiteral("setModel %1").arg(which);
        logic->setModel(sources[which].model.get());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        isInUse = false;
        expected.index = 0;
        ++sources[which].timesSet;
        if (which != shown) {
            expected.current = -1;
            expected.selected.clear();
        }
        shown = which;
    }

    /** Rows that go without a reset: which row is current then is the view's own affair, if any. */
    void shrink()
    {
        if (rows() > 0) {
            const int count = between(1, rows());
            lastCall = QStringLiteral("remove %1 rows").arg(count);
            sources[shown].model->removeLast(count);
            expected.current = view.currentIndex().row();
            expected.selected = selectedRows(view);
            isInUse = isInUse || expected.current >= 0;
            if (isInUse) {
                tell(Rules::toldAfterChoice(expected.current, expected.current, expected.pageSize));
            }
        }
    }

    void deleteModel()
    {
        const int which = between(0, int(sources.size()) - 1);
        lastCall = QStringLiteral("delete model %1").arg(which);
        sources[which] = {std::make_unique<RowModel>(between(0, 40)), 0};
        if (which == shown) {
            shown = -1;
            expected.current = -1;
            expected.selected.clear(); // it is told from the event loop, which does not run here
        }
    }

    void setWayOfMoving()
    {
        constexpr std::array<QItemSelectionModel::SelectionFlag, 3> allFlags = {
            QItemSelectionModel::NoUpdate, QItemSelectionModel::ClearAndSelect,
            QItemSelectionModel::Select};
        constexpr std::array<QAbstractItemView::ScrollHint, 4> allHints = {
            QAbstractItemView::EnsureVisible, QAbstractItemView::PositionAtTop,
            QAbstractItemView::PositionAtBottom, QAbstractItemView::PositionAtCenter};
        lastCall = QStringLiteral("setSelectionFlags, setScrollHint");
        flags = allFlags[between(0, int(allFlags.size()) - 1)];
        hint = allHints[between(0, int(allHints.size()) - 1)];
        logic->setSelectionFlags(flags);
        logic->setScrollHint(hint);
    }

    void move(qint64 target)
    {
        if (expected.current < 0) {
            return;
        }
        isInUse = true;
        const qint64 landing = Rules::landing(target, expected.pageSize);
        expected.current = int(landing);
        if (flags & QItemSelectionModel::Clear) {
            expected.selected.clear();
        }
        if (flags & QItemSelectionModel::Select) {
            expected.selected.insert(int(landing));
        }
        scroll(target);
        tell(landing);
    }

    void choose(int row)
    {
        expected.current = row;
        expected.selected = {row};
    }
    void scroll(qint64 row)
    {
        expected.scrolls.append({int(walkedTop(row, expected.pageSize)), 0, hint});
    }
    void tell(qint64 row)
    {
        expected.told.append({row >= expected.pageSize, row + expected.pageSize < rows()});
    }

    QRandomGenerator random;
    // Before the view, which lets go of its model first.
    std::array<Source, 2> sources;
    ScrollLog<View> view;
    Logic *logic;
    int shown = -1;
    bool isInUse = false; // a row was chosen or current since the model was set
    QItemSelectionModel::SelectionFlags flags = QItemSelectionModel::NoUpdate;
    QAbstractItemView::ScrollHint hint = QAbstractItemView::PositionAtTop;
    Outcome<View> actual;
    Outcome<View> expected;
    QString lastCall;
};

} // namespace ListTest

#endif
