// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagingfixture.h"

#include <ZEMTableViewLogic>

#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>

#include <limits>
#include <memory>
#include <type_traits>

using namespace ListTest;

using Fixture = PagingFixture<QTableView, ZEMTableViewLogic>;
using Told = QVector<Pages>;

class tst_ZEMTableViewLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newLogic();
    void livesAndDiesWithTheView();
    void operationsStandInOrder();
    void declaresItsSignalsAndSlots();
    void setModelChoosesNothing();
    void setModelTwiceRestoresTwice();
    void formerModelStillRestores();
    void delegateIsHandedOn();
    void pageSizeIsPositive_data();
    void pageSizeIsPositive();
    void pageSizeShowsWithTheNextMove();
    void dataIsTheDisplayedText();
    void choosing_data();
    void choosing();
    void choosingSelectsScrollsAndTells();
    void choosingADisabledRow();
    void pageMoves_data();
    void pageMoves();
    void pageMoveLeavesChoiceAndSelection();
    void currentColumnBecomesTheFirst();
    void selectionFlagsMoveTheSelection();
    void scrollHintIsForEveryScroll();
    void pageMoveSelectsScrollsAndTells();
    void noPagingWithoutCurrentRow();
    void resets_data();
    void resets();
    void emptiedTableStaysWithoutChoice();
    void resetReturnsToTheChosenRow();
};

void tst_ZEMTableViewLogic::newLogic()
{
    QTableView view;
    ZEMTableViewLogic logic(&view);
    QCOMPARE(logic.parent(), &view);
    QCOMPARE(logic.getNrPageItems(), 8);
    QCOMPARE(logic.index(), 0);
    QVERIFY(!view.model());
    ZEMTableViewInterface *table = &logic;
    table->setNrPageItems(3);
    QCOMPARE(logic.getNrPageItems(), 3);
    QVERIFY((std::is_base_of_v<QObject, ZEMTableViewLogic>));
}

void tst_ZEMTableViewLogic::livesAndDiesWithTheView()
{
    auto view = std::make_unique<QTableView>();
    const QPointer<ZEMTableViewLogic> logic = new ZEMTableViewLogic(view.get());
    view.reset();
    QVERIFY(logic.isNull());

    Fixture table;
    delete table.logic;
    table.model.resetTo(5); // reaches nobody
    QCOMPARE(table.told, Told());
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

void tst_ZEMTableViewLogic::declaresItsSignalsAndSlots()
{
    const QStringList methods = {
        QStringLiteral("private slot reset()"), QStringLiteral("signal has_page(bool,bool)"),
        QStringLiteral("slot page_next()"), QStringLiteral("slot page_previous()")};
    QCOMPARE(ownMethods(ZEMTableViewLogic::staticMetaObject), methods);
}

void tst_ZEMTableViewLogic::setModelChoosesNothing()
{
    Fixture table;
    QCOMPARE(table.view.model(), &table.model);
    QCOMPARE(table.currentRow(), -1);
    QCOMPARE(table.told, Told());
    QVERIFY(table.view.scrolls.isEmpty());

    table.logic->setIndex(13);
    table.told.clear();
    table.view.scrolls.clear();
    RowModel other(20);
    table.logic->setModel(&other);
    QCOMPARE(table.view.model(), &other);
    QCOMPARE(table.logic->index(), 0);
    QCOMPARE(table.currentRow(), -1);
    QCOMPARE(table.told, Told());
    QVERIFY(table.view.scrolls.isEmpty());
    table.logic->setModel(nullptr);
}

void tst_ZEMTableViewLogic::setModelTwiceRestoresTwice()
{
    Fixture table;
    table.model.resetTo(20);
    QCOMPARE(table.told.count(), 1);
    table.logic->setModel(&table.model);
    table.model.resetTo(20);
    QCOMPARE(table.told.count(), 3);
}

void tst_ZEMTableViewLogic::formerModelStillRestores()
{
    Fixture table;
    RowModel other(12);
    table.logic->setModel(&other);
    table.logic->setIndex(9);
    table.makeCurrent(0); // of the former model: changes nothing
    table.view.setCurrentIndex(other.index(2, 0));
    table.told.clear();
    table.model.resetTo(3);
    QCOMPARE(table.logic->index(), 9);
    QCOMPARE(table.currentRow(), 9);
    QCOMPARE(table.told, Told({{true, false}}));
    table.logic->setModel(nullptr);
}

void tst_ZEMTableViewLogic::delegateIsHandedOn()
{
    Fixture table;
    QStyledItemDelegate delegate;
    table.logic->setItemDelegate(&delegate);
    QCOMPARE(table.view.itemDelegate(), &delegate);
}

void tst_ZEMTableViewLogic::pageSizeIsPositive_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pageSize");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("many") << 100 << 100;
    QTest::newRow("none") << 0 << 5;
    QTest::newRow("fewer than none") << -3 << 5;
}

void tst_ZEMTableViewLogic::pageSizeIsPositive()
{
    Fixture table;
    table.logic->setNrPageItems(5);
    QCOMPARE(table.logic->getNrPageItems(), 5);
    QFETCH(int, count);
    table.logic->setNrPageItems(count);
    QTEST(table.logic->getNrPageItems(), "pageSize");
}

void tst_ZEMTableViewLogic::pageSizeShowsWithTheNextMove()
{
    Fixture table;
    table.logic->setIndex(13);
    table.told.clear();
    table.view.scrolls.clear();
    table.logic->setNrPageItems(3);
    QCOMPARE(table.told, Told());
    QVERIFY(table.view.scrolls.isEmpty());
    QCOMPARE(table.currentRow(), 13);
    table.logic->page_next();
    QCOMPARE(table.currentRow(), 16);
    QCOMPARE(table.view.scrolls.constLast().row, 15);
    QCOMPARE(table.told, Told({{true, true}}));
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
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("chosen"); // 3 was chosen before
    QTest::addColumn<int>("scrolled"); // -1 for not at all
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
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
    QFETCH(int, rows);
    Fixture table(rows);
    table.logic->setIndex(3);
    table.told.clear();
    table.view.scrolls.clear();
    QFETCH(int, pageSize);
    table.logic->setNrPageItems(pageSize);

    QFETCH(int, row);
    table.logic->setIndex(row);
    QFETCH(int, chosen);
    QCOMPARE(table.logic->index(), chosen);
    QCOMPARE(table.currentRow(), chosen);
    QCOMPARE(selectedRows(table.view), QSet<int> {chosen});
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(table.told, Told({{previous, next}}));
    QFETCH(int, scrolled);
    QCOMPARE(table.view.scrolls.count(), scrolled < 0 ? 0 : 1);
    if (scrolled >= 0) {
        QCOMPARE(table.view.scrolls.constFirst().row, scrolled);
        QCOMPARE(table.view.scrolls.constFirst().hint, QAbstractItemView::PositionAtTop);
    }
}

void tst_ZEMTableViewLogic::choosingSelectsScrollsAndTells()
{
    Fixture table;
    table.noteEvents();
    table.logic->setIndex(9);
    const QStringList order = {QStringLiteral("current 9, chosen 9"), QStringLiteral("scrolled 8"),
                               QStringLiteral("told 1 1")};
    QCOMPARE(table.events, order);
}

void tst_ZEMTableViewLogic::choosingADisabledRow()
{
    Fixture table;
    table.model.disabledRows = {9};
    table.logic->setIndex(2);
    table.logic->setIndex(9);
    QCOMPARE(table.logic->index(), 9);
    QCOMPARE(table.currentRow(), 2);
}

void tst_ZEMTableViewLogic::pageMoves_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<QByteArray>("move");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("scrolled");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
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
    QFETCH(int, rows);
    Fixture table(rows);
    QFETCH(int, pageSize);
    table.logic->setNrPageItems(pageSize);
    QFETCH(int, before);
    table.makeCurrent(before);
    table.view.scrolls.clear();

    QFETCH(QByteArray, move);
    QVERIFY(QMetaObject::invokeMethod(table.logic, move.constData()));
    QFETCH(int, after);
    QCOMPARE(table.currentRow(), after);
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(table.told, Told({{previous, next}}));
    QCOMPARE(table.view.scrolls.count(), 1);
    QTEST(table.view.scrolls.constFirst().row, "scrolled");
}

void tst_ZEMTableViewLogic::pageMoveLeavesChoiceAndSelection()
{
    Fixture table;
    table.logic->setIndex(2);
    table.logic->page_next();
    QCOMPARE(table.currentRow(), 10);
    QCOMPARE(table.logic->index(), 2);
    QCOMPARE(selectedRows(table.view), QSet<int> {2});
    table.logic->page_previous();
    QCOMPARE(table.currentRow(), 2);
    table.logic->page_previous();
    QCOMPARE(table.currentRow(), 0);
    QCOMPARE(table.logic->index(), 2);
    QCOMPARE(selectedRows(table.view), QSet<int> {2});
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

void tst_ZEMTableViewLogic::selectionFlagsMoveTheSelection()
{
    Fixture table;
    table.logic->setIndex(2);
    table.logic->setSelectionFlags(QItemSelectionModel::ClearAndSelect);
    QCOMPARE(selectedRows(table.view), QSet<int> {2});
    table.logic->page_next();
    QCOMPARE(selectedRows(table.view), QSet<int> {10});
    table.logic->page_previous();
    QCOMPARE(selectedRows(table.view), QSet<int> {2});
}

void tst_ZEMTableViewLogic::scrollHintIsForEveryScroll()
{
    Fixture table;
    table.logic->setScrollHint(QAbstractItemView::PositionAtCenter);
    QVERIFY(table.view.scrolls.isEmpty());
    table.logic->setIndex(2);
    table.logic->page_next();
    table.logic->page_previous();
    QCOMPARE(table.view.scrolls.count(), 3);
    for (const auto &scroll : qAsConst(table.view.scrolls)) {
        QCOMPARE(scroll.hint, QAbstractItemView::PositionAtCenter);
    }
}

void tst_ZEMTableViewLogic::pageMoveSelectsScrollsAndTells()
{
    Fixture table;
    table.logic->setIndex(2);
    table.noteEvents();
    table.events.clear();
    table.logic->page_next();
    table.logic->page_previous();
    const QStringList order = {QStringLiteral("current 10, chosen 2"),
                               QStringLiteral("scrolled 8"),
                               QStringLiteral("told 1 1"),
                               QStringLiteral("current 2, chosen 2"),
                               QStringLiteral("scrolled 0"),
                               QStringLiteral("told 0 1")};
    QCOMPARE(table.events, order);
}

void tst_ZEMTableViewLogic::noPagingWithoutCurrentRow()
{
    Fixture table;
    table.logic->page_next();
    table.logic->page_previous();
    QCOMPARE(table.told, Told());
    QCOMPARE(table.currentRow(), -1);
    QCOMPARE(table.logic->index(), 0);
    QVERIFY(table.view.scrolls.isEmpty());

    table.model.resetTo(20); // makes row 0 current
    table.logic->page_next();
    QCOMPARE(table.currentRow(), 8);
    QCOMPARE(table.told, Told({{false, true}, {true, true}}));
}

void tst_ZEMTableViewLogic::resets_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("rows"); // 20 before
    QTest::addColumn<int>("kept");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
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
    Fixture table;
    QFETCH(int, chosen);
    table.logic->setIndex(chosen);
    table.told.clear();
    table.view.scrolls.clear();
    QFETCH(int, rows);
    table.model.resetTo(rows);
    QFETCH(int, kept);
    QCOMPARE(table.logic->index(), kept);
    QCOMPARE(table.currentRow(), kept);
    QCOMPARE(selectedRows(table.view), kept < 0 ? QSet<int>() : QSet<int> {kept});
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(table.told, Told({{previous, next}}));
    QVERIFY(table.view.scrolls.isEmpty());
}

void tst_ZEMTableViewLogic::emptiedTableStaysWithoutChoice()
{
    Fixture table;
    table.logic->setIndex(13);
    table.model.resetTo(0);
    table.model.resetTo(20);
    QCOMPARE(table.logic->index(), -1);
    QCOMPARE(table.currentRow(), -1);
    QCOMPARE(table.told, Told({{true, false}, {false, false}, {false, true}}));
    table.logic->setIndex(20);
    QCOMPARE(table.logic->index(), -1);
    table.logic->setIndex(4);
    QCOMPARE(table.logic->index(), 4);
    table.model.resetTo(0);
    table.logic->setModel(&table.model);
    QCOMPARE(table.logic->index(), 0);
}

void tst_ZEMTableViewLogic::resetReturnsToTheChosenRow()
{
    Fixture table;
    table.noteEvents();
    QVERIFY(QTest::qWaitForWindowExposed(&table.view));
    table.logic->setIndex(2);
    table.logic->page_next();
    QCOMPARE(table.currentRow(), 10);
    QCOMPARE(table.view.verticalScrollBar()->value(), 8);
    table.told.clear();
    table.model.resetTo(20);
    QCoreApplication::processEvents();
    QCOMPARE(table.currentRow(), 2);
    QCOMPARE(table.told, Told({{false, true}}));
    QCOMPARE(table.view.verticalScrollBar()->value(), 8);
}

QTEST_MAIN(tst_ZEMTableViewLogic)
#include "tst_zemtableviewlogic.moc"
