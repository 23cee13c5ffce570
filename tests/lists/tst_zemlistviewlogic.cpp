// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagingfixture.h"

#include <ZEMListViewLogic>

#include <QListView>
#include <QTest>

#include <limits>
#include <type_traits>

using namespace ListTest;

using Fixture = PagingFixture<QListView, ZEMListViewLogic>;

/** What the engine of a list does in its own way. */
class tst_ZEMListViewLogic : public QObject
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
    void resets_data();
    void resets();
};

void tst_ZEMListViewLogic::servesThroughItsInterface()
{
    QListView view;
    ZEMListViewLogic logic(&view);
    ZEMListViewInterface *list = &logic;
    QCOMPARE(list->nrPageItems(), 8);
    list->setNrPageItems(3);
    QCOMPARE(logic.nrPageItems(), 3);
}

void tst_ZEMListViewLogic::operationsStandInOrder()
{
    SKIP_UNLESS_PLACES_ARE_KNOWN();
    using I = ZEMListViewInterface;
    QCOMPARE(place(&I::setModel), 0);
    QCOMPARE(place(&I::setItemDelegate), 1);
    QCOMPARE(place(&I::setSelectionFlags), 2);
    QCOMPARE(place(&I::setScrollHint), 3);
    QCOMPARE(place(&I::setNrPageItems), 4);
    QCOMPARE(place(&I::nrPageItems), 5);
    QCOMPARE(place(&I::setIndex), 6);
    QCOMPARE(place(&I::index), 7);
    QCOMPARE(place(&I::data), 8);
    QVERIFY(std::is_abstract_v<I> && !std::has_virtual_destructor_v<I>);
    QCOMPARE(sizeof(I), sizeof(void *));

    using L = ZEMListViewLogic;
    const std::ptrdiff_t first = place(&L::setModel);
    QCOMPARE(place(&L::setItemDelegate), first + 1);
    QCOMPARE(place(&L::setSelectionFlags), first + 2);
    QCOMPARE(place(&L::setScrollHint), first + 3);
    QCOMPARE(place(&L::setNrPageItems), first + 4);
    QCOMPARE(place(&L::nrPageItems), first + 5);
    QCOMPARE(place(&L::setIndex), first + 6);
    QCOMPARE(place(&L::index), first + 7);
    QCOMPARE(place(&L::data), first + 8);
    QCOMPARE(place(&L::page_previous), -1);
    QCOMPARE(place(&L::page_next), -1);
}

void tst_ZEMListViewLogic::dataIsTheDisplayedText()
{
    Fixture list;
    QCOMPARE(list.logic->data(0), QVariant(QStringLiteral("0:0")));
    QCOMPARE(list.logic->data(19), QVariant(QStringLiteral("19:0")));
    QVERIFY(!list.logic->data(20).isValid());
    QVERIFY(!list.logic->data(-1).isValid());
}

void tst_ZEMListViewLogic::choosing_data()
{
    addChoosingColumns();
    QTest::newRow("first row") << 20 << 8 << 0 << 0 << 0 << false << true;
    QTest::newRow("last row of the first page") << 20 << 8 << 7 << 7 << 0 << false << true;
    QTest::newRow("second page") << 20 << 8 << 13 << 13 << 8 << true << true;
    QTest::newRow("last page") << 20 << 8 << 19 << 19 << 16 << true << false;
    QTest::newRow("full last page") << 16 << 8 << 13 << 13 << 8 << true << false;
    QTest::newRow("one page") << 8 << 8 << 5 << 5 << 0 << false << false;
    QTest::newRow("pages of one") << 20 << 1 << 5 << 5 << 5 << true << true;
    QTest::newRow("just past the end") << 20 << 8 << 20 << 3 << -1 << true << false;
    QTest::newRow("past the end of a full page") << 24 << 8 << 24 << 3 << -1 << true << false;
    QTest::newRow("far past the end") << 20 << 8 << 100 << 3 << -1 << true << false;
    QTest::newRow("before the start") << 20 << 8 << -1 << 3 << -1 << false << true;
    QTest::newRow("before the start of one page") << 8 << 8 << -1 << 3 << -1 << false << false;
    QTest::newRow("before the start, pages of one") << 20 << 1 << -1 << 3 << -1 << false << true;
}

void tst_ZEMListViewLogic::choosing()
{
    checkChoosing<Fixture>();
}

void tst_ZEMListViewLogic::pageMoves_data()
{
    addPageMoveColumns();
    const QByteArray next("page_next");
    const QByteArray previous("page_previous");
    QTest::newRow("next from the first row") << 20 << 8 << next << 0 << 8 << 8 << true << true;
    QTest::newRow("next from row 13") << 20 << 8 << next << 13 << 16 << 16 << true << false;
    QTest::newRow("next from the last page") << 20 << 8 << next << 16 << 16 << 16 << true << false;
    QTest::newRow("next from the last row") << 20 << 8 << next << 19 << 16 << 16 << true << false;
    QTest::newRow("next from row 3") << 20 << 8 << next << 3 << 8 << 8 << true << true;
    QTest::newRow("next to a full last page") << 16 << 8 << next << 0 << 8 << 8 << true << false;
    QTest::newRow("next in a single page") << 5 << 8 << next << 3 << 0 << 0 << false << false;
    QTest::newRow("next in pages of one") << 3 << 1 << next << 1 << 2 << 2 << true << false;
    QTest::newRow("next, page of all numbers")
        << 20 << std::numeric_limits<int>::max() << next << 13 << 0 << 0 << false << false;
    QTest::newRow("previous from row 16") << 20 << 8 << previous << 16 << 8 << 8 << true << true;
    QTest::newRow("previous from row 19") << 20 << 8 << previous << 19 << 8 << 8 << true << true;
    QTest::newRow("previous from row 8") << 20 << 8 << previous << 8 << 0 << 0 << false << true;
    QTest::newRow("previous from row 9") << 20 << 8 << previous << 9 << 0 << 0 << false << true;
    QTest::newRow("previous from row 3") << 20 << 8 << previous << 3 << 0 << 0 << false << true;
    QTest::newRow("previous in pages of one") << 3 << 1 << previous << 2 << 1 << 1 << true << true;
}

void tst_ZEMListViewLogic::pageMoves()
{
    checkPageMove<Fixture>();
}

void tst_ZEMListViewLogic::resets_data()
{
    addResetColumns();
    QTest::newRow("same rows") << 13 << 20 << 13 << true << true;
    QTest::newRow("more rows") << 13 << 50 << 13 << true << true;
    QTest::newRow("just enough rows") << 13 << 14 << 13 << true << false;
    QTest::newRow("a full last page") << 13 << 16 << 13 << true << false;
    QTest::newRow("one row too few") << 13 << 13 << 12 << true << false;
    QTest::newRow("far fewer rows") << 13 << 5 << 4 << false << false;
    QTest::newRow("one row") << 13 << 1 << 0 << false << false;
    QTest::newRow("no rows") << 13 << 0 << -1 << false << false;
    QTest::newRow("on the first page") << 2 << 9 << 2 << false << true;
}

void tst_ZEMListViewLogic::resets()
{
    checkReset<Fixture>();
}

QTEST_MAIN(tst_ZEMListViewLogic)
#include "tst_zemlistviewlogic.moc"
