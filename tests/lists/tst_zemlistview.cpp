// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "listpagefixture.h"
#include "ownmethods.h"

#include <ZEMButton>
#include <ZEMTextLabel>

#include <QListView>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using namespace ListTest;
using namespace WidgetTest;

/** What this page has of its own. */
class tst_ZEMListView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operationsStandInOrder();
    void declaresItsSignalsAndSlots();
    void headerIsNotTheModels();
    void pageButtonsFollowThePages();
    void newPageButtonsDoNothing();
    void pageButtonsPage();
    void pageButtonsCanBeHidden();
    void selectPicksTheCurrentRow();
    void selectWithoutCurrentRow();
    void selectOnAnEmptiedList();
    void tapMakesCurrentOnly();
    void cancelTellsCancel();
    void pressBesideTheListDoesNothing();
    void heightOfAPage();
    void emptyListKeepsItsHeight();
    void fitContents_data();
    void fitContents();
    void fitContentsOfAnEmptyList();
    void pageWithoutModel();
    void pageStaysWhenPickedOrCancelled();
    void pageCanGoWhenPicked();
};

namespace {

/** A page of 20 items, each 120 by 24 pixels. */
struct Fixture : PageFixture<ZEMListView>
{
    explicit Fixture(int rows = 20) : PageFixture(rows, QSize(120, 24)) { }

    ZEMButton *button(const char *name) const
    {
        return page.findChild<ZEMButton *>(QLatin1String(name));
    }
};

} // namespace

void tst_ZEMListView::operationsStandInOrder()
{
    SKIP_UNLESS_PLACES_ARE_KNOWN();
    using V = ZEMListView;
    const std::ptrdiff_t first = place(&V::setModel);
    QCOMPARE(place(&V::setItemDelegate), first + 1);
    QCOMPARE(place(&V::setSelectionFlags), first + 2);
    QCOMPARE(place(&V::setScrollHint), first + 3);
    QCOMPARE(place(&V::setNrPageItems), first + 4);
    QCOMPARE(place(&V::nrPageItems), first + 5);
    QCOMPARE(place(&V::setIndex), first + 6);
    QCOMPARE(place(&V::index), first + 7);
    QCOMPARE(place(&V::data), first + 8);
    QCOMPARE(place(&V::setHeader), -1);
    QCOMPARE(place(&V::showPageButtons), -1);
    QCOMPARE(place(&V::fitContents), -1);
}

void tst_ZEMListView::declaresItsSignalsAndSlots()
{
    const QStringList methods = {QStringLiteral("signal sigSelect(int)"),
                                 QStringLiteral("signal sigCancel()"),
                                 QStringLiteral("private btnSelect_clicked()"),
                                 QStringLiteral("private has_page(bool,bool)"),
                                 QStringLiteral("private slotClicked(QModelIndex)")};
    QCOMPARE(ZemTest::ownMethods(ZEMListView::staticMetaObject), methods);
    QCOMPARE(ownProperties(ZEMListView::staticMetaObject), QStringList());
}

/** The row at the top of @p list. */
static int topRow(const QListView *list)
{
    return list->indexAt(QPoint(1, 1)).row();
}

void tst_ZEMListView::headerIsNotTheModels()
{
    Fixture fixture;
    fixture.model.title = QStringLiteral("from the model");
    auto *label = part<ZEMTextLabel>(fixture.page, "lblHeader");
    fixture.page.setModel(&fixture.model);
    QCOMPARE(label->text(), QStringLiteral("Text label"));
    fixture.page.setHeader(QStringLiteral("Kies"));
    QCOMPARE(label->text(), QStringLiteral("Kies"));
    fixture.page.setHeader(QString());
    QCOMPARE(label->text(), QString());
}

void tst_ZEMListView::pageButtonsFollowThePages()
{
    Fixture fixture;
    const auto enabled = [&fixture] {
        return Pages(fixture.button("btnUp")->isEnabled(), fixture.button("btnDown")->isEnabled());
    };
    fixture.button("btnSelect")->setEnabled(false);
    QCOMPARE(enabled(), Pages(true, true));
    fixture.page.setIndex(0);
    QCOMPARE(enabled(), Pages(false, true));
    fixture.page.setIndex(8);
    QCOMPARE(enabled(), Pages(true, true));
    fixture.page.setIndex(16);
    QCOMPARE(enabled(), Pages(true, false));
    fixture.model.resetTo(3);
    QCOMPARE(enabled(), Pages(false, false));
    QVERIFY(!fixture.button("btnSelect")->isEnabled());
    QVERIFY(fixture.button("btnCancel")->isEnabled());
}

void tst_ZEMListView::newPageButtonsDoNothing()
{
    Fixture fixture;
    fixture.button("btnDown")->click();
    fixture.button("btnUp")->click();
    QCOMPARE(fixture.currentRow(), -1);
    QVERIFY(fixture.button("btnUp")->isEnabled());
    QVERIFY(fixture.button("btnDown")->isEnabled());
}

void tst_ZEMListView::pageButtonsPage()
{
    Fixture fixture;
    fixture.page.setScrollHint(QAbstractItemView::PositionAtTop);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    fixture.page.setIndex(0);
    QTest::mouseClick(fixture.button("btnDown"), Qt::LeftButton);
    QCOMPARE(fixture.currentRow(), 8);
    QCOMPARE(topRow(fixture.list()), 8);
    QCOMPARE(fixture.page.index(), 0);
    QTest::mouseClick(fixture.button("btnUp"), Qt::LeftButton);
    QCOMPARE(fixture.currentRow(), 0);
    QCOMPARE(topRow(fixture.list()), 0);

    fixture.page.setScrollHint(QAbstractItemView::EnsureVisible);
    QTest::mouseClick(fixture.button("btnDown"), Qt::LeftButton);
    QCOMPARE(fixture.currentRow(), 8);
    QCOMPARE(topRow(fixture.list()), 0); // there is room for row 8 below the first page
}

void tst_ZEMListView::pageButtonsCanBeHidden()
{
    Fixture fixture;
    const auto hidden = [&fixture] {
        QStringList names;
        for (const char *name : {"btnUp", "btnDown", "btnSelect", "btnCancel"}) {
            if (fixture.button(name)->isHidden()) {
                names.append(QLatin1String(name));
            }
        }
        return names;
    };
    QCOMPARE(hidden(), QStringList());
    fixture.page.showPageButtons(false);
    QCOMPARE(hidden(), QStringList({QStringLiteral("btnUp"), QStringLiteral("btnDown")}));
    fixture.page.setIndex(0);
    QVERIFY(!fixture.button("btnUp")->isEnabled());
    fixture.page.setIndex(8);
    QVERIFY(fixture.button("btnUp")->isEnabled());
    QCOMPARE(hidden().count(), 2);
    fixture.page.showPageButtons(true);
    QCOMPARE(hidden(), QStringList());
}

void tst_ZEMListView::selectPicksTheCurrentRow()
{
    Fixture fixture;
    const QSignalSpy selected(&fixture.page, &ZEMListView::sigSelect);
    const QSignalSpy cancelled(&fixture.page, &ZEMListView::sigCancel);
    fixture.page.setIndex(0);
    fixture.logic()->page_next();
    QCOMPARE(fixture.currentRow(), 8);
    QCOMPARE(fixture.logic()->index(), 0);
    int indexWhenTold = -1;
    connect(&fixture.page, &ZEMListView::sigSelect, [&] { indexWhenTold = fixture.page.index(); });
    fixture.button("btnSelect")->click();
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constFirst(), QVariantList {8});
    QCOMPARE(indexWhenTold, 8);
    QCOMPARE(selectedRows(*fixture.list()), QSet<int> {8});
    QCOMPARE(cancelled.count(), 0);
}

void tst_ZEMListView::selectWithoutCurrentRow()
{
    Fixture fixture;
    const QSignalSpy selected(&fixture.page, &ZEMListView::sigSelect);
    const QSignalSpy told(fixture.logic(), &ZEMListViewLogic::has_page);
    fixture.button("btnSelect")->click();
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constFirst(), QVariantList {0});
    QCOMPARE(fixture.currentRow(), -1);
    QCOMPARE(told.count(), 0);
}

void tst_ZEMListView::selectOnAnEmptiedList()
{
    Fixture fixture;
    fixture.page.setIndex(13);
    fixture.model.resetTo(0);
    const QSignalSpy selected(&fixture.page, &ZEMListView::sigSelect);
    fixture.button("btnSelect")->click();
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constFirst(), QVariantList {-1});
}

void tst_ZEMListView::tapMakesCurrentOnly()
{
    Fixture fixture;
    fixture.page.setIndex(0);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMListView::sigSelect);
    const QSignalSpy cancelled(&fixture.page, &ZEMListView::sigCancel);
    const QSignalSpy told(fixture.logic(), &ZEMListViewLogic::has_page);
    const QPoint item = fixture.list()->visualRect(fixture.model.index(3, 0)).center();
    ZemTest::press(fixture.list()->viewport(), item);
    QCOMPARE(fixture.logic()->index(), 0);
    ZemTest::release(fixture.list()->viewport(), item);
    QCOMPARE(fixture.logic()->index(), 3);
    QCOMPARE(fixture.currentRow(), 3);
    QCOMPARE(told.count(), 1);
    QCOMPARE(selected.count() + cancelled.count(), 0);
}

void tst_ZEMListView::cancelTellsCancel()
{
    Fixture fixture;
    fixture.page.setIndex(3);
    fixture.logic()->page_next();
    const QSignalSpy selected(&fixture.page, &ZEMListView::sigSelect);
    const QSignalSpy cancelled(&fixture.page, &ZEMListView::sigCancel);
    fixture.button("btnCancel")->click();
    QCOMPARE(cancelled.count(), 1);
    QCOMPARE(selected.count(), 0);
    QCOMPARE(fixture.page.index(), 3);
    QCOMPARE(fixture.currentRow(), 8);
}

void tst_ZEMListView::pressBesideTheListDoesNothing()
{
    Fixture fixture;
    fixture.page.setIndex(3);
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    const QSignalSpy selected(&fixture.page, &ZEMListView::sigSelect);
    const QSignalSpy cancelled(&fixture.page, &ZEMListView::sigCancel);
    ZemTest::press(&fixture.page, QPoint(3, 3));
    ZemTest::release(&fixture.page, QPoint(3, 3));
    QCOMPARE(selected.count() + cancelled.count(), 0);
    QCOMPARE(fixture.currentRow(), 3);
    QVERIFY(fixture.page.isVisible());
}

void tst_ZEMListView::heightOfAPage()
{
    Fixture fixture;
    QCOMPARE(fixture.list()->sizeHintForRow(0), 24);
    fixture.page.setNrPageItems(6);
    QCOMPARE(fixture.list()->minimumHeight(), 6 * 24);
    fixture.page.setNrPageItems(0); // ignored, but measured anew
    QCOMPARE(fixture.page.nrPageItems(), 6);
    fixture.model.itemSize = QSize(120, 30);
    fixture.page.setNrPageItems(-1);
    QCOMPARE(fixture.list()->minimumHeight(), 6 * 30);
    QCOMPARE(fixture.list()->maximumHeight(), QWIDGETSIZE_MAX);
}

void tst_ZEMListView::emptyListKeepsItsHeight()
{
    Fixture fixture;
    fixture.page.setNrPageItems(6);
    fixture.model.resetTo(0);
    fixture.page.setNrPageItems(3);
    QCOMPARE(fixture.list()->minimumHeight(), 6 * 24);
    QCOMPARE(fixture.page.nrPageItems(), 3);
    fixture.model.resetTo(20);
    QCOMPARE(fixture.list()->minimumHeight(), 6 * 24);
    fixture.page.fitContents(0);
    QCOMPARE(fixture.list()->minimumHeight(), 3 * 24);
}

void tst_ZEMListView::fitContents_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("rows");
    QTest::newRow("of a number") << 5 << 5;
    QTest::newRow("of one") << 1 << 1;
    QTest::newRow("of more than a page") << 12 << 12;
    QTest::newRow("of a page") << 0 << 8;
    QTest::newRow("of fewer than none") << -4 << 8;
}

void tst_ZEMListView::fitContents()
{
    Fixture fixture;
    QFETCH(int, count);
    QFETCH(int, rows);
    fixture.page.fitContents(count);
    QCOMPARE(fixture.list()->minimumSize(), QSize(120, rows * 24));
    QCOMPARE(fixture.list()->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(fixture.page.nrPageItems(), 8);
}

void tst_ZEMListView::fitContentsOfAnEmptyList()
{
    Fixture fixture;
    fixture.page.fitContents(5);
    fixture.model.resetTo(0);
    fixture.page.fitContents(3);
    QCOMPARE(fixture.list()->minimumSize(), QSize(0, 5 * 24));
    fixture.page.setModel(nullptr);
    fixture.page.fitContents(3);
    QCOMPARE(fixture.list()->minimumSize(), QSize(0, 5 * 24));
}

void tst_ZEMListView::pageWithoutModel()
{
    ZEMListView page;
    const QSignalSpy selected(&page, &ZEMListView::sigSelect);
    const auto use = [&page] {
        for (const char *name : {"btnUp", "btnDown", "btnSelect", "btnCancel"}) {
            part<ZEMButton>(page, name)->click();
        }
        page.setNrPageItems(4);
        page.fitContents(4);
        page.setIndex(2);
        QVERIFY(!page.data(0).isValid());
        ZemTest::render(&page);
    };
    use();
    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.constFirst(), QVariantList {0});
    {
        RowModel brief(20);
        page.setModel(&brief);
        page.setIndex(13);
    }
    use();
    QCOMPARE(selected.count(), 2);
    QCOMPARE(selected.constLast(), QVariantList {13});
}

void tst_ZEMListView::pageStaysWhenPickedOrCancelled()
{
    Fixture fixture;
    const Stage stage(&fixture.page);
    QVERIFY(stage.isReady());
    fixture.button("btnSelect")->click();
    fixture.button("btnCancel")->click();
    QVERIFY(fixture.page.isVisible());
}

void tst_ZEMListView::pageCanGoWhenPicked()
{
    RowModel model(20);
    QPointer<ZEMListView> page = new ZEMListView;
    page->setModel(&model);
    page->setIndex(3);
    connect(page.data(), &ZEMListView::sigSelect, page.data(), &QObject::deleteLater);
    part<ZEMButton>(*page, "btnSelect")->click();
    QVERIFY(page);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!page);
    model.resetTo(5);
}

QTEST_MAIN(tst_ZEMListView)
#include "tst_zemlistview.moc"
