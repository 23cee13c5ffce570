// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGINGFIXTURE_H
#define PAGINGFIXTURE_H

#include "listtest.h"

#include <QListView>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

namespace ListTest {

inline int rowHeight(const QListView &view)
{
    return view.sizeHintForRow(0);
}

inline int rowHeight(const QTableView &view)
{
    return view.rowHeight(0);
}

/** A view of 20 rows, of which 8 make a page, its paging engine and what that tells. */
template <typename View, typename Logic>
struct PagingFixture
{
    explicit PagingFixture(int rows = 20) : model(rows, 3), logic(new Logic(&view))
    {
        view.setSelectionMode(QAbstractItemView::SingleSelection);
        view.setAutoScroll(false);
        QObject::connect(logic, &Logic::has_page, [this](bool previous, bool next) {
            told.append({previous, next});
            events.append(QStringLiteral("told %1 %2").arg(int(previous)).arg(int(next)));
        });
        logic->setModel(&model);
    }

    void makeCurrent(int row, int column = 0) { view.setCurrentIndex(model.index(row, column)); }
    int currentRow() const { return view.currentIndex().row(); }

    /** Notes changes of the current row and of the place of the view, in order, in events. */
    void noteEvents()
    {
        QObject::connect(
            view.selectionModel(), &QItemSelectionModel::currentChanged,
            [this](const QModelIndex &current) {
                events.append(
                    QStringLiteral("current %1, chosen %2").arg(current.row()).arg(logic->index()));
            });
        QObject::connect(view.verticalScrollBar(), &QScrollBar::valueChanged, [this](int value) {
            events.append(QStringLiteral("scrolled %1").arg(value));
        });
        view.resize(100, 8 * rowHeight(view));
        view.setFrameShape(QFrame::NoFrame);
        view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        view.show(); // a hidden view has not taken its size
    }

    RowModel model;
    ScrollLog<View> view;
    Logic *logic;
    QVector<Pages> told;
    QStringList events;
};

inline void addChoosingColumns()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("chosen"); // 3 was chosen before
    QTest::addColumn<int>("scrolled"); // -1 for not at all
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
}

/** Chooses a row, with row 3 chosen before, and compares with the columns of the present row. */
template <typename Paged>
void checkChoosing()
{
    QFETCH(int, rows);
    Paged paged(rows);
    paged.logic->setIndex(3);
    paged.told.clear();
    paged.view.scrolls.clear();
    QFETCH(int, pageSize);
    paged.logic->setNrPageItems(pageSize);

    QFETCH(int, row);
    paged.logic->setIndex(row);
    QFETCH(int, chosen);
    QCOMPARE(paged.logic->index(), chosen);
    QCOMPARE(paged.currentRow(), chosen);
    QCOMPARE(selectedRows(paged.view), QSet<int> {chosen});
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(paged.told, QVector<Pages>({{previous, next}}));
    QFETCH(int, scrolled);
    QCOMPARE(paged.view.scrolls.count(), scrolled < 0 ? 0 : 1);
    if (scrolled >= 0) {
        QCOMPARE(paged.view.scrolls.constFirst().row, scrolled);
        QCOMPARE(paged.view.scrolls.constFirst().hint, QAbstractItemView::PositionAtTop);
    }
}

inline void addPageMoveColumns()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<QByteArray>("move");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("scrolled");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
}

/** Moves by a page and compares with the columns of the present row. */
template <typename Paged>
void checkPageMove()
{
    QFETCH(int, rows);
    Paged paged(rows);
    QFETCH(int, pageSize);
    paged.logic->setNrPageItems(pageSize);
    QFETCH(int, before);
    paged.makeCurrent(before);
    paged.view.scrolls.clear();

    QFETCH(QByteArray, move);
    QVERIFY(QMetaObject::invokeMethod(paged.logic, move.constData()));
    QFETCH(int, after);
    QCOMPARE(paged.currentRow(), after);
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(paged.told, QVector<Pages>({{previous, next}}));
    QCOMPARE(paged.view.scrolls.count(), 1);
    QTEST(paged.view.scrolls.constFirst().row, "scrolled");
}

inline void addResetColumns()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("rows"); // 20 before
    QTest::addColumn<int>("kept");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
}

/** Resets a model of 20 rows and compares with the columns of the present row. */
template <typename Paged>
void checkReset()
{
    Paged paged;
    QFETCH(int, chosen);
    paged.logic->setIndex(chosen);
    paged.told.clear();
    paged.view.scrolls.clear();
    QFETCH(int, rows);
    paged.model.resetTo(rows);
    QFETCH(int, kept);
    QCOMPARE(paged.logic->index(), kept);
    QCOMPARE(paged.currentRow(), kept);
    QCOMPARE(selectedRows(paged.view), kept < 0 ? QSet<int>() : QSet<int> {kept});
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(paged.told, QVector<Pages>({{previous, next}}));
    QVERIFY(paged.view.scrolls.isEmpty());
}

} // namespace ListTest

#endif
