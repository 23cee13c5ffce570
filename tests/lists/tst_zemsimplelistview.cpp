// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "listpagefixture.h"
#include "ownmethods.h"
#include "zemtest.h"

#include <ZEMActionListModel>
#include <ZEMTextLabel>

#include <QListView>
#include <QPointer>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTest>

using namespace ListTest;
using namespace WidgetTest;

/** What this page has of its own. */
class tst_ZEMSimpleListView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operationsStandInOrder();
    void declaresItsSignalsAndSlots();
    void titleComesFromTheModel();
    void emptyHeaderLeavesTheTitle();
    void laterTitlesAreNotFollowed();
    void titleGoesThroughTheVirtualOperation();
    void tapPicks();
    void tapWithAWobblePicks_data();
    void tapWithAWobblePicks();
    void tapOnASeparator();
    void tapOnOneOfOnlySeparators();
    void tapBetweenTheItemsDoesNothing();
    void pressBesideTheListCancels_data();
    void pressBesideTheListCancels();
    void pressIsNotPassedOn();
    void pageStaysWhenPickedOrCancelled();
    void heightOfAPage();
    void fitContents_data();
    void fitContents();
    void fitContentsWithoutGrid();
    void fittedGridHasTwoColumns();
    void pageWithoutModel();
    void pageCanGoWhenPicked();
};

namespace {

/** A page of six items, each asking for 120 by 90 pixels of its cell. */
struct Fixture : PageFixture<ZEMSimpleListView>
{
    explicit Fixture(int rows = 6) : PageFixture(rows, QSize(120, 90)) { }

    QString title() const
    {
        return page.findChild<ZEMTextLabel *>(QStringLiteral("lblTitle"))->text();
    }
    void tap(const QPoint &position) const
    {
        ZemTest::press(list()->viewport(), position);
        ZemTest::release(list()->viewport(), position);
    }
    QPoint middleOf(int row) const { return list()->visualRect(model.index(row, 0)).center(); }
};

} // namespace

void tst_ZEMSimpleListView::operationsStandInOrder()
{
    SKIP_UNLESS_PLACES_ARE_KNOWN();
    using V = ZEMSimpleListView;
    const std::ptrdiff_t first = place(&V::setModel);
    QCOMPARE(place(&V::setItemDelegate), first + 1);
    QCOMPARE(place(&V::setSelectionFlags), first + 2);
    QCOMPARE(place(&V::setScrollHint), first + 3);
    QCOMPARE(place(&V::setNrPageItems), first + 4);
    QCOMPARE(place(&V::nrPageItems), first + 5);
    QCOMPARE(place(&V::setIndex), first + 6);
    QCOMPARE(place(&V::index), first + 7);
    QCOMPARE(place(&V::setTitle), first + 8);
    QCOMPARE(place(&V::data), first + 9);
    QCOMPARE(place(&V::fitContents), first + 10);
}

void tst_ZEMSimpleListView::declaresItsSignalsAndSlots()
{
    const QStringList methods = {QStringLiteral("signal sigSelect(int)"),
                                 QStringLiteral("signal sigCancel()"),
                                 QStringLiteral("private slotClicked(QModelIndex)")};
    QCOMPARE(ZemTest::ownMethods(ZEMSimpleListView::staticMetaObject), methods);
    QCOMPARE(ownProperties(ZEMSimpleListView::staticMetaObject), QStringList());
}

void tst_ZEMSimpleListView::titleComesFromTheModel()
{
    Fixture fixture;
    fixture.model.title = QStringLiteral("Energie");
    fixture.page.setModel(&fixture.model);
    QCOMPARE(fixture.title(), QStringLiteral("Energie"));
    fixture.page.setTitle(QStringLiteral("Kies"));
    QCOMPARE(fixture.title(), QStringLiteral("Kies"));
    fixture.page.setTitle(QString());
    QCOMPARE(fixture.title(), QString());
}

void tst_ZEMSimpleListView::emptyHeaderLeavesTheTitle()
{
    Fixture fixture;
    QCOMPARE(fixture.title(), QStringLiteral("Text label"));
    fixture.page.setTitle(QStringLiteral("Kies"));
    fixture.page.setModel(&fixture.model);
    QCOMPARE(fixture.title(), QStringLiteral("Kies"));
}

void tst_ZEMSimpleListView::laterTitlesAreNotFollowed()
{
    ZEMActionListModel actions;
    actions.setTitle(QStringLiteral("Energie"));
    ZEMSimpleListView page;
    page.setModel(&actions);
    auto *label = part<ZEMTextLabel>(page, "lblTitle");
    QCOMPARE(label->text(), QStringLiteral("Energie"));
    actions.setTitle(QStringLiteral("Later"));
    Q_EMIT actions.headerDataChanged(Qt::Horizontal, 0, 0);
    QCOMPARE(label->text(), QStringLiteral("Energie"));
}

void tst_ZEMSimpleListView::titleGoesThroughTheVirtualOperation()
{
    class Shouting : public ZEMSimpleListView
    {
    public:
        void setTitle(const QString &title) override
        {
            ZEMSimpleListView::setTitle(title.toUpper());
        }
    };
    Shouting page;
    RowModel model(3);
    model.title = QStringLiteral("Energie");
    page.setModel(&model);
    QCOMPARE(part<ZEMTextLabel>(page, "lblTitle")->text(), QStringLiteral("ENERGIE"));
}

void tst_ZEMSimpleListView::tapPicks()
{
    Fixture fixture;
    fixture.page.fitContents(6);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMSimpleListView::sigSelect);
    const QSignalSpy cancelled(&fixture.page, &ZEMSimpleListView::sigCancel);
    const QSignalSpy told(fixture.logic(), &ZEMListViewLogic::has_page);
    ZemTest::press(fixture.list()->viewport(), fixture.middleOf(3));
    QCOMPARE(selected.count(), 0);
    ZemTest::release(fixture.list()->viewport(), fixture.middleOf(3));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constFirst(), QVariantList {3});
    QCOMPARE(told.count(), 2); // once for the tap and once for the pick
    QCOMPARE(cancelled.count(), 0);
    QCOMPARE(fixture.page.index(), 3);
    QCOMPARE(fixture.currentRow(), 3);
}

void tst_ZEMSimpleListView::tapWithAWobblePicks_data()
{
    QTest::addColumn<bool>("standardItems");
    QTest::newRow("QStringListModel") << false;
    QTest::newRow("QStandardItemModel") << true;
}

/** The models of Qt offer their items to be dragged, as an icon view would. */
void tst_ZEMSimpleListView::tapWithAWobblePicks()
{
    QStringListModel texts({QStringLiteral("stroom"), QStringLiteral("gas")});
    QStandardItemModel items;
    items.appendRow(new QStandardItem(QStringLiteral("stroom")));
    items.appendRow(new QStandardItem(QStringLiteral("gas")));
    Fixture fixture;
    QFETCH(bool, standardItems);
    QAbstractItemModel *const model = standardItems ? static_cast<QAbstractItemModel *>(&items)
                                                    : static_cast<QAbstractItemModel *>(&texts);
    fixture.page.setModel(model);
    fixture.list()->setIconSize(QSize(100, 60));
    fixture.page.fitContents(2);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMSimpleListView::sigSelect);
    QWidget *const viewport = fixture.list()->viewport();
    const QRect item = fixture.list()->visualRect(model->index(1, 0));
    QVERIFY(item.width() > 2 * QApplication::startDragDistance());
    ZemTest::press(viewport, item.center());
    for (int x = item.left() + 1; x < item.right(); ++x) {
        ZemTest::moveTo(viewport, QPoint(x, item.center().y()));
    }
    ZemTest::release(viewport, QPoint(item.right() - 1, item.center().y()));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constFirst(), QVariantList {1});
    QCOMPARE(model->rowCount(), 2);
}

void tst_ZEMSimpleListView::tapOnASeparator()
{
    Fixture fixture;
    fixture.model.disabledRows = {3};
    fixture.page.fitContents(6);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMSimpleListView::sigSelect);
    fixture.tap(fixture.middleOf(3)); // gives the list the focus, and so a current row
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constLast(), QVariantList {0});
    QCOMPARE(fixture.page.index(), 0);
    fixture.tap(fixture.middleOf(2));
    fixture.tap(fixture.middleOf(3));
    QCOMPARE(selected.count(), 3);
    QCOMPARE(selected.constLast(), QVariantList {2});
    QCOMPARE(fixture.page.index(), 2);
}

void tst_ZEMSimpleListView::tapOnOneOfOnlySeparators()
{
    Fixture fixture(3);
    fixture.model.disabledRows = {0, 1, 2};
    fixture.page.fitContents(3);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMSimpleListView::sigSelect);
    fixture.tap(fixture.middleOf(2));
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constLast(), QVariantList {2});
    QCOMPARE(fixture.currentRow(), -1);
}

void tst_ZEMSimpleListView::tapBetweenTheItemsDoesNothing()
{
    Fixture fixture(5); // the sixth place is free
    fixture.page.fitContents(5);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMSimpleListView::sigSelect);
    const QSignalSpy cancelled(&fixture.page, &ZEMSimpleListView::sigCancel);
    fixture.tap(QPoint(175 + 175 / 2, 250));
    fixture.page.setModel(nullptr);
    fixture.tap(QPoint(50, 50));
    QCOMPARE(selected.count() + cancelled.count(), 0);
}

void tst_ZEMSimpleListView::pressBesideTheListCancels_data()
{
    QTest::addColumn<QByteArray>("widget");
    QTest::newRow("page") << QByteArray();
    QTest::newRow("panel") << QByteArray("zemPageBackground");
    QTest::newRow("title") << QByteArray("lblTitle");
}

void tst_ZEMSimpleListView::pressBesideTheListCancels()
{
    Fixture fixture;
    fixture.page.setIndex(2);
    fixture.page.fitContents(6);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMSimpleListView::sigSelect);
    const QSignalSpy cancelled(&fixture.page, &ZEMSimpleListView::sigCancel);
    QFETCH(QByteArray, widget);
    QWidget *const place =
        widget.isEmpty() ? &fixture.page : part<QWidget>(fixture.page, widget.constData());
    for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        ZemTest::press(place, QPoint(3, 3), button);
        ZemTest::release(place, QPoint(3, 3), button);
        QTest::qWait(QApplication::doubleClickInterval() + 10);
    }
    QCOMPARE(cancelled.count(), 2);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(fixture.page.index(), 2);
}

void tst_ZEMSimpleListView::pressIsNotPassedOn()
{
    struct Host : QWidget
    {
        void mousePressEvent(QMouseEvent *) override { ++presses; }
        int presses = 0;
    };
    Host host;
    host.resize(640, 480);
    auto *page = new ZEMSimpleListView(&host);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host, ZemTest::hangs));
    const QSignalSpy cancelled(page, &ZEMSimpleListView::sigCancel);
    ZemTest::press(page, QPoint(3, 3));
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(host.presses, 0);
}

void tst_ZEMSimpleListView::pageStaysWhenPickedOrCancelled()
{
    Fixture fixture;
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    fixture.tap(fixture.middleOf(0));
    ZemTest::press(&fixture.page, QPoint(3, 3));
    QVERIFY(fixture.page.isVisible());
}

void tst_ZEMSimpleListView::heightOfAPage()
{
    Fixture fixture;
    fixture.page.setNrPageItems(3);
    QCOMPARE(fixture.list()->minimumHeight(), 3 * 90);
    fixture.page.setNrPageItems(0);
    QCOMPARE(fixture.page.nrPageItems(), 3);
    QCOMPARE(fixture.list()->minimumHeight(), 3 * 90);
    fixture.model.resetTo(0);
    fixture.page.setNrPageItems(5);
    QCOMPARE(fixture.page.nrPageItems(), 5);
    QCOMPARE(fixture.list()->minimumHeight(), 3 * 90);
    QCOMPARE(fixture.list()->maximumHeight(), QWIDGETSIZE_MAX);
}

void tst_ZEMSimpleListView::fitContents_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("height");
    QTest::newRow("six") << 6 << 300;
    QTest::newRow("five") << 5 << 300;
    QTest::newRow("one") << 1 << 100;
    QTest::newRow("two") << 2 << 100;
    QTest::newRow("a page") << 0 << 400;
    QTest::newRow("fewer than none") << -3 << 400;
}

void tst_ZEMSimpleListView::fitContents()
{
    Fixture fixture;
    QFETCH(int, count);
    QFETCH(int, height);
    fixture.page.fitContents(count);
    QCOMPARE(fixture.list()->minimumSize(), QSize(351, height));
    QCOMPARE(fixture.list()->maximumSize(), QSize(QWIDGETSIZE_MAX, height));
    QCOMPARE(fixture.page.nrPageItems(), 8);

    fixture.page.setModel(nullptr); // a grid needs no items
    fixture.page.fitContents(2);
    QCOMPARE(fixture.list()->minimumSize(), QSize(351, 100));
}

void tst_ZEMSimpleListView::fitContentsWithoutGrid()
{
    Fixture fixture;
    for (const QSize &grid : {QSize(), QSize(175, 0), QSize(0, 100)}) {
        fixture.list()->setGridSize(grid);
        fixture.page.fitContents(5);
        QCOMPARE(fixture.list()->minimumSize(), QSize(2 * 120 + 1, 3 * 90));
        QCOMPARE(fixture.list()->maximumHeight(), 3 * 90);
        fixture.page.fitContents(1);
    }
    fixture.page.setModel(nullptr);
    fixture.page.fitContents(5);
    QCOMPARE(fixture.list()->minimumSize(), QSize(0, 0));
}

void tst_ZEMSimpleListView::fittedGridHasTwoColumns()
{
    Fixture fixture(5);
    fixture.page.fitContents(5);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    for (int row = 0; row < 5; ++row) {
        const QRect cell(row % 2 * 175, row / 2 * 100, 175, 100);
        QVERIFY2(cell.contains(fixture.middleOf(row)), QByteArray::number(row));
    }
    QVERIFY(fixture.list()->viewport()->rect().contains(fixture.middleOf(4)));
}

void tst_ZEMSimpleListView::pageWithoutModel()
{
    ZEMSimpleListView page;
    const auto use = [&page] {
        page.setModel(nullptr);
        page.setNrPageItems(4);
        page.fitContents(4);
        page.setIndex(2);
        QVERIFY(!page.data(0).isValid());
        ZemTest::render(&page);
        QCOMPARE(page.index(), 0);
    };
    use();
    {
        RowModel brief(20);
        page.setModel(&brief);
        page.setIndex(13);
    }
    page.setIndex(2);
    QCOMPARE(page.index(), 13);
    ZemTest::render(&page);
    use();
}

void tst_ZEMSimpleListView::pageCanGoWhenPicked()
{
    RowModel model(6);
    QWidget host;
    host.resize(640, 480);
    QPointer<ZEMSimpleListView> page = new ZEMSimpleListView(&host);
    page->setModel(&model);
    page->fitContents(6);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host, ZemTest::hangs));
    connect(page.data(), &ZEMSimpleListView::sigSelect, page.data(), &QObject::deleteLater);
    auto *list = part<QListView>(*page, "listView");
    const QPoint item = list->visualRect(model.index(1, 0)).center();
    ZemTest::press(list->viewport(), item);
    ZemTest::release(list->viewport(), item);
    QTRY_VERIFY(!page);
    model.resetTo(5);
}

QTEST_MAIN(tst_ZEMSimpleListView)
#include "tst_zemsimplelistview.moc"
