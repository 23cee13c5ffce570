// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listpaging_p.h"
#include "pagingwalk.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>

using namespace ListPaging;

class tst_ListPaging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageTopIsTheFirstRowOfThePage_data();
    void pageTopIsTheFirstRowOfThePage();
    void pageBeforeStopsAtTheFirstRow_data();
    void pageBeforeStopsAtTheFirstRow();
    void pageAfterStopsAtTheLastRow_data();
    void pageAfterStopsAtTheLastRow();
    void neighboursOfAPage_data();
    void neighboursOfAPage();
    void keptRowIsTheLastOneLeft_data();
    void keptRowIsTheLastOneLeft();
    void agreesWithCountingThePages();
};

static constexpr int most = std::numeric_limits<int>::max();
static constexpr int least = std::numeric_limits<int>::min();

void tst_ListPaging::pageTopIsTheFirstRowOfThePage_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("top");
    QTest::newRow("first row") << 0 << 8 << 0;
    QTest::newRow("last row of a page") << 7 << 8 << 0;
    QTest::newRow("first row of a page") << 8 << 8 << 8;
    QTest::newRow("within a page") << 13 << 8 << 8;
    QTest::newRow("past the end") << 100 << 8 << 96;
    QTest::newRow("pages of one") << 13 << 1 << 13;
    QTest::newRow("before the start") << -1 << 8 << 0;
    QTest::newRow("a page before the start") << -8 << 8 << -8;
    QTest::newRow("before the start, pages of one") << -1 << 1 << -1;
    QTest::newRow("largest") << most << most << most;
    QTest::newRow("smallest") << least << 1 << least;
}

void tst_ListPaging::pageTopIsTheFirstRowOfThePage()
{
    QFETCH(int, row);
    QFETCH(int, pageSize);
    QTEST(pageTop(row, pageSize), "top");
}

void tst_ListPaging::pageBeforeStopsAtTheFirstRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("target");
    QTest::newRow("a page away") << 16 << 8;
    QTest::newRow("just more than a page away") << 9 << 1;
    QTest::newRow("exactly a page away") << 8 << 0;
    QTest::newRow("less than a page away") << 3 << 0;
    QTest::newRow("first row") << 0 << 0;
}

void tst_ListPaging::pageBeforeStopsAtTheFirstRow()
{
    QFETCH(int, row);
    QTEST(pageBefore(row, 8), "target");
}

void tst_ListPaging::pageAfterStopsAtTheLastRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<int>("target");
    QTest::newRow("a page away") << 0 << 8 << 20 << 8;
    QTest::newRow("last row") << 11 << 8 << 20 << 19;
    QTest::newRow("just past the last row") << 12 << 8 << 20 << 19;
    QTest::newRow("far past the last row") << 19 << 8 << 20 << 19;
    QTest::newRow("no rows") << 0 << 8 << 0 << -1;
    QTest::newRow("page of all numbers") << 5 << most << 20 << 19;
    QTest::newRow("as many rows as there can be") << most - 2 << most << most << most - 1;
}

void tst_ListPaging::pageAfterStopsAtTheLastRow()
{
    QFETCH(int, row);
    QFETCH(int, pageSize);
    QFETCH(int, rowCount);
    QTEST(pageAfter(row, pageSize, rowCount), "target");
}

void tst_ListPaging::neighboursOfAPage_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
    QTest::newRow("first page") << 0 << 8 << 20 << false << true;
    QTest::newRow("middle page") << 8 << 8 << 20 << true << true;
    QTest::newRow("last page") << 16 << 8 << 20 << true << false;
    QTest::newRow("full last page") << 8 << 8 << 16 << true << false;
    QTest::newRow("one row on the next page") << 8 << 8 << 17 << true << true;
    QTest::newRow("only page, full") << 0 << 8 << 8 << false << false;
    QTest::newRow("row before a page's length") << 7 << 8 << 20 << false << true;
    QTest::newRow("past the end") << 96 << 8 << 20 << true << false;
    QTest::newRow("emptied") << -1 << 8 << 0 << false << false;
    QTest::newRow("emptied, pages of one") << -1 << 1 << 0 << false << false;
    QTest::newRow("before the start") << -1 << 1 << 1 << false << true;
    QTest::newRow("page of all numbers") << 8 << most << 20 << false << false;
    QTest::newRow("largest row") << most << most << most << true << false;
}

void tst_ListPaging::neighboursOfAPage()
{
    QFETCH(int, row);
    QFETCH(int, pageSize);
    QFETCH(int, rowCount);
    QTEST(neighbours(row, pageSize, rowCount).previous, "previous");
    QTEST(neighbours(row, pageSize, rowCount).next, "next");
}

void tst_ListPaging::keptRowIsTheLastOneLeft_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<int>("kept");
    QTest::newRow("still there") << 13 << 20 << 13;
    QTest::newRow("last row") << 19 << 20 << 19;
    QTest::newRow("just gone") << 20 << 20 << 19;
    QTest::newRow("long gone") << 13 << 5 << 4;
    QTest::newRow("no rows") << 13 << 0 << -1;
    QTest::newRow("no row, no rows") << -1 << 0 << -1;
    QTest::newRow("no row, but rows") << -1 << 5 << -1;
}

void tst_ListPaging::keptRowIsTheLastOneLeft()
{
    QFETCH(int, row);
    QFETCH(int, rowCount);
    QTEST(keptRow(row, rowCount), "kept");
}

void tst_ListPaging::agreesWithCountingThePages()
{
    QRandomGenerator random(61);
    for (int i = 0; i < 20000; ++i) {
        const int pageSize = random.bounded(1, 15);
        const int rowCount = random.bounded(0, 60);
        const int row = random.bounded(-40, 100);
        const int top = int(ListTest::walkedTop(row, pageSize));
        QCOMPARE(pageTop(row, pageSize), top);
        QCOMPARE(pageBefore(row, pageSize), qMax(row - pageSize, 0));
        QCOMPARE(pageAfter(row, pageSize, rowCount), qMin(row + pageSize, rowCount - 1));
        // A page lies before when the row one page up exists, and after likewise.
        QCOMPARE(neighbours(top, pageSize, rowCount).previous, top - pageSize >= 0);
        QCOMPARE(neighbours(top, pageSize, rowCount).next, top + pageSize <= rowCount - 1);
        QCOMPARE(keptRow(row, rowCount), qMin(row, rowCount - 1));
    }
}

QTEST_APPLESS_MAIN(tst_ListPaging)
#include "tst_listpaging.moc"
