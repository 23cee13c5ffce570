// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagingfixture.h"

#include <ZEMListViewLogic>

#include <QListView>
#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTest>

#include <limits>
#include <memory>
#include <type_traits>

using namespace ListTest;

using Fixture = PagingFixture<QListView, ZEMListViewLogic>;
using Told = QVector<Pages>;

class tst_ZEMListViewLogic : public QObject
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
    void selectionFlagsMoveTheSelection();
    void scrollHintIsForEveryScroll();
    void pageMoveSelectsScrollsAndTells();
    void noPagingWithoutCurrentRow();
    void resets_data();
    void resets();
    void emptiedListStaysWithoutChoice();
    void resetReturnsToTheChosenRow();
};

void tst_ZEMListViewLogic::newLogic()
{
    QListView view;
    ZEMListViewLogic logic(&view);
    QCOMPARE(logic.parent(), &view);
    QCOMPARE(logic.nrPageItems(), 8);
    QCOMPARE(logic.index(), 0);
    QVERIFY(!view.model());
    ZEMListViewInterface *list = &logic;
    QCOMPARE(list->nrPageItems(), 8);
    QVERIFY((std::is_base_of_v<QObject, ZEMListViewLogic>));
}

void tst_ZEMListViewLogic::livesAndDiesWithTheView()
{
    auto view = std::make_unique<QListView>();
    const QPointer<ZEMListViewLogic> logic = new ZEMListViewLogic(view.get());
    view.reset();
    QVERIFY(logic.isNull());

    Fixture list;
    delete list.logic;
    list.model.resetTo(5); // reaches nobody
    QCOMPARE(list.told, Told());
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

void tst_ZEMListViewLogic::declaresItsSignalsAndSlots()
{
    const QStringList methods = {
        QStringLiteral("private slot reset()"), QStringLiteral("signal has_page(bool,bool)"),
        QStringLiteral("slot page_next()"), QStringLiteral("slot page_previous()")};
    QCOMPARE(ownMethods(ZEMListViewLogic::staticMetaObject), methods);
}

void tst_ZEMListViewLogic::setModelChoosesNothing()
{
    Fixture list;
    QCOMPARE(list.view.model(), &list.model);
    QCOMPARE(list.currentRow(), -1);
    QCOMPARE(list.told, Told());
    QVERIFY(list.view.scrolls.isEmpty());

    list.logic->setIndex(13);
    list.told.clear();
    list.view.scrolls.clear();
    RowModel other(20);
    list.logic->setModel(&other);
    QCOMPARE(list.view.model(), &other);
    QCOMPARE(list.logic->index(), 0);
    QCOMPARE(list.currentRow(), -1);
    QCOMPARE(list.told, Told());
    QVERIFY(list.view.scrolls.isEmpty());
    list.logic->setModel(nullptr);
}

void tst_ZEMListViewLogic::setModelTwiceRestoresTwice()
{
    Fixture list;
    list.model.resetTo(20);
    QCOMPARE(list.told.count(), 1);
    list.logic->setModel(&list.model);
    list.model.resetTo(20);
    QCOMPARE(list.told.count(), 3);
}

void tst_ZEMListViewLogic::formerModelStillRestores()
{
    Fixture list;
    RowModel other(12);
    list.logic->setModel(&other);
    list.logic->setIndex(9);
    list.makeCurrent(0); // of the former model: changes nothing
    list.view.setCurrentIndex(other.index(2, 0));
    list.told.clear();
    list.model.resetTo(3);
    QCOMPARE(list.logic->index(), 9);
    QCOMPARE(list.currentRow(), 9);
    QCOMPARE(list.told, Told({{true, false}}));
    list.logic->setModel(nullptr);
}

void tst_ZEMListViewLogic::delegateIsHandedOn()
{
    Fixture list;
    QStyledItemDelegate delegate;
    list.logic->setItemDelegate(&delegate);
    QCOMPARE(list.view.itemDelegate(), &delegate);
}

void tst_ZEMListViewLogic::pageSizeIsPositive_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pageSize");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("many") << 100 << 100;
    QTest::newRow("none") << 0 << 5;
    QTest::newRow("fewer than none") << -3 << 5;
}

void tst_ZEMListViewLogic::pageSizeIsPositive()
{
    Fixture list;
    list.logic->setNrPageItems(5);
    QCOMPARE(list.logic->nrPageItems(), 5);
    QFETCH(int, count);
    list.logic->setNrPageItems(count);
    QTEST(list.logic->nrPageItems(), "pageSize");
}

void tst_ZEMListViewLogic::pageSizeShowsWithTheNextMove()
{
    Fixture list;
    list.logic->setIndex(13);
    list.told.clear();
    list.view.scrolls.clear();
    list.logic->setNrPageItems(3);
    QCOMPARE(list.told, Told());
    QVERIFY(list.view.scrolls.isEmpty());
    QCOMPARE(list.currentRow(), 13);
    list.logic->page_next();
    QCOMPARE(list.currentRow(), 15);
    QCOMPARE(list.told, Told({{true, true}}));
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
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("chosen"); // 3 was chosen before
    QTest::addColumn<int>("scrolled"); // -1 for not at all
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
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
    QFETCH(int, rows);
    Fixture list(rows);
    list.logic->setIndex(3);
    list.told.clear();
    list.view.scrolls.clear();
    QFETCH(int, pageSize);
    list.logic->setNrPageItems(pageSize);

    QFETCH(int, row);
    list.logic->setIndex(row);
    QFETCH(int, chosen);
    QCOMPARE(list.logic->index(), chosen);
    QCOMPARE(list.currentRow(), chosen);
    QCOMPARE(selectedRows(list.view), QSet<int> {chosen});
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(list.told, Told({{previous, next}}));
    QFETCH(int, scrolled);
    QCOMPARE(list.view.scrolls.count(), scrolled < 0 ? 0 : 1);
    if (scrolled >= 0) {
        QCOMPARE(list.view.scrolls.constFirst().row, scrolled);
        QCOMPARE(list.view.scrolls.constFirst().hint, QAbstractItemView::PositionAtTop);
    }
}

void tst_ZEMListViewLogic::choosingSelectsScrollsAndTells()
{
    Fixture list;
    list.noteEvents();
    list.logic->setIndex(9);
    const QStringList order = {QStringLiteral("current 9, chosen 9"), QStringLiteral("scrolled 8"),
                               QStringLiteral("told 1 1")};
    QCOMPARE(list.events, order);
}

void tst_ZEMListViewLogic::choosingADisabledRow()
{
    Fixture list;
    list.model.disabledRows = {9};
    list.logic->setIndex(2);
    list.logic->setIndex(9);
    QCOMPARE(list.logic->index(), 9);
    QCOMPARE(list.currentRow(), 2);
}

void tst_ZEMListViewLogic::pageMoves_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<QByteArray>("move");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
    const QByteArray next("page_next");
    const QByteArray previous("page_previous");
    QTest::newRow("next from the first row") << 20 << 8 << next << 0 << 8 << true << true;
    QTest::newRow("next from row 13") << 20 << 8 << next << 13 << 16 << true << false;
    QTest::newRow("next from the last page") << 20 << 8 << next << 16 << 16 << true << false;
    QTest::newRow("next from the last row") << 20 << 8 << next << 19 << 16 << true << false;
    QTest::newRow("next from row 3") << 20 << 8 << next << 3 << 8 << true << true;
    QTest::newRow("next to a full last page") << 16 << 8 << next << 0 << 8 << true << false;
    QTest::newRow("next in a single page") << 5 << 8 << next << 3 << 0 << false << false;
    QTest::newRow("next in pages of one") << 3 << 1 << next << 1 << 2 << true << false;
    QTest::newRow("next, page of all numbers")
        << 20 << std::numeric_limits<int>::max() << next << 13 << 0 << false << false;
    QTest::newRow("previous from row 16") << 20 << 8 << previous << 16 << 8 << true << true;
    QTest::newRow("previous from row 19") << 20 << 8 << previous << 19 << 8 << true << true;
    QTest::newRow("previous from row 8") << 20 << 8 << previous << 8 << 0 << false << true;
    QTest::newRow("previous from row 9") << 20 << 8 << previous << 9 << 0 << false << true;
    QTest::newRow("previous from row 3") << 20 << 8 << previous << 3 << 0 << false << true;
    QTest::newRow("previous in pages of one") << 3 << 1 << previous << 2 << 1 << true << true;
}

void tst_ZEMListViewLogic::pageMoves()
{
    QFETCH(int, rows);
    Fixture list(rows);
    QFETCH(int, pageSize);
    list.logic->setNrPageItems(pageSize);
    QFETCH(int, before);
    list.makeCurrent(before);
    list.view.scrolls.clear();

    QFETCH(QByteArray, move);
    QVERIFY(QMetaObject::invokeMethod(list.logic, move.constData()));
    QFETCH(int, after);
    QCOMPARE(list.currentRow(), after);
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(list.told, Told({{previous, next}}));
    QCOMPARE(list.view.scrolls.count(), 1);
    QCOMPARE(list.view.scrolls.constFirst().row, after);
}

void tst_ZEMListViewLogic::pageMoveLeavesChoiceAndSelection()
{
    Fixture list;
    list.logic->setIndex(2);
    list.logic->page_next();
    QCOMPARE(list.currentRow(), 8);
    QCOMPARE(list.logic->index(), 2);
    QCOMPARE(selectedRows(list.view), QSet<int> {2});
    list.logic->page_previous();
    QCOMPARE(list.logic->index(), 2);
    QCOMPARE(selectedRows(list.view), QSet<int> {2});
}

void tst_ZEMListViewLogic::selectionFlagsMoveTheSelection()
{
    Fixture list;
    list.logic->setIndex(2);
    list.logic->setSelectionFlags(QItemSelectionModel::ClearAndSelect);
    QCOMPARE(selectedRows(list.view), QSet<int> {2});
    list.logic->page_next();
    QCOMPARE(selectedRows(list.view), QSet<int> {8});
    list.logic->page_previous();
    QCOMPARE(selectedRows(list.view), QSet<int> {0});
}

void tst_ZEMListViewLogic::scrollHintIsForEveryScroll()
{
    Fixture list;
    list.logic->setScrollHint(QAbstractItemView::PositionAtCenter);
    QVERIFY(list.view.scrolls.isEmpty());
    list.logic->setIndex(2);
    list.logic->page_next();
    list.logic->page_previous();
    QCOMPARE(list.view.scrolls.count(), 3);
    for (const auto &scroll : qAsConst(list.view.scrolls)) {
        QCOMPARE(scroll.hint, QAbstractItemView::PositionAtCenter);
    }
}

void tst_ZEMListViewLogic::pageMoveSelectsScrollsAndTells()
{
    Fixture list;
    list.logic->setIndex(2);
    list.noteEvents();
    list.events.clear();
    list.logic->page_next();
    list.logic->page_previous();
    const QStringList order = {QStringLiteral("current 8, chosen 2"),
                               QStringLiteral("scrolled 8"),
                               QStringLiteral("told 1 1"),
                               QStringLiteral("current 0, chosen 2"),
                               QStringLiteral("scrolled 0"),
                               QStringLiteral("told 0 1")};
    QCOMPARE(list.events, order);
}

void tst_ZEMListViewLogic::noPagingWithoutCurrentRow()
{
    Fixture list;
    list.logic->page_next();
    list.logic->page_previous();
    QCOMPARE(list.told, Told());
    QCOMPARE(list.currentRow(), -1);
    QCOMPARE(list.logic->index(), 0);
    QVERIFY(list.view.scrolls.isEmpty());

    list.model.resetTo(20); // makes row 0 current
    list.logic->page_next();
    QCOMPARE(list.currentRow(), 8);
    QCOMPARE(list.told, Told({{false, true}, {true, true}}));
}

void tst_ZEMListViewLogic::resets_data()
{
    QTest::addColumn<int>("chosen");
    QTest::addColumn<int>("rows"); // 20 before
    QTest::addColumn<int>("kept");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
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
    Fixture list;
    QFETCH(int, chosen);
    list.logic->setIndex(chosen);
    list.told.clear();
    list.view.scrolls.clear();
    QFETCH(int, rows);
    list.model.resetTo(rows);
    QFETCH(int, kept);
    QCOMPARE(list.logic->index(), kept);
    QCOMPARE(list.currentRow(), kept);
    QCOMPARE(selectedRows(list.view), kept < 0 ? QSet<int>() : QSet<int> {kept});
    QFETCH(bool, previous);
    QFETCH(bool, next);
    QCOMPARE(list.told, Told({{previous, next}}));
    QVERIFY(list.view.scrolls.isEmpty());
}

void tst_ZEMListViewLogic::emptiedListStaysWithoutChoice()
{
    Fixture list;
    list.logic->setIndex(13);
    list.model.resetTo(0);
    list.model.resetTo(20);
    QCOMPARE(list.logic->index(), -1);
    QCOMPARE(list.currentRow(), -1);
    QCOMPARE(list.told, Told({{true, true}, {false, false}, {false, true}}));
    list.logic->setIndex(20);
    QCOMPARE(list.logic->index(), -1);
    list.logic->setIndex(4);
    QCOMPARE(list.logic->index(), 4);
    list.model.resetTo(0);
    list.logic->setModel(&list.model);
    QCOMPARE(list.logic->index(), 0);
}

void tst_ZEMListViewLogic::resetReturnsToTheChosenRow()
{
    Fixture list;
    list.noteEvents();
    QVERIFY(QTest::qWaitForWindowExposed(&list.view));
    list.logic->setIndex(2);
    list.logic->page_next();
    QCOMPARE(list.currentRow(), 8);
    QCOMPARE(list.view.verticalScrollBar()->value(), 8);
    list.told.clear();
    list.model.resetTo(20);
    QCoreApplication::processEvents();
    QCOMPARE(list.currentRow(), 2);
    QCOMPARE(list.told, Told({{false, true}}));
    QCOMPARE(list.view.verticalScrollBar()->value(), 8);
}

QTEST_MAIN(tst_ZEMListViewLogic)
#include "tst_zemlistviewlogic.moc"
