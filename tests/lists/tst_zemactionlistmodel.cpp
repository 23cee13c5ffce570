// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listtest.h"
#include "ownmethods.h"
#include "zemtest.h"

#include <ZEMActionListModel>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QIcon>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include <functional>
#include <limits>
#include <memory>
#include <utility>

using namespace ListTest;

class tst_ZEMActionListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newModelIsEmpty();
    void declaresNoSignalAndNoSlot();
    void rowsAreTheActions();
    void roles_data();
    void roles();
    void emptyPlaces();
    void indexes();
    void headerIsTheTitle_data();
    void headerIsTheTitle();
    void titleIsSetSilently();
    void settingTheListResets();
    void appendingInsertsAtTheEnd();
    void insertedRowIsClamped_data();
    void insertedRowIsClamped();
    void removingTakesTheFirstPlace();
    void removingAStrangerDoesNothing();
    void flagsOfActions();
    void actionsAreNotWatched();
    void actionsAreNotOwned();
    void deletedActionIsAnEmptyRow();
    void agreesWithAList();
};

namespace {

/** Four actions of the texts "a" to "d". */
struct Actions
{
    QAction a {QStringLiteral("a"), nullptr};
    QAction b {QStringLiteral("b"), nullptr};
    QAction c {QStringLiteral("c"), nullptr};
    QAction d {QStringLiteral("d"), nullptr};
};

/** The texts of all rows, as a view sees them; "-" for one without. */
QString texts(const ZEMActionListModel &model)
{
    QString result;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QVariant text = model.data(model.index(row));
        result += text.isValid() ? text.toString() : QStringLiteral("-");
    }
    return result;
}

/** The changes that a model announces, in order. */
struct Announcements
{
    explicit Announcements(const ZEMActionListModel &model)
    {
        using M = QAbstractItemModel;
        QObject::connect(&model, &M::rowsAboutToBeInserted, noteRows("inserting"));
        QObject::connect(&model, &M::rowsInserted, noteRows("inserted"));
        QObject::connect(&model, &M::rowsAboutToBeRemoved, noteRows("removing"));
        QObject::connect(&model, &M::rowsRemoved, noteRows("removed"));
        QObject::connect(&model, &M::modelAboutToBeReset, note("resetting"));
        QObject::connect(&model, &M::modelReset, note("reset"));
        QObject::connect(&model, &M::headerDataChanged, note("header"));
        QObject::connect(&model, &M::dataChanged, note("data"));
    }
    Q_DISABLE_COPY(Announcements)

    std::function<void()> note(const char *what)
    {
        return [this, what] { events.append(QLatin1String(what)); };
    }
    std::function<void(const QModelIndex &, int, int)> noteRows(const char *what)
    {
        return [this, what](const QModelIndex &parent, int first, int last) {
            const QLatin1String where(parent.isValid() ? " below" : "");
            events.append(QStringLiteral("%1 %2 %3%4")
                              .arg(QLatin1String(what))
                              .arg(first)
                              .arg(last)
                              .arg(where));
        };
    }

    QStringList events;
};

} // namespace

void tst_ZEMActionListModel::newModelIsEmpty()
{
    QObject host;
    auto *model = new ZEMActionListModel(&host);
    QCOMPARE(static_cast<QObject *>(model)->parent(), &host);
    QCOMPARE(model->QObject::parent(), &host);
    QCOMPARE(model->rowCount(), 0);
    QCOMPARE(model->columnCount(), 1);
    QCOMPARE(model->headerData(0, Qt::Horizontal), QVariant(QString()));
    const QAbstractItemModelTester tester(model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void tst_ZEMActionListModel::declaresNoSignalAndNoSlot()
{
    QCOMPARE(ZemTest::ownMethods(ZEMActionListModel::staticMetaObject), QStringList());
    QCOMPARE(ZEMActionListModel::staticMetaObject.superClass(),
             &QAbstractListModel::staticMetaObject);
}

void tst_ZEMActionListModel::rowsAreTheActions()
{
    Actions actions;
    ZEMActionListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setActionList({&actions.c, &actions.a, &actions.b});
    QCOMPARE(texts(model), QStringLiteral("cab"));
    QCOMPARE(model.rowCount(), 3);
    QCOMPARE(model.columnCount(), 1);
    const QModelIndex first = model.index(0);
    QCOMPARE(model.rowCount(first), 0);
    QCOMPARE(model.columnCount(first), 0);
}

void tst_ZEMActionListModel::roles_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    QFont font(QStringLiteral("Cabin"), 33);
    QTest::newRow("text") << int(Qt::DisplayRole) << QVariant(QStringLiteral("&Gas"));
    QTest::newRow("font") << int(Qt::FontRole) << QVariant(font);
    QTest::newRow("no edit text") << int(Qt::EditRole) << QVariant();
    QTest::newRow("no tool tip") << int(Qt::ToolTipRole) << QVariant();
    QTest::newRow("no status tip") << int(Qt::StatusTipRole) << QVariant();
    QTest::newRow("no check mark") << int(Qt::CheckStateRole) << QVariant();
    QTest::newRow("no size") << int(Qt::SizeHintRole) << QVariant();
    QTest::newRow("no user data") << int(Qt::UserRole) << QVariant();
}

void tst_ZEMActionListModel::roles()
{
    const QPixmap green = ZemTest::flatPixmap(QSize(60, 60), Qt::green);
    QFETCH(int, role);
    for (bool separator : {false, true}) {
        QAction action(QIcon(green), QStringLiteral("&Gas"), nullptr);
        action.setFont(QFont(QStringLiteral("Cabin"), 33));
        action.setToolTip(QStringLiteral("tip"));
        action.setStatusTip(QStringLiteral("status"));
        action.setCheckable(true);
        action.setData(7);
        action.setSeparator(separator);
        ZEMActionListModel model;
        model.appendAction(&action);
        QTEST(model.data(model.index(0), role), "value");
        const QVariant icon = model.data(model.index(0), Qt::DecorationRole);
        QCOMPARE(icon.userType(), int(QMetaType::QIcon));
        QCOMPARE(icon.value<QIcon>().cacheKey(), action.icon().cacheKey());
    }
}

void tst_ZEMActionListModel::emptyPlaces()
{
    Actions actions;
    ZEMActionListModel model;
    model.setActionList({&actions.a, &actions.b, nullptr});
    QCOMPARE(model.rowCount(), 3);
    for (int role : {Qt::DisplayRole, Qt::DecorationRole, Qt::FontRole}) {
        QVERIFY(!model.data(QModelIndex(), role).isValid());
        QVERIFY(!model.data(model.index(2), role).isValid());
    }
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.flags(model.index(2)), Qt::ItemFlags(Qt::NoItemFlags));

    const QModelIndex last = model.index(1);
    model.removeAction(nullptr);
    model.removeAction(&actions.a); // the index is stale now
    QCOMPARE(model.rowCount(), 1);
    QVERIFY(!model.data(last).isValid());
    QCOMPARE(model.flags(last), Qt::ItemFlags(Qt::NoItemFlags));
}

void tst_ZEMActionListModel::indexes()
{
    Actions actions;
    ZEMActionListModel model;
    model.setActionList({&actions.a, &actions.b});
    const QModelIndex second = model.index(1, 0);
    QVERIFY(second.isValid());
    QCOMPARE(second.row(), 1);
    QCOMPARE(second.column(), 0);
    QCOMPARE(second.model(), &model);
    QCOMPARE(second.internalId(), quintptr(-1));
    QVERIFY(!model.parent(second).isValid());
    QVERIFY(!model.parent(QModelIndex()).isValid());
    QVERIFY(!model.index(2, 0).isValid());
    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.index(0, 1).isValid());
    QVERIFY(!model.index(0, -1).isValid());
    QVERIFY(!model.index(0, 0, second).isValid());

    // An index below an item can only be another model's.
    QStandardItemModel tree;
    tree.appendRow(new QStandardItem);
    tree.item(0)->appendRow(new QStandardItem);
    const QModelIndex below = tree.index(0, 0, tree.index(0, 0));
    QVERIFY(below.parent().isValid());
    QVERIFY(!model.data(below).isValid());
    QCOMPARE(model.data(tree.index(0, 0)), QVariant(QStringLiteral("a")));
}

void tst_ZEMActionListModel::headerIsTheTitle_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("value");
    const QVariant title(QStringLiteral("Menu"));
    QTest::newRow("horizontal") << 0 << Qt::Horizontal << int(Qt::DisplayRole) << title;
    QTest::newRow("vertical") << 7 << Qt::Vertical << int(Qt::DisplayRole) << title;
    QTest::newRow("no section") << -1 << Qt::Horizontal << int(Qt::DisplayRole) << title;
    QTest::newRow("no icon") << 0 << Qt::Horizontal << int(Qt::DecorationRole) << QVariant();
    QTest::newRow("no edit text") << 0 << Qt::Horizontal << int(Qt::EditRole) << QVariant();
}

void tst_ZEMActionListModel::headerIsTheTitle()
{
    ZEMActionListModel model;
    model.setTitle(QStringLiteral("Menu"));
    QFETCH(int, section);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, role);
    QTEST(model.headerData(section, orientation, role), "value");
}

void tst_ZEMActionListModel::titleIsSetSilently()
{
    ZEMActionListModel model;
    const Announcements announced(model);
    model.setTitle(QStringLiteral("Menu"));
    QCOMPARE(announced.events, QStringList());
}

void tst_ZEMActionListModel::settingTheListResets()
{
    Actions actions;
    ZEMActionListModel model;
    model.setActionList({&actions.a});
    const Announcements announced(model);
    int rowsBefore = -1;
    connect(&model, &QAbstractItemModel::modelAboutToBeReset,
            [&] { rowsBefore = model.rowCount(); });
    model.setActionList({&actions.b, &actions.c});
    QCOMPARE(announced.events, QStringList({QStringLiteral("resetting"), QStringLiteral("reset")}));
    QCOMPARE(rowsBefore, 1);
    QCOMPARE(texts(model), QStringLiteral("bc"));
}

void tst_ZEMActionListModel::appendingInsertsAtTheEnd()
{
    Actions actions;
    ZEMActionListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setActionList({&actions.a, &actions.b});
    const Announcements announced(model);
    model.appendAction(&actions.c);
    QCOMPARE(announced.events,
             QStringList({QStringLiteral("inserting 2 2"), QStringLiteral("inserted 2 2")}));
    model.appendAction(&actions.a);
    QCOMPARE(texts(model), QStringLiteral("abca"));
}

void tst_ZEMActionListModel::insertedRowIsClamped_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("rows");
    QTest::newRow("far below") << -5 << 0 << QStringLiteral("dabc");
    QTest::newRow("just below") << -1 << 0 << QStringLiteral("dabc");
    QTest::newRow("first") << 0 << 0 << QStringLiteral("dabc");
    QTest::newRow("between") << 1 << 1 << QStringLiteral("adbc");
    QTest::newRow("before the last") << 2 << 2 << QStringLiteral("abdc");
    QTest::newRow("end") << 3 << 3 << QStringLiteral("abcd");
    QTest::newRow("far past the end") << 99 << 3 << QStringLiteral("abcd");
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << 0 << QStringLiteral("dabc");
    QTest::newRow("highest") << std::numeric_limits<int>::max() << 3 << QStringLiteral("abcd");
}

void tst_ZEMActionListModel::insertedRowIsClamped()
{
    Actions actions;
    ZEMActionListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setActionList({&actions.a, &actions.b, &actions.c});
    const Announcements announced(model);
    QFETCH(int, row);
    model.insertAction(row, &actions.d);
    QTEST(texts(model), "rows");
    QFETCH(int, place);
    QCOMPARE(announced.events,
             QStringList({QStringLiteral("inserting %1 %1").arg(place),
                          QStringLiteral("inserted %1 %1").arg(place)}));
}

void tst_ZEMActionListModel::removingTakesTheFirstPlace()
{
    Actions actions;
    ZEMActionListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setActionList({&actions.a, &actions.b, &actions.c, &actions.b});
    const Announcements announced(model);
    model.removeAction(&actions.b);
    QCOMPARE(texts(model), QStringLiteral("acb"));
    QCOMPARE(announced.events,
             QStringList({QStringLiteral("removing 1 1"), QStringLiteral("removed 1 1")}));
    QCOMPARE(actions.b.text(), QStringLiteral("b"));
    model.removeAction(&actions.b);
    QCOMPARE(texts(model), QStringLiteral("ac"));
}

void tst_ZEMActionListModel::removingAStrangerDoesNothing()
{
    Actions actions;
    ZEMActionListModel model;
    model.setActionList({&actions.a, &actions.b});
    const Announcements announced(model);
    model.removeAction(&actions.c);
    model.removeAction(nullptr);
    QCOMPARE(announced.events, QStringList());
    QCOMPARE(texts(model), QStringLiteral("ab"));
}

void tst_ZEMActionListModel::flagsOfActions()
{
    Actions actions;
    actions.b.setEnabled(false);
    actions.c.setSeparator(true);
    ZEMActionListModel model;
    model.setActionList({&actions.a, &actions.b, &actions.c});
    const Qt::ItemFlags choosable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(model.flags(model.index(0)), choosable);
    QCOMPARE(model.flags(model.index(1)), choosable);
    QCOMPARE(model.flags(model.index(2)), Qt::ItemFlags(Qt::NoItemFlags));
    QCOMPARE(model.data(model.index(2)), QVariant(QStringLiteral("c")));
}

void tst_ZEMActionListModel::actionsAreNotWatched()
{
    Actions actions;
    ZEMActionListModel model;
    model.setActionList({&actions.a, &actions.b});
    const Announcements announced(model);
    actions.a.setText(QStringLiteral("A"));
    actions.a.setFont(QFont(QStringLiteral("Cabin"), 33));
    actions.a.setIcon(QIcon(ZemTest::flatPixmap(QSize(8, 8), Qt::red)));
    QCOMPARE(announced.events, QStringList());
    QCOMPARE(texts(model), QStringLiteral("Ab"));
}

void tst_ZEMActionListModel::actionsAreNotOwned()
{
    Actions actions;
    const QSignalSpy destroyed(&actions.a, &QObject::destroyed);
    {
        ZEMActionListModel model;
        model.setActionList({&actions.a, &actions.a});
        model.removeAction(&actions.a);
        model.setActionList({&actions.a});
    }
    QCOMPARE(destroyed.count(), 0);
    QCOMPARE(actions.a.text(), QStringLiteral("a"));
    QVERIFY(!actions.a.parent());
}

void tst_ZEMActionListModel::deletedActionIsAnEmptyRow()
{
    Actions actions;
    auto brief = std::make_unique<QAction>(QStringLiteral("brief"), nullptr);
    QAction *const gone = brief.get();
    ZEMActionListModel model;
    model.setActionList({&actions.a, gone, &actions.b});
    const Announcements announced(model);
    brief.reset();
    QCOMPARE(announced.events, QStringList());
    QCOMPARE(texts(model), QStringLiteral("a-b"));
    QCOMPARE(model.flags(model.index(1)), Qt::ItemFlags(Qt::NoItemFlags));
    model.removeAction(gone);
    QCOMPARE(texts(model), QStringLiteral("ab"));
}

void tst_ZEMActionListModel::agreesWithAList()
{
    QObject host;
    QList<QAction *> pool;
    for (int i = 0; i < 8; ++i) {
        pool.append(new QAction(QString(QChar('a' + i)), &host));
    }
    ZEMActionListModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QList<QAction *> expected;
    QRandomGenerator random(64);
    for (int i = 0; i < 5000; ++i) {
        QAction *const action = pool.at(random.bounded(pool.count()));
        const int die = random.bounded(100);
        if (die < 25) {
            model.appendAction(action);
            expected.append(action);
        } else if (die < 50) {
            const int row = random.bounded(-5, 20);
            model.insertAction(row, action);
            expected.insert(qBound(0, row, expected.count()), action);
        } else if (die < 98) {
            model.removeAction(action);
            expected.removeOne(action);
        } else {
            expected = pool.mid(random.bounded(pool.count()));
            model.setActionList(expected);
        }
        QString expectedTexts;
        for (const QAction *each : std::as_const(expected)) {
            expectedTexts += each->text();
        }
        QCOMPARE(texts(model), expectedTexts);
    }
}

QTEST_MAIN(tst_ZEMActionListModel)
#include "tst_zemactionlistmodel.moc"
