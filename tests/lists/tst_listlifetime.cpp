// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/lifetimerows.h"
#include "listtest.h"

#include <ZEMActionListModel>
#include <ZEMListView>
#include <ZEMListViewLogic>
#include <ZEMSimpleListView>
#include <ZEMTableViewLogic>

#include <QAction>
#include <QListView>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTest>

#include <memory>

using namespace LifetimeRows;

/** Lists that end in the middle of one of their signals, and what ends before them. */
class tst_ListLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsInItsSignal_data();
    void endsInItsSignal();
    void allSignalsAreHeard();
    void modelEndsWithTheTapThatPicks();
    void delegateEndsFirst_data();
    void delegateEndsFirst();
    void selectionModelEndsFirst_data();
    void selectionModelEndsFirst();
    void actionsEndFirst();
    void pageEndsWhileAScrollIsDue();
};

namespace {

QStringListModel *textsOf(QObject *owner)
{
    QStringList texts;
    for (int i = 0; i < 20; ++i) {
        texts.append(QString::number(i));
    }
    return new QStringListModel(texts, owner);
}

/** A list on a page, which owns its model as well. */
template <typename List>
Lifetime::Stage listStage(int count)
{
    auto *list = new List;
    Lifetime::Stage stage = stageOf(list);
    list->setModel(textsOf(stage.page));
    list->fitContents(count);
    list->setIndex(0);
    QCoreApplication::processEvents();
    return stage;
}

void tap(const QPointer<QListView> &list, int row)
{
    const QPointer<QWidget> viewport = list->viewport();
    const QPoint item = list->visualRect(list->model()->index(row, 0)).center();
    ZemTest::press(viewport, item);
    if (viewport) {
        ZemTest::release(viewport, item);
    }
}

void addListViewRows()
{
    for (const char *button : {"btnSelect", "btnCancel"}) {
        const bool selects = qstrcmp(button, "btnSelect") == 0;
        add("ZEMListView", selects ? "sigSelect(int)" : "sigCancel()", [button] {
            Lifetime::Stage stage = listStage<ZEMListView>(8);
            const QPointer<QWidget> part = stage.page->findChild<QWidget *>(QLatin1String(button));
            stage.act = [part] { touch(part); };
            return stage;
        });
    }
}

void addSimpleListViewRows()
{
    add("ZEMSimpleListView", "sigSelect(int)", [] {
        Lifetime::Stage stage = listStage<ZEMSimpleListView>(6);
        const QPointer<QListView> list = stage.page->findChild<QListView *>();
        stage.act = [list] { tap(list, 1); };
        return stage;
    });
    for (const char *part : {"ZEMSimpleListView", "zemPageBackground", "lblTitle"}) {
        const QByteArray how = QByteArray(" on ") + part;
        add(
            "ZEMSimpleListView", "sigCancel()",
            [part] {
                Lifetime::Stage stage = listStage<ZEMSimpleListView>(6);
                const QPointer<QWidget> place =
                    stage.page->findChild<QWidget *>(QLatin1String(part));
                stage.act = [place] { ZemTest::press(place, QPoint(3, 3)); };
                return stage;
            },
            how.constData());
    }
}

/** What makes an engine tell its pages. */
template <typename View, typename Logic>
void addLogicRows()
{
    struct Way
    {
        const char *name;
        void (*act)(Logic *logic, QStringListModel *model);
    };
    static const Way ways[] = {
        {" by setIndex", [](Logic *logic, QStringListModel *) { logic->setIndex(3); }},
        {" by page_next", [](Logic *logic, QStringListModel *) { logic->page_next(); }},
        {" by page_previous", [](Logic *logic, QStringListModel *) { logic->page_previous(); }},
        {" by a reset", [](Logic *, QStringListModel *model) { model->setStringList({"one"}); }},
        {" by coming rows", [](Logic *, QStringListModel *model) { model->insertRows(0, 2); }},
        {" by going rows", [](Logic *, QStringListModel *model) { model->removeRows(0, 20); }},
        {" by sorted rows", [](Logic *, QStringListModel *model) { model->sort(0); }},
        {" by a model that goes", [](Logic *, QStringListModel *model) { delete model; }},
    };
    for (const Way &way : ways) {
        add(
            Logic::staticMetaObject.className(), "has_page(bool,bool)",
            [&way] {
                auto *view = new View;
                Lifetime::Stage stage = stageOf(view);
                auto *logic = new Logic(view);
                stage.object = logic;
                // Not the page's: a model cannot end in its own signals and go on.
                const auto model = std::shared_ptr<QObject>(new QObject);
                QStringListModel *const texts = textsOf(model.get());
                logic->setModel(texts);
                logic->setIndex(9);
                stage.act = [model, logic, texts, &way] { way.act(logic, texts); };
                return stage;
            },
            way.name);
    }
}

void addModelRows()
{
    struct Way
    {
        const char *signal;
        void (*act)(ZEMActionListModel *model, QAction *action);
    };
    using Model = ZEMActionListModel;
    static const Way ways[] = {
        {"modelReset()", [](Model *model, QAction *action) { model->setActionList({action}); }},
        {"rowsInserted(QModelIndex,int,int)",
         [](Model *model, QAction *action) { model->appendAction(action); }},
        {"rowsRemoved(QModelIndex,int,int)",
         [](Model *model, QAction *action) { model->removeAction(action); }},
    };
    for (const Way &way : ways) {
        add("ZEMActionListModel", way.signal, [&way] {
            auto *list = new ZEMSimpleListView;
            Lifetime::Stage stage = stageOf(list);
            auto *model = new ZEMActionListModel(stage.page);
            auto *action = new QAction(stage.page);
            model->setActionList({action, action});
            list->setModel(model);
            list->setIndex(1);
            stage.object = model;
            stage.act = [model, action, &way] { way.act(model, action); };
            return stage;
        });
    }
}

void addViews()
{
    QTest::addColumn<bool>("isTable");
    QTest::newRow("list") << false;
    QTest::newRow("table") << true;
}

/** Calls @p check with a view and an engine of the kind of the present row. */
template <typename Check>
void withViews(Check check)
{
    QFETCH(bool, isTable);
    const std::unique_ptr<QWidget> page(Lifetime::shownPage());
    if (isTable) {
        auto *view = new QTableView(page.get());
        check(view, new ZEMTableViewLogic(view));
    } else {
        auto *view = new QListView(page.get());
        check(view, new ZEMListViewLogic(view));
    }
}

} // namespace

void tst_ListLifetime::endsInItsSignal_data()
{
    addColumns();
    addListViewRows();
    addSimpleListViewRows();
    addLogicRows<QListView, ZEMListViewLogic>();
    addLogicRows<QTableView, ZEMTableViewLogic>();
    addModelRows();
    addMenuRows<ZEMListView>();
    addMenuRows<ZEMSimpleListView>();
}

void tst_ListLifetime::endsInItsSignal()
{
    const ListTest::DeletedModelsAreNoNews quiet;
    check();
}

void tst_ListLifetime::allSignalsAreHeard()
{
    for (const QMetaObject *metaObject :
         {&ZEMActionListModel::staticMetaObject, &ZEMListView::staticMetaObject,
          &ZEMListViewLogic::staticMetaObject, &ZEMSimpleListView::staticMetaObject,
          &ZEMTableViewLogic::staticMetaObject}) {
        QCOMPARE(unheard(*metaObject), QStringList());
    }
}

void tst_ListLifetime::modelEndsWithTheTapThatPicks()
{
    Lifetime::Stage stage = listStage<ZEMSimpleListView>(6);
    auto *list = qobject_cast<ZEMSimpleListView *>(stage.object);
    const auto *model = stage.page->findChild<QStringListModel *>();
    int picked = -1;
    connect(list, &ZEMSimpleListView::sigSelect, list, [&picked, model](int row) {
        picked = row;
        delete model;
    });
    tap(list->findChild<QListView *>(), 2);
    QCOMPARE(picked, 2);
    QVERIFY(!list->data(2).isValid());
    QCoreApplication::processEvents();
    delete stage.page;
}

void tst_ListLifetime::delegateEndsFirst_data()
{
    addViews();
}

void tst_ListLifetime::delegateEndsFirst()
{
    withViews([](auto *view, auto *logic) {
        auto delegate = std::make_unique<QStyledItemDelegate>();
        logic->setModel(textsOf(view));
        logic->setItemDelegate(delegate.get());
        view->show();
        delegate.reset();
        logic->setIndex(9);
        QVERIFY(!view->grab().isNull());
        logic->page_next();
    });
}

void tst_ListLifetime::selectionModelEndsFirst_data()
{
    addViews();
}

void tst_ListLifetime::selectionModelEndsFirst()
{
    withViews([](auto *view, auto *logic) {
        auto *model = textsOf(view);
        logic->setModel(model);
        logic->setIndex(9);
        delete view->selectionModel();
        logic->setIndex(3);
        logic->page_next();
        logic->page_previous();
        model->insertRows(0, 3);
        model->setStringList({QStringLiteral("one")});
        QCoreApplication::processEvents();
        QCOMPARE(logic->index(), 0);
        logic->setModel(nullptr);
        logic->setModel(model);
        logic->setIndex(0);
        QCOMPARE(view->currentIndex().row(), 0);
    });
}

void tst_ListLifetime::actionsEndFirst()
{
    ZEMActionListModel model;
    auto brief = std::make_unique<QAction>(QStringLiteral("brief"));
    QAction lasting(QStringLiteral("lasting"));
    model.setActionList({brief.get(), &lasting});
    ZEMSimpleListView page;
    page.setModel(&model);
    const QAction *const gone = brief.get();
    brief.reset();
    QVERIFY(!page.data(0).isValid());
    QCOMPARE(page.data(1).toString(), QStringLiteral("lasting"));
    ZemTest::render(&page);
    model.removeAction(const_cast<QAction *>(gone)); // found by its address alone
    QCOMPARE(model.rowCount(), 1);
}

void tst_ListLifetime::pageEndsWhileAScrollIsDue()
{
    QStringListModel model({QStringLiteral("one")});
    auto page = std::make_unique<ZEMListView>();
    page->setModel(&model);
    page->setIndex(0);
    model.insertRows(0, 20);
    page.reset();
    QCoreApplication::processEvents();
    model.insertRows(0, 20);
}

QTEST_MAIN(tst_ListLifetime)
#include "tst_listlifetime.moc"
