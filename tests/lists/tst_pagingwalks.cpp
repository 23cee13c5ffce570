// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagingwalk.h"
#include "zemtest.h"

#include <ZEMListViewLogic>
#include <ZEMTableViewLogic>

#include <QHeaderView>
#include <QListView>
#include <QTableView>
#include <QTest>

using namespace ListTest;

/** Both paging engines, on random ways through lists and on very long lists. */
class tst_PagingWalks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listAgreesWithItsDescription();
    void tableAgreesWithItsDescription();
    void stepCostsTheSameInALongList();
    void stepCostsTheSameInALongTable();
};

namespace {

constexpr int walkLength = 20000;
constexpr int rowHeight = 20; // pixels

struct ListRules
{
    static int pageSize(const ZEMListViewLogic &logic) { return logic.nrPageItems(); }
    static qint64 landing(qint64 target, int pageSize) { return walkedTop(target, pageSize); }
    static qint64 toldAfterChoice(int row, int /*index*/, int pageSize)
    {
        return walkedTop(row, pageSize);
    }
};

struct TableRules
{
    static int pageSize(const ZEMTableViewLogic &logic) { return logic.getNrPageItems(); }
    static qint64 landing(qint64 target, int /*pageSize*/) { return target; }
    static qint64 toldAfterChoice(int /*row*/, int index, int /*pageSize*/) { return index; }
};

void prepare(QListView & /*view*/) { }

void prepare(QTableView &view)
{
    view.verticalHeader()->setDefaultSectionSize(rowHeight);
    view.horizontalHeader()->hide();
}

/** How often a model of @p rows is asked something while a view pages through it. */
template <typename View, typename Logic>
int questionsOfSteps(int rows)
{
    RowModel model(rows);
    model.itemSize = QSize(50, rowHeight);
    View view;
    prepare(view);
    view.setFrameShape(QFrame::NoFrame);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.resize(100, 8 * rowHeight);
    view.setAutoScroll(false);
    auto *logic = new Logic(&view);
    logic->setModel(&model);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view, ZemTest::hangs)) {
        return -1;
    }
    logic->setIndex(0);
    model.questions = 0;
    logic->page_next();
    logic->page_previous();
    logic->setIndex(13);
    logic->page_previous();
    return model.questions;
}

} // namespace

void tst_PagingWalks::listAgreesWithItsDescription()
{
    PagingWalk<QListView, ZEMListViewLogic, ListRules> walk(61);
    for (int i = 0; i < walkLength; ++i) {
        QVERIFY2(walk.step(), walk.report());
    }
}

void tst_PagingWalks::tableAgreesWithItsDescription()
{
    PagingWalk<QTableView, ZEMTableViewLogic, TableRules> walk(63);
    for (int i = 0; i < walkLength; ++i) {
        QVERIFY2(walk.step(), walk.report());
    }
}

void tst_PagingWalks::stepCostsTheSameInALongList()
{
    const int questions = questionsOfSteps<QListView, ZEMListViewLogic>(20);
    QVERIFY(questions > 0);
    QVERIFY((questionsOfSteps<QListView, ZEMListViewLogic>(100000) <= questions));
}

void tst_PagingWalks::stepCostsTheSameInALongTable()
{
    const int questions = questionsOfSteps<QTableView, ZEMTableViewLogic>(20);
    QVERIFY(questions > 0);
    QVERIFY((questionsOfSteps<QTableView, ZEMTableViewLogic>(100000) <= questions));
}

QTEST_MAIN(tst_PagingWalks)
#include "tst_pagingwalks.moc"
