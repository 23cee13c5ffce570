// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listpagefixture.h"
#include "pagingengines.h"

#include <QAbstractButton>
#include <QRandomGenerator>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QTest>

#include <memory>

using namespace ListTest;

using Told = QVector<Pages>;

/** Lists and tables whose rows come, go and move without a reset and without a word of the host. */
class tst_ChangingRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comingRowsAreTold_data() { addEngines(); }
    void comingRowsAreTold();
    void goingRowsAreTold_data() { addEngines(); }
    void goingRowsAreTold();
    void movedRowTakesItsPageAlong_data() { addEngines(); }
    void movedRowTakesItsPageAlong();
    void sortedAndFilteredRowsAreTold_data() { addEngines(); }
    void sortedAndFilteredRowsAreTold();
    void refilledListCanBePaged_data() { addEngines(); }
    void refilledListCanBePaged();
    void untouchedListStaysUntouched_data() { addEngines(); }
    void untouchedListStaysUntouched();
    void rowThatDoesNotExistIsNotChosenLater_data() { addEngines(); }
    void rowThatDoesNotExistIsNotChosenLater();
    void firstRowIsChosenBeforeItComes_data() { addEngines(); }
    void firstRowIsChosenBeforeItComes();
    void deletedModelIsTold_data() { addEngines(); }
    void deletedModelIsTold();
    void viewThatTakesItsModelAlongTellsNothing_data() { addEngines(); }
    void viewThatTakesItsModelAlongTellsNothing();
    void modelTakenAwayWhenARowBecomesCurrent_data() { addEngines(); }
    void modelTakenAwayWhenARowBecomesCurrent();
    void formerModelIsNotFollowed_data() { addEngines(); }
    void formerModelIsNotFollowed();
    void modelThatIsTakenAwayWhileItsRowsCome_data() { addEngines(); }
    void modelThatIsTakenAwayWhileItsRowsCome();
    void manyChangesScrollOnce_data() { addEngines(); }
    void manyChangesScrollOnce();
    void randomChangesLeaveThePageRight_data() { addEngines(); }
    void randomChangesLeaveThePageRight();
    void selectionModelsDoNotPileUp_data() { addEngines(); }
    void selectionModelsDoNotPileUp();
    void selectionModelOfTheHostStays_data() { addEngines(); }
    void selectionModelOfTheHostStays();
    void buttonsOfThePageFollow();
};

namespace {

QStringList texts(int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i) {
        list.append(QStringLiteral("%1").arg(i, 5, 10, QLatin1Char('0')));
    }
    return list;
}

/** An engine that shows texts, pages of eight, the chosen row being @p chosen. */
template <typename Engine>
struct Fixture : EngineFixture<Engine>
{
    explicit Fixture(int rows, int chosen = 0) : rowsOfTexts(texts(rows))
    {
        this->logic->setModel(&rowsOfTexts);
        this->logic->setIndex(chosen);
        forget();
    }
    ~Fixture() { this->logic->setModel(nullptr); }
    Q_DISABLE_COPY(Fixture)

    void forget()
    {
        this->told.clear();
        this->view.scrolls.clear();
    }
    /** What was told last; nothing at all fails. */
    Pages lastTold() const
    {
        return this->told.isEmpty() ? Pages(true, true) : this->told.constLast();
    }
    int lastScroll() const
    {
        return this->view.scrolls.isEmpty() ? -1 : this->view.scrolls.constLast().row;
    }

    QStringListModel rowsOfTexts;
};

} // namespace

void tst_ChangingRows::comingRowsAreTold()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(8);
        paged.rowsOfTexts.insertRows(8, 1);
        QCOMPARE(paged.lastTold(), Pages(false, true));
        paged.logic->page_next();
        QCOMPARE(paged.currentRow(), 8);
        QCOMPARE(paged.lastTold(), Pages(true, false));

        paged.rowsOfTexts.insertRows(0, 9); // the current row is the eighteenth now
        QCOMPARE(paged.currentRow(), 17);
        QCOMPARE(paged.lastTold(), Pages(true, false));
        QTRY_COMPARE(paged.lastScroll(), 16);
        QCOMPARE(paged.logic->index(), 0); // the choice is the host's
    });
}

void tst_ChangingRows::goingRowsAreTold()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20, 16);
        paged.rowsOfTexts.removeRows(0, 9);
        QCOMPARE(paged.currentRow(), 7);
        QCOMPARE(paged.lastTold().first, false);
        QTRY_COMPARE(paged.lastScroll(), 0);
        paged.logic->setIndex(0);
        QCOMPARE(paged.lastTold(), Pages(false, true));
        paged.rowsOfTexts.removeRows(8, 3);
        QCOMPARE(paged.lastTold(), Pages(false, false));
        paged.rowsOfTexts.removeRows(0, 8);
        QCOMPARE(paged.lastTold(), Pages(false, false));
    });
}

void tst_ChangingRows::movedRowTakesItsPageAlong()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20, 0);
        paged.rowsOfTexts.moveRow(QModelIndex(), 0, QModelIndex(), 20);
        QCOMPARE(paged.currentRow(), 19);
        QCOMPARE(paged.lastTold(), Pages(true, false));
        QTRY_COMPARE(paged.lastScroll(), 16);
    });
}

void tst_ChangingRows::sortedAndFilteredRowsAreTold()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        QSortFilterProxyModel proxy;
        proxy.setSourceModel(&paged.rowsOfTexts);
        paged.logic->setModel(&proxy);
        paged.logic->setIndex(1);
        proxy.sort(0, Qt::DescendingOrder);
        QCOMPARE(paged.currentRow(), 18);
        QCOMPARE(paged.lastTold(), Pages(true, false));
        QTRY_COMPARE(paged.lastScroll(), 16);
        proxy.setFilterFixedString(QStringLiteral("0000")); // leaves ten
        QCOMPARE(paged.currentRow(), 8);
        QCOMPARE(paged.lastTold(), Pages(true, false));
        proxy.setFilterFixedString(QStringLiteral("none"));
        QCOMPARE(paged.lastTold(), Pages(false, false));
        proxy.setFilterFixedString(QString());
        QCOMPARE(paged.currentRow(), 1); // the choice
        QCOMPARE(paged.lastTold(), Pages(false, true));
        paged.logic->setModel(nullptr);
    });
}

void tst_ChangingRows::refilledListCanBePaged()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20, 13);
        for (const bool byReset : {false, true}) {
            if (byReset) {
                paged.rowsOfTexts.setStringList({});
                QCOMPARE(paged.logic->index(), -1);
            } else {
                paged.rowsOfTexts.removeRows(0, 20);
            }
            QCOMPARE(paged.currentRow(), -1);
            paged.rowsOfTexts.insertRows(0, 20);
            QCOMPARE(paged.currentRow(), byReset ? 0 : 13);
            QCOMPARE(paged.logic->index(), byReset ? -1 : 13);
            paged.logic->page_next();
            QCOMPARE(paged.lastTold(), Pages(true, byReset));
        }
    });
}

void tst_ChangingRows::untouchedListStaysUntouched()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        QStringListModel other(texts(4));
        paged.logic->setModel(&other);
        other.insertRows(0, 10);
        other.removeRows(3, 2);
        QCoreApplication::processEvents();
        other.removeRows(0, other.rowCount());
        other.insertRows(0, 3);
        QCoreApplication::processEvents();
        QCOMPARE(paged.currentRow(), -1);
        QCOMPARE(paged.told, Told());
        QVERIFY(paged.view.scrolls.isEmpty());
        paged.logic->setModel(nullptr);
    });
}

void tst_ChangingRows::rowThatDoesNotExistIsNotChosenLater()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        QStringListModel other;
        paged.logic->setModel(&other);
        for (const int row : {-1, 5, 100}) {
            paged.logic->setIndex(row);
            paged.forget();
            other.insertRows(0, 4);
            QCoreApplication::processEvents();
            QCOMPARE(paged.currentRow(), -1);
            QCOMPARE(paged.told, Told());
            QVERIFY(paged.view.scrolls.isEmpty());
            other.removeRows(0, 4);
        }
        paged.logic->setModel(nullptr);
    });
}

void tst_ChangingRows::firstRowIsChosenBeforeItComes()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        QStringListModel other;
        paged.logic->setModel(&other);
        paged.logic->setIndex(0);
        other.insertRows(0, 9);
        QCOMPARE(paged.currentRow(), 0);
        QCOMPARE(paged.lastTold(), Pages(false, true));
        paged.logic->setModel(nullptr);
    });
}

void tst_ChangingRows::deletedModelIsTold()
{
    const DeletedModelsAreNoNews quiet;
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        auto brief = std::make_unique<QStringListModel>(texts(20));
        paged.logic->setModel(brief.get());
        paged.logic->setIndex(8);
        QCOMPARE(paged.lastTold().first, true);
        brief.reset();
        QTRY_COMPARE(paged.lastTold(), Pages(false, false));
        paged.logic->page_next();
        QCOMPARE(paged.lastTold(), Pages(false, false));
    });
}

void tst_ChangingRows::viewThatTakesItsModelAlongTellsNothing()
{
    withEngine([](auto engine) {
        using Engine = decltype(engine);
        auto view = std::make_unique<typename Engine::View>();
        auto *model = new QStringListModel(texts(20), view.get()); // goes before the engine
        auto *logic = new typename Engine::Logic(view.get());
        logic->setModel(model);
        logic->setIndex(8);
        int count = 0;
        connect(logic, &Engine::Logic::has_page, [&count] { ++count; });
        view.reset();
        QCOMPARE(count, 0);
    });
}

void tst_ChangingRows::modelTakenAwayWhenARowBecomesCurrent()
{
    withEngine([](auto engine) {
        using Engine = decltype(engine);
        QStringListModel model;
        auto view = std::make_unique<typename Engine::View>();
        auto *logic = new typename Engine::Logic(view.get());
        logic->setModel(&model);
        logic->setIndex(0);
        connect(view->selectionModel(), &QItemSelectionModel::currentChanged, logic,
                [logic] { logic->setModel(nullptr); });
        int count = 0;
        connect(logic, &Engine::Logic::has_page, [&count] { ++count; });
        model.insertRows(0, 20);
        const int countAtOnce = count;
        QCoreApplication::processEvents(); // nothing is left to scroll to
        QCOMPARE(count, countAtOnce);
        QVERIFY(!Engine::text(*logic).isValid());
    });
}

void tst_ChangingRows::formerModelIsNotFollowed()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        QStringListModel other(texts(20));
        paged.rowsOfTexts.insertRows(0, 1); // asks for a scroll
        paged.logic->setModel(&other);
        paged.view.setCurrentIndex(other.index(9));
        paged.forget();
        paged.rowsOfTexts.removeRows(0, 5);
        QCoreApplication::processEvents();
        QCOMPARE(paged.told, Told());
        QVERIFY(paged.view.scrolls.isEmpty());

        paged.logic->setModel(&other); // once more
        other.removeRows(19, 1);
        QCOMPARE(paged.told.count(), 1);
        paged.logic->setModel(nullptr);
    });
}

void tst_ChangingRows::modelThatIsTakenAwayWhileItsRowsCome()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(3, 2);
        paged.rowsOfTexts.removeRows(0, 3);
        auto *const logic = paged.logic;
        connect(paged.view.selectionModel(), &QItemSelectionModel::currentChanged, logic,
                [logic] { logic->setModel(nullptr); });
        QCoreApplication::processEvents();
        paged.forget();
        paged.rowsOfTexts.insertRows(0, 2); // makes a row current
        QVERIFY(!paged.view.model());
        QCOMPARE(paged.lastTold(), Pages(false, false));
        QCoreApplication::processEvents();
        QVERIFY(paged.view.scrolls.isEmpty());
    });
}

void tst_ChangingRows::manyChangesScrollOnce()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20, 9);
        for (int i = 0; i < 100; ++i) {
            paged.rowsOfTexts.insertRows(0, 1);
        }
        QVERIFY(paged.view.scrolls.isEmpty());
        QTRY_COMPARE(paged.view.scrolls.count(), 1);
        QCOMPARE(paged.lastScroll(), 104);
        QCoreApplication::processEvents();
        QCOMPARE(paged.view.scrolls.count(), 1);
    });
}

void tst_ChangingRows::randomChangesLeaveThePageRight()
{
    withEngine([](auto engine) {
        using Engine = decltype(engine);
        Fixture<Engine> paged(20);
        QRandomGenerator random(1913);
        for (int step = 0; step < 3000; ++step) {
            const int rows = paged.rowsOfTexts.rowCount();
            const int row = random.bounded(rows + 1);
            const int die = random.bounded(4);
            if (die == 0 && row < rows) {
                paged.rowsOfTexts.removeRows(row, 1 + random.bounded(rows - row));
            } else if (die == 1 && row < rows) {
                const int target = random.bounded(rows + 1);
                paged.rowsOfTexts.moveRow(QModelIndex(), row, QModelIndex(), target);
            } else if (die == 2 && random.bounded(2) == 0) {
                paged.logic->page_next();
            } else {
                paged.rowsOfTexts.insertRows(row, 1 + random.bounded(6));
            }
            const int count = paged.rowsOfTexts.rowCount();
            const int current = paged.currentRow();
            QCOMPARE(current < 0, count == 0);
            constexpr bool isTable = std::is_same_v<Engine, Table>;
            const int place = isTable ? current : current / 8 * 8;
            const QByteArray where = QByteArray::number(step);
            if (count > 0 || !paged.told.isEmpty()) {
                QVERIFY2(paged.lastTold() == Pages(place >= 8, count > place + 8), where);
            }
            if (random.bounded(10) == 0) {
                QCoreApplication::processEvents();
                QVERIFY2(current < 0 || paged.lastScroll() == current / 8 * 8, where);
            }
        }
    });
}

void tst_ChangingRows::selectionModelsDoNotPileUp()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        QStringListModel other(texts(3));
        for (int i = 0; i < 100; ++i) {
            paged.logic->setModel(&other);
            paged.logic->setModel(&paged.rowsOfTexts);
            paged.logic->setModel(nullptr);
        }
        paged.logic->setModel(&paged.rowsOfTexts);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int count = paged.view.template findChildren<QItemSelectionModel *>().count();
        QVERIFY2(count <= 3, QByteArray::number(count)); // two headers of a table make one each
        paged.logic->setIndex(9);
        QCOMPARE(selectedRows(paged.view), QSet<int> {9});
    });
}

void tst_ChangingRows::selectionModelOfTheHostStays()
{
    withEngine([](auto engine) {
        Fixture<decltype(engine)> paged(20);
        const QPointer<QItemSelectionModel> hosts =
            new QItemSelectionModel(&paged.rowsOfTexts, &paged.view);
        paged.view.setSelectionModel(hosts);
        QStringListModel other(texts(3));
        paged.logic->setModel(&other);
        paged.logic->setModel(&paged.rowsOfTexts);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(hosts);
    });
}

void tst_ChangingRows::buttonsOfThePageFollow()
{
    QStringListModel model(texts(8));
    ZEMListView page;
    page.setModel(&model);
    page.setIndex(0);
    const auto *up = part<QAbstractButton>(page, "btnUp");
    const auto *down = part<QAbstractButton>(page, "btnDown");
    QVERIFY(!up->isEnabled() && !down->isEnabled());
    model.insertRows(8, 4);
    QVERIFY(!up->isEnabled() && down->isEnabled());
    part<QAbstractButton>(page, "btnDown")->click();
    QVERIFY(up->isEnabled() && !down->isEnabled());
    model.removeRows(0, 4);
    QVERIFY(!up->isEnabled() && !down->isEnabled());
    page.setModel(nullptr);
}

QTEST_MAIN(tst_ChangingRows)
#include "tst_changingrows.moc"
