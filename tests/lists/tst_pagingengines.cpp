// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "ownmethods.h"
#include "pagingengines.h"
#include "zemtest.h"

#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTest>

#include <memory>
#include <type_traits>
#include <utility>

using namespace ListTest;

using Told = QVector<Pages>;

namespace {

/** Where the moves to the next page and back lead from row 2. */
void addMoves()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<int>("next");
    QTest::addColumn<int>("previous");
    QTest::newRow("list, to the top of the page") << false << 8 << 0;
    QTest::newRow("table, by as many rows") << true << 10 << 2;
}

} // namespace

/** What the paging engines of lists and of tables do alike. */
class tst_PagingEngines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newLogic_data() { addEngines(); }
    void newLogic();
    void livesAndDiesWithTheView_data() { addEngines(); }
    void livesAndDiesWithTheView();
    void declaresItsSignalsAndSlots_data() { addEngines(); }
    void declaresItsSignalsAndSlots();
    void setModelChoosesNothing_data() { addEngines(); }
    void setModelChoosesNothing();
    void setModelTwiceRestoresTwice_data() { addEngines(); }
    void setModelTwiceRestoresTwice();
    void formerModelStillRestores_data() { addEngines(); }
    void formerModelStillRestores();
    void delegateIsHandedOn_data() { addEngines(); }
    void delegateIsHandedOn();
    void pageSizeIsPositive_data();
    void pageSizeIsPositive();
    void pageSizeShowsWithTheNextMove_data();
    void pageSizeShowsWithTheNextMove();
    void choosingSelectsScrollsAndTells_data() { addEngines(); }
    void choosingSelectsScrollsAndTells();
    void choosingADisabledRow_data() { addEngines(); }
    void choosingADisabledRow();
    void pageMoveLeavesChoiceAndSelection_data() { addMoves(); }
    void pageMoveLeavesChoiceAndSelection();
    void selectionFlagsMoveTheSelection_data() { addMoves(); }
    void selectionFlagsMoveTheSelection();
    void scrollHintIsForEveryScroll_data() { addEngines(); }
    void scrollHintIsForEveryScroll();
    void pageMoveSelectsScrollsAndTells_data() { addMoves(); }
    void pageMoveSelectsScrollsAndTells();
    void noPagingWithoutCurrentRow_data() { addEngines(); }
    void noPagingWithoutCurrentRow();
    void emptiedViewStaysWithoutChoice_data();
    void emptiedViewStaysWithoutChoice();
    void resetReturnsToTheChosenRow_data() { addMoves(); }
    void resetReturnsToTheChosenRow();
};

void tst_PagingEngines::newLogic()
{
    withEngine([](auto engine) {
        using Engine = decltype(engine);
        typename Engine::View view;
        const typename Engine::Logic logic(&view);
        QCOMPARE(logic.parent(), &view);
        QCOMPARE(Engine::pageSize(logic), 8);
        QCOMPARE(logic.index(), 0);
        QVERIFY(!view.model());
        QVERIFY((std::is_base_of_v<QObject, typename Engine::Logic>));
    });
}

void tst_PagingEngines::livesAndDiesWithTheView()
{
    withEngine([](auto engine) {
        using Engine = decltype(engine);
        auto view = std::make_unique<typename Engine::View>();
        const QPointer<QObject> logic = new typename Engine::Logic(view.get());
        view.reset();
        QVERIFY(logic.isNull());

        EngineFixture<decltype(engine)> paged;
        delete paged.logic;
        paged.model.resetTo(5); // reaches nobody
        QCOMPARE(paged.told, Told());
    });
}

void tst_PagingEngines::declaresItsSignalsAndSlots()
{
    withEngine([](auto engine) {
        using Engine = decltype(engine);
        const QStringList methods = {
            QStringLiteral("signal has_page(bool,bool)"), QStringLiteral("public page_previous()"),
            QStringLiteral("public page_next()"), QStringLiteral("private reset()")};
        QCOMPARE(ZemTest::ownMethods(Engine::Logic::staticMetaObject), methods);
    });
}

void tst_PagingEngines::setModelChoosesNothing()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        QCOMPARE(paged.view.model(), &paged.model);
        QCOMPARE(paged.currentRow(), -1);
        QCOMPARE(paged.told, Told());
        QVERIFY(paged.view.scrolls.isEmpty());

        paged.logic->setIndex(13);
        paged.told.clear();
        paged.view.scrolls.clear();
        RowModel other(20);
        paged.logic->setModel(&other);
        QCOMPARE(paged.view.model(), &other);
        QCOMPARE(paged.logic->index(), 0);
        QCOMPARE(paged.currentRow(), -1);
        QCOMPARE(paged.told, Told());
        QVERIFY(paged.view.scrolls.isEmpty());
        paged.logic->setModel(nullptr);
    });
}

void tst_PagingEngines::setModelTwiceRestoresTwice()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        paged.model.resetTo(20);
        QCOMPARE(paged.told.count(), 1);
        paged.logic->setModel(&paged.model);
        paged.model.resetTo(20);
        QCOMPARE(paged.told.count(), 3);
    });
}

void tst_PagingEngines::formerModelStillRestores()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        RowModel other(12);
        paged.logic->setModel(&other);
        paged.logic->setIndex(9);
        paged.makeCurrent(0); // of the former model: changes nothing
        paged.view.setCurrentIndex(other.index(2, 0));
        paged.told.clear();
        paged.model.resetTo(3);
        QCOMPARE(paged.logic->index(), 9);
        QCOMPARE(paged.currentRow(), 9);
        QCOMPARE(paged.told, Told({{true, false}}));
        paged.logic->setModel(nullptr);
    });
}

void tst_PagingEngines::delegateIsHandedOn()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        QStyledItemDelegate delegate;
        paged.logic->setItemDelegate(&delegate);
        QCOMPARE(paged.view.itemDelegate(), &delegate);
    });
}

void tst_PagingEngines::pageSizeIsPositive_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pageSize");
    for (const bool isTable : {false, true}) {
        const char *engine = isTable ? "table" : "list";
        QTest::addRow("%s, one", engine) << isTable << 1 << 1;
        QTest::addRow("%s, many", engine) << isTable << 100 << 100;
        QTest::addRow("%s, none", engine) << isTable << 0 << 5;
        QTest::addRow("%s, fewer than none", engine) << isTable << -3 << 5;
    }
}

void tst_PagingEngines::pageSizeIsPositive()
{
    withEngine([](auto engine) {
        using Engine = decltype(engine);
        EngineFixture<decltype(engine)> paged;
        paged.logic->setNrPageItems(5);
        QCOMPARE(Engine::pageSize(*paged.logic), 5);
        QFETCH(int, count);
        paged.logic->setNrPageItems(count);
        QTEST(Engine::pageSize(*paged.logic), "pageSize");
    });
}

void tst_PagingEngines::pageSizeShowsWithTheNextMove_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<int>("landed");
    QTest::newRow("list") << false << 15;
    QTest::newRow("table") << true << 16;
}

void tst_PagingEngines::pageSizeShowsWithTheNextMove()
{
    withEngine([](auto engine) {
        QFETCH(int, landed);
        EngineFixture<decltype(engine)> paged;
        paged.logic->setIndex(13);
        paged.told.clear();
        paged.view.scrolls.clear();
        paged.logic->setNrPageItems(3);
        QCOMPARE(paged.told, Told());
        QVERIFY(paged.view.scrolls.isEmpty());
        QCOMPARE(paged.currentRow(), 13);
        paged.logic->page_next();
        QCOMPARE(paged.currentRow(), landed);
        QCOMPARE(paged.view.scrolls.constLast().row, 15);
        QCOMPARE(paged.told, Told({{true, true}}));
    });
}

void tst_PagingEngines::choosingSelectsScrollsAndTells()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        paged.noteEvents();
        paged.logic->setIndex(9);
        const QStringList order = {QStringLiteral("current 9, chosen 9"),
                                   QStringLiteral("scrolled 8"), QStringLiteral("told 1 1")};
        QCOMPARE(paged.events, order);
    });
}

void tst_PagingEngines::choosingADisabledRow()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        paged.model.disabledRows = {9};
        paged.logic->setIndex(2);
        paged.logic->setIndex(9);
        QCOMPARE(paged.logic->index(), 9);
        QCOMPARE(paged.currentRow(), 2);
    });
}

void tst_PagingEngines::pageMoveLeavesChoiceAndSelection()
{
    withEngine([](auto engine) {
        QFETCH(int, next);
        QFETCH(int, previous);
        EngineFixture<decltype(engine)> paged;
        paged.logic->setIndex(2);
        paged.logic->page_next();
        QCOMPARE(paged.currentRow(), next);
        QCOMPARE(paged.logic->index(), 2);
        QCOMPARE(selectedRows(paged.view), QSet<int> {2});
        paged.logic->page_previous();
        QCOMPARE(paged.currentRow(), previous);
        QCOMPARE(paged.logic->index(), 2);
        QCOMPARE(selectedRows(paged.view), QSet<int> {2});
        paged.logic->page_previous();
        QCOMPARE(paged.currentRow(), 0);
        QCOMPARE(paged.logic->index(), 2);
        QCOMPARE(selectedRows(paged.view), QSet<int> {2});
    });
}

void tst_PagingEngines::selectionFlagsMoveTheSelection()
{
    withEngine([](auto engine) {
        QFETCH(int, next);
        QFETCH(int, previous);
        EngineFixture<decltype(engine)> paged;
        paged.logic->setIndex(2);
        paged.logic->setSelectionFlags(QItemSelectionModel::ClearAndSelect);
        QCOMPARE(selectedRows(paged.view), QSet<int> {2});
        paged.logic->page_next();
        QCOMPARE(selectedRows(paged.view), QSet<int> {next});
        paged.logic->page_previous();
        QCOMPARE(selectedRows(paged.view), QSet<int> {previous});
    });
}

void tst_PagingEngines::scrollHintIsForEveryScroll()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        paged.logic->setScrollHint(QAbstractItemView::PositionAtCenter);
        QVERIFY(paged.view.scrolls.isEmpty());
        paged.logic->setIndex(2);
        paged.logic->page_next();
        paged.logic->page_previous();
        QCOMPARE(paged.view.scrolls.count(), 3);
        for (const auto &scroll : std::as_const(paged.view.scrolls)) {
            QCOMPARE(scroll.hint, QAbstractItemView::PositionAtCenter);
        }
    });
}

void tst_PagingEngines::pageMoveSelectsScrollsAndTells()
{
    withEngine([](auto engine) {
        QFETCH(int, next);
        QFETCH(int, previous);
        EngineFixture<decltype(engine)> paged;
        paged.logic->setIndex(2);
        paged.noteEvents();
        paged.events.clear();
        paged.logic->page_next();
        paged.logic->page_previous();
        const QStringList order = {QStringLiteral("current %1, chosen 2").arg(next),
                                   QStringLiteral("scrolled 8"),
                                   QStringLiteral("told 1 1"),
                                   QStringLiteral("current %1, chosen 2").arg(previous),
                                   QStringLiteral("scrolled 0"),
                                   QStringLiteral("told 0 1")};
        QCOMPARE(paged.events, order);
    });
}

void tst_PagingEngines::noPagingWithoutCurrentRow()
{
    withEngine([](auto engine) {
        EngineFixture<decltype(engine)> paged;
        paged.logic->page_next();
        paged.logic->page_previous();
        QCOMPARE(paged.told, Told());
        QCOMPARE(paged.currentRow(), -1);
        QCOMPARE(paged.logic->index(), 0);
        QVERIFY(paged.view.scrolls.isEmpty());

        paged.model.resetTo(20); // makes row 0 current
        paged.logic->page_next();
        QCOMPARE(paged.currentRow(), 8);
        QCOMPARE(paged.told, Told({{false, true}, {true, true}}));
    });
}

void tst_PagingEngines::emptiedViewStaysWithoutChoice_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<bool>("nextPage");
    QTest::newRow("list") << false << true;
    QTest::newRow("table") << true << false;
}

void tst_PagingEngines::emptiedViewStaysWithoutChoice()
{
    withEngine([](auto engine) {
        QFETCH(bool, nextPage);
        EngineFixture<decltype(engine)> paged;
        paged.logic->setIndex(13);
        paged.model.resetTo(0);
        paged.model.resetTo(20);
        QCOMPARE(paged.logic->index(), -1);
        QCOMPARE(paged.currentRow(), -1);
        QCOMPARE(paged.told, Told({{true, nextPage}, {false, false}, {false, true}}));
        paged.logic->setIndex(20);
        QCOMPARE(paged.logic->index(), -1);
        paged.logic->setIndex(4);
        QCOMPARE(paged.logic->index(), 4);
        paged.model.resetTo(0);
        paged.logic->setModel(&paged.model);
        QCOMPARE(paged.logic->index(), 0);
    });
}

void tst_PagingEngines::resetReturnsToTheChosenRow()
{
    withEngine([](auto engine) {
        QFETCH(int, next);
        EngineFixture<decltype(engine)> paged;
        paged.noteEvents();
        QVERIFY(QTest::qWaitForWindowExposed(&paged.view, ZemTest::hangs));
        paged.logic->setIndex(2);
        paged.logic->page_next();
        QCOMPARE(paged.currentRow(), next);
        QCOMPARE(paged.view.verticalScrollBar()->value(), 8);
        paged.told.clear();
        paged.model.resetTo(20);
        QCoreApplication::processEvents();
        QCOMPARE(paged.currentRow(), 2);
        QCOMPARE(paged.told, Told({{false, true}}));
        QCOMPARE(paged.view.verticalScrollBar()->value(), 8);
    });
}

QTEST_MAIN(tst_PagingEngines)
#include "tst_pagingengines.moc"
