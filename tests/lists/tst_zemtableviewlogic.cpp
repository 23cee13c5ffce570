// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagingfixture.h"

#include <ZEMTableViewLogic>

#include <QTableView>
#include <QTest>

#include <limits>
#include <type_traits>

using namespace ListTest;

using Fixture = PagingFixture<QTableView, ZEMTableViewLogic>;

/** What the engine of a table does in its own way. */
class tst_ZEMTableViewLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void servesThroughItsInterface();
    void operationsStandInOrder();
    void dataIsTheDisplayedText();
    void choosing_data();
    void choosing();
    void pageMoves_data();
    void pageMoves();
    void currentColumnBecomesTheFirst();
    void resets_data();
    void resets();
};

void tst_ZEMTableViewLogic::servesThroughItsInterface()
{
    QTableView view;
    ZEMTableViewLogic logic(&view);
    ZEMTableViewInterface *table = &logic;
    table->setNrPageItems(3);
    QCOMPARE(logic.getNrPageItems(), 3);
}

void tst_ZEMTableViewLogic::operationsStandInOrder()
{
    SKIP_UNLESS_PLACES_ARE_KNOWN();
    using I = ZEMTableViewInterface;
    QCOMPARE(place(&I::setModel), 0);
    QCOMPARE(place(&I::setItemDelegate), 1);
    QCOMPARE(place(&I::setSelectionFlags), 2);
    QCOMPARE(place(&I::setScrollHint), 3);
    QCOMPARE(place(&I::setNrPageItems), 4);
    QCOMPARE(place(&I::setIndex), 5);
    QCOMPARE(place(&I::index), 6);
    QCOMPARE(place(&I::data), 7);
    QVERIFY(std::is_abstract_v<I> && !std::has_virtual_destructor_v<I>);
    QCOMPARE(sizeof(I), sizeof(void *));

    using T = ZEMTableViewLogic;
    const std::ptrdiff_t first = place(&T::setModel);
    QCOMPARE(place(&T::setItemDelegate), first + 1);
    QCOMPARE(place(&T::setSelectionFlags), first + 2);
    QCOMPARE(place(&T::setScrollHint), first + 3);
    QCOMPARE(place(&T::setNrPageItems), first + 4);
    QCOMPARE(place(&T::setIndex), first + 5);
    QCOMPARE(place(&T::index), first + 6);
    QCOMPARE(place(&T::data), first + 7);
    QCOMPARE(place(&T::getNrPageItems), -1);
    QCOMPARE(place(&T::page_previous), -1);
    QCOMPARE(place(&T::page_next), -1);
}

void tst_ZEMTableViewLogic::dataIsTheDisplayedText()
{
    Fixture table;
    QCOMPARE(table.logic->data(0, 0), QVariant(QStringLiteral("0:0")));
    QCOMPARE(table.logic->data(19, 2), QVariant(QStringLiteral("19:2")));
    QVERIFY(!table.logic->data(2, 3).isValid());
    QVERIFY(!table.logic->data(2, 5).isValid());
    QVERIFY(!table.logic->data(2, -1).isValid());
    QVERIFY(!table.logic->data(20, 0).isValid());
    QVERIFY(!table.logic->data(-1, 0).isValid());
}

void tst_ZEMTableViewLogic::choosing_data()
{
    addChoosingColumns();
    QTest::newRow("first row") << 20 << 8 << 0 << 0 << 0 << false << true;
    QTest::newRow("row 3") << 20 << 8 << 3 << 3 << 0 << false << true;
    QTest::newRow("last row of the first page") << 20 << 8 << 7 << 7 << 0 << false << true;
    QTest::newRow("second page") << 20 << 8 << 9 << 9 << 8 << true << true;
    QTest::newRow("one page and a row before the end") << 20 << 8 << 11 << 11 << 8 << true << true;
    QTest::newRow("one page before the end") << 20 << 8 << 12 << 12 << 8 << true << false;
    QTest::newRow("row 13") << 20 << 8 << 13 << 13 << 8 << true << false;
    QTest::newRow("last page") << 20 << 8 << 19 << 19 << 16 << true << false;
    QTest::newRow("pages of one") << 20 << 1 << 5 << 5 << 5 << true << true;
    QTest::newRow("just past the end") << 20 << 8 << 20 << 3 << -1 << false << true;
    QTest::newRow("far past the end") << 20 << 8 << 100 << 3 << -1 << false << true;
    QTest::newRow("before the start") << 20 << 8 << -1 << 3 << -1 << false << true;
    QTest::newRow("before the start, pages of two") << 20 << 2 << -1 << 3 << -1 << true << true;
    QTest::newRow("past the end of one page") << 8 << 8 << 8 << 3 << -1 << false << false;
}

void tst_ZEMTableViewLogic::choosing()
{
    checkChoosing<Fixture>();
}

void tst_ZEMTableViewLogic::pageMoves_data()
{
    addPageMoveColumns();
    const QByteArray next("page_next");
    const QByteArray previous("page_previous");
    QTest::newRow("next from the first row") << 20 << 8 << next << 0 << 8 << 8 << true << true;
    QTest::newRow("next from row 5") << 20 << 8 << next << 5 << 8 << 13 << true << false;
    QTest::newRow("next from row 13") << 20 << 8 << next << 13 << 16 << 19 << true << false;
    QTest::newRow("next from the last row") << 20 << 8 << next << 19 << 16 << 19 << true << false;
    QTest::newRow("next from row 3") << 20 << 8 << next << 3 << 8 << 11 << true << true;
    QTest::newRow("next in a single page") << 5 << 8 << next << 3 << 0 << 4 << false << false;
    QTest::newRow("next in pages of one") << 3 << 1 << next << 1 << 2 << 2 << true << false;
    QTest::newRow("next, page of all numbers")
        << 20 << std::numeric_limits<int>::max() << next << 13 << 0 << 19 << false << false;
    QTest::newRow("previous from row 13") << 20 << 8 << previous << 13 << 0 << 5 << false << true;
    QTest::newRow("previous from row 19") << 20 << 8 << previous << 19 << 8 << 11 << true << true;
    QTest::newRow("previous from row 16") << 20 << 8 << previous << 16 << 8 << 8 << true << true;
    QTest::newRow("previous from row 8") << 20 << 8 << previous << 8 << 0 << 0 << false << true;
    QTest::newRow("previous from row 9") << 20 << 8 << previous << 9 << 0 << 1 << false << true;
    QTest::newRow("previous from row 3") << 20 << 8 << previous << 3 << 0 << 0 << false << true;
    QTest::newRow("previous in pages of one") << 3 << 1 << previous << 2 << 1 << 1 << true << true;
}

void tst_ZEMTableViewLogic::pageMoves()
{
    checkPageMove<Fixture>();
}

void tst_ZEMTableViewLogic::currentColumnBecomesTheFirst()
{
    Fixture table;
    table.makeCurrent(2, 2);
    QCOMPARE(table.view.currentIndex().column(), 2);
    table.logic->page_next();
    QCOMPARE(table.view.currentIndex(), table.model.index(10, 0));
    table.makeCurrent(10, 1);
    table.logic->page_previous();
    QCOMPARE(table.view.currentIndex(), table.model.index(2, 0));
    table.makeCurrent(2, 1);
    table.logic->setIndex(2);
    QCOMPARE(table.view.currentIndex(), table.model.index(2, 0));
}

void tst_ZEMTableViewLogic::resets_data()
{
    addResetColumns();
    QTest::newRow("same rows") << 13 << 20 << 13 << true << false;
    QTest::newRow("a page after the row") << 13 << 21 << 13 << true << false;
    QTest::newRow("a page and a row after the row") << 13 << 22 << 13 << true << true;
    QTest::newRow("just enough rows") << 13 << 14 << 13 << true << false;
    QTest::newRow("one row too few") << 13 << 13 << 12 << true << false;
    QTest::newRow("far fewer rows") << 13 << 5 << 4 << false << false;
    QTest::newRow("one row") << 13 << 1 << 0 << false << false;
    QTest::newRow("no rows") << 13 << 0 << -1 << false << false;
    QTest::newRow("on the first page") << 2 << 11 << 2 << false << true;
    QTest::newRow("not a page after the row") << 2 << 10 << 2 << false << false;
}

void tst_ZEMTableViewLogic::resets()
{
    checkReset<Fixture>();
}

QTEST_MAIN(tst_ZEMTableViewLogic)
#include "tst_zemtableviewlogic.moc"
