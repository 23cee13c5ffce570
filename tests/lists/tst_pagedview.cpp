// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listtest.h"
#include "pagingengines.h"

#include <QTest>

#include <memory>

using namespace ListTest;

using Told = QVector<Pages>;

/** What both paging engines do when a host acts in the middle of a step or takes things away. */
class tst_PagedView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectionModeIsForChoicesOnly_data();
    void selectionModeIsForChoicesOnly();
    void rowsThatGoInTheMiddle_data();
    void rowsThatGoInTheMiddle();
    void pageSizeThatChangesInTheMiddle_data();
    void pageSizeThatChangesInTheMiddle();
    void modelThatGoesInTheMiddle_data();
    void modelThatGoesInTheMiddle();
    void viewWithoutModelIsEmpty_data();
    void viewWithoutModelIsEmpty();
    void deletedModelLeavesAnEmptyView_data();
    void deletedModelLeavesAnEmptyView();
    void engineWithoutView_data();
    void engineWithoutView();
};

namespace {

template <typename Engine>
struct Fixture : EngineFixture<Engine>
{
    /** Does @p action the next time the current row changes. */
    template <typename Action>
    void onNextChange(Action action)
    {
        QObject::connect(this->view.selectionModel(), &QItemSelectionModel::currentChanged,
                         [this, action] {
                             if (!acted) {
                                 acted = true;
                                 action();
                             }
                         });
    }

    /** "reset" resets the model, "choose" chooses @p row; all others are slots. */
    void call(const QByteArray &what, int row)
    {
        if (what == "reset") {
            this->model.resetTo(this->model.rows);
        } else if (what == "choose") {
            this->logic->setIndex(row);
        } else {
            QVERIFY(QMetaObject::invokeMethod(this->logic, what.constData()));
        }
    }

    bool acted = false;
};

/** Calls everything on a view that has no rows. */
template <typename Engine>
void useEmptyView(typename Engine::Logic &logic)
{
    logic.setIndex(0);
    logic.setIndex(13);
    logic.page_next();
    logic.page_previous();
    QVERIFY(!Engine::text(logic).isValid());
    QVERIFY(QMetaObject::invokeMethod(&logic, "reset"));
    logic.setNrPageItems(4);
    QCOMPARE(Engine::pageSize(logic), 4);
    QCOMPARE(logic.index(), -1);
}

template <typename Engine>
void checkSelection()
{
    Fixture<Engine> paged;
    paged.view.setSelectionMode(QAbstractItemView::NoSelection);
    paged.logic->setSelectionFlags(QItemSelectionModel::ClearAndSelect);
    paged.logic->setIndex(8);
    QCOMPARE(paged.currentRow(), 8);
    QCOMPARE(selectedRows(paged.view), QSet<int>());
    paged.model.resetTo(20);
    QCOMPARE(paged.currentRow(), 8);
    QCOMPARE(selectedRows(paged.view), QSet<int>());
    paged.logic->page_next();
    QCOMPARE(selectedRows(paged.view), QSet<int> {16});
    paged.logic->page_previous();
    QCOMPARE(selectedRows(paged.view), QSet<int> {8});
}

template <typename Engine>
void checkRowsThatGo()
{
    Fixture<Engine> paged;
    QFETCH(int, before);
    paged.logic->setIndex(before);
    paged.told.clear();
    paged.onNextChange([&paged] { paged.model.removeLast(8); });
    QFETCH(QByteArray, call);
    paged.call(call, 8);
    QVERIFY(paged.acted);
    QCOMPARE(paged.currentRow(), 8);
    QFETCH(bool, nextPage);
    QCOMPARE(paged.told.constLast(), Pages(true, nextPage));
    QCoreApplication::processEvents();
    QCOMPARE(paged.told.constLast(), Pages(true, false)); // of the twelve rows that are left
}

template <typename Engine>
void checkPageSizeThatChanges()
{
    Fixture<Engine> paged;
    paged.makeCurrent(14);
    paged.onNextChange([&paged] { paged.logic->setNrPageItems(5); });
    paged.view.scrolls.clear();
    QFETCH(QByteArray, call);
    paged.call(call, 13);
    QVERIFY(paged.acted);
    QCOMPARE(paged.view.scrolls.count(), 1);
    QTEST(paged.view.scrolls.constFirst().row, "scrolled");
    QFETCH(bool, previousPage);
    QFETCH(bool, nextPage);
    QCOMPARE(paged.told, Told({{previousPage, nextPage}}));
}

template <typename Engine>
void checkModelThatGoes()
{
    for (const char *what : {"choose", "page_next", "page_previous"}) {
        Fixture<Engine> paged;
        paged.makeCurrent(12);
        paged.onNextChange([&paged] { paged.logic->setModel(nullptr); });
        paged.call(what, 8);
        QVERIFY(paged.acted);
        QCOMPARE(paged.currentRow(), -1);
        QCOMPARE(paged.logic->index(), 0);
        QCOMPARE(paged.told.count(), 1);
    }
}

template <typename Engine>
void checkNoModel(const Told &told)
{
    Fixture<Engine> paged;
    paged.logic->setIndex(13);
    paged.logic->setModel(nullptr);
    QCOMPARE(paged.logic->index(), 0);
    QVERIFY(!paged.view.model());
    paged.told.clear();
    useEmptyView<Engine>(*paged.logic);
    QCOMPARE(paged.told, told);

    typename Engine::View newView;
    useEmptyView<Engine>(*new typename Engine::Logic(&newView));
}

template <typename Engine>
void checkDeletedModel(const Told &told)
{
    Fixture<Engine> paged;
    {
        RowModel brief(20);
        paged.logic->setModel(&brief);
        paged.logic->setIndex(13);
        paged.logic->page_next();
        paged.told.clear();
    }
    QTRY_COMPARE(paged.told, Told({{false, false}}));
    paged.told.clear();
    QCOMPARE(paged.logic->index(), 13);
    useEmptyView<Engine>(*paged.logic);
    QCOMPARE(paged.told, told);
    paged.logic->setModel(&paged.model);
    paged.logic->setIndex(13);
    QCOMPARE(paged.currentRow(), 13);
}

template <typename Engine>
void checkNoView()
{
    typename Engine::Logic orphan(nullptr);
    RowModel model(20);
    orphan.setModel(&model);
    orphan.setItemDelegate(nullptr);
    useEmptyView<Engine>(orphan);

    // An engine that was taken away from its view outlives it.
    auto view = std::make_unique<typename Engine::View>();
    typename Engine::Logic moved(view.get());
    moved.setModel(&model);
    moved.setIndex(13);
    moved.setParent(nullptr);
    view.reset();
    useEmptyView<Engine>(moved);
}

} // namespace

void tst_PagedView::selectionModeIsForChoicesOnly_data()
{
    addEngines();
}

void tst_PagedView::selectionModeIsForChoicesOnly()
{
    withEngine([](auto engine) { checkSelection<decltype(engine)>(); });
}

/** A page move back and a choice count the rows after it, a page move on and a reset before. */
void tst_PagedView::rowsThatGoInTheMiddle_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("before");
    QTest::addColumn<bool>("nextPage");
    for (bool isTable : {false, true}) {
        const char *engine = isTable ? "table" : "list";
        const auto row = [engine, isTable](const char *call) -> QTestData & {
            return QTest::addRow("%s, %s", engine, call) << isTable << QByteArray(call);
        };
        row("choose") << 0 << false;
        row("page_previous") << 16 << false;
        row("page_next") << 0 << true;
        row("reset") << 8 << true;
    }
}

void tst_PagedView::rowsThatGoInTheMiddle()
{
    withEngine([](auto engine) { checkRowsThatGo<decltype(engine)>(); });
}

/** A list has found the page before it moves; a table finds it when it scrolls. */
void tst_PagedView::pageSizeThatChangesInTheMiddle_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<int>("scrolled");
    QTest::addColumn<bool>("previousPage");
    QTest::addColumn<bool>("nextPage");
    const QByteArray choose("choose");
    const QByteArray next("page_next");
    const QByteArray previous("page_previous");
    QTest::newRow("list, choose") << false << choose << 8 << true << true;
    QTest::newRow("list, next") << false << next << 16 << true << false;
    QTest::newRow("list, previous") << false << previous << 0 << false << true;
    QTest::newRow("table, choose") << true << choose << 10 << true << true;
    QTest::newRow("table, next") << true << next << 15 << true << false;
    QTest::newRow("table, previous") << true << previous << 5 << true << true;
}

void tst_PagedView::pageSizeThatChangesInTheMiddle()
{
    withEngine([](auto engine) { checkPageSizeThatChanges<decltype(engine)>(); });
}

void tst_PagedView::modelThatGoesInTheMiddle_data()
{
    addEngines();
}

void tst_PagedView::modelThatGoesInTheMiddle()
{
    withEngine([](auto engine) { checkModelThatGoes<decltype(engine)>(); });
}

void tst_PagedView::viewWithoutModelIsEmpty_data()
{
    addEngines();
}

void tst_PagedView::viewWithoutModelIsEmpty()
{
    QFETCH(bool, isTable);
    isTable ? checkNoModel<Table>({{false, false}, {false, false}, {false, false}})
            : checkNoModel<List>({{false, false}, {true, false}, {false, false}});
}

void tst_PagedView::deletedModelLeavesAnEmptyView_data()
{
    addEngines();
}

void tst_PagedView::deletedModelLeavesAnEmptyView()
{
    const ListTest::DeletedModelsAreNoNews quiet;
    QFETCH(bool, isTable);
    isTable ? checkDeletedModel<Table>({{true, false}, {true, false}, {false, false}})
            : checkDeletedModel<List>({{false, false}, {true, false}, {false, false}});
}

void tst_PagedView::engineWithoutView_data()
{
    addEngines();
}

void tst_PagedView::engineWithoutView()
{
    withEngine([](auto engine) { checkNoView<decltype(engine)>(); });
}

QTEST_MAIN(tst_PagedView)
#include "tst_pagedview.moc"
